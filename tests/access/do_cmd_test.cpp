// DoCmd: modules, exports, commands, and the actions without effect.
#include "access/access_fixture.h"

namespace tarrowin {
namespace {

constexpr std::string_view kModules = R"({
  "snapshot": 1,
  "forms": [{"name": "frmMain", "module": "Option Explicit\n' \u20AC\r\n"}, {"name": "frmBare"},
            {"name": "frmNoExport", "module": "x", "exportError": {"error": 2220, "description": "No."}}],
  "reports": [{"name": "rptSales", "module": "Report code"}],
  "modules": [{"name": "Utilities", "type": 0, "text": "Option Compare Database\r\nSub A()\nEnd Sub"},
              {"name": "clsOrder", "type": 2, "text": "", "countOfLines": 12},
              {"name": "Closed", "text": "x", "openError": 7961},
              {"name": "NoExport", "text": "x", "exportError": 2601},
              {"name": "NoCount", "text": "x", "countOfLines": {"error": 2467}}]
})";

class DoCmdTest : public AccessTest {
 protected:
  DoCmdTest() { openRecording(kModules); }
  void exportTo(const std::string& module, const std::string& path) {
    call(doCmd, "OutputTo", {5, module, "MS-DOS Text (*.txt)", path});
  }
};

TEST_F(DoCmdTest, ActionsWithoutEffect) {
  call(doCmd, "Hourglass", {false});
  call(doCmd, "Echo", {true});
  call(doCmd, "SetWarnings", {false});
  call(doCmd, "Minimize");
  call(doCmd, "SelectObject", {4, Value(), true});
  call(doCmd, "RunCommand", {2});
  call(doCmd, "Close", {2, "not open", 0});
  call(doCmd, "Close", {5, "", 0});
  call(doCmd, "Close");
  EXPECT_EQ(errorOf([&] { call(doCmd, "Nonsense"); }), 438);
}

TEST_F(DoCmdTest, ModuleIsInModulesWhileItIsOpen) {
  EXPECT_EQ(errorOf([&] { get(application, "Modules", {"Utilities"}); }), 7961);
  EXPECT_EQ(errorOf([&] { call(doCmd, "OpenModule", {"None"}); }), 2516);
  EXPECT_EQ(errorOf([&] { call(doCmd, "OpenModule", {"Closed"}); }), 7961);
  call(doCmd, "OpenModule", {"utilities"});
  call(doCmd, "OpenModule", {"clsOrder"});
  const ObjectRef module = child(application, "Modules", {"UTILITIES"});
  EXPECT_EQ(text(module, "Name"), "Utilities");
  EXPECT_EQ(number(module, "Type"), 0);
  EXPECT_EQ(number(module, "CountOfLines"), 3);
  EXPECT_EQ(number(child(application, "Modules", {1}), "CountOfLines"), 12);
  EXPECT_EQ(number(child(application, "Modules", {1}), "Type"), 2);
  call(doCmd, "OpenModule", {"NoCount"});
  const ObjectRef uncounted = child(application, "Modules", {"NoCount"});
  EXPECT_EQ(errorOf([&] { get(uncounted, "CountOfLines"); }), 2467);
  call(doCmd, "Close", {5, "NoCount", 0});
  call(doCmd, "Close", {5, "Utilities", 0});
  EXPECT_EQ(errorOf([&] { get(application, "Modules", {"Utilities"}); }), 7961);
  EXPECT_EQ(number(child(application, "Modules"), "Count"), 1);
}

TEST_F(DoCmdTest, OutputToWritesTheTextInTheCodePage) {
  exportTo("utilities", pathOf("m.txt"));
  EXPECT_EQ(readFile(pathOf("m.txt")), "Option Compare Database\r\nSub A()\nEnd Sub");
  exportTo("Form_frmMain", pathOf("f.txt"));
  EXPECT_EQ(readFile(pathOf("f.txt")), "Option Explicit\n' \x80\r\n");
  exportTo("report_rptsales", pathOf("r.txt"));
  EXPECT_EQ(readFile(pathOf("r.txt")), "Report code");
}

TEST_F(DoCmdTest, OutputToReplacesAnOlderFile) {
  writeFile(pathOf("m.txt"), std::string(1000, 'x'));
  exportTo("Report_rptSales", pathOf("m.txt"));
  EXPECT_EQ(readFile(pathOf("m.txt")), "Report code");
}

TEST_F(DoCmdTest, OutputToFailures) {
  EXPECT_EQ(errorOf([&] { exportTo("None", pathOf("x")); }), 2487);
  EXPECT_EQ(errorOf([&] { exportTo("Form_frmBare", pathOf("x")); }), 2487);
  EXPECT_EQ(errorOf([&] { exportTo("Form_None", pathOf("x")); }), 2487);
  EXPECT_EQ(errorOf([&] { exportTo("NoExport", pathOf("x")); }), 2601);
  EXPECT_EQ(descriptionOf([&] { exportTo("Form_frmNoExport", pathOf("x")); }), "No.");
  EXPECT_EQ(errorOf([&] { call(doCmd, "OutputTo", {2, "frmMain", "", pathOf("x")}); }), 2487);
  EXPECT_FALSE(std::filesystem::exists(pathOf("x")));
  EXPECT_EQ(errorOf([&] { exportTo("Utilities", pathOf("no/such/dir")); }), 2302);
}

}  // namespace
}  // namespace tarrowin
