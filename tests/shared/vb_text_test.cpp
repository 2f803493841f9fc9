// Visual Basic's text functions at their edges.
#include "shared/vb_text.h"

#include <gtest/gtest.h>

#include "shared/expect_error.h"

namespace tarrowin {
namespace {

TEST(InStr, PositionsAreOneBasedAndZeroMeansMissing) {
  EXPECT_EQ(InStr("SELECT * FROM T", "FROM"), 10);
  EXPECT_EQ(InStr("abc", "d"), 0);
  EXPECT_EQ(InStr("abcabc", "b"), 2);
  EXPECT_EQ(InStr(3, "abcabc", "b"), 5);
  EXPECT_EQ(InStr(5, "abcabc", "b"), 5);
}

TEST(InStr, CaseCounts) { EXPECT_EQ(InStr("from", "FROM"), 0); }

TEST(InStr, EmptyTextAndEmptyFind) {
  EXPECT_EQ(InStr("", ""), 0);
  EXPECT_EQ(InStr("", "a"), 0);
  EXPECT_EQ(InStr("abc", ""), 1);
  EXPECT_EQ(InStr(3, "abc", ""), 3);
  EXPECT_EQ(InStr(4, "abc", ""), 0);
}

TEST(InStr, StartBehindTheTextAndBelowOne) {
  EXPECT_EQ(InStr(7, "abcabc", "c"), 0);
  EXPECT_RAISES(5, InStr(0, "abc", "a"));
  EXPECT_RAISES(5, InStr(-1, "abc", "a"));
}

TEST(InStrRev, LastOccurrenceThatEndsAtStart) {
  EXPECT_EQ(InStrRev("a\\b\\c", "\\"), 4);
  EXPECT_EQ(InStrRev("a\\b\\c", "\\", 3), 2);
  EXPECT_EQ(InStrRev("abab", "ab", 3), 1);
  EXPECT_EQ(InStrRev("abab", "ab", 4), 3);
  EXPECT_EQ(InStrRev("abc", "x"), 0);
}

TEST(InStrRev, Edges) {
  EXPECT_EQ(InStrRev("", "a"), 0);
  EXPECT_EQ(InStrRev("abc", ""), 3);
  EXPECT_EQ(InStrRev("abc", "", 2), 2);
  EXPECT_EQ(InStrRev("abc", "a", 4), 0);
  EXPECT_RAISES(5, InStrRev("abc", "a", 0));
  EXPECT_RAISES(5, InStrRev("abc", "a", -2));
}

TEST(Mid, CutsWithinTheText) {
  EXPECT_EQ(Mid("abcdef", 3), "cdef");
  EXPECT_EQ(Mid("abcdef", 3, 2), "cd");
  EXPECT_EQ(Mid("abcdef", 5, 9), "ef");
  EXPECT_EQ(Mid("abcdef", 7), "");
  EXPECT_EQ(Mid("abcdef", 7, 1), "");
  EXPECT_EQ(Mid("abcdef", 2, 0), "");
}

TEST(Mid, NegativeLengthAndStartBelowOneRaise) {
  EXPECT_RAISES(5, Mid("abc", 0));
  EXPECT_RAISES(5, Mid("abc", 0, 1));
  EXPECT_RAISES(5, Mid("abc", 1, -1));
  EXPECT_RAISES(5, Mid("abc", 9, -1));
}

TEST(LeftRight, CutAndRaise) {
  EXPECT_EQ(Left("abc", 2), "ab");
  EXPECT_EQ(Left("abc", 9), "abc");
  EXPECT_EQ(Left("abc", 0), "");
  EXPECT_EQ(Right("abc", 2), "bc");
  EXPECT_EQ(Right("abc", 9), "abc");
  EXPECT_EQ(Right("abc", 0), "");
  EXPECT_RAISES(5, Left("abc", -1));
  EXPECT_RAISES(5, Right("abc", -1));
}

TEST(Trim, TakesBlanksOnly) {
  EXPECT_EQ(Trim("  a b  "), "a b");
  EXPECT_EQ(LTrim("  a  "), "a  ");
  EXPECT_EQ(RTrim("  a  "), "  a");
  EXPECT_EQ(Trim("\t a \r\n"), "\t a \r\n");
  EXPECT_EQ(Trim("\xA0"), "\xA0");
  EXPECT_EQ(Trim("   "), "");
  EXPECT_EQ(LTrim("   "), "");
  EXPECT_EQ(RTrim("   "), "");
  EXPECT_EQ(Trim(""), "");
}

TEST(Str, BlankStandsForThePlusSign) {
  EXPECT_EQ(Str(51), " 51");
  EXPECT_EQ(Str(0), " 0");
  EXPECT_EQ(Str(-3), "-3");
  EXPECT_EQ(Str(INT32_MIN), "-2147483648");
  EXPECT_EQ(LTrimStr(51), "51");
  EXPECT_EQ(LTrimStr(-3), "-3");
}

TEST(Str, DoubleHasNoZeroBeforeThePoint) {
  EXPECT_EQ(Str(0.5), " .5");
  EXPECT_EQ(Str(-0.5), "-.5");
  EXPECT_EQ(Str(10.25), " 10.25");
  EXPECT_EQ(Str(0.0), " 0");
  EXPECT_EQ(Str(1e20), " 1E+20");
  EXPECT_EQ(LTrimStr(0.5), ".5");
}

TEST(ChrAsc, WholeByteRange) {
  EXPECT_EQ(Chr(13) + Chr(10), kCrLf);
  EXPECT_EQ(Asc(Chr(255)), 255);
  EXPECT_EQ(Asc("AB"), 65);
  EXPECT_RAISES(5, Chr(256));
  EXPECT_RAISES(5, Chr(-1));
  EXPECT_RAISES(5, Asc(""));
}

TEST(CaseOfLetters, WesternLetters) {
  EXPECT_EQ(UCase("az{`@\xE0\xFE"), "AZ{`@\xC0\xDE");
  EXPECT_EQ(LCase("AZ[@\xC0\xDE"), "az[@\xE0\xFE");
}

TEST(CaseOfLetters, SignsAmongTheLettersAndSharpSStay) {
  EXPECT_EQ(UCase("\xF7\xDF\xB5"), "\xF7\xDF\xB5");
  EXPECT_EQ(LCase("\xD7\xDF"), "\xD7\xDF");
}

TEST(CaseOfLetters, LettersFarFromTheirPartner) {
  EXPECT_EQ(UCase("\x9A\x9C\x9E\xFF"), "\x8A\x8C\x8E\x9F");
  EXPECT_EQ(LCase("\x8A\x8C\x8E\x9F"), "\x9A\x9C\x9E\xFF");
}

}  // namespace
}  // namespace tarrowin
