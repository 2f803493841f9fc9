// The code page tables and the handling of what they lack.
#include "shared/code_page.h"

#include <stdexcept>

#include <gtest/gtest.h>

namespace tarrowin {
namespace {

std::string allBytes() {
  std::string text;
  for (int code = 0; code < 256; ++code) text += static_cast<char>(code);
  return text;
}

TEST(CodePage, WesternCharacters) {
  const CodePage page;
  EXPECT_EQ(page.number(), 1252);
  EXPECT_EQ(page.toUtf8("caf\xE9 \x80 \x91\x92"), "caf\u00E9 \u20AC \u2018\u2019");
  EXPECT_EQ(page.fromUtf8("caf\u00E9 \u20AC \u2018\u2019"), "caf\xE9 \x80 \x91\x92");
}

TEST(CodePage, PlainAsciiAndEmpty) {
  const CodePage page;
  EXPECT_EQ(page.fromUtf8(""), "");
  EXPECT_EQ(page.toUtf8(""), "");
  const std::string text("SELECT *\r\n\0x\x7F", 13);
  EXPECT_EQ(page.fromUtf8(text), text);
  EXPECT_EQ(page.toUtf8(text), text);
}

TEST(CodePage, MissingCharacterBecomesAQuestionMark) {
  const CodePage page;
  EXPECT_EQ(page.fromUtf8("a\u4E2D\U0001F600\u0416z"), "a???z");
}

TEST(CodePage, UndefinedBytesPassAsControlCharacters) {
  const CodePage page;
  EXPECT_EQ(page.toUtf8("\x81"), "\xC2\x81");
  EXPECT_EQ(page.fromUtf8("\xC2\x81"), "\x81");
}

TEST(CodePage, EveryByteOfEveryPageComesBack) {
  for (const int number :
       {1250, 1251, 1252, 1253, 1254, 1255, 1256, 1257, 1258, 874, 437, 850, 852, 857, 866}) {
    const CodePage page(number);
    EXPECT_EQ(page.fromUtf8(page.toUtf8(allBytes())), allBytes()) << number;
  }
}

TEST(CodePage, CyrillicDiffersFromWestern) {
  EXPECT_EQ(CodePage(1251).toUtf8("\xC6"), "\u0416");
  EXPECT_EQ(CodePage(1252).toUtf8("\xC6"), "\u00C6");
}

TEST(CodePage, MalformedUtf8IsOneQuestionMarkASequence) {
  const CodePage page;
  EXPECT_EQ(page.fromUtf8("a\x80z"), "a?z");                  // lone continuation
  EXPECT_EQ(page.fromUtf8("a\xE2\x82z"), "a?z");              // cut off by another character
  EXPECT_EQ(page.fromUtf8("a\xE2\x82"), "a?");                // cut off by the end
  EXPECT_EQ(page.fromUtf8("\xC0\xAF"), "??");                 // overlong
  EXPECT_EQ(page.fromUtf8("\xE0\x80\x80"), "???");            // overlong
  EXPECT_EQ(page.fromUtf8("\xED\xA0\x80"), "???");            // surrogate
  EXPECT_EQ(page.fromUtf8("\xF4\x90\x80\x80"), "????");       // beyond the last character
  EXPECT_EQ(page.fromUtf8("\xF5\xFF"), "??");                 // never a lead byte
  EXPECT_EQ(page.fromUtf8("\xF0\x9F\x98\xC3\xA9"), "?\xE9");  // the next lead is not swallowed
}

TEST(CodePage, Utf8PassesUnchangedEvenWhenMalformed) {
  const CodePage page(CodePage::kUtf8);
  EXPECT_EQ(page.number(), 65001);
  EXPECT_EQ(page.fromUtf8("\u4E2D\x80"), "\u4E2D\x80");
  EXPECT_EQ(page.toUtf8(allBytes()), allBytes());
}

TEST(CodePage, UnknownAndMultiBytePagesAreRefused) {
  for (const int number : {-1, 0, 1, 932, 936, 949, 950, 1200, 65000, 37}) {
    EXPECT_THROW(CodePage{number}, std::invalid_argument) << number;
  }
}

}  // namespace
}  // namespace tarrowin
