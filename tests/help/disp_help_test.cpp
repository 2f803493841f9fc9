// One balloon: which texts it takes, and what happens where there is none.
#include "help/disp_help.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "help/help_session.h"

namespace tarrowin::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST(DispHelp, GivesTheNumberOfTheChosenLabel) {
  HelpSession session;
  session.main.state.gastrBalloonLabels = {"", "One", "Two", "Three"};
  session.user.choices = {3};
  EXPECT_EQ(DispHelp(session.main, "Heading", "Text"), 3);
  ASSERT_EQ(session.user.balloons.size(), 1u);
  EXPECT_EQ(session.user.balloons[0].heading, "Heading");
  EXPECT_EQ(session.user.balloons[0].text, "Text");
  EXPECT_THAT(session.user.balloons[0].labels, ElementsAre("One", "Two", "Three"));
  EXPECT_TRUE(session.user.boxes.empty());
}

TEST(DispHelp, ABalloonClosedWithoutAChoiceGivesZero) {
  HelpSession session;
  EXPECT_EQ(DispHelp(session.main, "Heading", "Text"), 0);
  EXPECT_TRUE(session.user.boxes.empty());
}

TEST(DispHelp, LabelsEndAtTheFirstEmptyOne) {
  HelpSession session;
  session.main.state.gastrBalloonLabels = {"", "One", "", "Three", "Four", "Five"};
  DispHelp(session.main, "Heading", "Text");
  EXPECT_THAT(session.user.balloons[0].labels, ElementsAre("One"));
}

TEST(DispHelp, ElementZeroIsNoLabel) {
  HelpSession session;
  session.main.state.gastrBalloonLabels = {"Zero", "One"};
  DispHelp(session.main, "Heading", "Text");
  EXPECT_THAT(session.user.balloons[0].labels, ElementsAre("One"));
}

TEST(DispHelp, FiveLabelsAreTheMost) {
  HelpSession session;
  session.main.state.gastrBalloonLabels = {"", "1", "2", "3", "4", "5"};
  DispHelp(session.main, "Heading", "Text");
  EXPECT_THAT(session.user.balloons[0].labels, ElementsAre("1", "2", "3", "4", "5"));
}

TEST(DispHelp, LabelsGoBeforeCheckBoxTexts) {
  HelpSession session;
  session.main.state.gastrBalloonLabels = {"", "Label"};
  session.main.state.gastrBalloonChecks = {"", "Check", "Check 2"};
  DispHelp(session.main, "Heading", "Text");
  EXPECT_THAT(session.user.balloons[0].labels, ElementsAre("Label"));
}

TEST(DispHelp, WithoutAFirstLabelTheCheckBoxTextsAreShown) {
  HelpSession session;
  session.main.state.gastrBalloonLabels = {"", "", "Label 2"};
  session.main.state.gastrBalloonChecks = {"", "Check", "Check 2", "", "Check 4"};
  DispHelp(session.main, "Heading", "Text");
  EXPECT_THAT(session.user.balloons[0].labels, ElementsAre("Check", "Check 2"));
}

TEST(DispHelp, WhereNoBalloonCanBeShownABoxSaysSo) {
  HelpSession session;
  session.user.hasBalloons = false;
  EXPECT_EQ(DispHelp(session.main, "Heading", "Text"), 0);
  ASSERT_EQ(session.user.boxes.size(), 1u);
  EXPECT_EQ(
      session.user.boxes[0],
      (Box{64,
           "The Access to Visual Basic Tarrowin program requires the Microsoft Office Assistant "
           "Balloon in order to display online Help.Install or activate the Office Assistant to "
           "view "
           "the online Help topics.",
           "Access to Visual Basic Tarrowin"}));
  EXPECT_EQ(session.main.window.focus, "frmTarrowin");
}

TEST(DispHelp, AFailureShowsTheBoxOfTheHelp) {
  HelpSession session;
  session.user.failure = VbError(429, "ActiveX component can't create object");
  EXPECT_EQ(DispHelp(session.main, "Heading", "Text"), 0);
  ASSERT_EQ(session.user.boxes.size(), 1u);
  EXPECT_EQ(session.user.boxes[0],
            (Box{16, "DispHelp() - Error #429\r\nActiveX component can't create object",
                 "Tarrowin Help"}));
}

TEST(DispHelp, TheFocusGoesBackToTheMainWindow) {
  HelpSession session;
  session.main.window.focus = "txtCurDir";
  DispHelp(session.main, "Heading", "Text");
  EXPECT_EQ(session.main.window.focus, "frmTarrowin");
}

TEST(DispHelp, NoAccessIsStartedForABalloon) {
  HelpSession session;
  DispHelp(session.main, "Heading", "Text");
  EXPECT_FALSE(session.main.state.gappAccess);
}

}  // namespace
}  // namespace tarrowin::test
