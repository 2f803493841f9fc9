// Letter case of names: the two-byte letters of UTF-8 cover the alphabets of the Windows code
// pages, so only those and ASCII are folded.
#include "access/record_source/fold_name.h"

namespace tarrowin {
namespace {

bool isAsciiCapital(unsigned char c) { return c >= 'A' && c <= 'Z'; }

// The small letter of a code point from U+0080 to U+07FF.
unsigned smallLetter(unsigned c) {
  if (c >= 0xC0 && c <= 0xDE && c != 0xD7) return c + 0x20;  // Latin-1
  if (c == 0x178) return 0xFF;                               // Y with diaeresis
  // Latin Extended-A alternates capital and small letters; where a letter without a partner
  // stands between, the capitals move from the even to the odd code points and back.
  if (c >= 0x100 && c <= 0x137) return c | 1u;
  if (c >= 0x139 && c <= 0x148) return c % 2 != 0 ? c + 1 : c;
  if (c >= 0x14A && c <= 0x177) return c | 1u;
  if (c >= 0x179 && c <= 0x17E) return c % 2 != 0 ? c + 1 : c;
  if (c == 0x386) return 0x3AC;  // Greek letters with tonos
  if (c >= 0x388 && c <= 0x38A) return c + 0x25;
  if (c == 0x38C) return 0x3CC;
  if (c == 0x38E || c == 0x38F) return c + 0x3F;
  if (c >= 0x391 && c <= 0x3AB && c != 0x3A2) return c + 0x20;  // Greek
  if (c >= 0x400 && c <= 0x40F) return c + 0x50;                // Cyrillic beyond Russian
  if (c >= 0x410 && c <= 0x42F) return c + 0x20;                // Russian
  if (c == 0x490) return 0x491;                                 // Ukrainian ghe with upturn
  return c;
}

}  // namespace

std::string foldName(std::string_view name) {
  std::string folded;
  folded.reserve(name.size());
  for (std::size_t i = 0; i < name.size(); ++i) {
    const auto c = static_cast<unsigned char>(name[i]);
    const bool twoBytes = c >= 0xC2 && c <= 0xDF && i + 1 < name.size() &&
                          (static_cast<unsigned char>(name[i + 1]) & 0xC0u) == 0x80u;
    if (twoBytes) {
      const auto next = static_cast<unsigned char>(name[++i]);
      const unsigned letter = smallLetter((c & 0x1Fu) << 6 | (next & 0x3Fu));
      folded += static_cast<char>(0xC0u | letter >> 6);
      folded += static_cast<char>(0x80u | (letter & 0x3Fu));
    } else {
      folded += static_cast<char>(isAsciiCapital(c) ? c + ('a' - 'A') : c);
    }
  }
  return folded;
}

bool equalsWord(std::string_view text, std::string_view upperCaseWord) {
  if (text.size() != upperCaseWord.size()) return false;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char c = text[i];
    const char upper = c >= 'a' && c <= 'z' ? static_cast<char>(c - ('a' - 'A')) : c;
    if (upper != upperCaseWord[i]) return false;
  }
  return true;
}

std::string_view trimmed(std::string_view text) {
  constexpr std::string_view kBlanks = " \t\r\n\f\v";
  const std::size_t first = text.find_first_not_of(kBlanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

}  // namespace tarrowin
