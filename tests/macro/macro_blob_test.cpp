// Designs of macros, built byte by byte, whole and damaged.
#include "access/macro/macro_blob.h"

#include <optional>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "access/mdb/mdb_error.h"
#include "macro/macro_rows.h"
#include "shared/value.h"

namespace tarrowin {
namespace {

using Rows = std::vector<MacroAction>;
using Texts = std::vector<std::optional<std::string_view>>;

// Text under a wide version ("33") has two bytes a character, other text one.
class BlobBuilder {
 public:
  explicit BlobBuilder(std::string_view version) : wide_(version.ends_with('3')) {
    bytes_.assign(0x20, 0xFF);
    word(version.size() * 2);
    for (const char digit : version) word(static_cast<std::size_t>(digit));
    word(0);
  }

  // The texts by slot: unused, comment, condition, macro name, arguments.
  BlobBuilder& row(std::uint16_t code, const Texts& texts) {
    word(code);
    word(++rows_);
    std::string strings;
    for (std::size_t i = 0; i < 14; ++i) {
      const bool present = i < texts.size() && texts[i];
      word(present ? strings.size() : 0xFFFF);
      if (!present) continue;
      for (const char character : std::string(*texts[i]) + '\0') {
        strings += character;
        if (wide_) strings += '\0';
      }
    }
    word(strings.size());
    bytes_.insert(bytes_.end(), strings.begin(), strings.end());
    word(0);
    return *this;
  }

  const Bytes& bytes() const { return bytes_; }

 private:
  void word(std::size_t number) {
    bytes_.push_back(static_cast<std::uint8_t>(number & 0xFF));
    bytes_.push_back(static_cast<std::uint8_t>(number >> 8));
  }

  Bytes bytes_;
  bool wide_;
  std::size_t rows_ = 0;
};

constexpr std::nullopt_t kNone = std::nullopt;

Rows read(const Bytes& bytes, const CodePage& codePage = CodePage()) {
  return readMacroBlob(bytes, CodePage(), codePage);
}

Bytes groupBlob(std::string_view version) {
  return BlobBuilder(version)
      .row(23, {kNone, "shows it", "[x] > 1", "Print", "frmA", "0", kNone, kNone, "-1"})
      .row(0, {})
      .row(4, {kNone, kNone, "..."})
      .bytes();
}

const Rows kGroupRows{
    named("Print",
          when("[x] > 1", commented("shows it", row("OpenForm", {"frmA", "0", "", "", "-1"})))),
    MacroAction(), when("...", row("Beep"))};

TEST(MacroBlob, RowsOfAGroupWithWideTexts) {
  EXPECT_EQ(read(groupBlob("33")), kGroupRows);
  EXPECT_EQ(read(groupBlob("23")), kGroupRows);
}

TEST(MacroBlob, RowsOfAGroupWithAnsiTexts) {
  EXPECT_EQ(read(groupBlob("22")), kGroupRows);
  EXPECT_EQ(read(groupBlob("")), kGroupRows);
}

TEST(MacroBlob, MacroWithoutRows) {
  EXPECT_EQ(read(BlobBuilder("33").bytes()), Rows());
  EXPECT_EQ(read({}), Rows());
}

TEST(MacroBlob, TextsComeInTheCodePage) {
  const Bytes ansi = BlobBuilder("22").row(13, {kNone, kNone, kNone, kNone, "\xC4"}).bytes();
  EXPECT_EQ(read(ansi), (Rows{row("GoToControl", {"\xC4"})}));
  EXPECT_EQ(read(ansi, CodePage(CodePage::kUtf8)), (Rows{row("GoToControl", {"\xC3\x84"})}));
  EXPECT_EQ(readMacroBlob(ansi, CodePage(1251), CodePage(CodePage::kUtf8)),
            (Rows{row("GoToControl", {"\xD0\x94"})}));
  Bytes wide = BlobBuilder("33").row(13, {kNone, kNone, kNone, kNone, "\xC4"}).bytes();
  EXPECT_EQ(read(wide), (Rows{row("GoToControl", {"\xC4"})}));
}

TEST(MacroBlob, MenuActionHasItsMenuBarInTheSeventhPlace) {
  EXPECT_EQ(read(BlobBuilder("22")
                     .row(8, {kNone, kNone, kNone, kNone, "name", "cmd", "sub", "ver", kNone, kNone,
                              "bar"})
                     .bytes()),
            (Rows{row("DoMenuItem", {"bar", "name", "cmd", "sub", "ver"})}));
}

TEST(MacroBlob, RowsThatRepeatTheMacroAsXmlAreLeftOut) {
  EXPECT_EQ(read(BlobBuilder("33").row(4, {}).row(0, {kNone, "_AXL:<?xml"}).bytes()),
            Rows{row("Beep")});
}

TEST(MacroBlob, ActionOfALaterAccessKeepsItsNumber) {
  EXPECT_EQ(read(BlobBuilder("33").row(500, {}).bytes()), Rows{row("Action 500")});
}

TEST(MacroBlob, ThousandRows) {
  BlobBuilder builder("33");
  for (int i = 0; i < 1000; ++i) builder.row(4, {});
  EXPECT_EQ(read(builder.bytes()), Rows(1000, row("Beep")));
}

TEST(MacroBlob, CutAnywhereItIsDamagedUnlessARowEndsThere) {
  const Bytes whole = groupBlob("33");
  std::size_t readable = 0;
  for (std::size_t size = 1; size < whole.size(); ++size) {
    try {
      const Rows rows =
          read(Bytes(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size)));
      ASSERT_EQ(rows.size(), readable++);
      EXPECT_TRUE(std::equal(rows.begin(), rows.end(), kGroupRows.begin()));
    } catch (const mdb::Error& error) {
      EXPECT_EQ(error.kind(), mdb::ErrorKind::kDamaged);
    }
  }
  EXPECT_EQ(readable, 3u);  // behind the head and behind two of the three rows
}

TEST(MacroBlob, BytesLeftOverAreDamage) {
  Bytes bytes = groupBlob("33");
  bytes.push_back(0);
  EXPECT_THROW(read(bytes), mdb::Error);
}

TEST(MacroBlob, RowThatDoesNotEndInZeroIsDamage) {
  Bytes bytes = groupBlob("33");
  bytes.back() = 1;
  EXPECT_THROW(read(bytes), mdb::Error);
}

TEST(MacroBlob, TextBeyondTheStringsOfItsRowIsDamage) {
  Bytes bytes = BlobBuilder("22").row(4, {kNone, "abc"}).row(4, {}).bytes();
  const std::size_t commentAt = 0x20 + 2 + 4 + 2 + 2 * 2 + 2;
  ASSERT_EQ(bytes[commentAt], 0);
  bytes[commentAt] = 3;  // the zero behind it: an empty text
  EXPECT_EQ(read(bytes).front(), row("Beep"));
  bytes[commentAt] = 4;  // the end of the strings
  EXPECT_THROW(read(bytes), mdb::Error);
}

TEST(MacroBlob, TextWithoutItsZeroIsDamage) {
  Bytes bytes = BlobBuilder("22").row(4, {kNone, "abc"}).bytes();
  bytes[bytes.size() - 3] = 'd';
  EXPECT_THROW(read(bytes), mdb::Error);
}

}  // namespace
}  // namespace tarrowin
