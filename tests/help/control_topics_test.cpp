// The right mouse button: every control of the window opens its topic.
#include "help/control_topics.h"

#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "help/help_session.h"
#include "help/help_topics.h"

namespace tarrowin::test {
namespace {

using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::Not;

struct Expected {
  const char* control;
  int index;
  const char* title;
};

constexpr Expected kExpected[] = {
    {"cmdAllForms", 0, "Convert All Forms"},
    {"cmdAllMacros", 0, "Convert All Macros"},
    {"cmdAllMods", 0, "Convert All Modules"},
    {"cmdAllObjs", 0, "Convert All Objects"},
    {"cmdAllQrys", 0, "Convert All Queries"},
    {"cmdAllReports", 0, "Convert All Reports"},
    {"cmdBrowse", 0, "Browse Folders"},
    {"cmdConvertFrm", 0, "Convert Selected Forms"},
    {"cmdConvertMac", 0, "Convert Selected Macros"},
    {"cmdConvertMod", 0, "Convert Selected Modules"},
    {"cmdConvertObj", 0, "Convert Selected Objects"},
    {"cmdConvertQry", 0, "Convert Selected Queries"},
    {"cmdConvertRpt", 0, "Convert Selected Reports"},
    {"cmdObjProps", 0, "Preview Access Forms"},
    {"cmdOpen", 0, "Open Access Database"},
    {"lblSelectVBStartupForm", 0, "Select VB StartUp Form"},
    {"lstForms", 0, "Forms List"},
    {"lstMacros", 0, "Macros List"},
    {"lstModules", 0, "Modules List"},
    {"lstObjects", 0, "Forms and Modules List"},
    {"lstQueries", 0, "Queries List"},
    {"lstReports", 0, "Reports List"},
    {"optContinuous", 0, "Convert Continuous Forms"},
    {"optContinuous", 1, "Convert Continuous Forms"},
    {"optMultiPage", 0, "Convert Multi-Page Forms"},
    {"optMultiPage", 1, "Convert Multi-Page Forms"},
    {"chkMultiSel", 0, "Convert Multiple Query Selections"},
    {"txtCurDir", 0, "Save in Folder"},
    {"tabSelect", 0, "Query Selections"},
    {"tabSelect", 1, "Form Selections"},
    {"tabSelect", 2, "Report Selections"},
    {"tabSelect", 3, "Macro Selections"},
    {"tabSelect", 4, "Module Selections"},
    {"tabSelect", 5, "Form and Module Selections"},
    {"tabSelect", 6, "Tab Selections"},
    {"tabSelect", -1, "Tab Selections"},
};

Balloon balloonOf(const std::string& control, int index = 0) {
  HelpSession session;
  EXPECT_TRUE(showTopicOf(session.main, control, index)) << control << index;
  EXPECT_EQ(session.user.balloons.size(), 1u) << control << index;
  return session.user.balloons.empty() ? Balloon{} : session.user.balloons[0];
}

TEST(ControlTopics, EveryControlOpensItsTitle) {
  for (const Expected& row : kExpected) {
    const Balloon balloon = balloonOf(row.control, row.index);
    EXPECT_EQ(balloon.heading, row.title) << row.control << row.index;
    EXPECT_FALSE(balloon.text.empty()) << row.control << row.index;
    expectPlainText(wordsOf(balloon));
  }
}

TEST(ControlTopics, NoRowIsBeyondTheWindowsControls) {
  for (const ControlTopic& topic : controlTopics()) {
    bool known = false;
    for (const Expected& row : kExpected) known = known || topic.control == row.control;
    EXPECT_TRUE(known) << topic.control;
  }
}

TEST(ControlTopics, AControlWithoutATopicShowsNothing) {
  HelpSession session;
  EXPECT_FALSE(showTopicOf(session.main, "fraWin"));
  EXPECT_FALSE(showTopicOf(session.main, "optContinuous", 2));
  EXPECT_FALSE(showTopicOf(session.main, ""));
  EXPECT_TRUE(session.user.balloons.empty());
}

TEST(ControlTopics, ButtonsStateTheRecommendedSizeOfABatch) {
  const auto expectAdvice = [](const std::string& control, const std::string& advice) {
    EXPECT_THAT(balloonOf(control).text, EndsWith("\r\n\r\n" + advice)) << control;
  };
  const std::string forms =
      "If there are more than 100 Forms in the database, it is recommended that you convert no "
      "more "
      "than about 50 of them at a time.";
  const std::string modules =
      "If there are more than 100 Modules in the database, it is recommended that you convert no "
      "more than about 50 of them at a time.";
  const std::string formsAndModules =
      "If there are more than 100 Forms and Modules in the database, it is recommended that you "
      "convert no more than about 50 of them at a time.";
  const std::string reports =
      "If there are more than 100 Reports in the database, it is recommended that you convert no "
      "more than about 25 of them at a time.";
  const std::string macros =
      "If there are more than 100 Macros in the database, it is recommended that you convert no "
      "more "
      "than about 25 of them at a time.";
  const std::string queries =
      "If there are more than 50 Queries in the database, it is recommended that you convert no "
      "more "
      "than about 25 of them at a time.";
  expectAdvice("cmdConvertFrm", forms);
  expectAdvice("cmdAllForms", forms);
  expectAdvice("cmdConvertMod", modules);
  expectAdvice("cmdAllMods", modules);
  expectAdvice("cmdConvertObj", formsAndModules);
  expectAdvice("cmdAllObjs", formsAndModules);
  expectAdvice("cmdConvertRpt", reports);
  expectAdvice("cmdAllReports", reports);
  expectAdvice("cmdConvertMac", macros);
  expectAdvice("cmdAllMacros", macros);
  expectAdvice("cmdConvertQry", queries);
  expectAdvice("cmdAllQrys", queries);
  EXPECT_THAT(balloonOf("lstForms").text, Not(HasSubstr("recommended")));
}

TEST(ControlTopics, EachOptionHasATextOfItsOwn) {
  EXPECT_THAT(balloonOf("optContinuous", 0).text, HasSubstr("DataGrid Control"));
  EXPECT_THAT(balloonOf("optContinuous", 1).text, HasSubstr("DataRepeater Control"));
  EXPECT_THAT(balloonOf("optMultiPage", 0).text, HasSubstr("Tab Form"));
  EXPECT_THAT(balloonOf("optMultiPage", 1).text, HasSubstr("Single Forms"));
}

TEST(ControlTopics, TheDataRepeaterTextLeadsToItsTopic) {
  HelpSession session;
  session.user.choices = {1};
  EXPECT_TRUE(showTopicOf(session.main, "optContinuous", 1));
  EXPECT_THAT(session.headings(),
              ElementsAre("Convert Continuous Forms", "Using the DataRepeater Control"));
}

TEST(ControlTopics, TheToolbarShowsAboutAndItsFirstLabelTheSystemInformation) {
  HelpSession session;
  EXPECT_TRUE(showTopicOf(session.main, "Toolbar1"));
  EXPECT_THAT(session.headings(), ElementsAre("About Tarrowin"));
  session.user.choices = {1};
  EXPECT_TRUE(showTopicOf(session.main, "Toolbar1"));
  EXPECT_THAT(session.headings(), ElementsAre("About Tarrowin", "System Information"));
}

TEST(ControlTopics, LabelsOfATopicBeforeDoNotRemain) {
  HelpSession session;
  showMainTopic(session.main);
  showTopicOf(session.main, "lstForms");
  EXPECT_EQ(session.user.balloons.at(0).labels.size(), 5u);
  EXPECT_TRUE(session.user.balloons.at(1).labels.empty());
}

}  // namespace
}  // namespace tarrowin::test
