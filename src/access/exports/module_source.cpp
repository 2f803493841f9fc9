// Heads of modules, and where the code of a form starts.
#include "access/exports/module_source.h"

#include <algorithm>

#include "access/exports/line_ends.h"
#include "access/vba/module_text.h"

namespace tarrowin::exports {

namespace {

// Takes the next line, without its end, off the text.
std::string_view takeLine(std::string_view& text) {
  const std::size_t end = std::min(text.find('\n'), text.size());
  std::string_view line = text.substr(0, end);
  text.remove_prefix(std::min(end + 1, text.size()));
  if (line.ends_with('\r')) line.remove_suffix(1);
  return line;
}

std::string_view withoutBlanks(std::string_view line) {
  const std::size_t start = line.find_first_not_of(" \t");
  if (start == std::string_view::npos) return {};
  return line.substr(start, line.find_last_not_of(" \t") - start + 1);
}

// VERSION 1.0 CLASS
// BEGIN
//   MultiUse = -1  'True
// END
std::string_view withoutClassHead(std::string_view text) {
  if (!text.starts_with("VERSION ")) return text;
  std::string_view rest = text;
  takeLine(rest);
  std::string_view behindBlock = rest;
  if (withoutBlanks(takeLine(behindBlock)) != "BEGIN") return rest;
  while (!behindBlock.empty())
    if (withoutBlanks(takeLine(behindBlock)) == "END") return behindBlock;
  return rest;
}

}  // namespace

ModuleSource moduleSource(std::string_view file, bool isClass) {
  std::string source = withCrLf(withoutClassHead(file));
  // Some tools take the last line's end away.
  if (!source.empty() && !source.ends_with('\n')) source += "\r\n";
  return {vba::exportedText(source, isClass), vba::shownLines(source)};
}

std::optional<std::string_view> codeBehind(std::string_view file) {
  constexpr std::string_view kMark = "CodeBehindForm";
  for (std::size_t at = file.find(kMark); at != std::string_view::npos;
       at = file.find(kMark, at + 1)) {
    if (at > 0 && file[at - 1] != '\n') continue;
    std::string_view rest = file.substr(at);
    if (withoutBlanks(takeLine(rest)) == kMark) return rest;
  }
  return std::nullopt;
}

bool onlyNamesCodeFile(std::string_view code) {
  bool names = false;
  while (!code.empty()) {
    const std::string_view line = withoutBlanks(takeLine(code));
    if (line.empty() || line.starts_with("Attribute ")) continue;
    if (names || !line.starts_with("' See \"") || !line.ends_with(".cls\"")) return false;
    names = true;
  }
  return names;
}

}  // namespace tarrowin::exports
