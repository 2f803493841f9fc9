// Whole modules, and what stands between the lines "On Error" and "Exit".
#include "access/macro/macro_module.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "macro/macro_rows.h"

namespace tarrowin {
namespace {

// The function of a macro "M" with that body.
std::string moduleWith(std::string_view body) {
  return lines(
      "Option Compare Database\n"
      "Option Explicit\n"
      "\n"
      "'------------------------------------------------------------\n"
      "' M\n"
      "'\n"
      "'------------------------------------------------------------\n"
      "Function M()\n"
      "On Error GoTo M_Err\n"
      "\n" +
      std::string(body) +
      "\n"
      "\n"
      "M_Exit:\n"
      "    Exit Function\n"
      "\n"
      "M_Err:\n"
      "    MsgBox Error$\n"
      "    Resume M_Exit\n"
      "\n"
      "End Function\n");
}

std::size_t count(std::string_view text, std::string_view part) {
  std::size_t found = 0;
  for (std::size_t at = text.find(part); at != std::string_view::npos; at = text.find(part, at + 1))
    ++found;
  return found;
}

bool holds(std::string_view text, std::string_view part) {
  return text.find(part) != std::string_view::npos;
}

TEST(MacroModule, IsNamedAfterTheMacro) {
  EXPECT_EQ(macroModuleName("Open Orders"), "Converted Macro- Open Orders");
}

TEST(MacroModule, OneActionAfterTheOther) {
  EXPECT_EQ(
      macroModuleText("AutoExec", std::vector{row("Hourglass", {"-1"}),
                                              row("OpenForm", {"frmMain", "0", "", "", "-1", "0"}),
                                              row("MsgBox", {"Ready", "-1", "4", "Start"})}),
      lines(R"(Option Compare Database
Option Explicit

'------------------------------------------------------------
' AutoExec
'
'------------------------------------------------------------
Function AutoExec()
On Error GoTo AutoExec_Err

    DoCmd.Hourglass True
    DoCmd.OpenForm "frmMain", acNormal, "", "", , acNormal
    Beep
    MsgBox "Ready", vbInformation, "Start"


AutoExec_Exit:
    Exit Function

AutoExec_Err:
    MsgBox Error$
    Resume AutoExec_Exit

End Function
)"));
}

TEST(MacroModule, MacroWithoutRowsIsAnEmptyFunction) {
  EXPECT_EQ(macroModuleText("M", {}), moduleWith(""));
}

TEST(MacroModule, GroupMakesOneFunctionAMacroName) {
  EXPECT_EQ(macroModuleText("Order Menu",
                            std::vector{named("Open", row("Beep")), row("Maximize"), MacroAction(),
                                        named("Close It", row("Close")), commented("done")}),
            lines(R"(Option Compare Database
Option Explicit

'------------------------------------------------------------
' Order_Menu_Open
'
'------------------------------------------------------------
Function Order_Menu_Open()
On Error GoTo Order_Menu_Open_Err

    Beep
    DoCmd.Maximize


Order_Menu_Open_Exit:
    Exit Function

Order_Menu_Open_Err:
    MsgBox Error$
    Resume Order_Menu_Open_Exit

End Function

'------------------------------------------------------------
' Order_Menu_Close_It
'
'------------------------------------------------------------
Function Order_Menu_Close_It()
On Error GoTo Order_Menu_Close_It_Err

    DoCmd.Close , ""
    ' done


Order_Menu_Close_It_Exit:
    Exit Function

Order_Menu_Close_It_Err:
    MsgBox Error$
    Resume Order_Menu_Close_It_Exit

End Function
)"));
}

TEST(MacroModule, RowsBeforeTheFirstNameOfAGroupHaveTheMacrosOwnName) {
  const std::string module =
      macroModuleText("Menu", std::vector{row("Beep"), named("Open", row("Maximize"))});
  EXPECT_TRUE(holds(module, "Function Menu()\r\n"));
  EXPECT_TRUE(holds(module, "Function Menu_Open()\r\n"));
  EXPECT_EQ(count(module, "End Function\r\n"), 2u);
}

TEST(MacroModule, EmptyRowsBeforeTheFirstNameMakeNoFunction) {
  const std::string module =
      macroModuleText("Menu", std::vector{MacroAction(), named("Open", row("Maximize"))});
  EXPECT_FALSE(holds(module, "Function Menu()"));
  EXPECT_EQ(count(module, "End Function\r\n"), 1u);
}

TEST(MacroModule, ConditionIsABlockOfItsOwnRow) {
  EXPECT_EQ(macroModuleText(
                "M", std::vector{when("Forms!Orders!Total>100", row("Beep")), row("Maximize")}),
            moduleWith("    If (Forms!Orders!Total > 100) Then\n"
                       "        Beep\n"
                       "    End If\n"
                       "    DoCmd.Maximize\n"));
}

TEST(MacroModule, EllipsisContinuesTheBlock) {
  EXPECT_EQ(macroModuleText(
                "M", std::vector{when("[MacroError]<>0", row("Beep")), when("...", row("Maximize")),
                                 when(" ... ", row("StopMacro")), row("Minimize")}),
            moduleWith("    If (MacroError <> 0) Then\n"
                       "        Beep\n"
                       "        DoCmd.Maximize\n"
                       "        Exit Function\n"
                       "    End If\n"
                       "    DoCmd.Minimize\n"));
}

TEST(MacroModule, EveryNewConditionEndsTheBlockBefore) {
  EXPECT_EQ(macroModuleText("M", std::vector{when("1=1", row("Beep")), when("2=2", row("Maximize")),
                                             when("...", row("Minimize"))}),
            moduleWith("    If (1 = 1) Then\n"
                       "        Beep\n"
                       "    End If\n"
                       "    If (2 = 2) Then\n"
                       "        DoCmd.Maximize\n"
                       "        DoCmd.Minimize\n"
                       "    End If\n"));
}

TEST(MacroModule, NestedConditionKeepsItsBrackets) {
  EXPECT_EQ(macroModuleText(
                "M", std::vector{when("((1=1 Or (2=2)) And Not IsNull(Forms!A!B))", row("Beep"))}),
            moduleWith("    If (((1 = 1 Or (2 = 2)) And Not IsNull(Forms!A!B))) Then\n"
                       "        Beep\n"
                       "    End If\n"));
}

TEST(MacroModule, ConditionWithoutActionHoldsForTheRowsBelow) {
  EXPECT_EQ(macroModuleText("M", std::vector{when("1=1", MacroAction()), when("...", row("Beep"))}),
            moduleWith("    If (1 = 1) Then\n"
                       "        Beep\n"
                       "    End If\n"));
}

TEST(MacroModule, EllipsisWithoutAConditionAboveIsUnconditional) {
  EXPECT_EQ(macroModuleText("M", std::vector{when("...", row("Beep")), row("Maximize"),
                                             when("...", row("Minimize"))}),
            moduleWith("    Beep\n"
                       "    DoCmd.Maximize\n"
                       "    DoCmd.Minimize\n"));
}

TEST(MacroModule, EllipsisOfTheNextMacroOfAGroupKnowsNoConditionOfTheOneBefore) {
  const std::string module = macroModuleText(
      "G",
      std::vector{named("A", when("1=1", row("Beep"))), named("B", when("...", row("Maximize")))});
  EXPECT_EQ(count(module, "    If (1 = 1) Then\r\n        Beep\r\n    End If\r\n"), 1u);
  EXPECT_TRUE(holds(module, "On Error GoTo G_B_Err\r\n\r\n    DoCmd.Maximize\r\n"));
}

TEST(MacroModule, ConditionThatIsNoExpressionIsLeftToAccess) {
  EXPECT_EQ(macroModuleText("M", std::vector{when("[A] Is Null) Or (\"", row("Beep"))}),
            moduleWith("    If (Eval(\"[A] Is Null) Or (\"\"\")) Then\n"
                       "        Beep\n"
                       "    End If\n"));
}

TEST(MacroModule, NamesOfTheFormAtHandStandInWith) {
  EXPECT_EQ(macroModuleText("M", std::vector{when("[Country]=\"UK\"", row("Beep")),
                                             row("SetValue", {"[Ship Date]", "Date()"})}),
            moduleWith("    With CodeContextObject\n"
                       "        If (.Country = \"UK\") Then\n"
                       "            Beep\n"
                       "        End If\n"
                       "        .[Ship Date] = Date()\n"
                       "    End With\n"));
}

TEST(MacroModule, CommentsStandBeforeTheirAction) {
  EXPECT_EQ(
      macroModuleText("M", std::vector{commented("First of all."), commented("Ring.", row("Beep")),
                                       when("1=1", commented("Only then.", row("Maximize"))),
                                       commented("Still then."), when("...", row("Minimize")),
                                       commented("At the end."), row("Restore")}),
      moduleWith("    ' First of all.\n"
                 "    ' Ring.\n"
                 "    Beep\n"
                 "    If (1 = 1) Then\n"
                 "        ' Only then.\n"
                 "        DoCmd.Maximize\n"
                 "        ' Still then.\n"
                 "        DoCmd.Minimize\n"
                 "    End If\n"
                 "    ' At the end.\n"
                 "    DoCmd.Restore\n"));
}

TEST(MacroModule, CommentOfSeveralLinesStaysAComment) {
  EXPECT_EQ(macroModuleText("M", std::vector{commented("one\r\ntwo\nthree _", row("Beep"))}),
            moduleWith("    ' one\n"
                       "    ' two\n"
                       "    ' three _'\n"
                       "    Beep\n"));
}

TEST(MacroModule, CommentThatEndsInUnderscoreAndBlanksDrawsNothingIn) {
  EXPECT_EQ(macroModuleText("M", std::vector{commented("_  ", row("Beep"))}),
            moduleWith("    ' _'\n"
                       "    Beep\n"));
}

TEST(MacroModule, UnknownActionIsAComment) {
  EXPECT_EQ(macroModuleText("M", std::vector{row("SetTempVar", {"a", "say \"x\""}), row("Beep"),
                                             when("1=1", row("Fly"))}),
            moduleWith("    ' SetTempVar \"a\", \"say \"\"x\"\"\"\n"
                       "    Beep\n"
                       "    If (1 = 1) Then\n"
                       "        ' Fly\n"
                       "    End If\n"));
}

TEST(MacroModule, NameThatIsNoIdentifierBecomesOne) {
  const auto functionOf = [](std::string_view macro) {
    const std::string module = macroModuleText(macro, {});
    const std::size_t start = module.find("Function ") + 9;
    return module.substr(start, module.find('(') - start);
  };
  EXPECT_EQ(functionOf("Open Orders"), "Open_Orders");
  EXPECT_EQ(functionOf("a.b-c'd\"e"), "a_b_c_d_e");
  EXPECT_EQ(functionOf("2nd Quarter"), "x2nd_Quarter");
  EXPECT_EQ(functionOf("_hidden"), "x_hidden");
  EXPECT_EQ(functionOf(""), "x");
  EXPECT_EQ(functionOf("Print"), "Print_");
  EXPECT_EQ(functionOf("next"), "next_");
  EXPECT_EQ(functionOf("MsgBox"), "MsgBox_");
  EXPECT_EQ(functionOf("M\xFCller"), "M\xFCller");  // a Western letter
  EXPECT_EQ(functionOf("a\xD7"
                       "b"),
            "a_b");  // the sign of multiplication
  EXPECT_EQ(functionOf(std::string(300, 'm')), std::string(200, 'm'));
}

TEST(MacroModule, NamesThatMeetInOneAreNumbered) {
  const std::string module =
      macroModuleText("G", std::vector{named("a b", row("Beep")), named("A_B", row("Beep")),
                                       named("a-b", row("Beep")), named("a_b2", row("Beep"))});
  for (const char* name : {"G_a_b()", "G_A_B2()", "G_a_b3()", "G_a_b22()"})
    EXPECT_EQ(count(module, "Function " + std::string(name) + "\r\n"), 1u) << name;
  EXPECT_EQ(count(module, "\r\nFunction "), 4u);
  EXPECT_TRUE(holds(module, "On Error GoTo G_a_b3_Err\r\n"));
  EXPECT_TRUE(holds(module, "\r\nG_a_b3_Err:\r\n"));
  EXPECT_TRUE(holds(module, "    Resume G_a_b3_Exit\r\n"));
}

TEST(MacroModule, MacroThatCallsAFunctionOfItsNameDoesNotCallItself) {
  const std::string module =
      macroModuleText("AutoExec", std::vector{row("RunCode", {"AutoExec(\"now\")"})});
  EXPECT_TRUE(holds(module, "Function AutoExec2()\r\n"));
  EXPECT_TRUE(holds(module, "    Call AutoExec(\"now\")\r\n"));
}

TEST(MacroModule, LongStatementGoesOnBetweenItsArguments) {
  const std::string a(250, 'a'), b(250, 'b'), c(250, 'c'), d(250, 'd'), e(250, 'e');
  EXPECT_EQ(
      macroModuleText("M", std::vector{row("SendObject", {"3", "rpt", a, b, c, d, e})}),
      moduleWith("    DoCmd.SendObject acSendReport, \"rpt\", \"" + a + "\", \"" + b + "\", \"" +
                 c + "\", _\n        \"" + d + "\", \"" + e + "\", \"\", , \"\"\n"));
}

TEST(MacroModule, LongTextGoesOnInsideWithoutCuttingADoubledQuote) {
  // 4 + 13 characters stand before the text, so that the second line takes 1,023 - 8 - 1 of it.
  std::string sql;
  for (int i = 0; i < 700; ++i) sql += "x\"";
  const std::string module = macroModuleText("M", std::vector{row("RunSQL", {sql, "-1"})});
  std::size_t longest = 0;
  std::string joined;
  std::string_view rest = module;
  while (!rest.empty()) {
    const std::size_t end = rest.find("\r\n");
    const std::string_view line = rest.substr(0, end);
    longest = std::max(longest, line.size());
    joined += line;
    rest.remove_prefix(end + 2);
  }
  EXPECT_LE(longest, 1023u);
  EXPECT_GT(longest, 1000u);
  // Taken together again, the pieces are the text.
  for (const std::string_view cut : {"\" & _        \"", " _        "})
    for (std::size_t at = joined.find(cut); at != std::string::npos; at = joined.find(cut))
      joined.replace(at, cut.size(), cut.front() == '"' ? "" : " ");
  std::string doubled;
  for (const char character : sql) doubled += character == '"' ? "\"\"" : std::string(1, character);
  EXPECT_TRUE(holds(joined, "    DoCmd.RunSQL \"" + doubled + "\", -1")) << module;
}

TEST(MacroModule, StatementBeyondAnyBreakingIsAComment) {
  const std::string module =
      macroModuleText("M", std::vector{row("RunSQL", {std::string(40'000, 'x'), "-1"})});
  EXPECT_FALSE(holds(module, "\r\n    DoCmd"));
  EXPECT_TRUE(holds(module, "\r\n    ' DoCmd.RunSQL \"xxx"));
  EXPECT_EQ(count(module, "\r\n    ' "), 40u);
}

TEST(MacroModule, ThousandActionsAreThousandStatements) {
  std::vector<MacroAction> rows;
  for (int i = 0; i < 1000; ++i)
    rows.push_back(row("OpenForm", {"frm" + std::to_string(i), "0", "", "", "-1", "0"}));
  const std::string module = macroModuleText("M", rows);
  EXPECT_EQ(count(module, "    DoCmd.OpenForm \"frm"), 1000u);
  EXPECT_TRUE(
      holds(module,
            "    DoCmd.OpenForm \"frm999\", acNormal, \"\", \"\", , acNormal\r\n\r\n\r\nM_Exit:"));
}

TEST(MacroModule, HundredThousandMacrosOfOneNameTakeLinearTime) {
  const std::vector<MacroAction> rows(100'000, named("same", row("Beep")));
  const std::string module = macroModuleText("G", rows);
  EXPECT_EQ(count(module, "\r\nEnd Function\r\n"), rows.size());
  EXPECT_TRUE(holds(module, "\r\nFunction G_same100000()\r\n"));
}

}  // namespace
}  // namespace tarrowin
