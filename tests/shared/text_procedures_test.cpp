// The shared text procedures, edge by edge and against plain transcriptions of their rules.
#include "shared/text_procedures.h"

#include <random>
#include <vector>

#include <gtest/gtest.h>

#include "shared/expect_error.h"
#include "shared/vb_text.h"

namespace tarrowin {
namespace {

std::string name(std::string text) { return MakeVBName(std::move(text)); }

TEST(MakeVBName, SecondQuarterStartsWithADigit) { EXPECT_EQ(name("2nd Quarter"), "xnd_Quarter"); }

TEST(MakeVBName, SalesWithDashBlankAndParentheses) {
  EXPECT_EQ(name("Sales-Q1 (old)"), "Sales_Q1__old_");
}

TEST(MakeVBName, YearSalesAndBigOrders) {
  EXPECT_EQ(name("2005 Sales"), "x005_Sales");
  EXPECT_EQ(name("Big Orders"), "Big_Orders");
}

TEST(MakeVBName, ChangesItsArgumentInPlaceAndReturnsIt) {
  std::string text = " a.b ";
  const std::string& result = MakeVBName(text);
  EXPECT_EQ(text, "a_b");
  EXPECT_EQ(&result, &text);
}

TEST(MakeVBName, CutToFortyCharactersBeforeReplacement) {
  EXPECT_EQ(name(std::string(41, 'a')), std::string(40, 'a'));
  EXPECT_EQ(name(std::string(39, 'a') + " b"), std::string(39, 'a') + "_");
}

TEST(MakeVBName, TrimmedBeforeTheCut) {
  EXPECT_EQ(name("  " + std::string(40, 'b') + "  "), std::string(40, 'b'));
}

TEST(MakeVBName, BordersOfTheCodeRanges) {
  EXPECT_EQ(name("a/09:@AZ[`az{"), "a_09__AZ__az_");
  EXPECT_EQ(name("a\xBF\xC0\xFF"), "a_\xC0\xFF");  // 191, 192, 255
}

TEST(MakeVBName, FirstCharacterThatIsNoLetter) {
  EXPECT_EQ(name("_a"), "xa");
  EXPECT_EQ(name("-a"), "xa");
  EXPECT_EQ(name("\xBF"), "x");
  EXPECT_EQ(name("9"), "x");
}

TEST(MakeVBName, AccentedFirstLetterStays) {
  EXPECT_EQ(name("\xDC"
                 "bersicht"),
            "\xDC"
            "bersicht");
}

TEST(MakeVBName, EmptyAndBlankNamesStayEmpty) {
  EXPECT_EQ(name(""), "");
  EXPECT_EQ(name("   "), "");
}

TEST(MakeVBName, TabIsNotTrimmed) { EXPECT_EQ(name("\ta\t"), "xa_"); }

TEST(RemoveControlChars, BordersOfTheRanges) {
  EXPECT_EQ(RemoveControlChars(std::string("\x1F\x20\x21")), "  !");
  EXPECT_EQ(RemoveControlChars(std::string("\x7E\x7F\x80")), "~  ");
  EXPECT_EQ(RemoveControlChars(std::string("\x90\x91\x92\x93")), " \x91\x92 ");
  EXPECT_EQ(RemoveControlChars(std::string("\x9F\xA0\xFF")), " \xA0\xFF");
}

TEST(RemoveControlChars, NulCharacterAndLength) {
  EXPECT_EQ(RemoveControlChars(std::string("a\0b", 3)), "a b");
  EXPECT_EQ(RemoveControlChars(std::string()), "");
}

TEST(RemoveLineBreaks, PairBecomesTwoBlanks) {
  EXPECT_EQ(RemoveLineBreaks(std::string("SELECT *\r\nFROM T;\r\n")), "SELECT *  FROM T;  ");
}

TEST(RemoveLineBreaks, LoneHalvesBecomeOneBlank) {
  EXPECT_EQ(RemoveLineBreaks(std::string("a\nb\rc\n\rd")), "a b c  d");
}

TEST(DoubleToSingleQuotes, EveryQuote) {
  std::string text = "\"a\" = \"\"";
  EXPECT_EQ(&DoubleToSingleQuotes(text), &text);
  EXPECT_EQ(text, "'a' = ''");
}

TEST(CleanText, BlanksStayAsTheyAre) {
  EXPECT_EQ(CleanText(std::string("   ")), "   ");
  EXPECT_EQ(CleanText(std::string()), "");
}

TEST(CleanText, TabAloneIsCleaned) { EXPECT_EQ(CleanText(std::string(" \t")), "  "); }

TEST(CleanText, ControlCharactersAndQuotes) {
  EXPECT_EQ(CleanText(std::string(" a\r\n\"b\" ")), " a  'b' ");
}

TEST(ReplaceFirst, OnlyTheFirstOccurrence) {
  std::string line = "Me!a!b";
  EXPECT_EQ(ReplaceFirst(line, "!", "."), "Me.a!b");
  EXPECT_EQ(line, "Me.a!b");
}

TEST(ReplaceFirst, MissingFindGivesEmptyResultAndKeepsTheText) {
  std::string line = "Me.a";
  EXPECT_EQ(ReplaceFirst(line, "!", "."), "");
  EXPECT_EQ(line, "Me.a");
}

TEST(ReplaceFirst, EmptyTextAndEmptyFind) {
  std::string empty;
  EXPECT_EQ(ReplaceFirst(empty, "", "x"), "");
  EXPECT_EQ(empty, "");
  std::string line = "ab";
  EXPECT_EQ(ReplaceFirst(line, "", "x"), "xab");
}

TEST(ExtractSetVariable, BetweenSetAndTheEqualSign) {
  EXPECT_EQ(ExtractSetVariable("Set db = CurrentDb"), "db");
  EXPECT_EQ(ExtractSetVariable("    Set dbsNorth = CurrentDb()"), "dbsNorth");
}

TEST(ExtractSetVariable, ExactlyOneBlankIsAssumed) {
  EXPECT_EQ(ExtractSetVariable("Set db= CurrentDb"), "d");
  EXPECT_EQ(ExtractSetVariable("Set db  = CurrentDb"), "db ");
}

TEST(ExtractSetVariable, WithoutSetTheCutStartsAtFour) {
  EXPECT_EQ(ExtractSetVariable("   db = CurrentDb"), "db");
}

TEST(ExtractSetVariable, EqualSignMissingOrTooEarlyRaises) {
  EXPECT_RAISES(5, ExtractSetVariable("Set db"));
  EXPECT_RAISES(5, ExtractSetVariable("x = 1: Set db"));
  EXPECT_RAISES(5, ExtractSetVariable(""));
}

TEST(FirstQuotedText, FirstPairOrNothing) {
  EXPECT_EQ(FirstQuotedText("DoCmd.OpenForm \"Orders\", , \"x\""), "Orders");
  EXPECT_EQ(FirstQuotedText("a \"\" b"), "");
  EXPECT_EQ(FirstQuotedText("one \" only"), "");
  EXPECT_EQ(FirstQuotedText("none"), "");
}

TEST(FormatSeconds, FiftyOneQueries) { EXPECT_EQ(FormatSeconds(593), "00:09:53 seconds"); }

TEST(FormatSeconds, HoursFromThreeThousandSixHundredOn) {
  EXPECT_EQ(FormatSeconds(0), "00:00:00 seconds");
  EXPECT_EQ(FormatSeconds(3599), "00:59:59 seconds");
  EXPECT_EQ(FormatSeconds(3600), "01:00:00 seconds");
  EXPECT_EQ(FormatSeconds(32763), "09:06:03 seconds");
}

TEST(MaxOfArray, LargestAndEmpty) {
  EXPECT_EQ(MaxOfArray(std::vector<std::int16_t>{3, 9, -1}), 9);
  EXPECT_EQ(MaxOfArray(std::vector<std::int16_t>{-5, -7}), -5);
  EXPECT_RAISES(9, MaxOfArray({}));
}

// The rule of names, written down character by character as it is told.
std::string plainVBName(const std::string& text) {
  const std::string cut = Left(Trim(text), 40);
  std::string result;
  for (std::int32_t position = 1; position <= static_cast<std::int32_t>(cut.size()); ++position) {
    const std::string character = Mid(cut, position, 1);
    const std::int32_t code = Asc(character);
    const bool digit = code >= 48 && code <= 57;
    const bool letter =
        (code >= 65 && code <= 90) || (code >= 97 && code <= 122) || (code >= 192 && code <= 255);
    if (letter || (position > 1 && (digit || code == 95))) {
      result += character;
    } else {
      result += position == 1 ? "x" : "_";
    }
  }
  return result;
}

// Pairs from the last position to the first, then the control characters.
std::string plainRemoveLineBreaks(std::string text) {
  for (std::size_t position = text.size(); position-- > 0;) {
    if (text.compare(position, 2, "\r\n") == 0) text.replace(position, 2, "  ");
  }
  for (char& character : text) {
    const int code = static_cast<unsigned char>(character);
    if (code < 32 || (code >= 127 && code <= 144) || (code >= 147 && code <= 159)) character = ' ';
  }
  return text;
}

// Texts of any bytes, with blanks and line ends more often than chance gives.
std::string randomText(std::mt19937& random) {
  std::string text(random() % 60, ' ');
  for (char& character : text) {
    const auto pick = random() % 8;
    character = pick == 0   ? ' '
                : pick == 1 ? '\r'
                : pick == 2 ? '\n'
                            : static_cast<char>(random() % 256);
  }
  return text;
}

TEST(TextProcedures, AgreeWithPlainTranscriptionsOnRandomTexts) {
  std::mt19937 random(20);
  for (int round = 0; round < 20000; ++round) {
    const std::string text = randomText(random);
    ASSERT_EQ(MakeVBName(std::string(text)), plainVBName(text));
    ASSERT_EQ(RemoveLineBreaks(std::string(text)), plainRemoveLineBreaks(text));
  }
}

}  // namespace
}  // namespace tarrowin
