// Searching, cutting, trimming and converting text as Visual Basic does it.
#include "shared/vb_text.h"

#include <algorithm>
#include <limits>

#include "shared/number_text.h"
#include "shared/vb_error.h"

namespace tarrowin {

namespace {

std::int32_t lengthOf(std::string_view text) {
  if (text.size() > static_cast<std::size_t>(std::numeric_limits<std::int32_t>::max())) {
    raise(kErrOverflow);
  }
  return static_cast<std::int32_t>(text.size());
}

std::int32_t positionOf(std::size_t index) {
  return index == std::string_view::npos ? 0 : static_cast<std::int32_t>(index) + 1;
}

unsigned char byteOf(char character) { return static_cast<unsigned char>(character); }

// The four letters of code page 1252 whose upper and lower case do not lie 32 apart.
struct CasePair {
  unsigned char upper;
  unsigned char lower;
};
constexpr CasePair kOddPairs[] = {{0x8A, 0x9A}, {0x8C, 0x9C}, {0x8E, 0x9E}, {0x9F, 0xFF}};

// The multiplication and division signs lie among the letters.
constexpr unsigned char kMultiplicationSign = 0xD7;
constexpr unsigned char kDivisionSign = 0xF7;

unsigned char upperCase(unsigned char code) {
  if (code >= 'a' && code <= 'z') return static_cast<unsigned char>(code - 32);
  if (code >= 0xE0 && code <= 0xFE && code != kDivisionSign) {
    return static_cast<unsigned char>(code - 32);
  }
  for (const auto& pair : kOddPairs) {
    if (code == pair.lower) return pair.upper;
  }
  return code;
}

unsigned char lowerCase(unsigned char code) {
  if (code >= 'A' && code <= 'Z') return static_cast<unsigned char>(code + 32);
  if (code >= 0xC0 && code <= 0xDE && code != kMultiplicationSign) {
    return static_cast<unsigned char>(code + 32);
  }
  for (const auto& pair : kOddPairs) {
    if (code == pair.upper) return pair.lower;
  }
  return code;
}

std::string_view leftTrimmed(std::string_view text) {
  text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
  return text;
}

std::string_view rightTrimmed(std::string_view text) {
  return text.substr(0, text.find_last_not_of(' ') + 1);
}

// Str leaves out the zero before the point.
std::string strDigits(double number) {
  std::string text = doubleText(number);
  const std::size_t first = text.front() == '-' ? 1 : 0;
  if (text.compare(first, 2, "0.") == 0) text.erase(first, 1);
  return text;
}

ParsedNumber numberOf(std::string_view text) {
  const auto number = parseNumber(text);
  if (!number) raise(kErrTypeMismatch);
  return *number;
}

}  // namespace

std::int32_t InStr(std::int32_t start, std::string_view text, std::string_view find) {
  if (start < 1) raise(kErrInvalidCall);
  if (start > lengthOf(text)) return 0;
  return positionOf(text.find(find, static_cast<std::size_t>(start) - 1));
}

std::int32_t InStr(std::string_view text, std::string_view find) { return InStr(1, text, find); }

std::int32_t InStrRev(std::string_view text, std::string_view find, std::int32_t start) {
  if (start == 0 || start < -1) raise(kErrInvalidCall);
  const std::int32_t length = lengthOf(text);
  if (start > length || length == 0) return 0;
  const std::int32_t last = start == -1 ? length : start;
  if (find.empty()) return last;
  return positionOf(text.substr(0, static_cast<std::size_t>(last)).rfind(find));
}

std::string Mid(std::string_view text, std::int32_t start) {
  if (start < 1) raise(kErrInvalidCall);
  if (start > lengthOf(text)) return {};
  return std::string(text.substr(static_cast<std::size_t>(start) - 1));
}

std::string Mid(std::string_view text, std::int32_t start, std::int32_t length) {
  if (start < 1 || length < 0) raise(kErrInvalidCall);
  if (start > lengthOf(text)) return {};
  return std::string(
      text.substr(static_cast<std::size_t>(start) - 1, static_cast<std::size_t>(length)));
}

std::string Left(std::string_view text, std::int32_t length) {
  if (length < 0) raise(kErrInvalidCall);
  return std::string(text.substr(0, static_cast<std::size_t>(length)));
}

std::string Right(std::string_view text, std::int32_t length) {
  if (length < 0) raise(kErrInvalidCall);
  const std::size_t kept = std::min(text.size(), static_cast<std::size_t>(length));
  return std::string(text.substr(text.size() - kept));
}

std::string Trim(std::string_view text) { return std::string(leftTrimmed(rightTrimmed(text))); }
std::string LTrim(std::string_view text) { return std::string(leftTrimmed(text)); }
std::string RTrim(std::string_view text) { return std::string(rightTrimmed(text)); }

std::string Str(std::int32_t number) {
  std::string text = std::to_string(number);
  return number < 0 ? text : " " + text;
}

std::string Str(double number) {
  std::string text = strDigits(number);
  return text.front() == '-' ? text : " " + text;
}

std::string LTrimStr(std::int32_t number) { return std::to_string(number); }
std::string LTrimStr(double number) { return strDigits(number); }

std::int16_t CInt(std::string_view text) { return toInt16(numberOf(text)); }
std::int32_t CLng(std::string_view text) { return toInt32(numberOf(text)); }
double CDbl(std::string_view text) { return numberOf(text).value; }
double Val(std::string_view text) { return leadingNumber(text); }

std::string Chr(std::int32_t code) {
  if (code < 0 || code > 255) raise(kErrInvalidCall);
  return std::string(1, static_cast<char>(code));
}

std::int32_t Asc(std::string_view text) {
  if (text.empty()) raise(kErrInvalidCall);
  return byteOf(text.front());
}

std::string UCase(std::string_view text) {
  std::string result(text);
  for (char& character : result) character = static_cast<char>(upperCase(byteOf(character)));
  return result;
}

std::string LCase(std::string_view text) {
  std::string result(text);
  for (char& character : result) character = static_cast<char>(lowerCase(byteOf(character)));
  return result;
}

}  // namespace tarrowin
