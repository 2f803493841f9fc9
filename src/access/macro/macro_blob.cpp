// The layout: 4 bytes of columns shown and 28 of the window's state; a version, two digits behind
// the length of its text; then rows until the end. A row is 17 words, its strings, and a word 0:
//   word 0       code of the action, 0 = none
//   word 1       number of the row, from 1
//   words 2-15   where in the strings each text begins, in bytes, FFFF = it is absent
//   word 16      length of the strings in bytes
#include "access/macro/macro_blob.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

#include "access/macro/action_table.h"
#include "access/macro/menu_arguments.h"
#include "access/mdb/byte_view.h"
#include "access/mdb/damage.h"
#include "access/mdb/text.h"

namespace tarrowin {

namespace {

constexpr std::size_t kVersionAt = 0x20;
constexpr std::size_t kWord = 2;
constexpr std::size_t kRowWords = 17;
constexpr std::size_t kFirstText = 2;  // the word of the first text
constexpr std::size_t kTexts = 14;     // of a row
constexpr std::size_t kStringsSize = kFirstText + kTexts;
constexpr std::uint16_t kAbsent = 0xFFFF;

// What each of a row's texts is; the first one is never used.
constexpr std::size_t kComment = 1, kCondition = 2, kMacroName = 3, kFirstArgument = 4;

class MacroBlobReader {
 public:
  MacroBlobReader(std::span<const std::uint8_t> blob, const CodePage& ansi,
                  const CodePage& codePage)
      : blob_(blob, {"macro"}),
        ansi_(true, ansi),
        wide_(false, CodePage(CodePage::kUtf8)),
        codePage_(codePage) {}

  std::vector<MacroAction> read() {
    const std::size_t versionSize = blob_.u16(kVersionAt);
    std::size_t at = kVersionAt + kWord;
    isWide_ = isWideVersion(blob_.sub(at, versionSize));
    at += versionSize;
    at = zeroWord(at);
    std::vector<MacroAction> rows;
    while (at < blob_.size()) {
      const std::size_t strings = at + kRowWords * kWord;
      const std::size_t size = word(at, kStringsSize);
      MacroAction row = readRow(at, blob_.sub(strings, size));
      if (!isXmlCopy(row)) rows.push_back(std::move(row));
      at = zeroWord(strings + size);
    }
    return rows;
  }

 private:
  // "33" and "23" are the versions with wide strings; "22" and none at all those of Access 97.
  static bool isWideVersion(mdb::ByteView version) {
    return version.size() == 2 * kWord && version.u16(kWord) == '3';
  }

  std::uint16_t word(std::size_t row, std::size_t index) const {
    return blob_.u16(row + index * kWord);
  }

  // Steps over the word that closes the version and each row.
  std::size_t zeroWord(std::size_t at) const {
    if (blob_.u16(at) != 0) mdb::raiseDamaged("a row of the macro does not end where it should");
    return at + kWord;
  }

  MacroAction readRow(std::size_t at, mdb::ByteView strings) const {
    const auto text = [&](std::size_t index) {
      const std::uint16_t offset = word(at, kFirstText + index);
      return offset == kAbsent ? std::string() : textAt(strings, offset);
    };
    MacroAction row;
    row.action = actionName(word(at, 0));
    row.comment = text(kComment);
    row.condition = text(kCondition);
    row.macroName = text(kMacroName);
    std::size_t last = kTexts;
    while (last > kFirstArgument && word(at, kFirstText + last - 1) == kAbsent) --last;
    for (std::size_t i = kFirstArgument; i < last; ++i) row.arguments.push_back(text(i));
    if (row.action == kMenuAction) row.arguments = menuArguments(row.arguments);
    return row;
  }

  // An action of a later Access has no name here.
  static std::string actionName(std::uint16_t code) {
    if (code == 0) return {};
    const ActionRow* const action = findAction(code);
    return action ? std::string(action->name) : "Action " + std::to_string(code);
  }

  std::string textAt(mdb::ByteView strings, std::size_t offset) const {
    const std::size_t unit = isWide_ ? kWord : 1;
    std::size_t end = offset;
    while ((isWide_ ? strings.u16(end) : strings.u8(end)) != 0) end += unit;
    const auto bytes = strings.sub(offset, end - offset).bytes();
    return codePage_.fromUtf8((isWide_ ? wide_ : ansi_).plain(bytes));
  }

  mdb::ByteView blob_;
  mdb::TextDecoder ansi_, wide_;
  const CodePage& codePage_;
  bool isWide_ = false;
};

}  // namespace

std::vector<MacroAction> readMacroBlob(std::span<const std::uint8_t> blob, const CodePage& ansi,
                                       const CodePage& codePage) {
  if (blob.empty()) return {};
  return MacroBlobReader(blob, ansi, codePage).read();
}

}  // namespace tarrowin
