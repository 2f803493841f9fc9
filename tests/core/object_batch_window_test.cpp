// ConvertObjects: objects that Access refuses, what its window shows meanwhile, and its entries.
#include "core/object_session.h"
#include "core/window_events.h"

namespace tarrowin::test {
namespace {

constexpr std::string_view kTitle = "Access to Visual Basic Tarrowin";

class ObjectBatchErrors : public ObjectSession {};
class ObjectBatchWindow : public ObjectSession {};

TEST_F(ObjectBatchErrors, ARefusedModuleIsToldAsAForm) {
  open({}, {refused(module("Secret")), module("Tools")});
  ConvertObjects(main, true);
  ASSERT_EQ(session.user.boxes.size(), 2u);
  EXPECT_EQ(session.user.boxes[0],
            (Box{64, "You don't have permission to open Form Secret.", std::string(kTitle)}));
  EXPECT_EQ(files(), (Lines{"Tools.bas", "Tools.vbp"}));
}

TEST_F(ObjectBatchErrors, Number7961SkipsAFormOrModuleSilently) {
  open({refused(form("A"), 7961)}, {refused(module("M"), 7961)});
  ConvertObjects(main, true);
  EXPECT_EQ(session.onlyBox().text,
            "Unable to convert Access Forms or Modules to Visual Basic.\r\n\r\n");
  EXPECT_EQ(files(), Lines{});
}

TEST_F(ObjectBatchErrors, Number2450IsSilentAndTheFormIsTriedAllTheSame) {
  open({refused(form("A"), 2450)}, {});
  convert({"A"});
  for (const Box& box : session.user.boxes)
    EXPECT_FALSE(box.text.starts_with("ConvertObjects_Click() - Error #2450")) << box.text;
  EXPECT_EQ(main.lastBatch.converted, 1);
  EXPECT_TRUE(contains(files(), "A.frm"));
}

TEST_F(ObjectBatchErrors, TheAutoExecQuestionAnsweredNoSkipsTheForm) {
  open({refused(form("Locked"), 2046), form("B")}, {});
  session.user.answers = {Answer::kNo};
  ConvertObjects(main, true);
  ASSERT_EQ(session.user.boxes.size(), 2u);
  EXPECT_EQ(session.user.boxes[0],
            (Box{20,
                 "Unable to open Form 'Locked'. This may be due to an AutoExec macro running in "
                 "the database. It is recommended that you stop the program and while holding the "
                 "Shift-key down, open the database again. \r\n\r\nIf you do not stop the program, "
                 "none of the Objects in the database will be converted.\r\n\r\nStop the program "
                 "now?",
                 std::string(kTitle)}));
  EXPECT_EQ(summary(),
            "Successfully converted Access Form: B to Visual Basic Form: B.frm." + tail("B.vbp"));
  EXPECT_EQ(files(), (Lines{"B.frm", "B.vbp"}));
}

TEST_F(ObjectBatchErrors, TheAutoExecQuestionAnsweredYesStopsTheProgram) {
  open({refused(form("Locked"), 2046), form("B")}, {});
  session.user.answers = {Answer::kYes};
  ConvertObjects(main, true);
  EXPECT_EQ(session.user.boxes.size(), 1u);
  EXPECT_FALSE(state.gappAccess);
  EXPECT_EQ(files(), Lines{});
}

TEST_F(ObjectBatchErrors, ASkippedFormIsLookedAtByNobody) {
  for (const int number : {2601, 2046, 7961}) {
    FormSession own;
    Json database = emptyDatabase();
    database["forms"] = {refused(form("A"), number)};
    own.openDatabase(database);
    own.user.answers = {Answer::kNo};
    WatchedAccess watch(own.main);
    own.select(ObjectList::kObjects, {"A"});
    ConvertObjects(own.main, false);
    for (const std::string& read : watch.reads)
      EXPECT_EQ(read.find("Forms("), std::string::npos) << number << ' ' << read;
    EXPECT_EQ(fileNames(own.out()), Lines{});
  }
}

TEST_F(ObjectBatchErrors, AnyOtherNumberIsReportedWithThePointerOffAndTheBatchGoesOn) {
  open({refused(form("A"), {{"error", 2501}, {"description", "Cancelled."}}), form("B")}, {});
  WatchedAccess watch(main);
  int pointer = -1;
  watch.before = [&](const std::string& operation) {
    if (operation == R"(DoCmd.OpenForm("B", 1, , , -1, 1))") pointer = main.window.mousePointer;
  };
  ConvertObjects(main, true);
  ASSERT_GE(session.user.boxes.size(), 2u);
  EXPECT_EQ(session.user.boxes[0],
            (Box{16, "ConvertObjects_Click() - Error #2501\r\nCancelled.", std::string(kTitle)}));
  EXPECT_EQ(pointer, 0);
  EXPECT_TRUE(contains(files(), "B.frm"));
}

TEST_F(ObjectBatchErrors, AModuleThatFailsToOpenOtherwiseIsReported) {
  open({}, {refused(module("M"), {{"error", 2501}, {"description", "Cancelled."}})});
  convert({"M"});
  ASSERT_GE(session.user.boxes.size(), 2u);
  EXPECT_EQ(session.user.boxes[0].text, "ConvertObjects_Click() - Error #2501\r\nCancelled.");
  EXPECT_EQ(files(), Lines{});
  EXPECT_EQ(main.lastBatch.converted, 0);
}

TEST_F(ObjectBatchWindow, TheLabelNamesTheTypeOfTheObjectBefore) {
  open({form("A"), form("B")}, {module("M"), module("N")});
  ConvertObjects(main, true);
  EXPECT_EQ(session.user.progressLabels, (Lines{"Object: A", "Form: B", "Form: M", "Module: N"}));
}

TEST_F(ObjectBatchWindow, BeforeTheFirstSelectedObjectTheLabelSaysModule) {
  open({form("A"), form("B"), form("C")}, {module("M")});
  convert({"B", "M"});
  EXPECT_EQ(session.user.progressLabels, (Lines{"Module: B", "Form: M"}));
}

TEST_F(ObjectBatchWindow, ThePercentageRunsOverAllItems) {
  open({form("A"), form("B")}, {module("M")});
  WatchedAccess watch(main);
  Lines percents;
  std::vector<int> values;
  watch.before = [&](const std::string& operation) {
    if (operation.starts_with("DoCmd.OpenForm") || operation.starts_with("DoCmd.OpenModule")) {
      percents.push_back(main.window.lblPercent.caption);
      values.push_back(bar().value);
      EXPECT_EQ(main.window.mousePointer, 11);
      EXPECT_FALSE(main.window.lblCurDb.visible);
      EXPECT_TRUE(bar().visible);
    }
  };
  convert({"A", "M"});
  EXPECT_EQ(percents, (Lines{"33%", "100%"}));
  EXPECT_EQ(values, (std::vector<int>{1, 3}));
  EXPECT_EQ(bar().max, 3);
}

TEST_F(ObjectBatchWindow, AtTheEndTheProgressControlsAreAsWithTheOthers) {
  open({form("A")}, {module("M")});
  ConvertObjects(main, true);
  EXPECT_EQ(main.window.mousePointer, 0);
  EXPECT_EQ(bar().value, bar().min);
  EXPECT_FALSE(bar().visible);
  EXPECT_TRUE(main.window.lblCurDb.visible);
  EXPECT_TRUE(main.window.lblPct.visible);
  EXPECT_TRUE(main.window.lblPercent.visible);
  EXPECT_EQ(main.window.lblPct.caption, "");
  EXPECT_EQ(main.window.lblPercent.caption, "");
}

TEST_F(ObjectBatchWindow, NothingSelectedIsSaidBeforeTheDirectoryIsLookedAt) {
  open({form("A")}, {module("M")});
  main.window.txtCurDir = "";
  convert({});
  EXPECT_EQ(session.onlyBox(),
            (Box{64, "Please select a Form or Module to convert from the displayed list first.",
                 std::string(kTitle)}));
  EXPECT_EQ(main.window.txtCurDir, "");
}

TEST_F(ObjectBatchWindow, ConvertAllOnAnEmptyListAsksForTheDirectoryFirst) {
  open({}, {});
  main.window.txtCurDir = "";
  ConvertObjects(main, true);
  EXPECT_EQ(session.onlyBox().text, "Please specify an output directory for converted Forms.");
  ConvertObjects(main, true);
  EXPECT_EQ(session.onlyBox(),
            (Box{64, "There are no Forms or Modules to convert.", std::string(kTitle)}));
}

TEST_F(ObjectBatchWindow, TheProjectIsWrittenBeforeTheBox) {
  class WatchingUser : public RecordingUser {
   public:
    Answer messageBox(int style, std::string_view text, std::string_view title) override {
      filesAtBox.push_back(fileNames(folder));
      return RecordingUser::messageBox(style, text, title);
    }
    std::filesystem::path folder;
    std::vector<Lines> filesAtBox;
  };
  open({form("A")}, {});
  WatchingUser user;
  user.folder = session.out();
  MainObject own{user, session.files, main.host, main.Now};
  own.state = state;
  own.window = main.window;
  ConvertObjects(own, true);
  EXPECT_EQ(user.filesAtBox, (std::vector<Lines>{{"A.frm", "A.vbp"}}));
}

TEST_F(ObjectBatchWindow, TheElapsedTimeIsThatOfTheBatch) {
  open({form("A")}, {});
  WatchedAccess watch(main);
  watch.before = [&](const std::string& operation) {
    if (operation.starts_with("DoCmd.OpenForm")) session.now.days += 1.0 / 86400;
  };
  ConvertObjects(main, true);
  EXPECT_TRUE(session.onlyBox().text.ends_with("Conversion completed in: 00:01 second."));
}

TEST_F(ObjectBatchWindow, TheEntriesOfTheWindow) {
  open({form("A"), form("B")}, {module("M")});
  session.select(ObjectList::kObjects, {"A"});
  EXPECT_TRUE(clickButton(main, "cmdConvertObj"));
  EXPECT_EQ(files(), (Lines{"A.frm", "A.vbp"}));
  session.select(ObjectList::kObjects, {"M"});
  doubleClickList(main, ObjectList::kObjects);
  EXPECT_EQ(files(), (Lines{"A.frm", "A.vbp", "M.bas", "M.vbp"}));
  EXPECT_TRUE(clickButton(main, "cmdAllObjs"));
  EXPECT_EQ(files(), (Lines{"A.frm", "A.vbp", "B.frm", "M.bas", "M.vbp", "Orders.vbp"}));
}

}  // namespace
}  // namespace tarrowin::test
