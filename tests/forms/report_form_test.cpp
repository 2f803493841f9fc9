// A report as a form: header, data control, walk, closing line, and their errors.
#include "forms/report_form.h"

#include <gmock/gmock.h>

#include "forms/data_control_lines.h"
#include "forms/data_controls.h"
#include "forms/report_form_session.h"

namespace tarrowin::test {
namespace {

using namespace container;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class ReportForm : public testing::Test, public ReportFormSession {
 protected:
  Lines header(const Json& entry) {
    openReport(entry);
    return linesOfReport(GetAccReportProps);
  }
  // The only line of a key in the header.
  std::string headerLine(const Json& entry, std::string_view key) {
    const Lines found = linesWith(header(entry), key);
    return found.size() == 1 ? found[0] : std::to_string(found.size()) + " lines";
  }
};

Json withProperty(Json entry, const char* property, const Json& value) {
  entry["properties"][property] = value;
  return entry;
}

Json withHeights(const std::vector<std::pair<int, Json>>& heights) {
  Json entry = report("R");
  entry["sections"] = Json::array();
  for (const auto& [number, height] : heights)
    entry["sections"].push_back(
        section(number, {{"Height", height}, {"BackColor", 0}, {"SpecialEffect", 0}}));
  return entry;
}

TEST_F(ReportForm, TheHeader) {
  Json entry = report("R");
  entry["sections"].push_back(section(1, {{"Height", 500}, {"BackColor", 1}}));
  EXPECT_THAT(
      header(entry),
      ElementsAre("VERSION 5.00", "Begin VB.Form R", "   Appearance    = 0",
                  "   BackColor     = 12632256", "   BorderStyle   = 2",
                  "   Caption       = \"A report\"", "   ClientHeight  = 3620",
                  "   ClientLeft    = 60", "   ClientTop     = 345", "   ClientWidth   = 9000",
                  "   Enabled       = -1", "   HelpContextID = 7", "   MaxButton     = 3",
                  "   MinButton     = 3", "   Tag           = \"\""));
  EXPECT_THAT(user.boxes, IsEmpty());
}

TEST_F(ReportForm, AReportHasNoKeyPreviewLine) {
  EXPECT_THAT(linesWith(header(withProperty(report("R"), "KeyPreview", true)), "   KeyPreview"),
              IsEmpty());
}

TEST_F(ReportForm, AllThirteenSectionsAddToTheHeight) {
  Json entry = report("R");
  entry["sections"] = thirteenSections();
  // 2 to the 13th less 1, and 120.
  EXPECT_EQ(headerLine(entry, "   ClientHeight"), "   ClientHeight  = 8311");
  EXPECT_EQ(main.state.intRptHeights, thirteenHeights());
  EXPECT_EQ(main.state.lngReportHeight, 8311);
}

TEST_F(ReportForm, ASectionThatTheReportLacksCountsAsNone) {
  openReport(withHeights({{6, 400}}));
  main.state.intRptHeights.fill(99);
  EXPECT_EQ(linesWith(linesOfReport(GetAccReportProps), "   ClientHeight"),
            Lines{"   ClientHeight  = 520"});
  ReportHeights heights{};
  heights[6] = 400;
  EXPECT_EQ(main.state.intRptHeights, heights);
}

TEST_F(ReportForm, AHeightOf11520IsKeptAndMoreIsCut) {
  const std::pair<int, const char*> rows[] = {{11399, "11519"}, {11400, "11520"}, {11401, "11520"}};
  for (const auto& [height, printed] : rows)
    EXPECT_EQ(headerLine(withHeights({{0, height}}), "   ClientHeight"),
              "   ClientHeight  = " + std::string(printed));
}

TEST_F(ReportForm, HeightsThatAddUpToMoreThan32767) {
  const Json entry = withHeights({{5, 20000}, {0, 20000}});
  EXPECT_EQ(headerLine(entry, "   ClientHeight"), "   ClientHeight  = 11520");
  EXPECT_THAT(user.boxes, IsEmpty());
}

TEST_F(ReportForm, ASectionHigherThan32767CountsAsNone) {
  EXPECT_EQ(headerLine(withHeights({{5, 40000}, {0, 500}}), "   ClientHeight"),
            "   ClientHeight  = 620");
  EXPECT_THAT(user.boxes, IsEmpty());
}

TEST_F(ReportForm, ARowThatOverflowsSetsTheHeightForTheRowsBelow) {
  EXPECT_EQ(headerLine(withProperty(report("R"), "BorderStyle", {{"error", 6}}), "   ClientHeight"),
            "   ClientHeight  = 32767");
  EXPECT_EQ(main.state.lngReportHeight, 32767);
  EXPECT_THAT(user.boxes, IsEmpty());
}

TEST_F(ReportForm, AWidthOf15360IsKeptAndMoreIsCut) {
  for (const auto& [width, printed] : {std::pair{15360, "15360"}, {15361, "15360"}, {800, "800"}})
    EXPECT_EQ(headerLine(withProperty(report("R"), "Width", width), "   ClientWidth"),
              "   ClientWidth   = " + std::string(printed));
}

TEST_F(ReportForm, ASpecialEffectOfTwoOrMoreIsOne) {
  const std::pair<int, const char*> rows[] = {{0, "0"}, {1, "1"}, {2, "1"}, {5, "1"}, {-1, "-1"}};
  for (const auto& [effect, printed] : rows) {
    Json entry = report("R");
    entry["sections"][0]["properties"]["SpecialEffect"] = effect;
    EXPECT_EQ(headerLine(entry, "   Appearance"), "   Appearance    = " + std::string(printed));
  }
}

TEST_F(ReportForm, TheCaptionIsCleanedAndKept) {
  const Json entry = withProperty(report("R"), "Caption", "  The \"big\"\treport ");
  EXPECT_EQ(headerLine(entry, "   Caption"), "   Caption       = \"The 'big' report\"");
  EXPECT_EQ(main.state.strRptCaption, "The 'big' report");
}

TEST_F(ReportForm, ACaptionOfBlanksOnlyStandsAsItIs) {
  EXPECT_EQ(headerLine(withProperty(report("R"), "Caption", "   "), "   Caption"),
            "   Caption       = \"   \"");
  EXPECT_EQ(main.state.strRptCaption, "   ");
}

TEST_F(ReportForm, TheTagIsCleaned) {
  EXPECT_EQ(headerLine(withProperty(report("R"), "Tag", " a\"b "), "   Tag"),
            "   Tag           = \" a'b \"");
}

TEST_F(ReportForm, APropertyThatCannotBeReadLosesItsLineAlone) {
  const Lines all = header(report("R"));
  const std::pair<const char*, const char*> rows[] = {{"BorderStyle", "   BorderStyle"},
                                                      {"Caption", "   Caption"},
                                                      {"Width", "   ClientWidth"},
                                                      {"HelpContextId", "   HelpContextID"},
                                                      {"Tag", "   Tag"}};
  for (const auto& [property, line] : rows) {
    Json entry = report("R");
    entry["properties"].erase(property);
    Lines expected = all;
    EXPECT_EQ(std::erase_if(expected, [&](const auto& text) { return text.starts_with(line); }),
              1u);
    EXPECT_EQ(header(entry), expected) << property;
    EXPECT_THAT(user.boxes, IsEmpty()) << property;
  }
}

TEST_F(ReportForm, AReportWithoutButtonsHasNeitherLine) {
  Json entry = report("R");
  entry["properties"].erase("MinMaxButtons");
  const Lines lines = header(entry);
  EXPECT_THAT(linesWith(lines, "   MaxButton"), IsEmpty());
  EXPECT_THAT(linesWith(lines, "   MinButton"), IsEmpty());
}

TEST_F(ReportForm, ErrorsOfTheHeaderThatPassSilently) {
  for (const int number : {2186, 2452, 2455, 2462, 2465}) {
    header(withProperty(report("R"), "Tag", {{"error", number}}));
    EXPECT_THAT(user.boxes, IsEmpty()) << number;
  }
}

TEST_F(ReportForm, AnotherErrorOfTheHeaderHasABox) {
  const Lines lines =
      header(withProperty(report("R"), "Tag", {{"error", 3000}, {"description", "Refused."}}));
  EXPECT_EQ(onlyBox(), (Box{16, "GetAccReportProps() - Error #3000\r\nRefused.",
                            "Access to Visual Basic Tarrowin"}));
  EXPECT_EQ(lines.back(), "   MinButton     = 3");
}

TEST_F(ReportForm, TheDataControlStandsAtTheFootOfTheReport) {
  header(withProperty(report("R"), "RecordSource", " Big Orders "));
  const Lines expected = dataControlLines("", "Data1", 0, 3120 - 330, "Big Orders");
  EXPECT_EQ(linesOfReport(GetVbReportDataCtlProps), expected + Lines{"   End"});
  EXPECT_TRUE(main.state.blnDataCtl);
  EXPECT_EQ(main.state.intDataCtlNum, 1);
}

TEST_F(ReportForm, InReportModeTheDataControlOfAFormIsThatOfTheReport) {
  Json database = emptyDatabase();
  Json other = form("frmOther");
  other["properties"]["RecordSource"] = "Customers";
  database["forms"] = {other};
  openReports({report("R")}, database);
  ConversionState& s = main.state;
  s.gappAccess.doCmd().OpenForm("frmOther", access_constants::acDesign);
  s.frmCurr = s.gappAccess.Forms("frmOther");
  const auto source = [this](void (*procedure)(MainObject&)) {
    return linesWith(linesOfReport(procedure), "      RecordSource").front();
  };
  EXPECT_EQ(source(GetVbDataCtlProps), "      RecordSource      = \"Orders\"");
  s.mblnReportMode = false;
  EXPECT_EQ(source(GetVbDataCtlProps), "      RecordSource      = \"Customers\"");
  EXPECT_EQ(source(GetVbReportDataCtlProps), "      RecordSource      = \"Orders\"");
}

TEST_F(ReportForm, AnSqlSourceOfTheDataControlIsOneLineWithoutDoubleQuotes) {
  header(withProperty(report("R"), "RecordSource", "SELECT *\r\nFROM Orders WHERE c = \"x\""));
  EXPECT_EQ(linesWith(linesOfReport(GetVbReportDataCtlProps), "      RecordSource"),
            Lines{"      RecordSource      = \"SELECT *  FROM Orders WHERE c = 'x'\""});
}

TEST_F(ReportForm, ARecordSourceThatCannotBeReadHasABoxOfTheDataControl) {
  header(withProperty(report("R"), "RecordSource", {{"error", 3000}, {"description", "Refused."}}));
  const Lines lines = linesOfReport(GetVbReportDataCtlProps);
  EXPECT_THAT(linesWith(lines, "      RecordSource"), IsEmpty());
  EXPECT_EQ(lines.back(), "   End");
  EXPECT_EQ(onlyBox().text, "GetVbReportDataCtlProps() - Error #3000\r\nRefused.");
}

TEST_F(ReportForm, AllRowsOfAWholeReport) {
  Json entry = report("R", {textBox("txtA", 100, 200), control("lblA", 100, at(0, 10, 3))});
  entry["sections"].push_back(section(3, {{"Height", 400}}));
  header(entry);
  linesOfReport(GetVbReportDataCtlProps);
  // The text box is bound to the data control; its field is unknown.
  EXPECT_EQ(linesOfReport(CreateVBReport),
            (Lines{"   Begin VB.TextBox txtA", "      DataSource    = \"Data1\"",
                   "      BeginProperty Font", "      EndProperty", "      Left          = 100",
                   "      Top           = 600", "   End   'txtA", "   Begin VB.Label lblA",
                   "      Enabled       = -1", "      BeginProperty Font", "      EndProperty",
                   "      Left          = 0", "      Top           = 10", "   End   'lblA",
                   "End   ' Form Properties"}));
  EXPECT_THAT(user.boxes, IsEmpty());
}

TEST_F(ReportForm, AReportWithNoControls) {
  openReport(report("R"));
  EXPECT_THAT(linesOfReport(CreateVBReport), ElementsAre("End   ' Form Properties"));
  EXPECT_THAT(linesOfReport(CreateVBDataReport), ElementsAre("End   ' Report Properties"));
  EXPECT_EQ(main.state.intNumControls, -1);
}

TEST_F(ReportForm, EveryControlTypeOfADataReport) {
  const std::pair<int, const char*> rows[] = {
      {108, "VB.OLE"},   {114, "VB.OLE"},   {103, "VB.Image"},   {100, "VB.Label"},
      {102, "VB.Line"},  {101, "VB.Shape"}, {109, "VB.TextBox"}, {104, "VB.Shape"},
      {105, "VB.Shape"}, {106, "VB.Shape"}, {107, "VB.Shape"},   {110, "VB.Shape"},
      {111, "VB.Shape"}, {112, "VB.Shape"}, {118, "VB.Shape"},   {119, "VB.Shape"},
      {122, "VB.Shape"}, {123, "VB.Shape"}, {124, "VB.Shape"},   {7, "VB.Shape"},
  };
  for (const auto& [type, className] : rows) {
    openReport(report("R", {control("c", type, at(0, 0))}));
    EXPECT_EQ(beginnings(linesOfReport(CreateVBDataReport)), Lines{className + std::string(" c")})
        << type;
  }
}

TEST_F(ReportForm, AReportAsAFormKnowsTheControlsOfForms) {
  const std::pair<int, const char*> rows[] = {
      {106, "VB.CheckBox"},  {111, "VB.ComboBox"}, {107, "VB.Frame"}, {109, "VB.TextBox"},
      {123, "TabDlg.SSTab"}, {110, "VB.ListBox"},  {118, "VB.Shape"}};
  for (const auto& [type, className] : rows) {
    openReport(report("R", {control("c", type, at(0, 0))}));
    EXPECT_EQ(beginnings(linesOfReport(CreateVBReport)), Lines{className + std::string(" c")})
        << type;
  }
}

TEST_F(ReportForm, AControlThatHasNoTypeBecomesAShape) {
  openReport(report("R", {control("c", 109, {{"ControlType", {{"error", 438}}}})}));
  EXPECT_EQ(beginnings(linesOfReport(CreateVBDataReport)), Lines{"VB.Shape c"});
}

TEST_F(ReportForm, MembersOfContainersAreLeftToThese) {
  const std::vector<Json> controls = {textBox("first", 0, 0),
                                      control("grp", 107, at(0, 0)),
                                      control("opt", 105, at(0, 0), "grp"),
                                      control("lbl", 100, at(0, 0), "opt"),
                                      control("tab", 123, at(0, 0)),
                                      page("p", "tab", "One"),
                                      textBox("t", 0, 0, "p")};
  openReport(report("R", controls));
  EXPECT_EQ(beginnings(linesOfReport(CreateVBReport)),
            (Lines{"VB.TextBox first", "VB.Frame grp", "VB.OptionButton opt", "VB.Label lbl",
                   "TabDlg.SSTab tab", "VB.TextBox t"}));
  EXPECT_EQ(beginnings(linesOfReport(CreateVBDataReport)),
            (Lines{"VB.TextBox first", "VB.Shape grp", "VB.Shape tab"}));
  EXPECT_EQ(main.state.intNumControls, 6);
}

TEST_F(ReportForm, AFirstControlInAGroupIsPrintedTwice) {
  openReport(report("R", {control("opt", 105, at(0, 0), "grp"), control("grp", 107, at(0, 0))}));
  EXPECT_EQ(beginnings(linesOfReport(CreateVBReport)),
            (Lines{"VB.OptionButton opt", "VB.Frame grp", "VB.OptionButton opt"}));
}

// In a form it is left out by the names of what holds it.
TEST_F(ReportForm, ALabelOfATextBoxOnATabPageIsPrintedByTheWalkToo) {
  openReport(report("R", {control("tab", 123, at(0, 0)), page("p", "tab", "One"),
                          textBox("t", 0, 0, "p"), control("lbl", 100, at(0, 0), "t")}));
  EXPECT_EQ(beginnings(linesOfReport(CreateVBReport)),
            (Lines{"TabDlg.SSTab tab", "VB.TextBox t", "VB.Label lbl", "VB.Label lbl"}));
}

TEST_F(ReportForm, TheTopOfAGroupAndOfATabControlIsThatOfTheirSection) {
  Json entry = report(
      "R", {control("grp", 107, at(0, 500, 5)), control("opt", 105, at(0, 700, 5), "grp"),
            control("tab", 123, at(0, 50, 6)), page("p", "tab", "One"), textBox("t", 0, 90, "p")});
  entry["sections"] = thirteenSections();
  header(entry);
  const Lines lines = linesOfReport(CreateVBReport);
  Lines tops;
  for (const std::string& line : lines) {
    const std::size_t start = line.find("Top ");
    if (start != std::string::npos) tops.push_back(line.substr(line.find("= ") + 2));
  }
  // The frame stands 120 higher; its member 200 below it, and 120 of its caption.
  EXPECT_EQ(tops, (Lines{std::to_string(500 + 10 - 120), "320", std::to_string(50 + 2731), "40"}));
  EXPECT_THAT(user.boxes, IsEmpty());
}

TEST_F(ReportForm, ATransparentLabelShowsTheColourOfTheReportsSection) {
  Json label = control("lbl", 100, {{"Section", 0}, {"BackStyle", 0}, {"BackColor", 5}});
  openReport(report("R", {label}));
  EXPECT_EQ(linesWith(linesOfReport(CreateVBReport), "      BackColor"),
            Lines{"      BackColor     = 12632256"});
}

TEST_F(ReportForm, WhatAReportLeavesIsResetByTheNext) {
  openReport(report("R", {textBox("a", 0, 0)}));
  ConversionState& s = main.state;
  s.astrPictureCode.append("old");
  s.astrDupNames.append("a");
  s.blnSubInTab = s.blnInSubForm = s.blnInFrame = s.blnInOptionGroup = s.blnInTab = true;
  s.blnDupFound = true;
  s.intSubDepth = s.intSubCount = 9;
  linesOfReport(CreateVBReport);
  EXPECT_EQ(s.astrPictureCode.count(), 0);
  EXPECT_EQ(s.astrDupNames.count(), 0);
  EXPECT_EQ(s.astrCtlNames.count(), 0);
  EXPECT_FALSE(s.blnSubInTab || s.blnInSubForm || s.blnInFrame || s.blnInOptionGroup ||
               s.blnInTab || s.blnDupFound);
  EXPECT_EQ(s.intSubDepth + s.intSubCount, 0);
}

TEST_F(ReportForm, AnErrorOfTheWalkHasABoxWithItsName) {
  Json odd = textBox("a", 0, 0);
  odd["properties"]["Name"] = {{"error", 3000}, {"description", "Refused."}};
  openReport(report("R", {odd}));
  const std::pair<void (*)(MainObject&), const char*> rows[] = {
      {CreateVBReport, "CreateVBReport"}, {CreateVBDataReport, "CreateVBDataReport"}};
  for (const auto& [procedure, name] : rows) {
    clearBoxes();
    main.state.strCtlName = "before";
    linesOfReport(procedure);
    // Once in the list of names and once in the walk.
    const std::string text = std::string(name) + "(before) - Error #3000 Refused.";
    EXPECT_THAT(boxTexts(), ElementsAre(text, text));
  }
}

}  // namespace
}  // namespace tarrowin::test
