// Texts as numbers in every form that Visual Basic accepts, and doubles as text.
#include "shared/number_text.h"

#include <limits>

#include <gtest/gtest.h>

#include "shared/expect_error.h"
#include "shared/vb_text.h"

namespace tarrowin {
namespace {

TEST(CDbl, PlainForms) {
  EXPECT_EQ(CDbl("0"), 0);
  EXPECT_EQ(CDbl("  42 "), 42);
  EXPECT_EQ(CDbl("\t42"), 42);
  EXPECT_EQ(CDbl(".5"), 0.5);
  EXPECT_EQ(CDbl("5."), 5);
  EXPECT_EQ(CDbl("-1.25"), -1.25);
  EXPECT_EQ(CDbl("+7"), 7);
  EXPECT_EQ(CDbl("- 7"), -7);
}

TEST(CDbl, Exponents) {
  EXPECT_EQ(CDbl("1e3"), 1000);
  EXPECT_EQ(CDbl("1E+3"), 1000);
  EXPECT_EQ(CDbl("25D-1"), 2.5);
}

TEST(CDbl, SignBehindAndParentheses) {
  EXPECT_EQ(CDbl("5-"), -5);
  EXPECT_EQ(CDbl("5 +"), 5);
  EXPECT_EQ(CDbl("(5)"), -5);
  EXPECT_EQ(CDbl("( 1,000.5 )"), -1000.5);
}

TEST(CDbl, CurrencyAndGroups) {
  EXPECT_EQ(CDbl("$5"), 5);
  EXPECT_EQ(CDbl("-$1,234"), -1234);
  EXPECT_EQ(CDbl("1,2,3"), 123);
}

TEST(CDbl, RefusesEverythingElse) {
  for (const char* text :
       {"",    "  ",  ".",      "-",    "abc",  "12a",   "1 2",   "1e",  "e3", "--1",
        "-1-", "(5",  "5)",     "(-5)", ",5",   "1.2.3", "1.5,0", "$$1", "&",  "&H",
        "&HG", "&O8", "&HFF ,", "1\n",  "True", "1e3.5", "0x10",  "inf", "nan"}) {
    EXPECT_RAISES(13, CDbl(text)) << text;
  }
}

TEST(CDbl, BeyondTheRange) {
  EXPECT_EQ(CDbl("1.7E308"), 1.7e308);
  EXPECT_RAISES(6, CDbl("1E309"));
  EXPECT_RAISES(6, CDbl("-1E99999999999999999999"));
  EXPECT_RAISES(6, CDbl(std::string(400, '9')));
  EXPECT_EQ(CDbl("1E-400"), 0);
  EXPECT_EQ(CDbl("1E-99999999999999999999"), 0);
  EXPECT_EQ(CDbl("0E99999"), 0);
  EXPECT_EQ(CDbl("0." + std::string(400, '0') + "1"), 0);
}

TEST(CLng, Base16And8) {
  EXPECT_EQ(CLng("&HFF"), 255);
  EXPECT_EQ(CLng("&hff"), 255);
  EXPECT_EQ(CLng("&O17"), 15);
  EXPECT_EQ(CLng("&17"), 15);
  EXPECT_EQ(CLng("&HFFFF"), 65535);
  EXPECT_EQ(CLng("&HFFFFFFFF"), -1);
  EXPECT_RAISES(6, CLng("&H100000000"));
  EXPECT_RAISES(6, CLng("&HFFFFFFFFFFFFFFFFF"));
}

TEST(CInt, Base16WrapsAtSixteenBits) {
  EXPECT_EQ(CInt("&HFFFF"), -1);
  EXPECT_EQ(CInt("&H7FFF"), 32767);
  EXPECT_RAISES(6, CInt("&H10000"));
}

TEST(CInt, RoundsHalfToEvenAndOverflows) {
  EXPECT_EQ(CInt("2.5"), 2);
  EXPECT_EQ(CInt("3.5"), 4);
  EXPECT_RAISES(6, CInt("32768"));
  EXPECT_RAISES(6, CLng("3000000000"));
  EXPECT_RAISES(13, CInt("x"));
}

TEST(Val, ReadsTheStartOfTheText) {
  EXPECT_EQ(Val(" 12 34th Street"), 1234);
  EXPECT_EQ(Val("08.50"), 8.5);
  EXPECT_EQ(Val("-3.5e2x"), -350);
  EXPECT_EQ(Val("1,234"), 1);
  EXPECT_EQ(Val("$5"), 0);
  EXPECT_EQ(Val(""), 0);
  EXPECT_EQ(Val("abc"), 0);
  EXPECT_EQ(Val("1e"), 1);
}

TEST(Val, Base16AndItsSixteenBitOddity) {
  EXPECT_EQ(Val("&HFF"), 255);
  EXPECT_EQ(Val("&HFFFF"), -1);
  EXPECT_EQ(Val("&HFFFF&"), 65535);
  EXPECT_EQ(Val("&O17"), 15);
  EXPECT_EQ(Val("&"), 0);
  EXPECT_EQ(Val("&HZ"), 0);
}

TEST(DoubleText, FifteenSignificantDigits) {
  EXPECT_EQ(doubleText(0.1 + 0.2), "0.3");
  EXPECT_EQ(doubleText(1.0 / 3), "0.333333333333333");
  EXPECT_EQ(doubleText(2.0 / 3), "0.666666666666667");
  EXPECT_EQ(doubleText(1000), "1000");
  EXPECT_EQ(doubleText(-2.50), "-2.5");
}

TEST(DoubleText, ExponentForm) {
  EXPECT_EQ(doubleText(1e20), "1E+20");
  EXPECT_EQ(doubleText(999999999999999), "999999999999999");
  EXPECT_EQ(doubleText(1e15), "1E+15");
  EXPECT_EQ(doubleText(0.0001), "0.0001");
  EXPECT_EQ(doubleText(0.00001), "1E-05");
  EXPECT_EQ(doubleText(-1.5e100), "-1.5E+100");
}

TEST(DoubleText, NegativeZeroAndNoNumbers) {
  EXPECT_EQ(doubleText(-0.0), "0");
  EXPECT_EQ(doubleText(std::numeric_limits<double>::infinity()), "1.#INF");
  EXPECT_EQ(doubleText(-std::numeric_limits<double>::infinity()), "-1.#INF");
}

TEST(DoubleText, ReadsBackThroughParseNumber) {
  for (double value = 1e-300; value < 1e300; value *= 7.77) {
    const auto number = parseNumber(doubleText(value));
    ASSERT_TRUE(number);
    EXPECT_NEAR(number->value / value, 1, 1e-14);
  }
}

}  // namespace
}  // namespace tarrowin
