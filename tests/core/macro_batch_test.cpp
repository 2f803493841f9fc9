// ConvertMacros: what Access is asked and in which order, which modules there are afterwards, and
// how the batch ends.
#include "core/macro_batch.h"

#include <gtest/gtest.h>

#include "core/module_batch.h"
#include "core/window_events.h"
#include "support/test_session.h"
#include "support/watched_access.h"

namespace tarrowin::test {
namespace {

using Lines = std::vector<std::string>;

constexpr std::string_view kTime = "Conversion completed in: 00:00 seconds.";

Json macro(std::string_view name) {
  return {{"name", name}, {"module", "Function " + std::string(name) + "()\r\nEnd Function\r\n"}};
}

Json databaseOf(const std::vector<Json>& macros) {
  Json database = emptyDatabase();
  database["macros"] = macros;
  database["forms"] = {{{"name", "frmA"}}, {{"name", "frmB"}}};
  database["modules"] = {{{"name", "Tools"}, {"type", 0}, {"text", "x = 1\r\n"}}};
  return database;
}

Box information(const std::string& text) { return {64, text, "Access to Visual Basic Tarrowin"}; }

class MacroBatch : public testing::Test {
 protected:
  void open(const std::vector<Json>& macros) {
    session.open(databaseOf(macros));
    session.clearBoxes();
  }
  void convert(const std::vector<std::string>& names) {
    session.select(ObjectList::kMacros, names);
    ConvertMacros(main, false);
  }
  Lines shown(ObjectList list) const {
    Lines names;
    for (const ListItem& item : main.window.list(list)) names.push_back(item.text);
    return names;
  }
  Lines storedModules() const {
    Lines names;
    const Json database = Json::parse(fileContent(session.folder() + "/orders.access.json"));
    for (const Json& entry : database["modules"]) names.push_back(entry["name"]);
    return names;
  }
  ProgressBar& bar() { return main.window.ProgressBar1[indexOf(ObjectList::kMacros)]; }
  // The driver ended without a word: as it was in the middle of its batch.
  void expectSilentEnd() {
    EXPECT_EQ(main.window.mousePointer, 11);
    EXPECT_TRUE(bar().visible);
    EXPECT_TRUE(main.window.lblPct.visible);
    EXPECT_TRUE(main.window.lblPercent.visible);
    EXPECT_FALSE(main.window.lblCurDb.visible);
    EXPECT_EQ(session.user.fillings, 1);
    EXPECT_EQ(main.lastBatch.converted, 0);
  }

