// Every rule of both lists: hit bare, indented, inside a comment and inside a string.
#include "codeconv/code_rules.h"

#include <gtest/gtest.h>

#include "codeconv/rewritten.h"

namespace tarrowin::test {
namespace {

class EveryRule : public testing::TestWithParam<RuleCase> {};

TEST_P(EveryRule, InModulesAndInForms) { expectRewritten(GetParam()); }

// Lines whose fate depends on where in the line the text stands.
const RuleCase kAnchored[] = {
    {"", kGone, kGone},
    {"    ", {"    "}, {"    "}},

    {"Option Compare Database", kGone, kGone},
    {"Option Compare Database 'x", kGone, kGone},
    {"    Option Compare Database",
     {"    Option Compare Database"},
     {"    Option Compare Database"}},
    {"' Option Compare Database", {"' Option Compare Database"}, {"' Option Compare Database"}},
    {"s = \"Option Compare Database\"",
     {"s = \"Option Compare Database\""},
     {"s = \"Option Compare Database\""}},
    {"Option Compare Text", {"Option Compare Text"}, {"Option Compare Text"}},
    {"option compare database", {"option compare database"}, {"option compare database"}},

    {"Attribute VB_Name = \"Utilities\"", kGone, kGone},
    {"Attributes = 1", kGone, kGone},
    {"    Attribute VB_Name", {"    Attribute VB_Name"}, {"    Attribute VB_Name"}},
    {"'Attribute VB_Name", {"'Attribute VB_Name"}, {"'Attribute VB_Name"}},
    {"s = \"Attribute\"", {"s = \"Attribute\""}, {"s = \"Attribute\""}},

    {"VERSION 1.0 CLASS", {"VERSION 1.0 CLASS"}, kGone},
    {"VERSION 1.0 CLASSIC", {"VERSION 1.0 CLASSIC"}, kGone},
    {" VERSION 1.0 CLASS", {" VERSION 1.0 CLASS"}, {" VERSION 1.0 CLASS"}},
    {"'VERSION 1.0 CLASS", {"'VERSION 1.0 CLASS"}, {"'VERSION 1.0 CLASS"}},
    {"s = \"VERSION 1.0 CLASS\"", {"s = \"VERSION 1.0 CLASS\""}, {"s = \"VERSION 1.0 CLASS\""}},

    {"BEGIN", {"BEGIN"}, kGone},
    {"BEGINNING = 1", {"BEGINNING = 1"}, kGone},
    {"    BEGIN", {"    BEGIN"}, {"    BEGIN"}},
    {"' BEGIN", {"' BEGIN"}, {"' BEGIN"}},
    {"s = \"BEGIN\"", {"s = \"BEGIN\""}, {"s = \"BEGIN\""}},
    {"Begin", {"Begin"}, {"Begin"}},

    {"  MultiUse = -1  'True", {"  MultiUse = -1  'True"}, kGone},
    {"   MultiUse = -1", {"   MultiUse = -1"}, {"   MultiUse = -1"}},
    {"MultiUse = -1", {"MultiUse = -1"}, {"MultiUse = -1"}},
    {"'  MultiUse", {"'  MultiUse"}, {"'  MultiUse"}},
    {"s = \"  MultiUse\"", {"s = \"  MultiUse\""}, {"s = \"  MultiUse\""}},

    {"END", {"END"}, kGone},
    {"   END  ", {"   END  "}, kGone},
    {"\tEND", {"\tEND"}, {"\tEND"}},
    {"' END", {"' END"}, {"' END"}},
    {"s = \"END\"", {"s = \"END\""}, {"s = \"END\""}},
    {"End", {"End"}, {"End"}},

    {"Option Explicit", {"Option Explicit"}, {"Option Explicit"}},
    {"Option Explicit ' Delete", {"Option Explicit ' Delete"}, {"Option Explicit ' Delete"}},
    {"  Option Explicit ' Delete",
     {"'   Option Explicit ' Delete"},
     {"'   Option Explicit ' Delete"}},
    {"' Option Explicit Delete", {"' ' Option Explicit Delete"}, {"' ' Option Explicit Delete"}},
    {"s = \"Option Explicit\"", {"s = \"Option Explicit\""}, {"s = \"Option Explicit\""}},

    {"Private Sub Form_Load()", {"Private Sub Form_Load()"}, {"Private Sub Form_Load()"}},
    {"    Private Sub Form_Load()",
     {"    Private Sub Form_Load()"},
     {"    Private Sub Form_Load()"}},
    {"Private Sub Form_Open(Cancel As Integer)",
     {"Private Sub Form_Open(Cancel As Integer)"},
     {"Private Sub Form_Initialize() 'Private Sub Form_Open(Cancel As Integer)"}},
    {"    Private Sub Form_Open(Cancel As Integer)",
     {"    Private Sub Form_Open(Cancel As Integer)"},
     {"    Private Sub Form_Open(Cancel As Integer)"}},
    {"'Private Sub Form_Open(Cancel As Integer)",
     {"'Private Sub Form_Open(Cancel As Integer)"},
     {"'Private Sub Form_Open(Cancel As Integer)"}},
    {"s = \"Private Sub Form_Open(\"",
     {"s = \"Private Sub Form_Open(\""},
     {"s = \"Private Sub Form_Open(\""}},
    {"Private Sub Form_Opened()", {"Private Sub Form_Opened()"}, {"Private Sub Form_Opened()"}},

    {"Private Sub lblName_DblClick(Cancel As Integer)",
     {"Private Sub lblName_DblClick(Cancel As Integer)"},
     {"Private Sub lblName_DblClick()    ' As Integer)"}},
    {"    Private Sub a_DblClick(Cancel As Integer)",
     {"    Private Sub a_DblClick(Cancel As Integer)"},
     {"    Private Sub a_DblClick()    ' As Integer)"}},
    {"' Sub a_DblClick(Cancel)", {"' Sub a_DblClick(Cancel)"}, {"' Sub a_DblClick()    ')"}},
    {"s = \"a_DblClick(Cancel\"", {"s = \"a_DblClick(Cancel\""}, {"s = \"a_DblClick()    '\""}},

    {"End Function", {"End Function", ""}, {"End Function", ""}},
    {"End Sub", {"End Sub", ""}, {"End Sub", ""}},
    {"    End Sub", {"    End Sub"}, {"    End Sub"}},
    {"End Sub ", {"End Sub "}, {"End Sub "}},
    {"End Sub ' x", {"End Sub ' x"}, {"End Sub ' x"}},
    {"'End Sub", {"'End Sub"}, {"'End Sub"}},
    {"s = \"End Sub\"", {"s = \"End Sub\""}, {"s = \"End Sub\""}},
    {"    End Function", {"    End Function"}, {"    End Function"}},
    {"' End Function", {"' End Function"}, {"' End Function"}},
    {"s = \"End Function\"", {"s = \"End Function\""}, {"s = \"End Function\""}},
    {"End Property", {"End Property"}, {"End Property"}},

    {"Set dbs = CurrentDb",
     {"Set dbs = OpenDatabase(\"C:\\d\\x.mdb\")   '"},
     {"Set dbs = OpenDatabase(\"C:\\d\\x.mdb\") '"}},
    {"        Set dbs = CurrentDb()",
     {"Set dbs = OpenDatabase(\"C:\\d\\x.mdb\")   '"},
     {"Set dbs = OpenDatabase(\"C:\\d\\x.mdb\") '"}},
    {"' Set dbs = CurrentDb",
     {"Set dbs = OpenDatabase(\"C:\\d\\x.mdb\")   '"},
     {"Set dbs = OpenDatabase(\"C:\\d\\x.mdb\") '"}},
    {"MsgBox \"Set dbs = CurrentDb\"",
     {"Set dbs = OpenDatabase(\"C:\\d\\x.mdb\")   '"},
     {"Set dbs = OpenDatabase(\"C:\\d\\x.mdb\") '"}},
    {"Set dbs=CurrentDb", {"Set dbs=CurrentDb"}, {"Set dbs=CurrentDb"}},

    {"Me.txtA = Me!txtB",
     {"Me.txtA = Me!txtB", "Me.txtA = Me.txtB"},
     {"Me.txtA = Me!txtB", "Me.txtA = Me.txtB", "' Me.txtA = Me.txtB"}},
    {"    Me.Requery", {"    Me.Requery", ""}, {"    Me.Requery", "", "' "}},
    {"' Me.Requery", {"' Me.Requery", ""}, {"' Me.Requery", "", "' "}},
    {"s = \"Me.Requery!\"",
     {"s = \"Me.Requery!\"", "s = \"Me.Requery.\""},
     {"s = \"Me.Requery!\"", "s = \"Me.Requery.\"", "' s = \"Me.Requery.\""}},
    {"MsgBox Me.A!B & Me!C",
     {"MsgBox Me.A!B & Me!C", "MsgBox Me.A.B & Me!C"},
     {"MsgBox Me.A!B & Me!C", "MsgBox Me.A.B & Me!C", "' MsgBox Me.A.B & Me!C"}},
    {"Me!txtA = 1", {"Me!txtA = 1"}, {"Me!txtA = 1"}},

    {"Reports!rptX.Visible = True",
     {"' Reports!rptX.Visible = True", "' Reports!rptX.Visible = True"},
     {"Reports!rptX.Visible = True"}},
    {"  Reports!rptX", {"'   Reports!rptX", "'   Reports!rptX"}, {"  Reports!rptX"}},
    {"' Reports!rptX", {"' ' Reports!rptX", "' ' Reports!rptX"}, {"' Reports!rptX"}},
    {"s = \"Reports!rptX\"",
     {"' s = \"Reports!rptX\"", "' s = \"Reports!rptX\""},
     {"s = \"Reports!rptX\""}},

    {"If SysCmd(1) Then", {"If SysCmd(1) Then"}, {"If SysCmd(1) Then"}},
    {"If SysCmd(1) Then Delete", {"' If SysCmd(1) Then Delete"}, {"' If SysCmd(1) Then Delete"}},
    {"x = SysCmd (1)", {"x = SysCmd (1)"}, {"x = SysCmd (1)"}},

    {"delete", {"delete"}, {"delete"}},
    {"DELETE", {"DELETE"}, {"DELETE"}},
    {"x = 1", {"x = 1"}, {"x = 1"}},
};

INSTANTIATE_TEST_SUITE_P(Anchored, EveryRule, testing::ValuesIn(kAnchored));

// Texts that make a comment of a line wherever they stand in it, in both lists.
class CommentRule : public testing::TestWithParam<const char*> {};

TEST_P(CommentRule, BareIndentedInACommentAndInAString) {
  const std::string text = GetParam();
  EXPECT_EQ(inModule(text), Lines{"' " + text});
  EXPECT_EQ(inForm(text), Lines{"' " + text});
  EXPECT_EQ(inModule("    " + text), Lines{"'     " + text});
  EXPECT_EQ(inForm("    " + text), Lines{"'     " + text});
  EXPECT_EQ(inModule("' " + text), Lines{"' ' " + text});
  EXPECT_EQ(inForm("'" + text), Lines{"' '" + text});
  EXPECT_EQ(inModule("    x \"" + text + "\""), Lines{"'     x \"" + text + "\""});
  EXPECT_EQ(inForm("    x \"" + text + "\""), Lines{"'     x \"" + text + "\""});
  EXPECT_EQ(inModule("a" + text + "z"), Lines{"' a" + text + "z"});
  EXPECT_EQ(inForm("a" + text + "z"), Lines{"' a" + text + "z"});
  // One character less is another word.
  const std::string shorter = text.substr(0, text.size() - 1);
  EXPECT_EQ(inModule(shorter), Lines{shorter});
  EXPECT_EQ(inForm(shorter), Lines{shorter});
}

INSTANTIATE_TEST_SUITE_P(Texts, CommentRule,
                         testing::Values("CloseCurrentDatabase", "NewCurrentDatabase",
                                         "OpenCurrentDatabase", "SysCmd(", "As Recordset",
                                         "OpenRecordset", "CreateQueryDef", "Delete", "Execute"));

TEST(CodeRules, TheNameOfTheDatabaseMakesAComment) {
  for (const std::string line :
       {"strName = CurrentDb.Name", "    s = CurrentDb.Name", "' s = CurrentDb.Name",
        "x \"s = CurrentDb.Name\"", "a = CurrentDb: b = CurrentDb.Name"}) {
    EXPECT_EQ(inModule(line), Lines{"' " + line});
    EXPECT_EQ(inForm(line), Lines{"' " + line});
  }
}

TEST(CodeRules, AnEarlierRuleTakesTheLine) {
  // In order: each line also holds the text of every later rule.
  EXPECT_EQ(inModule("Set d = CurrentDb ' Delete Me. Reports! DoCmd."),
            Lines{"Set d = OpenDatabase(\"C:\\d\\x.mdb\")   '"});
  EXPECT_EQ(inModule("Delete Me.x Reports!y DoCmd.Beep "),
            Lines{"' Delete Me.x Reports!y DoCmd.Beep "});
  EXPECT_EQ(inModule("Me.x Reports!y DoCmd.Beep "),
            (Lines{"Me.x Reports!y DoCmd.Beep ", "Me.x Reports.y DoCmd.Beep "}));
  EXPECT_EQ(inModule("DoCmd.Beep Reports!y"),
            (Lines{"' DoCmd.Beep Reports!y", "' DoCmd.Beep Reports!y"}));
  EXPECT_EQ(inForm("DoCmd.Beep Reports!y"), Lines{"Beep ' DoCmd.Beep Reports!y"});
  EXPECT_EQ(inForm("Private Sub Form_Open(Cancel) ' Execute"),
            Lines{"' Private Sub Form_Open(Cancel) ' Execute"});
  EXPECT_EQ(inForm("Private Sub Form_Load() 'a_DblClick(Cancel"),
            Lines{"Private Sub Form_Load() 'a_DblClick(Cancel"});
}

TEST(CodeRules, FormLoadWithTwoBlanksBehindSubDoesNotMatch) {
  Lines lines;
  int headers = 0;
  ConversionState state;
  state.strCodeLine = "Private Sub  Form_Load()";
  LineRewriter rewriter(
      CodeKind::kForm, state, [&](std::string_view text) { lines.emplace_back(text); },
      [&](FormHeader) { ++headers; });
  rewriter.rewrite();
  EXPECT_EQ(lines, Lines{"Private Sub  Form_Load()"});
  EXPECT_EQ(headers, 0);
}

TEST(CodeRules, AnUnderscoreInTheControlNameDamagesTheDoubleClickHeader) {
  EXPECT_EQ(inForm("Private Sub txt_Name_DblClick(Cancel As Integer)"),
            Lines{"Private Sub txt_DblClick()    'ancel As Integer)"});
}

TEST(CodeRules, ALineWhoseEqualSignStandsTooEarlyRaises5AndPrintsNothing) {
  for (const CodeKind kind : {CodeKind::kModule, CodeKind::kForm}) {
    for (const char* line : {"x = CurrentDb", "s = \"Set dbs = CurrentDb\""}) {
      Lines lines;
      ConversionState state;
      state.strCodeLine = line;
      LineRewriter rewriter(kind, state, [&](std::string_view text) { lines.emplace_back(text); });
      try {
        rewriter.rewrite();
        FAIL() << "no error";
      } catch (const VbError& error) {
        EXPECT_EQ(error.number(), 5);
      }
      EXPECT_TRUE(lines.empty());
    }
  }
}

TEST(CodeRules, NulAndHighCharactersAreOrdinary) {
  const std::string line("x = \"\0\xE4\xFF\" ' Del\0ete", 19);
  EXPECT_EQ(inModule(line), Lines{line});
  EXPECT_EQ(inForm(line), Lines{line});
  const std::string deleted("\0Delete\0", 8);
  EXPECT_EQ(inModule(deleted), Lines{"' " + deleted});
}

}  // namespace
}  // namespace tarrowin::test
