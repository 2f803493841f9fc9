// Builds the folding table of a code page: the lower-case counterpart of each of its bytes.
#include "access/model/case_folding.h"

#include <algorithm>

namespace tarrowin {

namespace {

// The code point of the first character of a UTF-8 text of at most three bytes; single-byte code
// pages hold no other characters.
char32_t firstCodePoint(const std::string& utf8) {
  const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(utf8[i]); };
  if (utf8.size() == 2) return (byte(0) & 0x1Fu) << 6 | (byte(1) & 0x3Fu);
  if (utf8.size() == 3) return (byte(0) & 0x0Fu) << 12 | (byte(1) & 0x3Fu) << 6 | (byte(2) & 0x3Fu);
  return utf8.empty() ? 0 : byte(0);
}

// Simple lower case of the alphabets that Windows code pages hold, from the Unicode character data.
char32_t lowerCase(char32_t c) {
  const auto within = [c](char32_t first, char32_t last) { return c >= first && c <= last; };
  if (within('A', 'Z')) return c + 32;
  if (within(0xC0, 0xDE) && c != 0xD7) return c + 32;
  if (within(0x100, 0x137) && c != 0x130) return c | 1u;
  if (within(0x139, 0x148) || within(0x179, 0x17E)) return c + (c & 1u);
  if (within(0x14A, 0x177)) return c | 1u;
  if (c == 0x178) return 0xFF;
  if (c == 0x386) return 0x3AC;
  if (within(0x388, 0x38A)) return c + 37;
  if (c == 0x38C) return 0x3CC;
  if (within(0x38E, 0x38F)) return c + 63;
  if (within(0x391, 0x3AB)) return c + 32;
  if (within(0x400, 0x40F)) return c + 80;
  if (within(0x410, 0x42F)) return c + 32;
  if (c == 0x490) return 0x491;
  return c;
}

}  // namespace

CaseFolding::CaseFolding(const CodePage& codePage) {
  for (int i = 0; i < 256; ++i) {
    const char c = static_cast<char>(i);
    const bool upper = c >= 'A' && c <= 'Z';
    table_[static_cast<std::size_t>(i)] = upper ? static_cast<char>(c + 32) : c;
  }
  if (codePage.number() == CodePage::kUtf8) return;

  std::array<char32_t, 256> codePoints{};
  for (std::size_t i = 128; i < 256; ++i)
    codePoints[i] = firstCodePoint(codePage.toUtf8(std::string(1, static_cast<char>(i))));
  for (std::size_t i = 128; i < 256; ++i) {
    const char32_t lower = lowerCase(codePoints[i]);
    if (lower == codePoints[i]) continue;
    const auto found = std::find(codePoints.begin() + 128, codePoints.end(), lower);
    if (found != codePoints.end()) table_[i] = static_cast<char>(found - codePoints.begin());
  }
}

std::string CaseFolding::fold(std::string_view text) const {
  std::string result(text);
  for (char& c : result) c = fold(c);
  return result;
}

bool CaseFolding::equal(std::string_view left, std::string_view right) const {
  return left.size() == right.size() && startsWith(left, right);
}

bool CaseFolding::startsWith(std::string_view text, std::string_view prefix) const {
  return text.size() >= prefix.size() &&
         std::equal(prefix.begin(), prefix.end(), text.begin(),
                    [this](char a, char b) { return fold(a) == fold(b); });
}

}  // namespace tarrowin
