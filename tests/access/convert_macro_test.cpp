// RunCommand 279: the module that Access makes of the selected macro.
#include "access/access_fixture.h"

namespace tarrowin {
namespace {

constexpr std::string_view kMacros = R"({
  "snapshot": 1,
  "macros": [{"name": "AutoExec", "module": "Function AutoExec()\r\n' \u20AC\r\nEnd Function\r\n"},
             {"name": "Start", "actions": [{"action": "Hourglass", "arguments": ["-1"]}]},
             {"name": "Bare"},
             {"name": "Locked", "module": "x", "openError": 2601}],
  "modules": [{"name": "converted macro- autoexec", "text": "older", "countOfLines": 7},
              {"name": "Utilities", "text": "Sub A()\r\nEnd Sub\r\n"}]
})";

class ConvertMacroTest : public AccessTest {
 protected:
  ConvertMacroTest() { openRecording(kMacros); }
  std::string textOf(const std::string& module) {
    call(doCmd, "OutputTo", {5, module, "MS-DOS Text (*.txt)", pathOf("out.txt")});
    return readFile(pathOf("out.txt"));
  }
  void reopen() { openFile(pathOf("test.access.json")); }
};

TEST_F(ConvertMacroTest, RecordedTextReplacesAnOlderModuleOfTheName) {
  convertMacro("autoexec");
  EXPECT_EQ(documents("Modules"), "Converted Macro- AutoExec Utilities ");
  EXPECT_EQ(textOf("Converted Macro- AutoExec"),
            "Function AutoExec()\r\n' \x80\r\nEnd Function\r\n");
  call(doCmd, "OpenModule", {"Converted Macro- AutoExec"});
  const ObjectRef module = child(application, "Modules", {"Converted Macro- AutoExec"});
  EXPECT_EQ(number(module, "CountOfLines"), 3);
  EXPECT_EQ(number(module, "Type"), 0);
}

TEST_F(ConvertMacroTest, MacroWithoutARecordedTextIsTranslated) {
  convertMacro("Start");
  EXPECT_EQ(documents("Modules"), "converted macro- autoexec Utilities Converted Macro- Start ");
  EXPECT_NE(textOf("Converted Macro- Start").find("DoCmd.Hourglass True"), std::string::npos);
}

TEST_F(ConvertMacroTest, MacroWithoutActionsGivesAnEmptyFunction) {
  convertMacro("Bare");
  EXPECT_NE(textOf("Converted Macro- Bare").find("Function Bare()"), std::string::npos);
  EXPECT_NE(textOf("Converted Macro- Bare").find("End Function"), std::string::npos);
}

TEST_F(ConvertMacroTest, LockedMacroRaisesItsRecordedErrorAndAddsNothing) {
  const std::string before = readFile(pathOf("test.access.json"));
  EXPECT_EQ(errorOf([&] { convertMacro("locked"); }), 2601);
  EXPECT_EQ(documents("Modules"), "converted macro- autoexec Utilities ");
  EXPECT_EQ(readFile(pathOf("test.access.json")), before);
}

TEST_F(ConvertMacroTest, WithoutASelectedMacroTheCommandIsNotAvailable) {
  EXPECT_EQ(errorOf([&] { call(doCmd, "RunCommand", {279}); }), 2046);
  EXPECT_EQ(errorOf([&] { convertMacro("None"); }), 2046);
  call(doCmd, "SelectObject", {4, "AutoExec", true});
  call(doCmd, "SelectObject", {4, Value(), true});
  EXPECT_EQ(errorOf([&] { call(doCmd, "RunCommand", {279}); }), 2046);
}

TEST_F(ConvertMacroTest, NewModulesAreThereAfterReopening) {
  convertMacro("AutoExec");
  convertMacro("Start");
  const std::string start = textOf("Converted Macro- Start");
  reopen();
  EXPECT_EQ(documents("Modules"), "Converted Macro- AutoExec Utilities Converted Macro- Start ");
  EXPECT_EQ(textOf("Converted Macro- AutoExec"),
            "Function AutoExec()\r\n' \x80\r\nEnd Function\r\n");
  EXPECT_EQ(textOf("Converted Macro- Start"), start);
}

TEST_F(ConvertMacroTest, OpenModuleOfTheNameShowsTheNewText) {
  call(doCmd, "OpenModule", {"Converted Macro- AutoExec"});
  const ObjectRef module = child(application, "Modules", {0});
  EXPECT_EQ(number(module, "CountOfLines"), 7);
  for (int i = 0; i < 3; ++i) convertMacro(i == 1 ? "AutoExec" : "Start");
  EXPECT_EQ(number(module, "CountOfLines"), 3);
}

}  // namespace
}  // namespace tarrowin
