// Exported macros, whole and damaged.
#include "access/macro/macro_text.h"

#include <algorithm>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "macro/macro_rows.h"

namespace tarrowin {
namespace {

using Rows = std::vector<MacroAction>;

Rows read(std::string_view text, const CodePage& codePage = CodePage()) {
  return readMacroText({reinterpret_cast<const std::uint8_t*>(text.data()), text.size()}, codePage);
}

// The message with which reading fails.
std::string problemOf(std::string_view text) {
  try {
    read(text);
  } catch (const MacroTextError& error) {
    EXPECT_TRUE(
        std::string(error.what()).starts_with("line " + std::to_string(error.line()) + ":"));
    return error.what();
  }
  return "none";
}

constexpr std::string_view kGroup = R"(Version =196611
ColumnsShown =8
Begin
    MacroName ="Print"
    Condition ="[x] > 1"
    Action ="OpenForm"
    Comment ="shows it"
    Argument ="frmA"
    Argument ="0"
    Argument =""
    Argument =""
    Argument ="-1"
End
Begin
End
Begin
    Condition ="..."
    Action ="Beep"
End
)";

const Rows kGroupRows{
    named("Print",
          when("[x] > 1", commented("shows it", row("OpenForm", {"frmA", "0", "", "", "-1"})))),
    MacroAction(), when("...", row("Beep"))};

TEST(MacroText, RowsOfAGroupWithEmptyOnes) { EXPECT_EQ(read(kGroup), kGroupRows); }

TEST(MacroText, LineEndsOfBothKindsAndEmptyLines) {
  EXPECT_EQ(read(lines(kGroup)), kGroupRows);
  EXPECT_EQ(read("Version =0\n\n  \r\nBegin\n\n    Action =\"Beep\"  \nEnd"), Rows{row("Beep")});
}

TEST(MacroText, MacroWithoutRows) {
  EXPECT_EQ(read("Version =196611\nColumnsShown =0\n"), Rows());
  EXPECT_EQ(read("Version =196611"), Rows());
}

TEST(MacroText, EscapedCharacters) {
  EXPECT_EQ(read(R"(Version =0
Begin
    Action ="RunCode"
    Argument ="Open(\"a\\b\")\015\012\011x\344"
End
)"),
            Rows{row("RunCode", {"Open(\"a\\b\")\r\n\tx\xE4"})});
}

TEST(MacroText, TextThatGoesOnInTheLinesBelow) {
  EXPECT_EQ(read("Version =0\nBegin\n    Comment =\"one \"\n        \"two\"\n        \" three\"\n"
                 "    Argument =\"a\"\n        \"b\"\n    Argument =\"c\"\nEnd\n"),
            Rows{commented("one two three", row("", {"ab", "c"}))});
}

TEST(MacroText, RowsThatRepeatTheMacroAsXmlAreLeftOut) {
  EXPECT_EQ(read(R"(Version =196611
ColumnsShown =0
Begin
    Action ="Beep"
    Comment ="_AXL: is what I call it"
End
Begin
    Comment ="_AXL:<?xml version=\"1.0\"?>\015\012<UserI"
        "nterfaceMacro/>"
End
)"),
            Rows{commented("_AXL: is what I call it", row("Beep"))});
}

TEST(MacroText, UnknownPropertiesArePassedOver) {
  EXPECT_EQ(read("Version =0\nPublishOption =1\nBegin\n    Color =5\n    Hidden = NotDefault\n"
                 "    Tag =\"a\"\n        \"b\"\n    Action =\"Beep\"\nEnd\n"),
            Rows{row("Beep")});
}

TEST(MacroText, Encodings) {
  const Rows umlaut{row("GoToControl", {"\xC4"})};
  const std::string_view start = "Version =0\nBegin\nAction =\"GoToControl\"\nArgument =\"";
  const std::string ansi = std::string(start) + "\xC4\"\nEnd\n";
  const std::string utf8 = std::string(start) + "\xC3\x84\"\nEnd\n";
  EXPECT_EQ(read(ansi), umlaut);
  EXPECT_EQ(read(utf8), umlaut);
  EXPECT_EQ(read("\xEF\xBB\xBF" + utf8), umlaut);
  std::string utf16 = "\xFF\xFE";
  for (const char character : ansi) (utf16 += character) += '\0';
  EXPECT_EQ(read(utf16), umlaut);
  // Cyrillic De has the same code in its page.
  EXPECT_EQ(read(std::string(start) + "\xD0\x94\"\nEnd\n", CodePage(1251)), umlaut);
  EXPECT_EQ(read(ansi, CodePage(CodePage::kUtf8)), (Rows{row("GoToControl", {"\xC3\x84"})}));
}

TEST(MacroText, MenuActionKeepsTheDocumentedOrder) {
  EXPECT_EQ(
      read("Version =0\nBegin\nAction =\"DoMenuItem\"\nArgument =\"1\"\nArgument =\"2\"\nEnd"),
      Rows{row("DoMenuItem", {"1", "2"})});
  EXPECT_EQ(
      read("Version =0\nBegin\nAction =\"DoMenuItem\"\nArgument =\"name\"\nArgument =\"cmd\"\n"
           "Argument =\"sub\"\nArgument =\"ver\"\nArgument =\"\"\nArgument =\"\"\n"
           "Argument =\"bar\"\nEnd"),
      (Rows{row("DoMenuItem", {"bar", "name", "cmd", "sub", "ver"})}));
}

TEST(MacroText, ThousandRows) {
  std::string text = "Version =0\n";
  for (int i = 0; i < 1000; ++i) text += "Begin\n    Action =\"Beep\"\nEnd\n";
  EXPECT_EQ(read(text), Rows(1000, row("Beep")));
}

TEST(MacroText, WhatIsNoMacroIsRefusedInItsFirstLine) {
  const std::string problem = "line 1: a macro begins with \"Version =\"";
  EXPECT_EQ(problemOf(""), problem);
  EXPECT_EQ(problemOf("Option Compare Database\n"), problem);
  EXPECT_EQ(problemOf("Begin\nEnd\n"), problem);
  EXPECT_EQ(problemOf(std::string("\0\0\0\0", 4)), problem);
  EXPECT_EQ(problemOf("Version =20\nBegin Form\nEnd\n"),
            "line 2: neither a property nor \"Begin\" or \"End\"");
}

TEST(MacroText, DamagedTextIsRefusedWithItsLine) {
  const auto inRow = [](std::string_view line) {
    return problemOf("Version =0\nBegin\n" + std::string(line) + "\nEnd\n");
  };
  EXPECT_EQ(inRow("Action =\"Beep"), "line 3: a text without closing quote");
  EXPECT_EQ(inRow("Action =\"Beep\\"), "line 3: an unknown character behind \"\\\"");
  EXPECT_EQ(inRow("Action =\"Beep\\\""), "line 3: a text without closing quote");
  EXPECT_EQ(inRow("Action =\"a\\n\""), "line 3: an unknown character behind \"\\\"");
  EXPECT_EQ(inRow("Action =\"a\\777\""), "line 3: an unknown character behind \"\\\"");
  EXPECT_EQ(inRow("Action =\"a\"b"), "line 3: something stands behind the closing quote");
  EXPECT_EQ(inRow("Action =Beep"), "line 3: a text in quotes is expected");
  EXPECT_EQ(inRow("Action"), "line 3: neither a property nor \"Begin\" or \"End\"");
  EXPECT_EQ(inRow("\"more\""), "line 3: neither a property nor \"Begin\" or \"End\"");
  EXPECT_EQ(inRow("Comment =\"a\"\n\"b"), "line 4: a text without closing quote");
  EXPECT_EQ(inRow("Begin"), "line 3: a row inside a row");
  EXPECT_EQ(inRow("Data = Begin"), "line 3: a block inside a row");
  EXPECT_EQ(inRow("Action =\"Beep\"\nAction =\"Close\""), "line 4: \"Action\" has two values");
  EXPECT_EQ(inRow("Action =\"Beep\"\nAction =\"Beep\""), "none");
  EXPECT_EQ(problemOf("Version =0\nBegin\nAction =\"Beep\"\n"), "line 2: a row without \"End\"");
  EXPECT_EQ(problemOf("Version =0\nBegin\nEnd\nEnd\n"), "line 4: a row begins with \"Begin\"");
  EXPECT_EQ(problemOf("Version =0\nEnd\n"), "line 2: neither a property nor \"Begin\" or \"End\"");
  EXPECT_EQ(problemOf("Version =0\nBegin\nEnd\nAction =\"Beep\"\nEnd\n"),
            "line 4: a row begins with \"Begin\"");
}

TEST(MacroText, CutAnywhereItIsRefusedUnlessARowEndsThere) {
  std::size_t most = 0;
  for (std::size_t size = 0; size < kGroup.size(); ++size) {
    const std::string_view cut = kGroup.substr(0, size);
    try {
      const Rows rows = read(cut);
      ASSERT_LE(rows.size(), kGroupRows.size());
      EXPECT_TRUE(std::equal(rows.begin(), rows.end(), kGroupRows.begin())) << cut;
      std::size_t ends = 0;
      for (auto at = cut.find("\nEnd"); at != cut.npos; at = cut.find("\nEnd", at + 1)) ++ends;
      EXPECT_EQ(rows.size(), ends) << cut;
      most = std::max(most, rows.size());
    } catch (const MacroTextError& error) {
      EXPECT_LE(error.line(), 1 + static_cast<std::size_t>(std::ranges::count(cut, '\n')));
    }
  }
  EXPECT_EQ(most, 3u);
}

}  // namespace
}  // namespace tarrowin
