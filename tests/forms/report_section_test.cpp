// Top of the controls of a report that is shown as a form.
#include "forms/report_section.h"

#include <gtest/gtest.h>

#include "forms/control_geometry.h"
#include "forms/report_form_session.h"

namespace tarrowin::test {
namespace {

class ReportSection : public testing::Test, public ReportFormSession {
 protected:
  void openControls(const std::vector<Json>& controls) {
    openReport(report("R", controls));
    main.state.strCtlName = "ctl";
    main.state.intRptHeights = thirteenHeights();
  }
  std::int64_t top(std::string_view name) { return GetReportSection(main, controlNamed(name)); }
};

// A text box at Top 7 in each of the thirteen sections.
std::vector<Json> oneInEachSection() {
  std::vector<Json> controls;
  for (const StackedSection& s : kStack)
    controls.push_back(control("c" + std::to_string(s.number), 109, at(0, 7, s.number)));
  return controls;
}

std::string inSection(int number) { return "c" + std::to_string(number); }

TEST_F(ReportSection, TheSectionsAreStackedFromTheReportHeaderToTheReportFooter) {
  openControls(oneInEachSection());
  for (const StackedSection& s : kStack) EXPECT_EQ(top(inSection(s.number)), 7 + s.above);
  EXPECT_TRUE(user.boxes.empty());
}

TEST_F(ReportSection, ASectionBeyondTheFourthGroupCountsFromZero) {
  openControls({control("group5", 109, at(0, 7, 13)), control("below", 109, at(0, 7, -1))});
  EXPECT_EQ(top("group5"), 0);
  EXPECT_EQ(top("below"), 0);
  EXPECT_TRUE(user.boxes.empty());
}

TEST_F(ReportSection, TheHeightsOfTheLastFormAreNotAdded) {
  openControls(oneInEachSection());
  ConversionState& s = main.state;
  s.intHeaderHeight = s.intPageHeaderHeight = s.intDetailHeight = s.intPageFooterHeight =
      s.intFooterHeight = 5000;
  s.intSubHeaderHeight = s.intSubDetailHeight = 5000;
  s.intSubRptHeights.fill(5000);
  EXPECT_EQ(top("c2"), 7 + 8187);
  EXPECT_EQ(top("c0"), 7 + 2730);
}

TEST_F(ReportSection, InASubreportTheSectionsAreItsOwnBelowTheFrame) {
  openControls(oneInEachSection());
  ConversionState& s = main.state;
  s.blnInSubForm = true;
  s.intSubRptHeights = thirteenHeights();
  s.intRptHeights.fill(5000);
  for (const StackedSection& stacked : kStack) {
    // The report header counts from the top.
    const int above = stacked.number == 1 ? 0 : stacked.above + 120;
    EXPECT_EQ(top(inSection(stacked.number)), 7 + above) << stacked.number;
  }
}

TEST_F(ReportSection, InAnOptionGroupAndOnATabPageTheContainerCarriesTheStack) {
  openControls(oneInEachSection());
  ConversionState& s = main.state;
  for (bool* flag : {&s.blnInOptionGroup, &s.blnInTab}) {
    for (const bool inSubForm : {false, true}) {
      s.blnInSubForm = inSubForm;
      *flag = true;
      for (const StackedSection& stacked : kStack)
        EXPECT_EQ(top(inSection(stacked.number)), 7) << stacked.number;
      *flag = false;
    }
  }
}

TEST_F(ReportSection, MembersOfAnOptionGroupAndWhatElseStandsInIt) {
  openControls({control("grp", 107, at(0, 500)), control("chk", 106, at(0, 700), "grp"),
                control("opt", 105, at(0, 701), "grp"), control("tgl", 122, at(0, 702), "grp"),
                control("lbl", 100, at(0, 703), "grp"), control("first", 106, at(0, 500), "grp"),
                control("txt", 109, at(0, 704), "grp"),
                control("caption", 100, at(0, 750), "opt")});
  main.state.blnInOptionGroup = true;
  EXPECT_EQ(top("chk"), 200 + 120);
  EXPECT_EQ(top("opt"), 201 + 120);
  EXPECT_EQ(top("tgl"), 202 + 120);
  EXPECT_EQ(top("lbl"), 203 + 120);
  EXPECT_EQ(top("first"), 0);
  EXPECT_EQ(top("txt"), 704);
  // Attached to an option button of the group.
  EXPECT_EQ(top("caption"), 250 + 120);
  EXPECT_TRUE(user.boxes.empty());
}

TEST_F(ReportSection, ControlsOnATabPageStandInsideTheTabControl) {
  openControls({control("tab", 123, at(0, 600)), control("p", 124, at(0, 900), "tab"),
                control("txt", 109, at(0, 1000), "p"), control("lbl", 100, at(0, 990), "txt"),
                control("chk", 106, at(0, 1100), "p"), control("mark", 100, at(0, 1100), "chk"),
                control("sub", 112, at(0, 1200), "p"), control("title", 100, at(0, 1150), "sub")});
  main.state.blnInTab = true;
  main.state.intTabPageNum = 1;
  EXPECT_EQ(top("txt"), 400);
  EXPECT_EQ(top("lbl"), 390);
  EXPECT_EQ(top("chk"), 500);
  EXPECT_EQ(top("mark"), 500 + 120);
  EXPECT_EQ(top("sub"), 600);
  EXPECT_EQ(top("title"), 550);
  EXPECT_TRUE(user.boxes.empty());
}

TEST_F(ReportSection, OutsideOfContainersAPositionIsNotCorrected) {
  openControls({control("chk", 106, at(0, 500)), control("lbl", 100, at(0, 530), "chk"),
                control("grp", 107, at(0, 500)), control("opt", 105, at(0, 600), "grp")});
  EXPECT_EQ(top("lbl"), 530 + 2730);
  EXPECT_EQ(top("opt"), 600 + 2730);
  // A form moves both.
  EXPECT_EQ(GetFormSection(main, controlNamed("lbl")), 530 + 40);
  EXPECT_EQ(GetFormSection(main, controlNamed("opt")), 100 + 120);
}

TEST_F(ReportSection, APositionThatDoesNotFitIs32767) {
  openControls({control("far", 109, at(0, 3000000000.0)), control("grp", 107, at(0, 40000)),
                control("opt", 105, at(0, 41000), "grp")});
  EXPECT_EQ(top("far"), 32767);
  main.state.blnInOptionGroup = true;
  EXPECT_EQ(top("opt"), 32767 + 120);
  EXPECT_TRUE(user.boxes.empty());
}

TEST_F(ReportSection, ErrorsThatEndAChainOfParentsPassSilently) {
  for (const int number : {2186, 2452, 2455, 2459, 2465}) {
    openControls({control("c", 109, at(0, {{"error", number}}))});
    EXPECT_EQ(top("c"), 0) << number;
    EXPECT_TRUE(user.boxes.empty()) << number;
  }
}

TEST_F(ReportSection, OtherErrorsHaveABoxWithTheNameOfTheControl) {
  const Json refused = {{"error", 3000}, {"description", "Refused."}};
  openControls({control("top", 109, at(0, refused)), control("nothing", 109, at(0, nullptr)),
                control("section", 109, {{"Top", 7}, {"Section", refused}})});
  main.state.strCtlName = "txtTotal";
  EXPECT_EQ(top("top"), 0);
  EXPECT_EQ(onlyBox(), (Box{16, "GetReportSection(txtTotal) - Error #3000\r\nRefused.",
                            "Access to Visual Basic Tarrowin"}));
  EXPECT_EQ(top("nothing"), 0);
  EXPECT_EQ(onlyBox().text, "GetReportSection(txtTotal) - Error #94\r\nInvalid use of Null");
  EXPECT_EQ(top("section"), 0);
  EXPECT_EQ(onlyBox().text, "GetReportSection(txtTotal) - Error #3000\r\nRefused.");
}

TEST_F(ReportSection, TheModeChoosesBetweenTheStacks) {
  openControls(oneInEachSection());
  main.state.intHeaderHeight = 1000;
  main.state.intPageHeaderHeight = 200;
  EXPECT_EQ(topInHand(main, controlNamed("c0")), 7 + 2730);
  main.state.mblnReportMode = false;
  EXPECT_EQ(topInHand(main, controlNamed("c0")), 7 + 1200);
}

}  // namespace
}  // namespace tarrowin::test
