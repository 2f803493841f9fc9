// Group levels: which count, and what they group on.
#include "reports/group_levels.h"

#include "reports/made_report.h"
#include "reports/report_session.h"

namespace tarrowin::test {
namespace {

std::int32_t countOf(const std::vector<Json>& levels) {
  ReportSession session;
  ReportParts parts;
  parts.levels = levels;
  session.openReport(parts);
  const std::int32_t count = GetNumGroupLevels(session.state.mrptCurr);
  EXPECT_TRUE(session.user.boxes.empty());
  return count;
}

Lines fieldsOf(const std::vector<Json>& levels) {
  ReportSession session;
  ReportParts parts;
  parts.levels = levels;
  session.openReport(parts);
  GetGroupLevelFields(session.state.mrptCurr, session.state);
  EXPECT_TRUE(session.user.boxes.empty());
  return session.state.strGroupFields;
}

TEST(GroupLevels, OneCountsWithAHeaderOrAFooter) {
  EXPECT_EQ(countOf({}), 0);
  EXPECT_EQ(countOf({groupLevel("A", true, true)}), 1);
  EXPECT_EQ(countOf({groupLevel("A", true, false)}), 1);
  EXPECT_EQ(countOf({groupLevel("A", false, true)}), 1);
  EXPECT_EQ(countOf({groupLevel("A", false, false)}), 0);
  EXPECT_EQ(countOf({groupLevel("A", -1, 0)}), 1);
}

TEST(GroupLevels, OneWithoutASourceDoesNotCount) {
  EXPECT_EQ(countOf({groupLevel(""), groupLevel("A"), groupLevel(nullptr)}), 1);
}

TEST(GroupLevels, OneThatOnlySortsDoesNotEndTheCount) {
  EXPECT_EQ(countOf({groupLevel("A", false, false), groupLevel("B"), groupLevel("C", false, false),
                     groupLevel("D", false, true)}),
            2);
}

TEST(GroupLevels, AnyOtherErrorReturns0) {
  for (const std::int32_t number : {6, 9, 13, 438, 2455, 2465, 2683, 3044}) {
    SCOPED_TRACE(number);
    EXPECT_EQ(countOf({groupLevel("A"), groupLevel(errorValue(number))}), 0);
    EXPECT_EQ(countOf({groupLevel("A"), groupLevel("B", errorValue(number), true)}), 0);
    EXPECT_EQ(countOf({groupLevel("A"), groupLevel("B", false, errorValue(number))}), 0);
  }
}

TEST(GroupLevels, Error2464ReturnsTheCountSoFar) {
  EXPECT_EQ(countOf({groupLevel("A"), groupLevel(errorValue(2464)), groupLevel("C")}), 1);
}

std::vector<Json> manyLevels(int count) {
  std::vector<Json> levels;
  for (int i = 0; i < count; ++i) levels.push_back(groupLevel("F" + std::to_string(i)));
  return levels;
}

TEST(GroupLevels, EightAreCounted) { EXPECT_EQ(countOf(manyLevels(8)), 8); }

TEST(GroupLevels, AfterNineTheReportIsClosedWhichFails) {
  EXPECT_EQ(countOf(manyLevels(9)), 0);
  EXPECT_EQ(countOf(manyLevels(10)), 0);
}

TEST(GroupLevels, AfterNineAReportThatLetsItselfBeClosedKeepsItsCount) {
  int closings = 0;
  const auto level = std::make_shared<MadeObject>();
  level->set("ControlSource", Value("A"));
  level->set("GroupHeader", Value(true));
  level->set("GroupFooter", Value(false));
  const auto report = std::make_shared<MadeObject>();
  report->set("GroupLevel", Value(ObjectRef(level)));
  report->set("Close", [&](Arguments) {
    ++closings;
    return Value();
  });
  EXPECT_EQ(GetNumGroupLevels(LateBound(report)), 9);
  EXPECT_EQ(closings, 1);
}

TEST(GroupLevels, TheFieldsAreThoseOfEveryLevelAlsoOfOneThatOnlySorts) {
  EXPECT_EQ(fieldsOf({groupLevel("A", false, false), groupLevel("=Left([Name],1)"),
                      groupLevel("C", false, true)}),
            (Lines{"A", "=Left([Name],1)", "C", ""}));
}

TEST(GroupLevels, TheFieldsEndSilentlyAtTheFirstError) {
  for (const std::int32_t number : {6, 438, 2455, 2464, 2683, 3044}) {
    SCOPED_TRACE(number);
    EXPECT_EQ(fieldsOf({groupLevel("A"), groupLevel(errorValue(number)), groupLevel("C")}),
              (Lines{"A", ""}));
  }
}

TEST(GroupLevels, TheFieldsOutliveAReportWithoutGroups) {
  ReportSession session;
  ReportParts grouped = reportOfSections({0, 5, 6}, 2), plain;
  grouped.name = "Grouped";
  plain.name = "Plain";
  session.openReports({grouped.entry(), plain.entry()});
  session.take("Grouped");
  session.dataEnvironment();
  EXPECT_EQ(session.state.strGroupFields, (Lines{"A", "B", ""}));
  session.dataReport();
  session.take("Plain");
  session.dataEnvironment();
  session.dataReport();
  EXPECT_EQ(session.state.strGroupFields, (Lines{"A", "B", ""}));
}

TEST(GroupLevels, TheFieldsOfAShorterListLeaveNothingOfALongerOne) {
  ReportSession session;
  ReportParts two = reportOfSections({0, 5, 6}, 2), one = reportOfSections({0, 5, 6}, 1);
  two.name = "Two";
  one.name = "One";
  session.openReports({two.entry(), one.entry()});
  session.take("Two");
  session.dataEnvironment();
  session.take("One");
  session.dataEnvironment();
  EXPECT_EQ(session.state.strGroupFields, (Lines{"A", ""}));
}

}  // namespace
}  // namespace tarrowin::test
