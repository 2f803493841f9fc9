// The grammar of exported macros, line by line:
//   Version =196611                  one or more header lines
//   Begin                            one block a row
//       Action ="OpenForm"           a text, \" \\ and \015 (octal) standing for characters
//       Comment ="a long te"         a text may go on in the lines below
//           "xt"
//   End
#include "access/macro/macro_text.h"

#include <set>
#include <string>
#include <string_view>
#include <utility>

#include "access/macro/export_encoding.h"
#include "access/macro/menu_arguments.h"

namespace tarrowin {

namespace {

class MacroTextReader {
 public:
  MacroTextReader(std::string_view text, const CodePage& codePage) : lines_(text, codePage) {}

  std::vector<MacroAction> read() {
    if (!lines_.next() || !lines_.line().starts_with("Version ="))
      lines_.fail("a macro begins with \"Version =\"");
    bool more = true;
    for (; more && lines_.line() != "Begin"; more = lines_.next()) header();
    std::vector<MacroAction> rows;
    for (; more; more = lines_.next()) {
      if (lines_.line() != "Begin") lines_.fail("a row begins with \"Begin\"");
      MacroAction row = readRow();
      if (!isXmlCopy(row)) rows.push_back(std::move(row));
    }
    return rows;
  }

 private:
  void header() {
    if (lines_.property().value.starts_with('"')) lines_.fail("a header line has a number");
  }

  MacroAction readRow() {
    MacroAction row;
    std::set<std::string_view> met;
    const std::size_t start = lines_.number();
    bool more = lines_.next();
    while (more && lines_.line() != "End") {
      if (lines_.line().starts_with("Begin")) lines_.fail("a row inside a row");
      const ExportLines::Property found = lines_.property();
      std::string* const target = targetOf(row, found.keyword);
      if (target == nullptr) {
        more = skipProperty(found.value);
        continue;
      }
      // A property may stand there again, but not with another value.
      const bool isNew = found.keyword == "Argument" || met.insert(found.keyword).second;
      const std::string before = std::exchange(*target, {});
      const std::size_t line = lines_.number();
      more = lines_.readText(found.value, *target);
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

  bool skipProperty(std::string_view value) {
    std::string ignored;
    if (value.starts_with('"')) return lines_.readText(value, ignored);
    if (value.ends_with("Begin")) lines_.fail("a block inside a row");
    return lines_.next();
  }

  ExportLines lines_;
};

}  // namespace

std::vector<MacroAction> readMacroText(std::span<const std::uint8_t> bytes,
                                       const CodePage& codePage) {
  const std::string text = exportText(bytes, codePage);
  return MacroTextReader(text, codePage).read();
}

}  // namespace tarrowin
