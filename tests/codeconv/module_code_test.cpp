// Whole modules from the export to the file.
#include "codeconv/module_code.h"

#include <gtest/gtest.h>

#include "codeconv/code_session.h"

namespace tarrowin::test {
namespace {

std::string converted(const std::string& text) {
  CodeSession session;
  session.access->text = text;
  GetAccModuleCode(session.main);
  EXPECT_TRUE(session.user.boxes.empty());
  EXPECT_TRUE(session.bothFilesAreClosed());
  EXPECT_EQ(session.names(), std::vector<std::string>{"Utilities.bas"});
  return session.content("Utilities.bas");
}

std::string golden(const std::string& name) {
  return fileContent(std::filesystem::path(TARROWIN_SOURCE_DIR) / "tests/codeconv/golden" / name);
}

TEST(ModuleCode, ALongModuleThatMeetsEveryRule) {
  EXPECT_EQ(converted(golden("every_rule.txt")), golden("every_rule.bas"));
}

TEST(ModuleCode, AClassModule) {
  CodeSession session;
  session.main.state.mstrModName = "Order Item";
  session.main.state.mstrModFile = "Order_Item.cls";
  session.access->text = golden("class_module.txt");
  GetAccModuleCode(session.main);
  EXPECT_EQ(session.content("Order_Item.cls"), golden("class_module.cls"));
  EXPECT_EQ(session.names(), std::vector<std::string>{"Order_Item.cls"});
}

TEST(ModuleCode, TheExportGoesToATemporaryFileBesideTheOutput) {
  CodeSession session;
  session.access->text = "x = 1\r\n";
  GetAccModuleCode(session.main);
  EXPECT_EQ(session.access->exported,
            (std::vector<std::string>{"5", "Utilities", "MS-DOS Text (*.txt)",
                                      session.main.state.mstrOutputDir + "Mod_Utilities.bas"}));
  EXPECT_FALSE(std::filesystem::exists(session.path("Mod_Utilities.bas")));
}

TEST(ModuleCode, AnOlderTemporaryFileIsDeletedBeforeTheExport) {
  CodeSession session;
  writeFile(session.path("Mod_Utilities.bas"), "left over\r\n");
  bool gone = false;
  session.access->onMember = [&](std::string_view member) {
    if (member == "CountOfLines")
      gone = !std::filesystem::exists(session.path("Mod_Utilities.bas"));
  };
  GetAccModuleCode(session.main);
  EXPECT_TRUE(gone);
  EXPECT_EQ(session.content("Utilities.bas"), "");
}

TEST(ModuleCode, AnOlderOutputFileIsReplaced) {
  CodeSession session;
  writeFile(session.path("Utilities.bas"), "much longer than what replaces it\r\n");
  session.access->text = "x = 1\r\n";
  GetAccModuleCode(session.main);
  EXPECT_EQ(session.content("Utilities.bas"), "x = 1\r\n");
}

TEST(ModuleCode, NoLinesNoExport) {
  for (const std::int32_t count : {0, -1}) {
    CodeSession session;
    session.access->countOfLines = count;
    GetAccModuleCode(session.main);
    EXPECT_EQ(session.access->asked, std::vector<std::string>{"CountOfLines"});
    EXPECT_EQ(session.names(), std::vector<std::string>{"Utilities.bas"});
    EXPECT_TRUE(session.user.boxes.empty());
  }
}

TEST(ModuleCode, BlankLinesAndOptionCompareDatabaseGiveAnEmptyFile) {
  EXPECT_EQ(converted("\r\n\r\nOption Compare Database\r\n\r\n\r\n"), "");
}

TEST(ModuleCode, OnlyBlankLines) {
  EXPECT_EQ(converted("\r\n\n\r\n"), "");
  EXPECT_EQ(converted(""), "");
}

TEST(ModuleCode, CrLfAndLfBothEndALine) {
  EXPECT_EQ(converted("a = 1\r\nb = 2\nc = 3\r\n"), "a = 1\r\nb = 2\r\nc = 3\r\n");
}

TEST(ModuleCode, TheLastLineNeedsNoEnd) {
  EXPECT_EQ(converted("a = 1\r\nEnd Sub"), "a = 1\r\nEnd Sub\r\n\r\n");
}

TEST(ModuleCode, LinesOfAMegabyte) {
  const std::string untouched(1 << 20, 'x');
  const std::string deleted = std::string(1 << 20, 'y') + "Delete" + std::string(1 << 20, 'z');
  EXPECT_EQ(converted(untouched + "\r\n" + deleted + "\n" + untouched),
            untouched + "\r\n' " + deleted + "\r\n" + untouched + "\r\n");
}

TEST(ModuleCode, NulCharactersPassThrough) {
  const std::string text("a\0b\r\n\0\r\n\0Delete\r\n", 17);
  EXPECT_EQ(converted(text), std::string("a\0b\r\n\0\r\n' \0Delete\r\n", 19));
}

TEST(ModuleCode, HighCharactersPassThrough) {
  EXPECT_EQ(converted("s = \"\xC4\x96\xFF\"\r\n"), "s = \"\xC4\x96\xFF\"\r\n");
}

TEST(ModuleCode, ContinuedLinesAreNotJoined) {
  EXPECT_EQ(converted("Set rst = dbs. _\r\n    OpenRecordset( _\r\n    \"T\")\r\n"),
            "Set rst = dbs. _\r\n'     OpenRecordset( _\r\n    \"T\")\r\n");
}

TEST(ModuleCode, TheDatabaseVariableStaysLiveAndRecordsetsDoNot) {
  EXPECT_EQ(converted("    Dim dbs As Database\r\n"
                      "    Dim rst As Recordset\r\n"
                      "    Set dbs = CurrentDb\r\n"
                      "    Set rst = dbs.OpenRecordset(\"T\")\r\n"
                      "    rst.MoveNext\r\n"),
            "    Dim dbs As Database\r\n"
            "'     Dim rst As Recordset\r\n"
            "Set dbs = OpenDatabase(\"C:\\d\\x.mdb\")   '\r\n"
            "'     Set rst = dbs.OpenRecordset(\"T\")\r\n"
            "    rst.MoveNext\r\n");
}

TEST(ModuleCode, TheExamplesOfTheRules) {
  EXPECT_EQ(converted("Dim rst As Recordset\r\n"), "' Dim rst As Recordset\r\n");
  EXPECT_EQ(converted("' Delete old rows\r\n"), "' ' Delete old rows\r\n");
  EXPECT_EQ(converted("SysCmd(acSysCmdSetStatus, \"x\")\r\n"),
            "' SysCmd(acSysCmdSetStatus, \"x\")\r\n");
  EXPECT_EQ(converted("If SysCmd(acSysCmdGetObjectState, 2, \"x\") Then\r\n"),
            "If SysCmd(acSysCmdGetObjectState, 2, \"x\") Then\r\n");
  EXPECT_EQ(converted("Me.Refresh\r\n"), "Me.Refresh\r\n\r\n");
  EXPECT_EQ(converted("Reports!rptX.Visible = True\r\n"),
            "' Reports!rptX.Visible = True\r\n' Reports!rptX.Visible = True\r\n");
}

TEST(ModuleCode, StateKeepsTheLastLineAndItsMethod) {
  CodeSession session;
  session.access->text = "DoCmd.OpenForm \"a\"\r\nMe.x = Me!y\r\n";
  GetAccModuleCode(session.main);
  EXPECT_EQ(session.main.state.strDoCmdMethod, "OpenForm");
  EXPECT_EQ(session.main.state.strCodeLine, "Me.x = Me.y");
}

}  // namespace
}  // namespace tarrowin::test
