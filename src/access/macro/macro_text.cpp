// The grammar of exported macros, line by line:
//   Version =196611                  one or more header lines
//   Begin                            one block a row
//       Action ="OpenForm"           a text, \" \\ and \015 (octal) standing for characters
//       Comment ="a long te"         a text may go on in the lines below
//           "xt"
//   End
#include "access/macro/macro_text.h"

#include <algorithm>
#include <optional>
#include <set>
#include <string_view>
#include <utility>

#include "access/macro/export_encoding.h"
#include "access/macro/menu_arguments.h"
#include "shared/vb_text.h"

namespace tarrowin {

namespace {

bool isKeywordCharacter(char character) {
  return (character >= 'A' && character <= 'Z') || (character >= 'a' && character <= 'z') ||
         (character >= '0' && character <= '9') || character == '_';
}

class MacroTextReader {
 public:
  explicit MacroTextReader(std::string_view text) : rest_(text) {}

  std::vector<MacroAction> read() {
    if (!nextLine() || !line_.starts_with("Version =")) fail("a macro begins with \"Version =\"");
    bool more = true;
    for (; more && line_ != "Begin"; more = nextLine()) header();
    std::vector<MacroAction> rows;
    for (; more; more = nextLine()) {
      if (line_ != "Begin") fail("a row begins with \"Begin\"");
      MacroAction row = readRow();
      if (!isXmlCopy(row)) rows.push_back(std::move(row));
    }
    return rows;
  }

 private:
  [[noreturn]] void fail(const std::string& problem) const {
    throw MacroTextError(std::max<std::size_t>(number_, 1), problem);
  }

  // To the next line that is not empty, without the blanks around it.
  bool nextLine() {
    while (!rest_.empty()) {
      const std::size_t end = std::min(rest_.find('\n'), rest_.size());
      line_ = trimmed(rest_.substr(0, end));
      rest_.remove_prefix(std::min(end + 1, rest_.size()));
      ++number_;
      if (!line_.empty()) return true;
    }
    line_ = {};
    return false;
  }

  static std::string_view trimmed(std::string_view line) {
    if (line.ends_with('\r')) line.remove_suffix(1);
    const std::size_t start = line.find_first_not_of(' ');
    if (start == std::string_view::npos) return {};
    return line.substr(start, line.find_last_not_of(' ') - start + 1);
  }

  struct Property {
    std::string_view keyword, value;
  };
  Property property() const {
    const std::size_t length = static_cast<std::size_t>(
        std::ranges::find_if_not(line_, isKeywordCharacter) - line_.begin());
    constexpr std::string_view kEquals = " =";
    if (length == 0 || !line_.substr(length).starts_with(kEquals))
      fail("neither a property nor \"Begin\" or \"End\"");
    return {line_.substr(0, length), line_.substr(length + kEquals.size())};
  }

  void header() {
    if (property().value.starts_with('"')) fail("a header line has a number");
  }

  MacroAction readRow() {
    MacroAction row;
    std::set<std::string_view> met;
    const std::size_t start = number_;
    bool more = nextLine();
    while (more && line_ != "End") {
      if (line_.starts_with("Begin")) fail("a row inside a row");
      const Property found = property();
      std::string* const target = targetOf(row, found.keyword);
      if (target == nullptr) {
        more = skipProperty(found.value);
        continue;
      }
      // A property may stand there again, but not with another value.
      const bool isNew = found.keyword == "Argument" || met.insert(found.keyword).second;
      const std::string before = std::exchange(*target, {});
      const std::size_t line = number_;
      more = readText(found.value, *target);
      if (!isNew && *target != before)
        throw MacroTextError(line, "\"" + std::string(found.keyword) + "\" has two values");
    }
    if (!more) throw MacroTextError(start, "a row without \"End\"");
    if (row.action == kMenuAction && row.arguments.size() > kMenuBarSlot)
      row.arguments = menuArguments(row.arguments);
    return row;
  }

  static std::string* targetOf(MacroAction& row, std::string_view keyword) {
    if (keyword == "MacroName") return &row.macroName;
    if (keyword == "Condition") return &row.condition;
    if (keyword == "Action") return &row.action;
    if (keyword == "Comment") return &row.comment;
    if (keyword == "Argument") return &row.arguments.emplace_back();
    return nullptr;
  }

  // The text of a property and of the lines in which it goes on; the result is that of the last
  // nextLine().
  bool readText(std::string_view value, std::string& text) {
    if (!value.starts_with('"')) fail("a text in quotes is expected");
    bool more = true;
    do {
      appendPiece(value, text);
      more = nextLine();
      value = line_;
    } while (more && value.starts_with('"'));
    return more;
  }

  bool skipProperty(std::string_view value) {
    std::string ignored;
    if (value.starts_with('"')) return readText(value, ignored);
    if (value.ends_with("Begin")) fail("a block inside a row");
    return nextLine();
  }

  void appendPiece(std::string_view piece, std::string& text) const {
    piece.remove_prefix(1);
    while (!piece.starts_with('"')) {
      if (piece.empty()) fail("a text without closing quote");
      if (piece.front() == '\\') {
        piece.remove_prefix(1);
        text += escaped(piece);
      } else {
        text += piece.front();
        piece.remove_prefix(1);
      }
    }
    if (piece.size() > 1) fail("something stands behind the closing quote");
  }

  // Takes what stands behind a backslash.
  char escaped(std::string_view& piece) const {
    if (piece.starts_with('"') || piece.starts_with('\\')) {
      const char character = piece.front();
      piece.remove_prefix(1);
      return character;
    }
    constexpr std::size_t kDigits = 3;
    constexpr unsigned kLastCode = 255;
    unsigned code = 0;
    for (std::size_t i = 0; i < kDigits; ++i, piece.remove_prefix(1)) {
      if (piece.empty() || piece.front() < '0' || piece.front() > '7')
        fail("an unknown character behind \"\\\"");
      code = code * 8 + static_cast<unsigned>(piece.front() - '0');
    }
    if (code > kLastCode) fail("an unknown character behind \"\\\"");
    return static_cast<char>(code);
  }

  std::string_view rest_, line_;
  std::size_t number_ = 0;  // of the line, from 1
};

}  // namespace

std::vector<MacroAction> readMacroText(std::span<const std::uint8_t> bytes,
                                       const CodePage& codePage) {
  const std::string text = exportText(bytes, codePage);
  return MacroTextReader(text).read();
}

}  // namespace tarrowin
