// What the window's remaining events do to its data: folders, tabs, toolbar, leaving.
#include <gtest/gtest.h>

#include "core/folder_browsing.h"
#include "core/program_exit.h"
#include "core/window_events.h"
#include "support/test_session.h"

namespace tarrowin {
namespace {

using test::emptyDatabase;
using test::Json;
using test::query;
using test::TestSession;

Json queries(int count) {
  Json database = emptyDatabase();
  for (int i = 0; i < count; ++i)
    database["queries"].push_back(query("Q" + std::to_string(i), "SELECT 1;"));
  return database;
}

TEST(FolderBrowsing, TitleTellsOneFromSeveral) {
  TestSession session;
  session.open(queries(2));
  clickButton(session.main, "cmdBrowse");
  session.select(ObjectList::kQueries, {"Q0"});
  clickButton(session.main, "cmdBrowse");
  session.select(ObjectList::kQueries, {"Q0", "Q1"});
  clickButton(session.main, "cmdBrowse");
  EXPECT_EQ(session.user.folderTitles,
            (std::vector<std::string>{"Save Query in Folder...", "Save Query in Folder...",
                                      "Save Queries in Folder..."}));
}

TEST(FolderBrowsing, CancelledDialogChangesNothing) {
  TestSession session;
  session.main.window.txtCurDir = "/before";
  cmdBrowse_Click(session.main);
  EXPECT_EQ(session.main.window.txtCurDir, "/before");
}

TEST(FolderBrowsing, EmptyNameGivesTheCurrentDirectory) {
  TestSession session;
  session.user.chosenFolder = "";
  cmdBrowse_Click(session.main);
  EXPECT_EQ(session.main.window.txtCurDir, session.files.CurDir());
  session.user.chosenFolder = "/chosen";
  cmdBrowse_Click(session.main);
  EXPECT_EQ(session.main.window.txtCurDir, "/chosen");
}

TEST(ToolbarClicks, TurnTabsAndOpen) {
  TestSession session;
  EXPECT_EQ(clickToolbar(session.main, "keyVBProject"), ToolbarResult::kDone);
  EXPECT_EQ(session.main.window.tabSelect, 5);
  EXPECT_EQ(clickToolbar(session.main, "keyMDBs"), ToolbarResult::kDone);
  EXPECT_EQ(session.user.dialogs.size(), 1u);
  EXPECT_EQ(clickToolbar(session.main, "keyNone"), ToolbarResult::kUnknown);
}

TEST(ToolbarClicks, ExitAsksAndUnloadsOnYesOnly) {
  TestSession session;
  session.user.answers = {Answer::kNo, Answer::kYes};
  EXPECT_EQ(clickToolbar(session.main, "keyExit"), ToolbarResult::kDone);
  EXPECT_EQ(session.onlyBox(),
            (test::Box{36, "Exit Tarrowin?", "Access to Visual Basic Tarrowin"}));
  session.clearBoxes();
  EXPECT_EQ(clickToolbar(session.main, "keyExit"), ToolbarResult::kUnload);
}

TEST(ProgramExit, ReleasesAccess) {
  TestSession session;
  session.open(queries(1));
  ASSERT_TRUE(session.main.state.gappAccess);
  unloadProgram(session.main);
  EXPECT_FALSE(session.main.state.gappAccess);
  // Nothing was started: nothing is asked to quit.
  unloadProgram(session.main);
  EXPECT_TRUE(session.user.boxes.empty());
}

TEST(TabChange, SelectionLabelsSwitchBetweenSingularAndPlural) {
  TestSession session;
  session.open(queries(2), "two.access.json");
  Label& heading = session.main.window.headings[indexOf(ObjectList::kQueries)];
  EXPECT_EQ(heading.caption, "Select Queries to Convert");
  session.open(queries(1), "one.access.json");
  // The opening itself only ever turns to the plural.
  EXPECT_EQ(heading.caption, "Select Queries to Convert");
  selectTab(session.main, 1);
  EXPECT_EQ(heading.caption, "Select Query to Convert");
}

TEST(TabChange, StepsBehindTheFirstAreClearedAwayFromTheHowToTab) {
  TestSession session;
  selectTab(session.main, 6);
  EXPECT_FALSE(session.main.window.lblInfo[1].caption.empty());
  selectTab(session.main, 0);
  EXPECT_TRUE(session.main.window.lblInfo[1].caption.empty());
  EXPECT_TRUE(session.main.window.lblInfo[6].caption.empty());
  selectTab(session.main, 6);
  EXPECT_FALSE(session.main.window.lblInfo[1].caption.empty());
}

}  // namespace
}  // namespace tarrowin