  TestSession session;
  MainObject& main = session.main;
};

// The calls for one macro, in their order.
Lines callsFor(const std::string& name) {
  return {"DoCmd.Echo(False)",
          "DoCmd.SetWarnings(False)",
          "DoCmd.SelectObject(4, , True)",
          R"(SendKeys("{ENTER 2}", False))",
          "DoCmd.SelectObject(4, \"" + name + "\", True)",
          "DoCmd.RunCommand(279)",
          "DoCmd.RunCommand(2)",
          "DoCmd.SetWarnings(True)",
          "DoCmd.Echo(True)"};
}

TEST_F(MacroBatch, OneMacro) {
  open({macro("AutoExec"), macro("OpenOrders")});
  convert({"OpenOrders"});
  EXPECT_EQ(session.onlyBox(),
            information("Successfully converted Access Macro: OpenOrders to Visual Basic Module: "
                        "Converted Macro- OpenOrders.\r\n\r\nConverted Macro is saved in the "
                        "Modules and VB Projects lists.\r\n\r\n" +
                        std::string(kTime)));
  EXPECT_EQ(storedModules(), (Lines{"Tools", "Converted Macro- OpenOrders"}));
  EXPECT_EQ(main.lastBatch.selected, 1);
  EXPECT_EQ(main.lastBatch.converted, 1);
  EXPECT_TRUE(fileNames(session.out()).empty());
}

TEST_F(MacroBatch, SeveralMacros) {
  open({macro("A"), macro("B"), macro("C")});
  ConvertMacros(main, true);
  EXPECT_EQ(session.onlyBox(),
            information("Successfully converted 3 Access Macros to Visual Basic Modules. "
                        "\r\n\r\nConverted Macros are saved in the Modules and VB Projects "
                        "lists.\r\n\r\n" +
                        std::string(kTime)));
  EXPECT_EQ(storedModules(),
            (Lines{"Tools", "Converted Macro- A", "Converted Macro- B", "Converted Macro- C"}));
}

TEST_F(MacroBatch, TheElapsedTimeIsThatOfTheBatch) {
  open({macro("A")});
  WatchedAccess watch(main);
  watch.before = [&](const std::string& operation) {
    if (operation == "DoCmd.RunCommand(279)") session.now.days += 61.0 / 86400;
  };
  ConvertMacros(main, true);
  EXPECT_TRUE(session.onlyBox().text.ends_with("Conversion completed in: 01:01 second."));
}

TEST_F(MacroBatch, AccessIsAskedInThisOrder) {
  open({macro("A"), macro("B"), macro("C")});
  WatchedAccess watch(main);
  convert({"A", "C"});
  Lines expected = callsFor("A");
  const Lines second = callsFor("C");
  expected.insert(expected.end(), second.begin(), second.end());
  EXPECT_EQ(watch.log, expected);
}

TEST_F(MacroBatch, WithNoMacroSelectedThereIsTheMessageAndNoCallToAccess) {
  open({macro("A")});
  WatchedAccess watch(main);
  main.window.txtCurDir = "";
  convert({});
  EXPECT_EQ(session.onlyBox(),
            information("Please select a Macro to convert from the displayed list first."));
  EXPECT_EQ(watch.log, Lines{});
  EXPECT_EQ(watch.reads, Lines{});
  EXPECT_EQ(main.window.txtCurDir, "");
  EXPECT_EQ(main.window.mousePointer, 0);
}

TEST_F(MacroBatch, TheOutputDirectoryIsAskedForAllTheSame) {
  open({macro("A")});
  WatchedAccess watch(main);
  main.window.txtCurDir = "";
  convert({"A"});
  EXPECT_EQ(session.onlyBox().text, "Please specify an output directory for converted Forms.");
  EXPECT_EQ(watch.log, Lines{});
}

TEST_F(MacroBatch, ConvertAllOnAnEmptyList) {
  open({});
  ConvertMacros(main, true);
  EXPECT_EQ(session.onlyBox(), information("There are no Macros to convert."));
  EXPECT_EQ(main.window.mousePointer, 0);
  EXPECT_EQ(session.user.fillings, 1);
}

TEST_F(MacroBatch, AfterAConversionTheFormListAndTheFormNamesRefreshAndTheLatterHoldsThemTwice) {
  open({macro("A")});
  main.window.list(ObjectList::kForms).clear();
  EXPECT_EQ(main.window.cboFormNamesItems, (Lines{"frmA", "frmB"}));
  ConvertMacros(main, true);
  EXPECT_EQ(shown(ObjectList::kForms), (Lines{"frmA", "frmB"}));
  EXPECT_EQ(main.window.cboFormNamesItems, (Lines{"frmA", "frmB", "frmA", "frmB"}));
}

TEST_F(MacroBatch, TheNewModulesStandInTheListsAndTheListsAreTold) {
  open({macro("A"), macro("B")});
  ConvertMacros(main, true);
  EXPECT_EQ(session.user.fillings, 2);
  EXPECT_EQ(shown(ObjectList::kModules),
            (Lines{"Tools", "Converted Macro- A", "Converted Macro- B"}));
  EXPECT_EQ(shown(ObjectList::kObjects),
            (Lines{"frmA", "frmB", "Tools", "Converted Macro- A", "Converted Macro- B"}));
  EXPECT_EQ(shown(ObjectList::kMacros), (Lines{"A", "B"}));
  EXPECT_EQ(main.window.totals[indexOf(ObjectList::kModules)].caption, "Total Modules: 3");
  EXPECT_EQ(main.window.totals[indexOf(ObjectList::kObjects)].caption,
            "Total Forms and Modules: 5");
  EXPECT_TRUE(main.window.allButtons[indexOf(ObjectList::kModules)].enabled);
}

TEST_F(MacroBatch, TheListsAreFilledBeforeTheClosingBox) {
  class WatchingUser : public RecordingUser {
   public:
    Answer messageBox(int style, std::string_view text, std::string_view title) override {
      fillingsAtBox.push_back(fillings);
      return RecordingUser::messageBox(style, text, title);
    }
    std::vector<int> fillingsAtBox;
  };
  open({macro("A")});
  WatchingUser user;
  MainObject own{user, session.files, session.main.host, session.main.Now};
  own.state = main.state;
  own.window = main.window;
  ConvertMacros(own, true);
  EXPECT_EQ(user.fillingsAtBox, (std::vector<int>{1}));
}

TEST_F(MacroBatch, TheNewModuleIsConvertedLikeAnyOther) {
  open({macro("OpenOrders")});
  ConvertMacros(main, true);
  session.clearBoxes();
  session.select(ObjectList::kModules, {"Converted Macro- OpenOrders"});
  ConvertModules(main, false);
  EXPECT_EQ(fileNames(session.out()), (Lines{"Macro_OpenOrders.bas"}));
}

TEST_F(MacroBatch, AnOlderModuleOfTheNameIsReplaced) {
  open({macro("A")});
  ConvertMacros(main, true);
  ConvertMacros(main, true);
  EXPECT_EQ(storedModules(), (Lines{"Tools", "Converted Macro- A"}));
  EXPECT_EQ(shown(ObjectList::kModules), (Lines{"Tools", "Converted Macro- A"}));
}

TEST_F(MacroBatch, WhenNothingWasConvertedItEndsWithoutAWord) {
  Json refused = macro("Secret");
  refused["openError"] = 2601;
  open({refused});
  convert({"Secret"});
  EXPECT_EQ(session.onlyBox(), information("You don't have permission to open Macro Secret."));
  expectSilentEnd();
  EXPECT_EQ(bar().value, 1);
  EXPECT_EQ(storedModules(), (Lines{"Tools"}));
}

TEST_F(MacroBatch, NoPermissionIsToldAndTheBatchGoesOn) {
  Json refused = macro("Secret");
  refused["openError"] = 2601;
  open({macro("A"), refused, macro("B")});
  WatchedAccess watch(main);
  ConvertMacros(main, true);
  ASSERT_EQ(session.user.boxes.size(), 2u);
  EXPECT_EQ(session.user.boxes[0], information("You don't have permission to open Macro Secret."));
  EXPECT_TRUE(session.user.boxes[1].text.starts_with("Successfully converted 2 Access Macros "));
  EXPECT_EQ(storedModules(), (Lines{"Tools", "Converted Macro- A", "Converted Macro- B"}));
  // The statements behind the refused command run for it too.
  EXPECT_EQ(watch.log.size(), 27u);
  EXPECT_EQ(Lines(watch.log.begin() + 9, watch.log.begin() + 18), callsFor("Secret"));
}

TEST_F(MacroBatch, WithOneOfSeveralRefusedTheNameIsThatOfTheLastSelected) {
  Json refused = macro("Secret");
  refused["openError"] = 2601;
  open({macro("A"), refused});
  ConvertMacros(main, true);
  ASSERT_EQ(session.user.boxes.size(), 2u);
  EXPECT_TRUE(session.user.boxes[1].text.starts_with(
      "Successfully converted Access Macro: Secret to Visual Basic Module: Converted Macro- "
      "Secret.\r\n\r\n"));
}

TEST_F(MacroBatch, Number7952AddsNoModuleButCountsAsConverted) {
  Json without = macro("Bare");
  without["openError"] = 7952;
  open({without});
  ConvertMacros(main, true);
  EXPECT_EQ(session.onlyBox(),
            information("Successfully converted Access Macro: Bare to Visual Basic Module: "
                        "Converted Macro- Bare.\r\n\r\nConverted Macro is saved in the Modules "
                        "and VB Projects lists.\r\n\r\n" +
                        std::string(kTime)));
  EXPECT_EQ(storedModules(), (Lines{"Tools"}));
  EXPECT_EQ(session.user.fillings, 2);
  EXPECT_EQ(main.window.mousePointer, 0);
}

TEST_F(MacroBatch, AnyOtherNumberIsReportedAndEndsTheBatch) {
  open({macro("A"), macro("B"), macro("C")});
  WatchedAccess watch(main);
  watch.before = [&](const std::string& operation) {
    // From the second macro on.
    if (operation.find("\"B\"") != std::string::npos)
      watch.fail("RunCommand(279)", 2501, "Cancelled.");
  };
  ConvertMacros(main, true);
  EXPECT_EQ(session.onlyBox(), (Box{16, "ConvertMacros_Click() - Error #2501\r\nCancelled.",
                                    "Access to Visual Basic Tarrowin"}));
  // Access paints its screen again; nothing else follows.
  ASSERT_EQ(watch.log.size(), 16u);
  EXPECT_EQ(watch.log[14], "DoCmd.RunCommand(279)");
  EXPECT_EQ(watch.log[15], "DoCmd.Echo(True)");
  EXPECT_EQ(main.window.mousePointer, 0);
  EXPECT_TRUE(bar().visible);
  EXPECT_EQ(bar().value, 2);
  EXPECT_FALSE(main.window.lblCurDb.visible);
  EXPECT_EQ(session.user.fillings, 1);
  EXPECT_EQ(storedModules(), (Lines{"Tools", "Converted Macro- A"}));
}

TEST_F(MacroBatch, AFailureOfAnotherCallOfTheSequenceEndsTheBatchToo) {
  for (const char* call : {"SetWarnings(False)", "SelectObject(4, , True)",
                           "SelectObject(4, \"A\", True)", "RunCommand(2)", "SetWarnings(True)"}) {
    TestSession own;
    own.open(databaseOf({macro("A")}));
    own.clearBoxes();
    WatchedAccess watch(own.main);
    watch.fail(call, 2046, "Not now.");
    ConvertMacros(own.main, true);
    EXPECT_EQ(own.onlyBox().text, "ConvertMacros_Click() - Error #2046\r\nNot now.") << call;
    EXPECT_EQ(watch.log.back(), "DoCmd.Echo(True)") << call;
    EXPECT_EQ(own.user.fillings, 1) << call;
  }
}

TEST_F(MacroBatch, TheLabelLagsOneSelectedItemBehind) {
  open({macro("A"), macro("B"), macro("C")});
  ConvertMacros(main, true);
  EXPECT_EQ(session.user.progressLabels, (Lines{"Macro: ", "Macro: A", "Macro: B"}));
  session.user.progressLabels.clear();
  convert({"B", "C"});
  EXPECT_EQ(session.user.progressLabels, (Lines{"Macro: B", "Macro: B"}));
}

TEST_F(MacroBatch, TheWindowIsPaintedOnceBehindTheCallsOfEachMacro) {
  open({macro("A"), macro("B")});
  WatchedAccess watch(main);
  std::vector<std::size_t> paintedAtCall;
  watch.before = [&](const std::string& operation) {
    if (operation == "DoCmd.Echo(False)" || operation == "DoCmd.Echo(True)")
      paintedAtCall.push_back(session.user.progressLabels.size());
  };
  ConvertMacros(main, true);
  EXPECT_EQ(paintedAtCall, (std::vector<std::size_t>{0, 0, 1, 1}));
  EXPECT_EQ(session.user.progressLabels.size(), 2u);
}

TEST_F(MacroBatch, AtTheEndTheProgressControlsAreAsWithTheOthers) {
  open({macro("A"), macro("B")});
  WatchedAccess watch(main);
  std::vector<int> pointers;
  watch.before = [&](const std::string& operation) {
    if (operation == "DoCmd.RunCommand(279)") pointers.push_back(main.window.mousePointer);
  };
  ConvertMacros(main, true);
  EXPECT_EQ(pointers, (std::vector<int>{11, 11}));
  EXPECT_EQ(main.window.mousePointer, 0);
  EXPECT_EQ(bar().max, 2);
  EXPECT_EQ(bar().value, bar().min);
  EXPECT_FALSE(bar().visible);
  EXPECT_TRUE(main.window.lblCurDb.visible);
  EXPECT_EQ(main.window.lblPct.caption, "");
  EXPECT_EQ(main.window.lblPercent.caption, "");
}

TEST_F(MacroBatch, ABatchBehindASilentEndTakesDownWhatStayed) {
  Json refused = macro("Secret");
  refused["openError"] = 2601;
  open({refused, macro("A")});
  convert({"Secret"});
  expectSilentEnd();
  convert({"A"});
  EXPECT_EQ(main.window.mousePointer, 0);
  EXPECT_FALSE(bar().visible);
  EXPECT_TRUE(main.window.lblCurDb.visible);
}

TEST_F(MacroBatch, TheEntriesOfTheWindow) {
  open({macro("A"), macro("B")});
  session.select(ObjectList::kMacros, {"A"});
  EXPECT_TRUE(clickButton(main, "cmdConvertMac"));
  EXPECT_EQ(storedModules(), (Lines{"Tools", "Converted Macro- A"}));
  EXPECT_TRUE(clickButton(main, "cmdAllMacros"));
  EXPECT_EQ(storedModules(), (Lines{"Tools", "Converted Macro- A", "Converted Macro- B"}));
  session.clearBoxes();
  session.select(ObjectList::kMacros, {"B"});
  doubleClickList(main, ObjectList::kMacros);
  EXPECT_TRUE(session.onlyBox().text.starts_with("Successfully converted Access Macro: B to "));
}

}  // namespace
}  // namespace tarrowin::test
