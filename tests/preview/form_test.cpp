// The steps around the controls: opening, Form1, closing, progress, and what ends a preview.
#include "preview/preview_session.h"

namespace tarrowin::test {
namespace {

class PreviewOfAForm : public testing::Test {
 protected:
  PreviewSession session;
};

TEST_F(PreviewOfAForm, StepsTowardsAccessAreDoneInTheirOrder) {
  Json database = emptyDatabase();
  database["forms"] = {formOf({placed("txtA", 109, 0, 0)})};
  database["modules"] =
      Json::parse(R"([{"name": "One", "text": ""}, {"name": "Two", "text": ""}])");
  session.openDatabase(database);
  WatchedAccess access(session.main);
  session.main.state.gappAccess.doCmd().OpenModule("One");
  session.main.state.gappAccess.doCmd().OpenModule("Two");
  access.log.clear();
  session.preview();
  EXPECT_EQ(access.log,
            (Lines{"DoCmd.OpenForm(\"frmMain\", 1, , , -1, 1)", "DoCmd.Close(5, \"One\", 2)",
                   "DoCmd.Close(5, \"Two\", 2)", "DoCmd.Close(2, \"frmMain\", 2)"}));
}

TEST_F(PreviewOfAForm, SectionsAreReadInTheOrderInWhichTheyStand) {
  session.openForms({formOf({}, {}, {{0, 1}, {1, 2}, {2, 3}, {3, 4}, {4, 5}})});
  WatchedAccess access(session.main);
  session.preview();
  Lines heights;
  for (const std::string& read : access.reads)
    if (read.ends_with(".Height")) heights.push_back(read.substr(read.find(").") + 2));
  EXPECT_EQ(heights, (Lines{"Section(1).Height", "Section(3).Height", "Section(0).Height",
                            "Section(2).Height", "Section(4).Height"}));
}

TEST_F(PreviewOfAForm, HeaderDetailAndFooterAreAsHighAsTheyAreAnd4Times260) {
  const PreviewSurface& surface =
      session.previewOf(formOf({}, {}, {{0, 3000}, {1, 500}, {2, 400}}));
  EXPECT_EQ(valueOf(surface, "Height"), "4940");  // 3900 + 4 * 260
}

TEST_F(PreviewOfAForm, SectionThatCannotBeReadIsNotCounted) {
  Json form = formOf({}, {}, {{0, 3000}, {1, 500}});
  form["sections"][1]["properties"]["Height"] = {{"error", 2462}};
  const PreviewSurface& surface = session.previewOf(form);
  EXPECT_EQ(valueOf(surface, "Height"), "3520");  // 3000 + 2 * 260
  ASSERT_EQ(surface.sections.size(), 1u);
  EXPECT_EQ(surface.sections.front().number, 0);
}

TEST_F(PreviewOfAForm, Form1TakesOverWhatTheFormIs) {
  const PreviewSurface& surface = session.previewOf(
      formOf({}, {{"Caption", "Orders"}, {"Tag", "x"}, {"Width", 7000}, {"BorderStyle", 3}}));
  EXPECT_EQ(surface.accessName, "frmMain");
  EXPECT_EQ(linesOf(surface), (Lines{"BorderStyle 3", "Caption \"Orders\"", "Height 3520",
                                     "Tag \"x\"", "Width 7120"}));
}

TEST_F(PreviewOfAForm, FormWithoutABorderHasAFixedOne) {
  for (const auto& [style, shown] : {std::pair{0, "1"}, {1, "1"}, {2, "2"}, {3, "3"}})
    EXPECT_EQ(valueOf(session.previewOf(formOf({}, {{"BorderStyle", style}})), "BorderStyle"),
              shown);
}

TEST_F(PreviewOfAForm, PropertyThatTheRecordingLacksStaysUnwritten) {
  Json form = formOf({});
  form["properties"] = Json::object();
  EXPECT_EQ(linesOf(session.previewOf(form)), Lines{"Height 3520"});
}

TEST_F(PreviewOfAForm, NullCaptionAndTagAreEmpty) {
  const PreviewSurface& surface =
      session.previewOf(formOf({}, {{"Caption", nullptr}, {"Tag", nullptr}}));
  EXPECT_EQ(valueOf(surface, "Caption"), "");
  EXPECT_EQ(valueOf(surface, "Tag"), "");
}

// Notes the labels at each repaint.
TEST_F(PreviewOfAForm, LabelsShowThePercentOfTheWalkAndAreThenAsBefore) {
  session.openForms(
      {formOf({placed("a", 109, 0, 0), placed("b", 109, 0, 0), placed("c", 109, 0, 0)})});
  WatchedAccess access(session.main);
  Lines percents;
  MainWindow& window = session.main.window;
  access.before = [&](const std::string& operation) {
    if (!operation.ends_with("(0).Name") && !operation.ends_with("(1).Name") &&
        !operation.ends_with("(2).Name"))
      return;
    percents.push_back(window.lblPercent.caption);
    EXPECT_TRUE(window.lblPct.visible && window.lblPercent.visible && !window.lblCurDb.visible);
    EXPECT_EQ(window.mousePointer, 11);
  };
  session.preview();
  EXPECT_EQ(percents, (Lines{"33%", "67%", "100%"}));
  EXPECT_EQ(session.user.progressLabels, Lines(3, "Form: frmMain"));
  EXPECT_EQ(window.lblPct.caption + window.lblPercent.caption, "");
  EXPECT_TRUE(window.lblCurDb.visible);
  EXPECT_FALSE(window.lblPct.visible || window.lblPercent.visible);
  EXPECT_EQ(window.mousePointer, 0);
}

TEST_F(PreviewOfAForm, ButtonTakesTheFirstSelectedForm) {
  session.openForms({form("frmA"), form("frmB"), form("frmC")});
  session.select(ObjectList::kForms, {"frmC", "frmB"});
  cmdObjProps_Click(session.main);
  ASSERT_EQ(session.user.previews.size(), 1u);
  EXPECT_EQ(session.user.previews.front().accessName, "frmB");
}

TEST_F(PreviewOfAForm, ButtonWithoutASelectionDoesNothing) {
  session.openForms({form("frmA")});
  session.select(ObjectList::kForms, {});
  cmdObjProps_Click(session.main);
  EXPECT_TRUE(session.user.previews.empty());
  EXPECT_TRUE(session.user.boxes.empty());
}

TEST_F(PreviewOfAForm, SecondPreviewStartsAnew) {
  session.openForms({formOf({placed("txtA", 109, 0, 0)})});
  session.preview();
  EXPECT_EQ(namesOf(session.preview()), Lines{"txtA"});
}

TEST_F(PreviewOfAForm, WritesNothing) {
  session.openForms({formOf({placed("txtA", 109, 0, 0)})});
  const std::string path = session.folder() + "/" + session.file;
  const std::string before = fileContent(path);
  session.preview();
  EXPECT_EQ(fileContent(path), before);
  EXPECT_TRUE(fileNames(session.out()).empty());
}

class PreviewRefused : public PreviewOfAForm {
 protected:
  // The box when the operation fails, of a form with a group and a tab control.
  static Box refusalWhen(const std::string& operation) {
    PreviewSession session;
    session.openForms({formOf({placed("fraA", 107, 0, 0), placed("tabA", 123, 0, 0),
                               control("Page0", 124, {{"Caption", "One"}}, "tabA")})});
    WatchedAccess access(session.main);
    access.fail(operation, 1234);
    const Box box = session.refusal();
    EXPECT_EQ(session.main.window.mousePointer, 0) << operation;
    return box;
  }
};

TEST_F(PreviewRefused, FormThatCannotBeOpened) {
  Json form = formOf({});
  form["openError"] = 2601;
  const Box box = session.refusalOf(form);
  EXPECT_EQ(box.style, 16);
  EXPECT_EQ(box.title, "Access to Visual Basic Tarrowin");
  EXPECT_EQ(box.text, "PreviewForm() - Error #2601\r\n" + standardErrorText(2601, "frmMain"));
  EXPECT_EQ(session.main.window.mousePointer, 0);
}

TEST_F(PreviewRefused, FormThatDoesNotExist) {
  session.openForms({form("frmOther")});
  EXPECT_TRUE(session.refusal().text.starts_with("PreviewForm() - Error #2102\r\n"));
}

TEST_F(PreviewRefused, WithoutAnOpenDatabase) {
  const Box box = session.refusal();
  EXPECT_EQ(box.text,
            "PreviewForm() - Error #91\r\nObject variable or With block variable not set");
}

TEST_F(PreviewRefused, AnyErrorOutsideTheCopies) {
  for (const char* operation : {"DoCmd.OpenForm", "Modules", "DoCmd.Close(2"})
    EXPECT_EQ(refusalWhen(operation).text, "PreviewForm() - Error #1234\r\nTold to.") << operation;
  for (const std::string member :
       {"RecordSource", "Controls", "Controls(0).Name", "Controls(0).ControlType",
        "Controls(0).Controls", "Controls(1).Pages", "Controls(1).Pages(0).Name",
        "Controls(1).Pages(0).Controls", "BorderStyle", "Caption", "Tag", "Width"})
    EXPECT_EQ(refusalWhen("Forms(\"frmMain\")." + member).text,
              "PreviewForm() - Error #1234\r\nTold to.")
        << member;
}

TEST(PreviewClosed, FormThatAccessClosedItselfHasABoxOfItsOwn) {
  const std::string text =
      "The database and or Form 'frmMain' was closed and cannot be displayed.\r\nThis may have "
      "been "
      "caused by code in a Macro or Module.";
  // Before it is taken, during the walk, and after it.
  for (const char* moment : {"Modules", ".Controls(0).Name", ".Controls(0).Width"}) {
    PreviewSession session;
    session.openForms({formOf({placed("txtA", 109, 0, 0)})});
    WatchedAccess access(session.main);
    const Application application = session.main.state.gappAccess;
    bool closed = false;
    access.before = [&](const std::string& operation) {
      if (closed || !operation.ends_with(moment)) return;
      closed = true;
      application.doCmd().Close(2, "frmMain", 2);
    };
    EXPECT_EQ(session.refusal(), (Box{64, text, "Preview Access Form"})) << moment;
    EXPECT_TRUE(closed) << moment;
    EXPECT_EQ(session.main.window.mousePointer, 0) << moment;
  }
}

TEST_F(PreviewRefused, NamesThatAreTheSameWithUnderscoresOrInAnotherCase) {
  EXPECT_EQ(session.refusalOf(formOf({control("A B", 109), control("A_B", 109)})).text,
            "PreviewForm() - Error #727\r\nThere is already a control with the name 'A_B'");
  EXPECT_EQ(session.refusalOf(formOf({control("A b", 109), control("a_B", 109)})).text,
            "PreviewForm() - Error #727\r\nThere is already a control with the name 'a_B'");
}

TEST_F(PreviewRefused, HeightsBeyond32Bits) {
  const Box box = session.refusalOf(formOf({}, {}, {{0, 2147483647}, {1, 2147483647}}));
  EXPECT_EQ(box.text, "PreviewForm() - Error #6\r\nOverflow");
}

}  // namespace
}  // namespace tarrowin::test
