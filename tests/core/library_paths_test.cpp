// Where the system files of projects are: from the machine, from a search, from the user.
#include "core/library_paths.h"

#include <gtest/gtest.h>

#include "core/window_events.h"
#include "support/test_session.h"

namespace tarrowin::test {
namespace {

constexpr std::string_view kDesigner = "C:\\Program Files\\Common Files\\Designer\\";
constexpr std::string_view kAdo = "C:\\Program Files\\Common Files\\SYSTEM\\ADO\\";
// The folder that is searched; here its backslashes are part of a name like any other.
const std::string kCommonFiles = "C:\\Program Files\\Common Files\\";

class LibraryPaths : public testing::Test {
 protected:
  std::string shown(int index) { return libraryPathLabel(session.main.window, index).caption; }
  std::string file(const std::string& name) const { return session.folder() + "/" + name; }
  void makeCommonFiles() {
    std::filesystem::create_directories(session.folder() + "/" + kCommonFiles + "/Designer");
  }

  TestSession session;
  MainObject& main = session.main;
  ConversionState& state = session.main.state;
};

TEST_F(LibraryPaths, FindDLLPathReportsTheDefaultDirectoryEvenWhenTheFileIsNotThere) {
  FindDLLPath(main, kMsderun);
  FindDLLPath(main, kMsado);
  EXPECT_EQ(state.mstrMsderunPath, kDesigner);
  EXPECT_EQ(state.mstrMsadoPath, kAdo);
  EXPECT_EQ(main.window.lblFindPath[0].caption, "msderun.dll File:");
  EXPECT_EQ(main.window.lblFindPath[1].caption, "msado15.dll File:");
  EXPECT_EQ(main.window.lblFindPath[2].caption, kDesigner);
  EXPECT_EQ(main.window.lblFindPath[3].caption, kAdo);
}

TEST_F(LibraryPaths, WhatTheMachineSuppliesIsTakenAsItStands) {
  main.machine.msderunPath = "D:\\Gemeinsame Dateien\\";
  main.machine.msadoPath = "E:/ado/";
  FindDLLPath(main, kMsderun);
  FindDLLPath(main, kMsado);
  EXPECT_EQ(state.mstrMsderunPath, "D:\\Gemeinsame Dateien\\");
  EXPECT_EQ(shown(kMsderun), "D:\\Gemeinsame Dateien\\");
  EXPECT_EQ(state.mstrMsadoPath, "E:/ado/");
}

TEST_F(LibraryPaths, ASuppliedDirectoryGetsItsFinalBackslash) {
  main.machine.msderunPath = "D:\\dll";
  FindDLLPath(main, kMsderun);
  EXPECT_EQ(state.mstrMsderunPath, "D:\\dll\\");
}

TEST_F(LibraryPaths, ASuppliedFileGivesItsDirectory) {
  main.machine.msderunPath = "D:\\dll\\MsDeRun.DLL";
  main.machine.msadoPath = "D:\\dll\\msderun.dll";
  FindDLLPath(main, kMsderun);
  FindDLLPath(main, kMsado);
  EXPECT_EQ(state.mstrMsderunPath, "D:\\dll\\");
  EXPECT_EQ(state.mstrMsadoPath, "D:\\dll\\msderun.dll\\");
}

TEST_F(LibraryPaths, AnUnknownPathIsShownAsTheDialogsDirectory) {
  main.window.CmnOpenDlg.initDir = "C:\\Data\\";
  main.machine.msderunPath = "";
  FindDLLPath(main, kMsderun);
  EXPECT_EQ(state.mstrMsderunPath, "");
  EXPECT_EQ(shown(kMsderun), "C:\\Data\\");
}

TEST_F(LibraryPaths, TheOpeningFindsBothAndTakesThemAnew) {
  session.open(emptyDatabase());
  EXPECT_EQ(state.mstrMsderunPath, kDesigner);
  EXPECT_EQ(state.mstrMsadoPath, kAdo);
  main.machine.msderunPath = "D:\\";
  session.open(emptyDatabase(), "second.access.json");
  EXPECT_EQ(state.mstrMsderunPath, "D:\\");
  EXPECT_EQ(shown(kMsderun), "D:\\");
}

TEST_F(LibraryPaths, TheSystemDirectoryEndsInABackslash) {
  EXPECT_EQ(GetWindowsSysDir(main), "C:\\WINDOWS\\system32\\");
  main.machine.systemDir = "D:\\WINNT\\System32";
  EXPECT_EQ(GetWindowsSysDir(main), "D:\\WINNT\\System32\\");
  main.machine.systemDir = "D:\\WINNT\\System32\\";
  EXPECT_EQ(GetWindowsSysDir(main), "D:\\WINNT\\System32\\");
  main.machine.systemDir = "";
  EXPECT_EQ(GetWindowsSysDir(main), "\\");
}

TEST_F(LibraryPaths, TheUserPicksTheFile) {
  session.user.chosenPath = "D:\\Designer\\msderun.dll";
  cmdFindPath_Click(main, kMsderun);
  EXPECT_EQ(state.mstrMsderunPath, "D:\\Designer\\");
  EXPECT_EQ(shown(kMsderun), "D:\\Designer\\");
  session.user.chosenPath = "D:\\ado\\msado15.dll";
  cmdFindPath_Click(main, kMsado);
  EXPECT_EQ(state.mstrMsadoPath, "D:\\ado\\");
  EXPECT_TRUE(session.user.boxes.empty());
  ASSERT_EQ(session.user.dialogs.size(), 2u);
  const OpenDialog& dialog = session.user.dialogs[0];
  EXPECT_EQ(dialog.defaultExt, "*.dll");
  EXPECT_EQ(dialog.dialogTitle, "Locate System DLL Files");
  EXPECT_EQ(dialog.fileName, "msderun.dll");
  EXPECT_EQ(dialog.filter, "System DLL Files (*.dll)|*.dll");
  EXPECT_EQ(dialog.initDir, kDesigner);
  EXPECT_EQ(session.user.dialogs[1].fileName, "msado15.dll");
  EXPECT_EQ(session.user.dialogs[1].initDir, kAdo);
}

TEST_F(LibraryPaths, AUserWhoPicksTheFileInCapitalsGetsTheBox) {
  state.mstrMsderunPath = "before";
  session.user.chosenPath = "D:\\Designer\\MSDERUN.DLL";
  cmdFindPath_Click(main, kMsderun);
  EXPECT_EQ(session.onlyBox(),
            (Box{64, "Please select the MSDERUN.DLL file.", "Access to Visual Basic Tarrowin"}));
  EXPECT_EQ(state.mstrMsderunPath, "before");
  session.user.chosenPath = "D:\\Designer\\msderun.dll";
  cmdFindPath_Click(main, kMsado);
  EXPECT_EQ(session.onlyBox().text, "Please select the MSADO15.DLL file.");
}

TEST_F(LibraryPaths, ACancelledDialogChangesNothing) {
  state.mstrMsderunPath = "before";
  session.user.chosenPath = "";
  cmdFindPath_Click(main, kMsderun);
  EXPECT_TRUE(session.user.boxes.empty());
  EXPECT_EQ(state.mstrMsderunPath, "before");
}

TEST_F(LibraryPaths, AnAsteriskInTheChosenNameChangesNothing) {
  state.mstrMsderunPath = "before";
  session.user.chosenPath = "D:\\*\\msderun.dll";
  cmdFindPath_Click(main, kMsderun);
  EXPECT_TRUE(session.user.boxes.empty());
  EXPECT_EQ(state.mstrMsderunPath, "before");
}

TEST_F(LibraryPaths, AFailingDialogHasItsBox) {
  class FailingUser : public RecordingUser {
    std::string openFile(const OpenDialog&) override { raise(kErrDeviceIo); }
  } user;
  MainObject failing(user, session.files, main.host, main.Now);
  cmdFindPath_Click(failing, kMsderun);
  ASSERT_EQ(user.boxes.size(), 1u);
  EXPECT_EQ(user.boxes[0].style, 16);
  EXPECT_EQ(user.boxes[0].text, "CmdFindPath() - Error #57\r\nDevice I/O error");
}

TEST_F(LibraryPaths, TheButtonsOfTheWindowAskForTheirFile) {
  session.user.chosenPath = "D:\\ado\\msado15.dll";
  EXPECT_TRUE(clickButton(main, "cmdFindPath", 1));
  EXPECT_EQ(state.mstrMsadoPath, "D:\\ado\\");
  EXPECT_EQ(state.mstrMsderunPath, "");
}

TEST_F(LibraryPaths, TheSearchOfAMachineWithoutTheFolderFindsNothing) {
  FindDLLPaths(main, kMsderun);
  EXPECT_EQ(state.mstrMsderunPath, "");
  EXPECT_EQ(shown(kMsderun), "");
  EXPECT_EQ(main.window.mousePointer, 0);
  EXPECT_TRUE(session.user.boxes.empty());
}

TEST_F(LibraryPaths, TheSearchFindsTheFileAndShowsItsDirectory) {
  makeCommonFiles();
  writeFile(file(kCommonFiles + "/Designer/msderun.dll"), "");
  FindDLLPaths(main, kMsderun);
  EXPECT_EQ(state.mstrMsderunPath, kCommonFiles + "/Designer/");
  EXPECT_EQ(shown(kMsderun), kCommonFiles + "/Designer/");
  EXPECT_EQ(main.window.mousePointer, 0);
}

TEST_F(LibraryPaths, AKnownPathIsNotSearchedFor) {
  makeCommonFiles();
  writeFile(file(kCommonFiles + "/Designer/msderun.dll"), "");
  state.mstrMsderunPath = "D:\\";
  FindDLLPaths(main, kMsderun);
  EXPECT_EQ(state.mstrMsderunPath, "D:\\");
  EXPECT_EQ(shown(kMsderun), "");
}

class ReportsTab : public LibraryPaths {
 protected:
  void openWithReport() {
    Json database = emptyDatabase();
    database["reports"].push_back({{"name", "Sales"}, {"properties", Json::object()}});
    session.open(database);
    session.user.dialogs.clear();
    session.user.chosenPath = "";
  }
  void forgetPaths() {
    for (const int index : {kMsderun, kMsado}) {
      libraryPathLabel(main.window, index).caption.clear();
    }
  }
};

TEST_F(ReportsTab, AsksForThePathsThatAreNotShown) {
  openWithReport();
  forgetPaths();
  selectTab(main, 2);
  EXPECT_EQ(main.window.tabSelect, 2);
  ASSERT_EQ(session.user.dialogs.size(), 2u);
  EXPECT_EQ(session.user.dialogs[0].fileName, "msderun.dll");
  EXPECT_EQ(session.user.dialogs[1].fileName, "msado15.dll");
  // It stands there already: no tab change.
  selectTab(main, 2);
  EXPECT_EQ(session.user.dialogs.size(), 2u);
}

TEST_F(ReportsTab, AsksNothingWhenThePathsAreShown) {
  openWithReport();
  selectTab(main, 2);
  EXPECT_TRUE(session.user.dialogs.empty());
}

TEST_F(ReportsTab, AsksNothingWithoutAReport) {
  selectTab(main, 2);
  EXPECT_EQ(main.window.tabSelect, 2);
  EXPECT_TRUE(session.user.dialogs.empty());
}

TEST_F(ReportsTab, AnotherTabAsksNothing) {
  openWithReport();
  forgetPaths();
  selectTab(main, 3);
  EXPECT_EQ(main.window.tabSelect, 3);
  EXPECT_TRUE(session.user.dialogs.empty());
}

}  // namespace
}  // namespace tarrowin::test
