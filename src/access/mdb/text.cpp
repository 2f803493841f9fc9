// Decoding UTF-16, Jet's compressed text and code pages; folding case.
// Malformed UTF-16 becomes U+FFFD, so that what leaves this file is always valid UTF-8.
#include "access/mdb/text.h"

#include <algorithm>
#include <cstring>
#include <optional>
#include <stdexcept>
#include <utility>

namespace tarrowin::mdb {
namespace {

constexpr char32_t kReplacement = 0xFFFD;
constexpr unsigned char kFirstBeyondAscii = 0x80;

void appendUtf8(std::string& out, char32_t c) {
  auto put = [&out](char32_t byte) { out.push_back(static_cast<char>(byte)); };
  if (c < 0x80) {
    put(c);
  } else if (c < 0x800) {
    put(0xC0 | (c >> 6));
    put(0x80 | (c & 0x3F));
  } else if (c < 0x10000) {
    put(0xE0 | (c >> 12));
    put(0x80 | ((c >> 6) & 0x3F));
    put(0x80 | (c & 0x3F));
  } else {
    put(0xF0 | (c >> 18));
    put(0x80 | ((c >> 12) & 0x3F));
    put(0x80 | ((c >> 6) & 0x3F));
    put(0x80 | (c & 0x3F));
  }
}

bool isHighSurrogate(char32_t unit) { return unit >= 0xD800 && unit < 0xDC00; }
bool isLowSurrogate(char32_t unit) { return unit >= 0xDC00 && unit < 0xE000; }

// Takes UTF-16 units one by one.
class Utf8Writer {
 public:
  void reserve(std::size_t bytes) { out_.reserve(bytes); }
  void unit(char32_t unit) {
    if (high_ != 0) {
      char32_t high = std::exchange(high_, U'\0');
      if (isLowSurrogate(unit)) {
        appendUtf8(out_, 0x10000 + ((high - 0xD800) << 10) + (unit - 0xDC00));
        return;
      }
      appendUtf8(out_, kReplacement);
    }
    if (isHighSurrogate(unit)) {
      high_ = unit;
    } else {
      appendUtf8(out_, isLowSurrogate(unit) ? kReplacement : unit);
    }
  }
  std::string take() {
    if (high_ != 0) appendUtf8(out_, kReplacement);
    return std::move(out_);
  }

