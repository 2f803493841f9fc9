// What a session keeps between its steps, and what a reset takes away.
#include "cli/script_session.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "cli/console.h"

namespace tarrowin {
namespace {

using namespace script_step;

class ScriptSessionTest : public testing::Test {
 protected:
  Console console{-1, -1, false};
  Environment environment{console, "/"};
  std::vector<Json> transcript;
  ScriptSession session{environment, CodePage(), "/case",
                        [this](const Json& event) { transcript.push_back(event); }};
};

TEST_F(ScriptSessionTest, ConfigIsKeptMemberByMemberUntilAReset) {
  session.run(
      Config{{.systemDir = "sys/", .msderunPath = "C:\\dll\\msderun.dll", .msadoPath = {}}});
  session.run(Config{{.systemDir = {}, .msderunPath = {}, .msadoPath = ""}});
  EXPECT_EQ(session.main().machine.systemDir, "sys/");
  EXPECT_EQ(session.main().machine.msderunPath, "C:\\dll\\msderun.dll");
  EXPECT_EQ(session.main().machine.msadoPath, "");
  session.run(Reset{});
  EXPECT_EQ(session.main().machine.systemDir, std::nullopt);
  EXPECT_EQ(session.main().machine.msadoPath, std::nullopt);
}

TEST_F(ScriptSessionTest, ConfigBecomesTextOfTheCodePage) {
  session.run(Config{{.systemDir = {}, .msderunPath = "D:\\M\xc3\xa4rz\\", .msadoPath = {}}});
  EXPECT_EQ(session.main().machine.msderunPath, "D:\\M\xe4rz\\");
}

TEST_F(ScriptSessionTest, TurningToTheReportsTabAsksForThePathsThatAreNotShown) {
  session.main().window.list(ObjectList::kReports).push_back({"Sales", "", false});
  session.run(Answers{{"C:\\dll\\msderun.dll", "C:\\ado\\MSADO15.DLL"}});
  Set set;
  set.tabSelect = 2;
  session.run(set);
  EXPECT_EQ(session.main().state.mstrMsderunPath, "C:\\dll\\");
  EXPECT_EQ(session.main().state.mstrMsadoPath, "");
  ASSERT_EQ(transcript.size(), 1u);
  EXPECT_EQ(transcript[0]["text"], "Please select the MSADO15.DLL file.");
}

TEST_F(ScriptSessionTest, ControlsAreSetAndResetPutsThemBack) {
  Set set;
  set.txtCurDir = "out";
  set.chkMultiSel = 1;
  set.optContinuous = 1;
  set.optMultiPage = 1;
  set.tabSelect = 5;
  set.cboFormNames = "M\xc3\xa4rz";
  session.run(set);
  const MainWindow& window = session.main().window;
  EXPECT_EQ(window.txtCurDir, "/case/out");
  EXPECT_EQ(window.chkMultiSel, 1);
  EXPECT_EQ(window.optContinuous, 1);
  EXPECT_EQ(window.optMultiPage, 1);
  EXPECT_EQ(window.tabSelect, 5);
  EXPECT_EQ(window.cboFormNames, "M\xe4rz");
  session.run(Reset{});
  EXPECT_EQ(session.main().window.txtCurDir, "");
  EXPECT_EQ(session.main().window.chkMultiSel, 0);
}

TEST_F(ScriptSessionTest, StoppedProgramTakesNoStepUntilAReset) {
  session.main().user.programEnded();
  Set set;
  set.chkMultiSel = 1;
  session.run(set);
  EXPECT_EQ(session.main().window.chkMultiSel, 0);
  session.run(DoubleClick{ObjectList::kQueries, "not there"});
  session.run(Reset{});
  session.run(set);
  EXPECT_EQ(session.main().window.chkMultiSel, 1);
}

}  // namespace
}  // namespace tarrowin
