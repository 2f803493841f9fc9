// Every action as the statement that its documentation and that of the DoCmd method ask for.
#include "access/macro/action_statement.h"

#include <set>

#include <gtest/gtest.h>

#include "access/macro/action_table.h"
#include "macro/macro_rows.h"

namespace tarrowin {
namespace {

// The statements of the row, joined by "; "; comments lead with "'".
std::string code(const std::string& action, std::vector<std::string> arguments = {}) {
  const ActionCode written = actionCode(row(action, std::move(arguments)));
  std::string text;
  for (const std::string& comment : written.comments)
    text += (text.empty() ? "'" : "; '") + comment;
  for (const std::string& line : written.statements) text += (text.empty() ? "" : "; ") + line;
  return text;
}

struct Case {
  const char* action;
  std::vector<std::string> arguments;
  const char* statement;
};

const Case kCases[] = {
    {"AddMenu", {"&File", "mnuFile", "Files"}, R"(DoCmd.AddMenu "&File", "mnuFile", "Files")"},
    {"ApplyFilter", {"", "[ID]=1"}, R"(DoCmd.ApplyFilter "", "[ID]=1")"},
    {"ApplyFilter", {"", "[ID]=1", "sub"}, R"(DoCmd.ApplyFilter "", "[ID]=1", "sub")"},
    {"Beep", {}, "Beep"},
    {"CancelEvent", {}, "DoCmd.CancelEvent"},
    {"Close", {"-1", "", "0"}, R"(DoCmd.Close , "")"},
    {"Close", {"2", "frmA", "0"}, R"(DoCmd.Close acForm, "frmA")"},
    {"Close", {"3", "rptA", "2"}, R"(DoCmd.Close acReport, "rptA", acSaveNo)"},
    {"CopyObject", {"", "Copy", "1", "qry"}, R"(DoCmd.CopyObject "", "Copy", acQuery, "qry")"},
    {"DoMenuItem", {"0", "3", "4", "", "20"}, "DoCmd.DoMenuItem 0, 3, 4, , 20"},
    {"Echo", {"0", "Wait"}, R"(DoCmd.Echo False, "Wait")"},
    {"FindNext", {}, "DoCmd.FindNext"},
    {"FindRecord",
     {"x", "1", "0", "2", "0", "-1", "-1"},
     R"(DoCmd.FindRecord "x", acEntire, False, acSearchAll, False, acCurrent, True)"},
    {"GoToControl", {"txtA"}, R"(DoCmd.GoToControl "txtA")"},
    {"GoToPage", {"2", "", ""}, "DoCmd.GoToPage 2"},
    {"GoToPage", {"2", "", "1440"}, "DoCmd.GoToPage 2, , 1440"},
    {"GoToRecord", {"-1", "", "5", ""}, R"(DoCmd.GoToRecord , "", acNewRec)"},
    {"GoToRecord", {"2", "frmA", "4", "7"}, R"(DoCmd.GoToRecord acDataForm, "frmA", acGoTo, 7)"},
    {"Hourglass", {"-1"}, "DoCmd.Hourglass True"},
    {"Hourglass", {"0"}, "DoCmd.Hourglass False"},
    {"SetWarnings", {"Yes"}, "DoCmd.SetWarnings True"},
    {"SetWarnings", {"no"}, "DoCmd.SetWarnings False"},
    {"Maximize", {}, "DoCmd.Maximize"},
    {"Minimize", {}, "DoCmd.Minimize"},
    {"MoveSize", {"", "", "5000", "3000"}, "DoCmd.MoveSize , , 5000, 3000"},
    {"MsgBox", {"Hi", "0", "0", ""}, R"(MsgBox "Hi", vbOKOnly, "")"},
    {"MsgBox", {"Hi", "-1", "3", "T"}, R"(Beep; MsgBox "Hi", vbExclamation, "T")"},
    {"MsgBox", {"=[Forms]![A]![B]", "0", "1"}, R"(MsgBox Forms!A!B, vbCritical, "")"},
    {"OpenForm",
     {"Order List", "3", "flt", "[ID]=1", "2", "3"},
     R"(DoCmd.OpenForm "Order List", acFormDS, "flt", "[ID]=1", acReadOnly, acDialog)"},
    {"OpenForm", {"frmMain", "0"}, R"(DoCmd.OpenForm "frmMain", acNormal, "", "")"},
    {"OpenQuery", {"qry", "0", "1"}, R"(DoCmd.OpenQuery "qry", acViewNormal, acEdit)"},
    {"OpenTable", {"tbl", "1", "0"}, R"(DoCmd.OpenTable "tbl", acViewDesign, acAdd)"},
    {"PrintOut", {"2", "1", "3", "0", "2", "-1"}, "DoCmd.PrintOut acPages, 1, 3, acHigh, 2, True"},
    {"Quit", {"1"}, "DoCmd.Quit acQuitSaveAll"},
    {"Requery", {""}, R"(DoCmd.Requery "")"},
    {"RepaintObject", {"-1", ""}, R"(DoCmd.RepaintObject , "")"},
    {"Rename", {"New", "0", "Old"}, R"(DoCmd.Rename "New", acTable, "Old")"},
    {"Restore", {}, "DoCmd.Restore"},
    {"RunApp", {"\"C:\\a b.exe\""}, R"(Call Shell("""C:\a b.exe""", 1))"},
    {"RunCode", {"Start()"}, "Call Start()"},
    {"RunCode", {"=Start(\"a\",[Forms]![A]![B])"}, R"(Call Start("a", Forms!A!B))"},
    {"RunCode", {"Start"}, "Call Start()"},
    {"RunCode", {"1+Start()"}, R"x(Call Eval("1+Start()"))x"},
    {"RunMacro", {"m.x", "", ""}, R"(DoCmd.RunMacro "m.x", , "")"},
    {"RunMacro", {"m", "3", "[A]<5"}, R"(DoCmd.RunMacro "m", 3, "[A]<5")"},
    {"RunSQL", {"DELETE * FROM [T]", "-1"}, R"(DoCmd.RunSQL "DELETE * FROM [T]", -1)"},
    {"RunCommand", {"97"}, "DoCmd.RunCommand acCmdSaveRecord"},
    {"RunCommand", {"4711"}, "DoCmd.RunCommand 4711"},
    {"SelectObject", {"3", "rpt", "-1"}, R"(DoCmd.SelectObject acReport, "rpt", True)"},
    {"SendKeys", {"%FP{ENTER}", "-1"}, R"(SendKeys "%FP{ENTER}", True)"},
    {"SetValue", {"[Forms]![A]![B C]", "\"x\""}, R"(Forms!A![B C] = "x")"},
    {"SetWarnings", {"0"}, "DoCmd.SetWarnings False"},
    {"ShowAllRecords", {}, "DoCmd.ShowAllRecords"},
    {"StopAllMacros", {}, "End"},
    {"StopMacro", {}, "Exit Function"},
    {"OpenReport", {"rpt", "2", "", ""}, R"(DoCmd.OpenReport "rpt", acViewPreview, "", "")"},
    {"OpenReport",
     {"rpt", "0", "", "[A]=1", "0"},
     R"(DoCmd.OpenReport "rpt", acViewNormal, "", "[A]=1", acNormal)"},
    {"TransferDatabase",
     {"0", "Microsoft Access", "C:\\x.mdb", "0", "S", "D", "0"},
     R"(DoCmd.TransferDatabase acImport, "Microsoft Access", "C:\x.mdb", acTable, "S", "D", False)"},
    {"TransferSpreadsheet",
     {"1", "8", "tbl", "x.xls", "-1", ""},
     R"(DoCmd.TransferSpreadsheet acExport, 8, "tbl", "x.xls", True, "")"},
    {"TransferText",
     {"2", "spec", "tbl", "x.txt", "-1", ""},
     R"(DoCmd.TransferText acExportDelim, "spec", "tbl", "x.txt", True, "")"},
    {"OutputTo",
     {"3", "rpt", "MS-DOS Text (*.txt)", "x.txt", "-1", ""},
     R"x(DoCmd.OutputTo acOutputReport, "rpt", "MS-DOS Text (*.txt)", "x.txt", True, "")x"},
    {"DeleteObject", {"0", "tbl"}, R"(DoCmd.DeleteObject acTable, "tbl")"},
    {"OpenModule", {"mod", "Sub1"}, R"(DoCmd.OpenModule "mod", "Sub1")"},
    {"SendObject",
     {"3", "rpt", "", "a@b", "", "", "S", "T", "0", ""},
     R"(DoCmd.SendObject acSendReport, "rpt", "", "a@b", "", "", "S", "T", False, "")"},
    {"ShowToolbar", {"Web", "2"}, R"(DoCmd.ShowToolbar "Web", acToolbarNo)"},
    {"Save", {"-1", ""}, R"(DoCmd.Save , "")"},
    {"SetMenuItem", {"1", "2", "", "3"}, "DoCmd.SetMenuItem 1, 2, , acMenuCheck"},
    {"OpenDataAccessPage", {"p", "0"}, R"(DoCmd.OpenDataAccessPage "p", acDataAccessPageBrowse)"},
    {"OpenView", {"v", "0", "1"}, R"(DoCmd.OpenView "v", acViewNormal, acEdit)"},
    {"OpenDiagram", {"d"}, R"(DoCmd.OpenDiagram "d")"},
    {"OpenStoredProcedure",
     {"s", "0", "2"},
     R"(DoCmd.OpenStoredProcedure "s", acViewNormal, acReadOnly)"},
    {"TransferSQLDatabase",
     {"srv", "db", "-1", "", "", "0"},
     R"(DoCmd.TransferSQLDatabase "srv", "db", True, "", "", False)"},
    {"CopyDatabaseFile", {"x.mdf", "-1", "0"}, R"(DoCmd.CopyDatabaseFile "x.mdf", True, False)"},
    {"OpenFunction", {"f", "0", "1"}, R"(DoCmd.OpenFunction "f", acViewNormal, acEdit)"},
};

TEST(ActionStatement, EveryActionInTheWordsOfVisualBasic) {
  std::set<std::string_view> met;
  for (const Case& one : kCases) {
    EXPECT_EQ(code(one.action, one.arguments), one.statement);
    met.insert(one.action);
  }
  for (const ActionRow& action : actionRows())
    EXPECT_TRUE(met.contains(action.name)) << action.name;
}

// The number of arguments that each action keeps in a database file.
TEST(ActionStatement, ArgumentCounts) {
  const std::pair<const char*, std::size_t> counts[] = {{"AddMenu", 3},
                                                        {"Close", 3},
                                                        {"CopyObject", 4},
                                                        {"DoMenuItem", 5},
                                                        {"Echo", 2},
                                                        {"FindRecord", 7},
                                                        {"GoToRecord", 4},
                                                        {"MoveSize", 4},
                                                        {"MsgBox", 4},
                                                        {"OpenForm", 6},
                                                        {"OpenReport", 5},
                                                        {"PrintOut", 6},
                                                        {"RunMacro", 3},
                                                        {"RunSQL", 2},
                                                        {"SelectObject", 3},
                                                        {"TransferDatabase", 7},
                                                        {"TransferText", 7},
                                                        {"OutputTo", 8},
                                                        {"SendObject", 10},
                                                        {"TransferSpreadsheet", 6},
                                                        {"SetMenuItem", 4},
                                                        {"CopyDatabaseFile", 3},
                                                        {"TransferSQLDatabase", 6}};
  for (const auto& [name, count] : counts)
    EXPECT_EQ(findAction(name)->argumentCount(), count) << name;
}

TEST(ActionStatement, NamesAndCodesAreThoseOfOneActionEach) {
  std::set<std::string_view> names;
  std::set<int> codes;
  for (const ActionRow& action : actionRows()) {
    names.insert(action.name);
    codes.insert(action.code);
    EXPECT_EQ(findAction(action.code), &action);
  }
  EXPECT_EQ(names.size(), 57u);
  EXPECT_EQ(codes.size(), 57u);
  EXPECT_EQ(findAction("OPENFORM"), findAction(std::uint16_t{23}));
  EXPECT_EQ(findAction(std::uint16_t{2}), nullptr);
}

TEST(ActionStatement, QuotesInATextAreDoubled) {
  EXPECT_EQ(code("GoToControl", {"say \"x\""}), R"(DoCmd.GoToControl "say ""x""")");
}

TEST(ActionStatement, LineEndsInATextStandOutside) {
  EXPECT_EQ(code("MsgBox", {"a\r\nb\tc\n", "0", "0", ""}),
            R"(MsgBox "a" & vbCrLf & "b" & Chr(9) & "c" & Chr(10), vbOKOnly, "")");
}

TEST(ActionStatement, TextBehindAnEqualsSignIsAnExpression) {
  EXPECT_EQ(code("OpenForm", {"=[Forms]![A]![Form Name]", "0"}),
            R"(DoCmd.OpenForm Forms!A![Form Name], acNormal, "", "")");
  EXPECT_EQ(code("GoToPage", {"=1+1"}), "DoCmd.GoToPage 1 + 1");
  EXPECT_EQ(code("GoToControl", {"="}), R"(DoCmd.GoToControl "=")");
}

TEST(ActionStatement, ChoiceOutsideOfItsListIsKeptAsItIs) {
  EXPECT_EQ(code("Quit", {"17"}), "DoCmd.Quit 17");
  EXPECT_EQ(code("Quit", {"at once"}), R"(DoCmd.Quit "at once")");
  EXPECT_EQ(code("Hourglass", {"1"}), "DoCmd.Hourglass 1");
}

TEST(ActionStatement, ArgumentsBeyondTheKnownOnesAreTold) {
  EXPECT_EQ(code("Beep", {"", "x"}), R"('Beep "", "x"; Beep)");
  EXPECT_EQ(code("Beep", {"", ""}), "Beep");
}

TEST(ActionStatement, WhatCannotBeWrittenIsAComment) {
  EXPECT_EQ(code("SetValue", {"Forms!A!B + 1", "2"}), R"('SetValue "Forms!A!B + 1", "2")");
  EXPECT_EQ(code("SetValue", {"[A]", ""}), R"('SetValue "[A]", "")");
  EXPECT_EQ(code("RunCode"), "'RunCode");
}

TEST(ActionStatement, ActionIsFoundWithoutRegardToCase) {
  EXPECT_EQ(code("openform", {"f"}), R"(DoCmd.OpenForm "f", , "", "")");
}

}  // namespace
}  // namespace tarrowin
