// Subforms of a form: both views, the names, what cannot be reached.
#include <gtest/gtest.h>

#include "forms/container_forms.h"
#include "forms/control_printers.h"

namespace tarrowin::test {
namespace {

using namespace container;

Json inView(Json entry, const Json& view) {
  entry["properties"]["DefaultView"] = view;
  return entry;
}

// A form with one subform control that shows frmSub.
Json mainForm(const Json& subFormControl = subform("sub", "frmSub")) {
  return form("frmMain", {subFormControl});
}

TEST(SubForm, AControlWhoseNameIsAlsoOnTheMainForm) {
  FormSession session;
  const Lines body = convertFirst(
      session, {form("frmMain", {textBox("txtA", 10, 20), subform("sub1", "frmOne", 100, 200),
                                 subform("sub2", "Form.frmTwo", 300, 400)}),
                form("frmOne", {textBox("txtA", 1, 2), textBox("txtB", 3, 4)}),
                form("frmTwo", {textBox("txtA", 5, 6), textBox("txtC", 7, 8)})});
  const std::string six(6, ' ');
  EXPECT_EQ(body, textBoxLines("", "txtA", 10, 20) + frameLines("", "sub1", 100, 200) +
                      textBoxLines(six, "txtA_Dup0", 1, 122) + textBoxLines(six, "txtB", 3, 124) +
                      Lines{"      End   ' sub1"} + frameLines("", "sub2", 300, 400) +
                      textBoxLines(six, "txtA_Dup1", 5, 126) + textBoxLines(six, "txtC", 7, 128) +
                      Lines{"      End   ' sub2"});
  EXPECT_TRUE(session.main.state.blnUsesSubControl);
  // One less than the main form's three controls, and two of each subform.
  EXPECT_EQ(session.main.state.intNumControls, 6);
  EXPECT_EQ(session.main.state.intSubDepth, 0);
  EXPECT_EQ(session.main.state.intSubCount, 2);
}

TEST(SubForm, NamesThatOnlySubformsShareAreNumberedFromTheSecondOn) {
  FormSession session;
  const Lines body = convertFirst(
      session,
      {form("frmMain", {subform("s1", "frmA"), subform("s2", "frmB"), subform("s3", "frmC")}),
       form("frmA", {textBox("x", 0, 0), textBox("a", 0, 0)}),
       form("frmB", {textBox("x", 0, 0), textBox("b", 0, 0)}),
       form("frmC", {textBox("x", 0, 0), textBox("a", 0, 0), textBox("X", 0, 0)})});
  EXPECT_EQ(beginnings(body),
            (Lines{"VB.PictureBox s1", "VB.TextBox x", "VB.TextBox a", "VB.PictureBox s2",
                   "VB.TextBox x_Dup1", "VB.TextBox b", "VB.PictureBox s3", "VB.TextBox x_Dup2",
                   "VB.TextBox a_Dup2", "VB.TextBox X"}));
}

TEST(SubForm, ADuplicateIsFoundByItsAccessNameAndCleanedForItsOutputName) {
  FormSession session;
  const Lines body =
      convertFirst(session, {form("frmMain", {textBox("1 A", 0, 0), subform("sub", "frmSub")}),
                             form("frmSub", {textBox("1 A", 0, 0), textBox("x_A", 0, 0)})});
  EXPECT_EQ(beginnings(body), (Lines{"VB.TextBox x_A", "VB.PictureBox sub", "VB.TextBox x_A_Dup0",
                                     "VB.TextBox x_A"}));
}

TEST(SubForm, AControlWithTheNameOfItsFrameIsKnownFromTheMainForm) {
  FormSession session;
  const Lines body = convertFirst(session, {mainForm(), form("frmSub", {textBox("sub", 0, 0)})});
  EXPECT_EQ(beginnings(body), (Lines{"VB.PictureBox sub", "VB.TextBox sub_Dup0"}));
}

TEST(SubForm, ASubformWithNoControls) {
  FormSession session;
  EXPECT_EQ(convertFirst(session, {mainForm(), form("frmSub")}),
            frameLines("", "sub") + Lines{"      End   ' sub"});
  EXPECT_EQ(session.main.state.intNumControls, 0);
  EXPECT_EQ(session.main.state.intSubCount, 0);
}

TEST(SubForm, ASourceObjectThatNoLongerExists) {
  FormSession session;
  EXPECT_EQ(convertFirst(session, {mainForm(subform("sub", "Form.frmGone"))}),
            frameLines("", "sub") + Lines{"   End   ' frmGone"});
  EXPECT_TRUE(session.user.boxes.empty());
  EXPECT_EQ(session.main.state.intNumControls, 0);
  EXPECT_FALSE(session.main.state.blnInFrame);
}

TEST(SubForm, ASourceThatIsNoForm) {
  for (const char* source : {"Report.rptA", "Table.Orders", "Query.qryA", "", "form.frmGone"}) {
    FormSession session;
    EXPECT_EQ(convertFirst(session, {mainForm(subform("sub", source))}),
              frameLines("", "sub") + Lines{"   End   ' " + std::string(source)})
        << source;
    EXPECT_TRUE(session.user.boxes.empty()) << source;
  }
}

TEST(SubForm, ASourceObjectThatCannotBeReadKeepsTheName) {
  for (const Json& source : {Json{{"error", 438}}, Json{{"error", 13}}}) {
    Json odd = subform("sub", "");
    odd["properties"]["SourceObject"] = source;
    FormSession session;
    EXPECT_EQ(convertFirst(session, {mainForm(odd)}),
              frameLines("", "sub") + Lines{"   End   ' sub"});
    EXPECT_TRUE(session.user.boxes.empty());
  }
}

TEST(SubForm, AContinuousSubformInsideAUserControl) {
  FormSession session;
  session.main.window.optContinuous = 1;
  session.openForms({inView(mainForm(), 1), inView(form("frmSub", {textBox("a", 0, 0)}), 1)});
  session.convert({"frmMain"});
  const Lines lines = session.lines("ctlfrmMain.ctl");
  // A user control's header has five lines less than a form's.
  const std::size_t header = 11;
  ASSERT_GT(lines.size(), header + 1);
  EXPECT_EQ(lines[header - 1], "   Tag           = \"\"");
  EXPECT_EQ(lines[header], "      End   ' sub");
  EXPECT_EQ(lines[header + 1], "End   ' UserControl ctlfrmMain");
}

TEST(SubForm, ADatasheetInsideAUserControlIsASheetAllTheSame) {
  FormSession session;
  session.main.window.optContinuous = 1;
  session.openForms({inView(mainForm(), 1), inView(form("frmSub"), 2)});
  session.convert({"frmMain"});
  EXPECT_EQ(beginnings(session.lines("ctlfrmMain.ctl")).back(), "MSDataGridLib.DataGrid sub");
}

TEST(SubForm, AHeader500TwipsHighMovesTheDetailDown) {
  Json inner = form("frmSub", {textBox("txt", 0, 100)});
  inner["sections"].push_back(section(1, {{"Height", 500}}));
  FormSession session;
  EXPECT_EQ(
      convertFirst(session, {mainForm(), inner}),
      frameLines("", "sub") + textBoxLines("      ", "txt", 0, 720) + Lines{"      End   ' sub"});
  const ConversionState& s = session.main.state;
  EXPECT_EQ(s.intSubHeaderHeight, 500);
  EXPECT_EQ(s.intSubDetailHeight, 3000);
  EXPECT_EQ(s.intSubPageHeaderHeight, 0);
  EXPECT_EQ(s.intSubTotalHeight, 3620);
  EXPECT_EQ(s.intHeaderHeight, 0);
}

// A grid on a form that holds nothing else, and the control of its data in front of it.
Lines sheetLines() {
  return {"      Begin MSAdodcLib.Adodc Adodc1",
          "         Caption           = \"Adodc1\"",
          "         CommandType       = 8",
          "         Connect           = \"Provider=Microsoft.Jet.OLEDB.4.0;Persist Security "
          "Info=False;Data Source=C:\\Data\\Orders.mdb\"",
          "         Height            = 330",
          "         Left              = 0",
          "       RecordSource      = \"\"",
          "         Top               = 2790",
          "         Visible           = 0   ' False",
          "         Width             = 1440",
          "      End   'Adodc1",
          "      Begin MSDataGridLib.DataGrid sub",
          "         DataSource     = \"Adodc1\"",
          "         Enabled        = -1",
          "         Height         = 1500",
          "         Left           = 30",
          "         Top            = 40",
          "         Visible        = 0",
          "         Width          = 2500",
          "      End   ' sub"};
}

Json sheetControl() {
  Json sheet = subform("sub", "frmSub", 30, 40);
  sheet["properties"]["Enabled"] = true;
  sheet["properties"]["Visible"] = false;
  return sheet;
}

Json withOrder(Json entry) {
  entry["properties"]["OrderBy"] = "";
  return entry;
}

TEST(SubForm, ContinuousAndDatasheetSubformsBecomeAGrid) {
  for (const Json& view : {Json(1), Json(2), Json(3), Json(nullptr)}) {
    FormSession session;
    EXPECT_EQ(
        convertFirst(session, {mainForm(sheetControl()),
                               withOrder(inView(form("frmSub", {textBox("a", 0, 0)}), view))}),
        sheetLines())
        << view;
    const ConversionState& s = session.main.state;
    EXPECT_TRUE(s.mblnAdoDataCtl && s.blnUsesDataGrid && s.gblnProjectNeeded);
    EXPECT_EQ(s.intNumControls, 1);
    EXPECT_TRUE(session.user.boxes.empty());
  }
}

TEST(SubForm, TwoSheetsAreBothBoundToTheFirstDataControl) {
  FormSession session;
  const Lines body =
      convertFirst(session, {form("frmMain", {subform("s1", "frmA"), subform("s2", "frmA")}),
                             withOrder(inView(form("frmA"), 2))});
  EXPECT_EQ(beginnings(body), (Lines{"MSAdodcLib.Adodc Adodc1", "MSDataGridLib.DataGrid s1",
                                     "MSAdodcLib.Adodc Adodc2", "MSDataGridLib.DataGrid s2"}));
  EXPECT_EQ(
      linesWith(body, "         DataSource "),
      (Lines{"         DataSource     = \"Adodc1\"", "         DataSource     = \"Adodc1\""}));
}

TEST(SubForm, ABoundSubformHasADataControlInFrontOfItsFrame) {
  Json inner = form("frmSub", {textBox("a", 1, 2)});
  inner["properties"]["RecordSource"] = "Orders";
  FormSession session;
  const Lines body = convertFirst(session, {mainForm(), inner});
  EXPECT_EQ(beginnings(body), (Lines{"VB.Data Data1", "VB.PictureBox sub", "VB.TextBox a"}));
  EXPECT_EQ(linesWith(body, "         RecordSource "),
            Lines{"         RecordSource      = \"Orders\""});
  // The data control leaves three blanks for the frame.
  EXPECT_EQ(linesWith(body, "      Begin VB.PictureBox"), Lines{"      Begin VB.PictureBox sub"});
  EXPECT_EQ(linesWith(body, "            DataSource"),
            Lines{"            DataSource    = \"Data1\""});
}

// The boxes that the subform itself shows.
std::vector<std::string> ownBoxes(const FormSession& session) {
  std::vector<std::string> found;
  for (const Box& box : session.user.boxes)
    if (box.text.starts_with("GetSubFormProps(")) found.push_back(box.text);
  return found;
}

TEST(SubForm, AViewThatCannotBeReadIsNeitherOfTheFirstTwo) {
  FormSession session;
  EXPECT_EQ(convertFirst(session, {mainForm(sheetControl()),
                                   withOrder(inView(form("frmSub"), {{"error", 2455}}))}),
            sheetLines());
  EXPECT_TRUE(session.user.boxes.empty());
}

TEST(SubForm, AViewThatIsNoNumberHasABox) {
  FormSession session;
  EXPECT_EQ(
      convertFirst(session, {mainForm(sheetControl()), withOrder(inView(form("frmSub"), "wide"))}),
      sheetLines());
  EXPECT_EQ(session.onlyBox().text, "GetSubFormProps(sub) - Error #13 Type mismatch");
}

// A subform control whose Form raises the error.
Json raising(int number, std::string_view source = "frmSub") {
  Json odd = subform("sub", source);
  odd["properties"]["Form"] = {{"error", number}};
  return odd;
}

// What is left of a subform whose form is missing for another reason than that it cannot be
// reached: a view that cannot be read is that of a sheet.
const Lines kWithoutForm = {"MSAdodcLib.Adodc Adodc1", "MSDataGridLib.DataGrid sub"};

TEST(SubForm, ErrorsThatPassSilently) {
  for (const int number : {91, 92, 438, 2186, 2452, 2455, 2459, 2462, 2465, 7784}) {
    FormSession session;
    const Lines body = convertFirst(session, {mainForm(raising(number)), form("frmSub")});
    EXPECT_EQ(beginnings(body), kWithoutForm) << number;
    EXPECT_EQ(body.back(), "      End   ' sub") << number;
    EXPECT_TRUE(ownBoxes(session).empty()) << number;
    EXPECT_EQ(session.main.state.intNumControls, 0) << number;
  }
}

TEST(SubForm, ErrorsOfAFormThatCannotBeReachedLeaveAnEmptyFrame) {
  for (const int number : {2102, 2103, 2121, 2450, 2457, 2467, 2494}) {
    FormSession session;
    EXPECT_EQ(convertFirst(session, {mainForm(raising(number)), form("frmSub")}),
              frameLines("", "sub") + Lines{"   End   ' frmSub"})
        << number;
    EXPECT_TRUE(session.user.boxes.empty()) << number;
  }
}

TEST(SubForm, OtherErrorsHaveABoxWithTheNameOfTheSubform) {
  for (const int number : {7, 13, 424, 484, 2100, 3061}) {
    FormSession session;
    const Lines body = convertFirst(session, {mainForm(raising(number)), form("frmSub")});
    EXPECT_EQ(beginnings(body), kWithoutForm) << number;
    EXPECT_EQ(ownBoxes(session),
              std::vector<std::string>{"GetSubFormProps(sub) - Error #" + std::to_string(number) +
                                       " " + standardErrorText(number, "Form")});
    EXPECT_EQ(session.user.boxes.front().style, 16);
  }
}

TEST(SubForm, TheNameOfTheFormIsTriedWhenThatOfTheControlFails) {
  FormSession session;
  const Lines body = convertFirst(
      session, {form("frmMain", {raising(2467, "Form.frmSub"), subform("frmSub", "frmOther")}),
                form("frmSub"), form("frmOther", {textBox("a", 1, 2)})});
  EXPECT_EQ(body, frameLines("", "sub") + textBoxLines("      ", "a", 1, 122) +
                      Lines{"      End   ' frmSub"} + frameLines("", "frmSub") +
                      textBoxLines("      ", "a_Dup1", 1, 122) + Lines{"      End   ' frmSub"});
}

TEST(SubForm, TheNameOfTheFormMayBeThatOfAnotherKindOfControl) {
  FormSession session;
  const Lines body = convertFirst(
      session, {form("frmMain", {raising(2467), textBox("frmSub", 1, 2)}), form("frmSub")});
  EXPECT_EQ(body,
            frameLines("", "sub") + Lines{"   End   ' frmSub"} + textBoxLines("", "frmSub", 1, 2));
  EXPECT_TRUE(session.user.boxes.empty());
}

TEST(SubForm, AnAttemptIsOneOfTheWholeCall) {
  // The form is had at the second attempt, so that a section that cannot be reached ends the call.
  Json other = form("frmOther");
  other["sections"][0]["properties"]["Height"] = {{"error", 2467}};
  FormSession session;
  const Lines body = convertFirst(
      session,
      {form("frmMain", {raising(2467), subform("frmSub", "frmOther")}), form("frmSub"), other});
  EXPECT_EQ(body, frameLines("", "sub") + Lines{"   End   ' frmSub"} + frameLines("", "frmSub") +
                      Lines{"   End   ' frmOther"});
}

TEST(SubForm, ASizeBeyond16BitsHasABoxAndLeavesTheOneBefore) {
  Json wide = sheetControl();
  wide["properties"]["Width"] = 40000;
  FormSession session;
  const Lines body = convertFirst(session, {mainForm(wide), withOrder(inView(form("frmSub"), 2))});
  EXPECT_EQ(linesWith(body, "         Width          =").back(), "         Width          = 0");
  // The name is read behind the sizes: until then it is that of the subform before.
  EXPECT_EQ(session.onlyBox().text, "GetSubFormProps() - Error #6 Overflow");
}

TEST(SubForm, HeightsBeyond16BitsHaveABox) {
  Json high = form("frmSub");
  high["sections"] = {section(0, {{"Height", 30000}}), section(2, {{"Height", 30000}})};
  FormSession session;
  convertFirst(session, {mainForm(), high});
  EXPECT_NE(session.user.boxes.front().text.find("GetSubFormProps(sub) - Error #6 Overflow"),
            std::string::npos);
  EXPECT_EQ(session.main.state.intSubFooterHeight, 30000);
}

TEST(SubForm, ControlsInContainersOfTheSubformAreLeftToThese) {
  FormSession session;
  const Lines body = convertFirst(
      session,
      {mainForm(),
       form("frmSub", {control("grp", 107, at(0, 0)), control("opt", 105, at(0, 0), "grp"),
                       control("lone", 105, at(0, 0)), control("lbl", 100, at(0, 0), "lone"),
                       control("tab", 123, at(0, 0)), page("p", "tab", "One"),
                       textBox("t", 0, 0, "p"), textBox("u", 0, 0)})});
  // The label of a lone option button stands in no container and is left out all the same.
  EXPECT_EQ(beginnings(body),
            (Lines{"VB.PictureBox sub", "VB.Frame grp", "VB.OptionButton opt",
                   "VB.OptionButton lone", "TabDlg.SSTab tab", "VB.TextBox t", "VB.TextBox u"}));
  // What stands behind a group or a tab control has their three blanks.
  EXPECT_EQ(linesWith(body, "      Begin VB.TextBox u").size(), 1u);
}

TEST(SubForm, TheTabControlOfASubformStandsHigher) {
  Json tab = control("tab", 123, at(50, 60));
  FormSession session;
  const Lines body = convertFirst(session, {mainForm(), form("frmSub", {tab})});
  EXPECT_EQ(linesWith(body, "      Top  "),
            (Lines{"      Top           = 0", "      Top           = -60"}));
}

TEST(SubForm, FiveThousandControls) {
  constexpr int kControls = 5000;
  std::vector<Json> outer, inner;
  for (int i = 0; i < kControls; ++i) {
    outer.push_back(textBox("c" + std::to_string(i), 0, 0));
    inner.push_back(textBox("c" + std::to_string(i * 2), 0, 0));
  }
  outer.push_back(subform("sub", "frmSub"));
  FormSession session;
  const Lines found =
      beginnings(convertFirst(session, {form("frmMain", outer), form("frmSub", inner)}));
  ASSERT_EQ(found.size(), 2u * kControls + 1);
  EXPECT_EQ(found[kControls], "VB.PictureBox sub");
  for (int i = 0; i < kControls; ++i) {
    const std::string ending = 2 * i < kControls ? "_Dup0" : "";
    EXPECT_EQ(found[kControls + 1 + i], "VB.TextBox c" + std::to_string(2 * i) + ending);
  }
  EXPECT_EQ(session.main.state.intNumControls, 2 * kControls);
}

TEST(SubForm, ThePlaceholder) {
  FormSession session;
  Json odd = subform("sub", "frmSub", 30, 40);
  odd["properties"]["Tag"] = "a \"b\"";
  odd["properties"]["Visible"] = true;
  session.openForms({mainForm(odd)});
  MainObject& main = session.main;
  ConversionState& s = main.state;
  s.gappAccess.doCmd().OpenForm("frmMain", access_constants::acDesign);
  s.frmCurr = s.gappAccess.Forms("frmMain");
  const LateBound ctl(toObject(s.frmCurr.get("", {Value("sub")})));
  s.strCtlName = "sub";
  s.intSubLeft = 30;
  s.intSubHeight = 1500;
  s.intSubWidth = 2500;
  for (const bool inTab : {false, true}) {
    s.blnInTab = inTab;
    session.files.Open((session.out() / "x.frm").string(), FileMode::kOutput, kOutputFile);
    PrintSubFormProps(main, ctl);
    session.files.Close(kOutputFile);
    EXPECT_EQ(session.lines("x.frm"),
              (Lines{"   Begin VB.Shape sub", "      Height         = 1500",
                     inTab ? "      Left           = 30" : "      Left           = -74850",
                     "      Tag            = \"a 'b'\"", "      Top            = 40",
                     "      Visible        = -1", "      Width          = 2500", "   End   'sub"}));
  }
}

}  // namespace
}  // namespace tarrowin::test
