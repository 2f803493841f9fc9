// The first lines of each kind of file.
#include "access/exports/file_nature.h"

#include <charconv>
#include <span>
#include <string>

#include "access/macro/export_encoding.h"
#include "access/macro/export_lines.h"

namespace tarrowin::exports {

namespace {

constexpr std::string_view kVersion = "Version =", kOperation = "Operation =";

std::int32_t numberBehind(std::string_view line, std::string_view start) {
  std::int32_t number = 0;
  line.remove_prefix(start.size());
  std::from_chars(line.data(), line.data() + line.size(), number);
  return number;
}

// From the line "Version =" on.
FileHead designOrMacro(ExportLines& lines) {
  // Designs have about twenty; macros 0 or a number of two words.
  constexpr std::int32_t kLastDesignVersion = 1000;
  const std::int32_t version = numberBehind(lines.line(), kVersion);
  if (version == 0 || version > kLastDesignVersion) return {FileNature::kMacro, version};
  while (lines.next()) {
    const std::string_view line = lines.line();
    if (line == "Begin Form") return {FileNature::kForm, version};
    if (line == "Begin Report") return {FileNature::kReport, version};
    if (line.starts_with("ColumnsShown =")) return {FileNature::kMacro, version};
    if (line.find(" =") == std::string_view::npos) break;
  }
  return {FileNature::kBareDesign, version};
}

FileHead classOrModule(ExportLines& lines) {
  lines.next();
  const bool isClass = lines.line().starts_with("Attribute VB_GlobalNameSpace");
  return {isClass ? FileNature::kClassModule : FileNature::kModule, 0};
}

// dbMemo "SQL" ="..."; other properties may stand before it.
bool isTypedProperty(std::string_view line) {
  return line.starts_with("db") && line.find(" \"") != std::string_view::npos &&
         line.find("\" =") != std::string_view::npos;
}

}  // namespace

FileHead headOf(std::string_view bytes) {
  using enum FileNature;
  const auto* const data = reinterpret_cast<const std::uint8_t*>(bytes.data());
  const CodePage page(CodePage::kUtf8);
  const std::string text = exportText(std::span(data, bytes.size()), page);
  if (text.find('\0') != std::string::npos) return {};
  ExportLines lines(text, page);
  lines.next();
  const std::string_view line = lines.line();
  if (line.starts_with(kVersion)) return designOrMacro(lines);
  if (line.starts_with(kOperation)) return {kQuery, numberBehind(line, kOperation)};
  if (isTypedProperty(line)) return {kQuery, 0};
  if (line == "VERSION 1.0 CLASS" || line.starts_with("Attribute VB_GlobalNameSpace"))
    return {kClassModule, 0};
  if (line.starts_with("Attribute VB_Name")) return classOrModule(lines);
  if (line.starts_with("Option Compare") || line.starts_with("Option Explicit"))
    return {kModule, 0};
  if (line.starts_with('<') &&
      text.find("urn:schemas-microsoft-com:officedata") != std::string::npos &&
      text.find(":schema") != std::string::npos)
    return {kTableSchema, 0};
  if (line.starts_with("CREATE TABLE ")) return {kCreateTable, 0};
  return {line.empty() || line.starts_with('<') || line.starts_with('{') ? kOther : kText, 0};
}

}  // namespace tarrowin::exports
