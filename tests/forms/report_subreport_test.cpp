// Subreports of a report: the frame, the names, what cannot be reached.
#include <gtest/gtest.h>

#include "forms/data_control_lines.h"
#include "forms/report_form.h"
#include "forms/report_form_session.h"
#include "forms/subreport.h"

namespace tarrowin::test {
namespace {

using namespace container;

const std::string kThree(3, ' ');
const std::string kSix(6, ' ');

class SubReport : public testing::Test, public ReportFormSession {
 protected:
  // The control lines of the first of the reports, the others beside it.
  Lines convertReports(const std::vector<Json>& reports) {
    openReports(reports);
    linesOfReport(GetAccReportProps);
    Lines lines = linesOfReport(CreateVBReport);
    EXPECT_EQ(lines.back(), "End   ' Form Properties");
    lines.pop_back();
    return lines;
  }
};

// Drops the rows of the data controls, so that frames and controls alone are left.
Lines withoutData(const Lines& lines) {
  Lines kept;
  bool inData = false;
  for (const std::string& line : lines) {
    if (line.starts_with("      Begin VB.Data ")) inData = true;
    if (!inData) kept.push_back(line);
    if (line.starts_with("      End   'Data")) inData = false;
  }
  return kept;
}

// A text box behind a data control.
Lines boundLines(const std::string& indent, const std::string& name, int left, int top) {
  Lines lines = textBoxLines(indent, name, left, top);
  lines.insert(lines.begin() + 1, indent + "      DataSource    = \"Data1\"");
  return lines;
}

// The open frame, which the data control leaves at three blanks.
Lines subFrame(const std::string& name, int left, int top) {
  return frameLines(kThree, name, left, top);
}

TEST_F(SubReport, ADataControlAndAFrameWithTheSubreportsControls) {
  const Lines body = convertReports({report("R", {subform("sub", "Report.rptSub", 100, 200)}),
                                     report("rptSub", {textBox("a", 1, 2), textBox("b", 3, 4)})});
  EXPECT_EQ(body, dataControlLines(kThree, "Data1", 0, 2790, "Orders") +
                      Lines{"      End   'Data1"} + subFrame("sub", 100, 200) +
                      boundLines(kSix, "a", 1, 122) + boundLines(kSix, "b", 3, 124) +
                      Lines{"   End   ' sub"});
  const ConversionState& s = main.state;
  EXPECT_TRUE(s.blnUsesSubControl);
  // One less than the report's one control, and two of the subreport.
  EXPECT_EQ(s.intNumControls, 2);
  EXPECT_EQ(s.intSubCount, 1);
  EXPECT_EQ(s.intSubDepth, 0);
  EXPECT_FALSE(s.frmSubCurr);
  EXPECT_FALSE(s.blnInSubForm || s.blnInFrame || s.blnInOptionGroup);
  EXPECT_TRUE(s.openSubForms.empty());
  EXPECT_TRUE(user.boxes.empty());
}

TEST_F(SubReport, TheControlsOfEachSectionStandBelowTheSubreportsOwnSections) {
  std::vector<Json> controls;
  for (const StackedSection& s : kStack)
    controls.push_back(control("c" + std::to_string(s.number), 109, at(0, 7, s.number)));
  Json inner = report("rptSub", controls);
  inner["sections"] = thirteenSections();
  const Lines body = convertReports({report("R", {subform("sub", "rptSub")}), inner});
  Lines expected;
  for (const StackedSection& s : kStack) {
    const int top = s.number == 1 ? 7 : 7 + s.above + 120;
    expected.push_back("            Top           = " + std::to_string(top));
  }
  EXPECT_EQ(linesWith(body, "            Top "), expected);
  const ConversionState& s = main.state;
  EXPECT_EQ(s.intSubRptHeights, thirteenHeights());
  EXPECT_EQ(s.intSubTotalHeight, 8311);
  // The sections that forms have too, from the report header to the report footer.
  const std::array asInAForm = {s.intSubHeaderHeight, s.intSubPageHeaderHeight,
                                s.intSubDetailHeight, s.intSubPageFooterHeight,
                                s.intSubFooterHeight};
  EXPECT_EQ(asInAForm, (std::array<std::int16_t, 5>{2, 8, 1, 16, 4}));
  EXPECT_EQ(s.lngReportHeight, 3120);
}

TEST_F(SubReport, TheFrameStandsInTheSectionOfItsControl) {
  Json sub = subform("sub", "rptSub", 0, 50);
  sub["properties"]["Section"] = 6;
  EXPECT_EQ(linesWith(convertReports({report("R", {sub}), report("rptSub")}), "         Top  "),
            (Lines{"         Top               = 2790", "         Top           = 3050"}));
}

TEST_F(SubReport, ASubreportWithNoControls) {
  const Lines body = convertReports({report("R", {subform("sub", "rptSub")}), report("rptSub")});
  EXPECT_EQ(withoutData(body), subFrame("sub", 0, 0) + Lines{"   End   ' sub"});
  EXPECT_EQ(main.state.intNumControls, 0);
  EXPECT_EQ(main.state.intSubCount, 0);
}

TEST_F(SubReport, AViewDoesNotMakeASheetOfIt) {
  for (const Json& view : {Json(0), Json(1), Json(2), Json{{"error", 3000}}}) {
    Json inner = report("rptSub", {textBox("a", 0, 0)});
    inner["properties"]["DefaultView"] = view;
    EXPECT_EQ(beginnings(convertReports({report("R", {subform("sub", "rptSub")}), inner})),
              (Lines{"VB.Data Data1", "VB.PictureBox sub", "VB.TextBox a"}))
        << view;
    EXPECT_FALSE(main.state.mblnAdoDataCtl || main.state.blnUsesDataGrid);
  }
}

TEST_F(SubReport, AnUnboundSubreportHasADataControlTooWithNoSource) {
  Json inner = report("rptSub");
  inner["properties"]["RecordSource"] = "";
  const Lines body = convertReports({report("R", {subform("sub", "rptSub")}), inner});
  EXPECT_EQ(beginnings(body), (Lines{"VB.Data Data1", "VB.PictureBox sub"}));
  EXPECT_EQ(linesWith(body, "         RecordSource"), Lines{"         RecordSource      = \"\""});
}

TEST_F(SubReport, DataControlsStandSideBySideWithinTheWidthOfTheReport) {
  Json outer =
      report("R", {subform("s1", "rptSub"), subform("s2", "rptSub"), subform("s3", "rptSub")});
  outer["properties"]["Width"] = 3000;
  EXPECT_EQ(linesWith(convertReports({outer, report("rptSub")}), "         Left  "),
            (Lines{"         Left              = 0", "         Left          = 0",
                   "         Left              = 1440", "         Left          = 0",
                   "         Left              = 0", "         Left          = 0"}));
}

TEST_F(SubReport, ANameThatRepeatsGetsAnEnding) {
  const Json first = report("r1", {textBox("x", 0, 0), textBox("a", 0, 0)});
  const Json second = report("r2", {textBox("a", 0, 0), textBox("x", 0, 0), textBox("b", 0, 0)});
  const Json outer = report("R", {textBox("x", 0, 0), subform("s1", "r1"), subform("s2", "r2")});
  Lines found = beginnings(withoutData(convertReports({outer, first, second})));
  std::erase_if(found, [](const std::string& line) { return line.starts_with("VB.PictureBox"); });
  // The name with its ending is one that repeats in the second subreport.
  EXPECT_EQ(found, (Lines{"VB.TextBox x", "VB.TextBox x_Dup", "VB.TextBox a", "VB.TextBox a_Dup",
                          "VB.TextBox x_Dup_Dup", "VB.TextBox b"}));
}

TEST_F(SubReport, AnEndingThatTheReportHasAlreadyIsPassedOver) {
  const Lines body =
      convertReports({report("R", {textBox("x", 0, 0), textBox("x_Dup", 0, 0), subform("s", "r")}),
                      report("r", {textBox("x", 0, 0)})});
  EXPECT_EQ(beginnings(body).back(), "VB.TextBox x_Dup_Dup");
}

TEST_F(SubReport, ANameIsCleanedBeforeItsEnding) {
  const Lines body = convertReports({report("R", {textBox("1 A", 0, 0), subform("s", "r")}),
                                     report("r", {textBox("1 A", 0, 0)})});
  EXPECT_EQ(beginnings(body).back(), "VB.TextBox x_A_Dup");
}

TEST_F(SubReport, ASubreportInsideASubreport) {
  Json inner = report("rptInner", {textBox("c", 5, 6)});
  inner["sections"].push_back(section(5, {{"Height", 1000}}));
  const Lines body =
      convertReports({report("R", {subform("sub1", "rptOuter")}),
                      report("rptOuter", {textBox("a", 1, 2), subform("sub2", "rptInner", 3, 4),
                                          textBox("b", 7, 8)}),
                      inner});
  // From the nested frame on the heights are the inner report's, all names count as known, and the
  // controls stand behind three blanks. Both closing lines have the outer name.
  EXPECT_EQ(withoutData(body), subFrame("sub1", 0, 0) + boundLines(kSix, "a", 1, 122) +
                                   subFrame("sub2", 3, 1124) + boundLines(kSix, "c_Dup", 5, 1126) +
                                   Lines{"   End   ' sub1"} + boundLines(kSix, "b_Dup", 7, 1128) +
                                   Lines{"   End   ' sub1"});
  const ConversionState& s = main.state;
  EXPECT_EQ(s.intSubDepth, 1);
  EXPECT_EQ(s.intSubCount, 2);
  EXPECT_EQ(s.intNumControls, 0 + 1 + 3);
  EXPECT_FALSE(s.blnNestedSubForm);
  EXPECT_TRUE(user.boxes.empty());
}

TEST_F(SubReport, AGroupInASubreport) {
  const Lines body = convertReports(
      {report("R", {subform("sub", "rptSub")}),
       report("rptSub", {control("grp", 107, at(0, 500)), control("opt", 105, at(0, 700), "grp"),
                         control("tab", 123, at(0, 60)), page("p", "tab", "One"),
                         textBox("t", 0, 90, "p")})});
  EXPECT_EQ(beginnings(body), (Lines{"VB.Data Data1", "VB.PictureBox sub", "VB.Frame grp",
                                     "VB.OptionButton opt", "TabDlg.SSTab tab", "VB.TextBox t"}));
  // The group 120 lower in its frame and 120 higher for its caption; the tab control 240 higher.
  EXPECT_EQ(linesWith(body, "            Top "), (Lines{"            Top           = 500"}));
  EXPECT_EQ(linesWith(body, "      Top "), (Lines{"      Top           = -60"}));
  EXPECT_TRUE(user.boxes.empty());
}

TEST_F(SubReport, ASubreportOnATabPageIsReachedThroughThePage) {
  const Lines body =
      convertReports({report("R", {control("tab", 123, at(500, 600)), page("p0", "tab", "One"),
                                   subform("sub", "rptSub", 700, 1000, "p0")}),
                      report("rptSub", {textBox("a", 10, 20), subform("in", "rptGone")})});
  EXPECT_EQ(beginnings(body), (Lines{"TabDlg.SSTab tab", "VB.Data Data1", "VB.PictureBox sub",
                                     "VB.TextBox a", "VB.PictureBox in"}));
  // The page lists the subreport inside its subreport.
  EXPECT_EQ(linesWith(body, "      Tab(0).Control("),
            (Lines{"      Tab(0).Control(0)= \"sub\"", "      Tab(0).Control(0).Enabled= 0",
                   "      Tab(0).Control(0)= \"in\"", "      Tab(0).Control(0).Enabled= 0"}));
  EXPECT_TRUE(main.state.blnSubInTab);
  EXPECT_TRUE(user.boxes.empty());
}

TEST_F(SubReport, ASourceThatIsNoReport) {
  for (const char* source : {"Report.rptGone", "rptGone"}) {
    EXPECT_EQ(convertReports({report("R", {subform("sub", source)})}),
              frameLines("", "sub") + Lines{"   End   ' rptGone"})
        << source;
    EXPECT_TRUE(user.boxes.empty()) << source;
  }
  Json database = emptyDatabase();
  database["forms"] = {form("frmSub", {textBox("a", 0, 0)})};
  openReports({report("R", {subform("sub", "Form.frmSub")})}, database);
  EXPECT_EQ(linesOfReport(CreateVBReport),
            frameLines("", "sub") + Lines({"   End   ' Form.frmSub", "End   ' Form Properties"}));
}

// A subform control whose Report raises the error.
Json raising(int number, std::string_view source = "rptSub") {
  Json odd = subform("sub", source);
  odd["properties"]["Report"] = {{"error", number}, {"description", "Refused."}};
  return odd;
}

TEST_F(SubReport, ErrorsOfAReportThatCannotBeReachedLeaveAnEmptyFrame) {
  for (const int number : {2102, 2103, 2121, 2450, 2457, 2467, 2494}) {
    EXPECT_EQ(convertReports({report("R", {raising(number)}), report("rptSub")}),
              frameLines("", "sub") + Lines{"   End   ' rptSub"})
        << number;
    EXPECT_TRUE(user.boxes.empty()) << number;
  }
}

TEST_F(SubReport, ErrorsThatPassSilentlyLeaveAnEmptyFrameToo) {
  for (const int number : {91, 92, 438, 2186, 2452, 2455, 2459, 2462, 2465, 7784}) {
    EXPECT_EQ(convertReports({report("R", {raising(number)}), report("rptSub")}),
              frameLines("", "sub") + Lines{"   End   ' sub"})
        << number;
    EXPECT_TRUE(user.boxes.empty()) << number;
    EXPECT_EQ(main.state.intNumControls, 0);
  }
}

TEST_F(SubReport, OtherErrorsHaveABoxWithTheNameOfTheSubreport) {
  EXPECT_EQ(convertReports({report("R", {raising(3061)}), report("rptSub")}),
            frameLines("", "sub") + Lines{"   End   ' sub"});
  EXPECT_EQ(onlyBox(), (Box{16, "GetSubreportProps(sub) - Error #3061\r\nRefused.",
                            "Access to Visual Basic Tarrowin"}));
}

TEST_F(SubReport, TheBoxOfANestedSubreportNamesItsSource) {
  Json odd = raising(3061, "Report.rptInner");
  odd["name"] = "sub2";
  convertReports(
      {report("R", {subform("sub1", "rptOuter")}), report("rptOuter", {odd}), report("rptInner")});
  EXPECT_EQ(onlyBox().text, "GetSubreportProps(rptInner) - Error #3061\r\nRefused.");
}

TEST_F(SubReport, TheNameOfTheReportIsTriedWhenThatOfTheControlFails) {
  const Lines body =
      convertReports({report("R", {raising(2467, "Report.rptSub"), subform("rptSub", "rptOther")}),
                      report("rptSub"), report("rptOther", {textBox("a", 1, 2)})});
  EXPECT_EQ(withoutData(body), subFrame("sub", 0, 0) + boundLines(kSix, "a", 1, 122) +
                                   Lines{"   End   ' rptSub"} + subFrame("rptSub", 0, 0) +
                                   boundLines(kSix, "a_Dup", 1, 122) + Lines{"   End   ' rptSub"});
}

TEST_F(SubReport, HeightsBeyond16BitsHaveABox) {
  Json high = report("rptSub");
  high["sections"] = {section(0, {{"Height", 30000}}), section(8, {{"Height", 30000}})};
  convertReports({report("R", {subform("sub", "rptSub")}), high});
  EXPECT_EQ(onlyBox().text, "GetSubreportProps(sub) - Error #6\r\nOverflow");
  EXPECT_EQ(main.state.intSubRptHeights[8], 30000);
}

TEST_F(SubReport, AReportThatHoldsItselfIsAnEmptyFrame) {
  EXPECT_EQ(convertReports({report("R", {subform("sub", "R"), textBox("t", 3, 4)})}),
            frameLines("", "sub") + Lines{"   End   ' sub"} + textBoxLines("", "t", 3, 4));
  const Lines found = beginnings(withoutData(
      convertReports({report("R", {subform("s1", "A")}), report("A", {subform("s2", "B")}),
                      report("B", {subform("s3", "Report.A"), subform("s4", "R")})})));
  EXPECT_EQ(found, (Lines{"VB.PictureBox s1", "VB.PictureBox s2", "VB.PictureBox s3_Dup",
                          "VB.PictureBox s4_Dup"}));
  EXPECT_TRUE(user.boxes.empty());
}

TEST_F(SubReport, ThreeHundredLevels) {
  constexpr int kLevels = 300;
  std::vector<Json> reports;
  for (int i = 0; i < kLevels; ++i)
    reports.push_back(report("r" + std::to_string(i), {subform("s", "r" + std::to_string(i + 1))}));
  reports.push_back(report("r" + std::to_string(kLevels), {textBox("last", 0, 0)}));
  const Lines found = beginnings(withoutData(convertReports(reports)));
  ASSERT_EQ(found.size(), kLevels + 1u);
  EXPECT_TRUE(found.back().starts_with("VB.TextBox last"));
  EXPECT_EQ(main.state.intNumControls, kLevels);
}

TEST_F(SubReport, WithoutTheModeASubformControlShowsItsForm) {
  Json database = emptyDatabase();
  database["forms"] = {form("frmMain", {subform("sub", "Same")}),
                       form("Same", {textBox("ofForm", 0, 0)})};
  openReports({report("R", {subform("sub", "Same")}), report("Same", {textBox("ofReport", 0, 0)})},
              database);
  EXPECT_EQ(beginnings(linesOfReport(CreateVBReport)).back(), "VB.TextBox ofReport");
  main.state.mblnReportMode = false;
  convert({"frmMain"});
  EXPECT_EQ(beginnings(lines("frmMain.frm")).back(), "VB.TextBox ofForm");
}

}  // namespace
}  // namespace tarrowin::test
