// Expressions of Access, and what is left to Access.
#include "access/macro/vb_expression.h"

#include <gtest/gtest.h>

namespace tarrowin {
namespace {

using Form = VbExpression::Form;

std::string converted(std::string_view expression) { return vbExpression(expression).text; }

TEST(VbExpressionTest, OperatorsStandBetweenBlanks) {
  EXPECT_EQ(converted("1+2*3-4/5\\6^7 & 8"), "1 + 2 * 3 - 4 / 5 \\ 6 ^ 7 & 8");
  EXPECT_EQ(converted("1<2 and 2>=2 OR not 3<>4"), "1 < 2 And 2 >= 2 Or Not 3 <> 4");
  EXPECT_EQ(converted("5 mod 3 = 2 Xor -1=+1"), "5 Mod 3 = 2 Xor -1 = +1");
}

TEST(VbExpressionTest, LeadingEqualsSignFallsAway) { EXPECT_EQ(converted(" =1+1"), "1 + 1"); }

TEST(VbExpressionTest, BracketsStayWhereANameNeedsThem) {
  EXPECT_EQ(converted("[Forms]![Orders]![Ship Date]"), "Forms!Orders![Ship Date]");
  EXPECT_EQ(converted("Forms![Orders].[Date]"), "Forms!Orders.[Date]");
  EXPECT_EQ(converted("Forms!A!B.Form!C.Column(1)"), "Forms!A!B.Form!C.Column(1)");
}

TEST(VbExpressionTest, NameOfTheFormAtHandGetsADot) {
  const VbExpression name = vbExpression("[Total Sum]");
  EXPECT_EQ(name.text, ".[Total Sum]");
  EXPECT_TRUE(name.usesContext);
  EXPECT_EQ(name.form, Form::kTarget);
  EXPECT_EQ(converted("Total>5"), ".Total > 5");
  EXPECT_EQ(converted("[Form]![Lines].[Form]![A]"), ".Form!Lines.Form!A");
  EXPECT_FALSE(vbExpression("Forms!A!B").usesContext);
}

TEST(VbExpressionTest, WordsWithAMeaningOfTheirOwnStayBare) {
  EXPECT_EQ(converted("Yes=True"), "True = True");
  EXPECT_EQ(converted("date()-Now"), "Date() - Now");
  EXPECT_EQ(converted("[MacroError]<>0"), "MacroError <> 0");
  EXPECT_EQ(converted("MsgBox(\"Go on?\",vbYesNo)=vbYes"), "MsgBox(\"Go on?\", vbYesNo) = vbYes");
}

TEST(VbExpressionTest, TextsHaveDoubleQuotes) {
  EXPECT_EQ(converted("'it is \"so\"'"), R"("it is ""so""")");
  EXPECT_EQ(converted("\"a \"\"b\"\"\""), R"("a ""b""")");
  EXPECT_EQ(converted("'it''s'"), "\"it's\"");
}

TEST(VbExpressionTest, DatesThatEveryYearHasStay) {
  EXPECT_EQ(converted("[D]>#12/31/1999#"), ".D > #12/31/1999#");
  EXPECT_EQ(converted("#2/30/1999#"), "Eval(\"#2/30/1999#\")");
  EXPECT_EQ(converted("#today#"), "Eval(\"#today#\")");
}

TEST(VbExpressionTest, ArgumentsMayBeLeftOut) {
  EXPECT_EQ(converted("Choose(1,,\"a\")"), "Choose(1, , \"a\")");
  EXPECT_EQ(converted("Now( )"), "Now()");
}

TEST(VbExpressionTest, CalledFunctionsAreTold) {
  const VbExpression call = vbExpression("Outer(Inner(1),Forms(\"A\").X)");
  EXPECT_EQ(call.form, Form::kCall);
  EXPECT_EQ(call.called, (std::vector<std::string>{"Outer", "Inner"}));
}

TEST(VbExpressionTest, FormTellsTargetsAndCallsFromValues) {
  EXPECT_EQ(vbExpression("Forms!A!B").form, Form::kTarget);
  EXPECT_EQ(vbExpression("f(1)").form, Form::kCall);
  for (const char* value :
       {"f(1).x(2)", "f(1)+1", "-f(1)", "(f(1))", "1", "\"a\"", "-[A]", "([A])", "[A]=1", "True"})
    EXPECT_EQ(vbExpression(value).form, Form::kValue) << value;
}

TEST(VbExpressionTest, WhatVisualBasicCannotSayIsLeftToAccess) {
  EXPECT_EQ(converted("[A] Is Not Null"), "Eval(\"[A] Is Not Null\")");
  EXPECT_EQ(converted("[A] Between 1 And 2"), "Eval(\"[A] Between 1 And 2\")");
  EXPECT_EQ(converted("[A] In ('x',\"y\")"), "Eval(\"[A] In ('x',\"\"y\"\")\")");
  EXPECT_FALSE(vbExpression("[A] Is Null").usesContext);
  EXPECT_EQ(vbExpression("[A] Is Null").form, Form::kEval);
}

TEST(VbExpressionTest, DamagedExpressionIsLeftToAccess) {
  for (const std::string text :
       {"",     "1+",        "(1",    "1)",  "[A",    "A]",  "f(1", "f(1,", "1 2",
        "a b",  "#1/1/2000", "1:End", "1'x", "a=b=",  "!A",  "2nd", "1..2", "Print(1)",
        "Then", "A!",        "A!!B",  "[]",  "f(1))", "{1}", "1;2"})
    EXPECT_EQ(converted(text), "Eval(\"" + text + "\")");
  EXPECT_EQ(converted("\"a"), "Eval(\"\"\"a\")");
  EXPECT_EQ(converted("1\r\n2"), "Eval(\"1\" & vbCrLf & \"2\")");
}

TEST(VbExpressionTest, DeeplyNestedExpressionIsLeftToAccess) {
  const auto nested = [](std::size_t depth) {
    return std::string(depth, '(') + "1" + std::string(depth, ')');
  };
  EXPECT_EQ(converted(nested(40)), nested(40));
  EXPECT_EQ(converted(nested(100'000)), "Eval(\"" + nested(100'000) + "\")");
  EXPECT_EQ(converted(std::string(100'000, '-') + "1"), std::string(100'000, '-') + "1");
}

}  // namespace
}  // namespace tarrowin
