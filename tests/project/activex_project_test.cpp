// The control project and the project group as whole texts.
#include "project/activex_project.h"

#include <gtest/gtest.h>

#include "project/project_text.h"
#include "support/test_session.h"

namespace tarrowin::test {
namespace {

class ActiveXProject : public testing::Test {
 protected:
  ActiveXProject() { state.mstrOutputDir = session.out().string() + "/"; }
  std::string file(const std::string& name) const { return fileContent(session.out() / name); }

  TestSession session;
  ConversionState& state = session.main.state;
};

TEST_F(ActiveXProject, WithOrdersTheFilesAreCtlOrdersAndTheGroupOrders) {
  state.mstrVbUserControls.append("Orders.ctl");
  CreateVbActiveXProject(session.main, "Orders.vbp");
  EXPECT_TRUE(session.user.boxes.empty());
  EXPECT_EQ(fileNames(session.out()), (std::vector<std::string>{"Orders.vbg", "ctlOrders.vbp"}));
  EXPECT_EQ(file("ctlOrders.vbp"), asFile(R"vbp(
Type=Control
Reference=*\G{00020430-0000-0000-C000-000000000046}#2.0#0#C:\WINDOWS\system32\stdole2.tlb#OLE Automation
UserControl=ctlOrders.ctl
Startup="(None)"
Command32=""
ExeName32="Orders.ocx"
Name="prjctlOrders"
HelpContextId="0"
CompatibleMode="0"
CompatibleEXE32="Orders.ocx"
)vbp") + asFile(kCompilerLines) + "ThreadingModel=1\r\n");
  EXPECT_EQ(file("Orders.vbg"), asFile(R"(
VBGROUP 5.0
StartupProject=Orders.vbp
Project=ctlOrders.vbp
)"));
  EXPECT_EQ(state.mstrVbUserControls.count(), 0);
  EXPECT_FALSE(session.files.IsOpen(kOutputFile));
}

TEST_F(ActiveXProject, AnEntryGetsThePrefixWhateverItBeginsWith) {
  state.mstrVbUserControls.append("ctlRows.ctl");
  state.mstrVbUserControls.append("");
  state.mstrVbUserControls.append("Lines.ctl");
  CreateVbActiveXProject(session.main, "Shop.vbp");
  EXPECT_NE(file("ctlShop.vbp")
                .find("OLE Automation\r\n"
                      "UserControl=ctlctlRows.ctl\r\n"
                      "UserControl=ctlLines.ctl\r\n"
                      "Startup="),
            std::string::npos);
}

TEST_F(ActiveXProject, AnExistingGroupAndProjectAreReplaced) {
  writeFile(session.out() / "Orders.vbg", std::string(500, 'x'));
  writeFile(session.out() / "ctlOrders.vbp", std::string(5000, 'x'));
  state.mstrVbUserControls.append("Orders.ctl");
  CreateVbActiveXProject(session.main, "Orders.vbp");
  EXPECT_TRUE(session.user.boxes.empty());
  EXPECT_EQ(file("Orders.vbg"),
            "VBGROUP 5.0\r\nStartupProject=Orders.vbp\r\nProject=ctlOrders.vbp\r\n");
  EXPECT_EQ(file("ctlOrders.vbp").find("xx"), std::string::npos);
}

TEST_F(ActiveXProject, ASystemDirectoryOfAnotherMachineIsNamed) {
  session.main.machine.systemDir = "D:\\WINNT\\System32\\";
  state.mstrVbUserControls.append("Orders.ctl");
  CreateVbActiveXProject(session.main, "Orders.vbp");
  EXPECT_NE(file("ctlOrders.vbp").find("#2.0#0#D:\\WINNT\\System32\\stdole2.tlb#OLE"),
            std::string::npos);
}

TEST_F(ActiveXProject, EveryStatementThatFailsHasItsBoxAndTheNextFollows) {
  state.mstrOutputDir = session.out().string() + "/missing/";
  state.mstrVbUserControls.append("Orders.ctl");
  CreateVbActiveXProject(session.main, "Orders.vbp");
  // The opening and 32 lines of the project, the opening and 3 lines of the group.
  ASSERT_EQ(session.user.boxes.size(), 37u);
  EXPECT_EQ(session.user.boxes[0],
            (Box{16, "CreateVbActiveXProject() - Error #76\r\nPath not found",
                 "Access to Visual Basic Tarrowin"}));
  EXPECT_EQ(session.user.boxes[33].text, "CreateVbActiveXProject() - Error #76\r\nPath not found");
  EXPECT_EQ(state.mstrVbUserControls.count(), 0);
}

}  // namespace
}  // namespace tarrowin::test