 private:
  std::string out_;
  char32_t high_ = 0;
};

char32_t unitAt(std::span<const std::uint8_t> bytes, std::size_t at) {
  return static_cast<char32_t>(bytes[at] | (bytes[at + 1] << 8));
}

// The text when it is ASCII, as most texts are.
std::optional<std::string> asciiFromUtf16(std::span<const std::uint8_t> bytes) {
  std::string text(bytes.size() / 2, '\0');
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (bytes[2 * i] >= kFirstBeyondAscii || bytes[2 * i + 1] != 0) return std::nullopt;
    text[i] = static_cast<char>(bytes[2 * i]);
  }
  return text;
}

// An odd last byte is no character.
std::string utf8FromUtf16(std::span<const std::uint8_t> bytes) {
  if (auto text = asciiFromUtf16(bytes)) return *std::move(text);
  Utf8Writer writer;
  writer.reserve(bytes.size());
  for (std::size_t at = 0; at + 1 < bytes.size(); at += 2) writer.unit(unitAt(bytes, at));
  return writer.take();
}

std::string utf8FromCompressed(std::span<const std::uint8_t> bytes) {
  Utf8Writer writer;
  writer.reserve(bytes.size());
  bool oneByte = true;
  std::size_t at = 0;
  while (at < bytes.size()) {
    if (bytes[at] == 0) {
      oneByte = !oneByte;
      ++at;
    } else if (oneByte) {
      writer.unit(bytes[at++]);
    } else {
      if (at + 1 < bytes.size()) writer.unit(unitAt(bytes, at));
      at += 2;
    }
  }
  return writer.take();
}

bool isCompressed(std::span<const std::uint8_t> bytes) {
  return bytes.size() >= 2 && bytes[0] == 0xFF && bytes[1] == 0xFE;
}

// One character of well-formed UTF-8, or one byte of what is not.
char32_t nextCharacter(std::string_view text, std::size_t& at) {
  auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
  unsigned char first = byte(at++);
  int more = first >= 0xF0 ? 3 : first >= 0xE0 ? 2 : first >= 0xC0 ? 1 : 0;
  if (more == 0) return first;
  char32_t c = first & (0x3F >> more);
  for (; more > 0 && at < text.size() && (byte(at) & 0xC0) == 0x80; --more) {
    c = (c << 6) | (byte(at++) & 0x3F);
  }
  return c;
}

bool between(char32_t c, char32_t first, char32_t last) { return c >= first && c <= last; }

char32_t toLower(char32_t c) {
  if (between(c, 'A', 'Z')) return c + 32;
  if (c < 0xC0) return c;
  if (between(c, 0xC0, 0xDE) && c != 0xD7) return c + 32;
  if (c == 0x130 || c == 0x131) return c;  // the Turkish i with and without a dot
  if (c == 0x178) return 0xFF;
  // Latin Extended-A: pairs, the capital even in most of it, odd in two stretches.
  if (between(c, 0x139, 0x148) || between(c, 0x179, 0x17E)) return (c & 1) != 0 ? c + 1 : c;
  if (between(c, 0x100, 0x137) || between(c, 0x14A, 0x177)) return c | 1;
  if (between(c, 0x391, 0x3A9) && c != 0x3A2) return c + 32;  // Greek
  if (between(c, 0x410, 0x42F)) return c + 32;                // Cyrillic
  if (between(c, 0x400, 0x40F)) return c + 80;
  return c;
}

// How many bytes the two begin with alike, up to the start of a character.
std::size_t equalStart(std::string_view left, std::string_view right) {
  const std::size_t shorter = std::min(left.size(), right.size());
  std::size_t equal = 0;
  constexpr std::size_t kBlock = 8;
  while (equal + kBlock <= shorter &&
         std::memcmp(left.data() + equal, right.data() + equal, kBlock) == 0)
    equal += kBlock;
  while (equal < shorter && left[equal] == right[equal]) ++equal;
  while (equal > 0 && static_cast<unsigned char>(left[equal - 1]) >= kFirstBeyondAscii) --equal;
  return equal;
}

}  // namespace

std::string TextDecoder::column(std::span<const std::uint8_t> bytes) const {
  if (!jet3_ && isCompressed(bytes)) return utf8FromCompressed(bytes.subspan(2));
  return plain(bytes);
}

std::string TextDecoder::plain(std::span<const std::uint8_t> bytes) const {
  if (!jet3_) return utf8FromUtf16(bytes);
  return codePage_.toUtf8(
      std::string_view(reinterpret_cast<const char*>(bytes.data()), bytes.size()));
}

CodePage knownCodePage(int number) {
  try {
    return CodePage(number);
  } catch (const std::invalid_argument&) {
    return CodePage(CodePage::kWestern);
  }
}

int compareIgnoringCase(std::string_view left, std::string_view right) {
  std::size_t l = equalStart(left, right);
  std::size_t r = l;
  while (l < left.size() && r < right.size()) {
    char32_t a = toLower(nextCharacter(left, l));
    char32_t b = toLower(nextCharacter(right, r));
    if (a != b) return a < b ? -1 : 1;
  }
  return static_cast<int>(l < left.size()) - static_cast<int>(r < right.size());
}

bool nameLess(std::string_view left, std::string_view right) {
  int order = compareIgnoringCase(left, right);
  return order != 0 ? order < 0 : left < right;
}

}  // namespace tarrowin::mdb
