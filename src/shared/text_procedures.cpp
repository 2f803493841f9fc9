// The shared text procedures; classes of characters stand in tables of 256 codes.
#include "shared/text_procedures.h"

#include <algorithm>
#include <array>
#include <utility>

#include "shared/vb_error.h"
#include "shared/vb_format.h"
#include "shared/vb_text.h"

namespace tarrowin {

namespace {

constexpr std::size_t kLongestName = 40;

using CodeTable = std::array<bool, 256>;

constexpr bool within(int code, int first, int last) { return code >= first && code <= last; }

constexpr bool isNameLetter(int code) {
  return within(code, 'A', 'Z') || within(code, 'a', 'z') || within(code, 192, 255);
}

constexpr bool isNameCharacter(int code) {
  return isNameLetter(code) || within(code, '0', '9') || code == '_';
}

// 145 and 146 are the typographic single quotes of code page 1252.
constexpr bool isControlCode(int code) {
  return code < 32 || within(code, 127, 144) || within(code, 147, 159);
}

template <typename Predicate>
constexpr CodeTable tableOf(Predicate predicate) {
  CodeTable table{};
  for (int code = 0; code < 256; ++code) table[static_cast<std::size_t>(code)] = predicate(code);
  return table;
}

constexpr CodeTable kNameLetters = tableOf(isNameLetter);
constexpr CodeTable kNameCharacters = tableOf(isNameCharacter);
constexpr CodeTable kControlCodes = tableOf(isControlCode);

bool contains(const CodeTable& table, char character) {
  return table[static_cast<unsigned char>(character)];
}

void trimInPlace(std::string& text) {
  text.erase(text.find_last_not_of(' ') + 1);
  text.erase(0, text.find_first_not_of(' '));
}

}  // namespace

std::string& MakeVBName(std::string& name) {
  trimInPlace(name);
  if (name.size() > kLongestName) name.resize(kLongestName);
  for (char& character : name) {
    if (!contains(kNameCharacters, character)) character = '_';
  }
  if (!name.empty() && !contains(kNameLetters, name.front())) name.front() = 'x';
  return name;
}

std::string& RemoveControlChars(std::string& text) {
  for (char& character : text) {
    if (contains(kControlCodes, character)) character = ' ';
  }
  return text;
}

std::string& RemoveLineBreaks(std::string& text) {
  // CR and LF are control characters themselves: each becomes its own blank, so a pair two.
  return RemoveControlChars(text);
}

std::string& DoubleToSingleQuotes(std::string& text) {
  std::ranges::replace(text, '"', '\'');
  return text;
}

std::string& CleanText(std::string& text) {
  const bool onlyBlanks = text.find_first_not_of(' ') == std::string::npos;
  return onlyBlanks ? text : DoubleToSingleQuotes(RemoveControlChars(text));
}

std::string MakeVBName(std::string&& name) { return std::move(MakeVBName(name)); }
std::string RemoveControlChars(std::string&& text) { return std::move(RemoveControlChars(text)); }
std::string RemoveLineBreaks(std::string&& text) { return std::move(RemoveLineBreaks(text)); }
std::string DoubleToSingleQuotes(std::string&& text) {
  return std::move(DoubleToSingleQuotes(text));
}
std::string CleanText(std::string&& text) { return std::move(CleanText(text)); }

std::string ReplaceFirst(std::string& text, std::string_view find, std::string_view replacement) {
  const std::size_t position = text.empty() ? std::string::npos : text.find(find);
  if (position == std::string::npos) return {};
  text.replace(position, find.size(), replacement);
  return text;
}

std::string ExtractSetVariable(std::string_view line) {
  constexpr std::int32_t kSetAndBlank = 4;
  const std::int32_t start = InStr(line, "Set") + kSetAndBlank;
  const std::int32_t end = InStr(line, "=") - 2;
  return Mid(line, start, end - start + 1);
}

std::string inQuotes(std::string_view text) { return '"' + std::string(text) + '"'; }

std::string FirstQuotedText(std::string_view text) {
  const std::size_t opening = text.find('"');
  if (opening == std::string_view::npos) return {};
  const std::size_t closing = text.find('"', opening + 1);
  if (closing == std::string_view::npos) return {};
  return std::string(text.substr(opening + 1, closing - opening - 1));
}

std::string FormatSeconds(std::int32_t seconds) {
  return formatTwoDigits(seconds / 3600) + ":" + formatTwoDigits(seconds / 60 % 60) + ":" +
         formatTwoDigits(seconds % 60) + " seconds";
}

std::int16_t MaxOfArray(std::span<const std::int16_t> array) {
  if (array.empty()) raise(kErrSubscript);
  return *std::ranges::max_element(array);
}

}  // namespace tarrowin
