// Tables of a single-byte code page, taken once from the C library's iconv, and the conversions
// between it and UTF-8.
#include "shared/code_page.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdint>
#include <optional>
#include <stdexcept>
#include <vector>

#include <iconv.h>

namespace tarrowin {

namespace {

constexpr std::size_t kByteValues = 256;
constexpr char kNoCharacter = '?';

using CodePoint = char32_t;

class Iconv {
 public:
  Iconv(const std::string& to, const std::string& from)
      : handle_(iconv_open(to.c_str(), from.c_str())) {}
  ~Iconv() {
    if (valid()) iconv_close(handle_);
  }
  Iconv(const Iconv&) = delete;
  Iconv& operator=(const Iconv&) = delete;

  bool valid() const { return handle_ != iconv_t(-1); }

  // The character of a byte, nothing for an undefined one. Throws for the first byte of several.
  std::optional<CodePoint> character(unsigned char byte) {
    iconv(handle_, nullptr, nullptr, nullptr, nullptr);
    char source = static_cast<char>(byte);
    char* input = &source;
    std::size_t inputLeft = 1;
    std::array<unsigned char, 16> target{};
    char* output = reinterpret_cast<char*>(target.data());
    std::size_t outputLeft = target.size();
    if (iconv(handle_, &input, &inputLeft, &output, &outputLeft) == std::size_t(-1)) {
      if (errno == EINVAL) throw std::invalid_argument("a code page of several bytes a character");
      return std::nullopt;
    }
    // Pages with combining marks hold a character back until the next one is known.
    iconv(handle_, nullptr, nullptr, &output, &outputLeft);
    if (outputLeft + sizeof(CodePoint) != target.size()) return std::nullopt;
    return CodePoint{target[0]} | CodePoint{target[1]} << 8 | CodePoint{target[2]} << 16 |
           CodePoint{target[3]} << 24;
  }

 private:
  iconv_t handle_;
};

void appendUtf8(std::string& target, CodePoint character) {
  const auto add = [&target](CodePoint byte) { target += static_cast<char>(byte); };
  if (character < 0x80) {
    add(character);
  } else if (character < 0x800) {
    add(0xC0 | character >> 6);
    add(0x80 | (character & 0x3F));
  } else if (character < 0x10000) {
    add(0xE0 | character >> 12);
    add(0x80 | (character >> 6 & 0x3F));
    add(0x80 | (character & 0x3F));
  } else {
    add(0xF0 | character >> 18);
    add(0x80 | (character >> 12 & 0x3F));
    add(0x80 | (character >> 6 & 0x3F));
    add(0x80 | (character & 0x3F));
  }
}

// What a lead byte announces: how many bytes follow, and the range of the first of them, which
// excludes overlong forms, surrogates and what lies beyond U+10FFFF.
struct Lead {
  std::size_t following = 0;
  unsigned char low = 0x80;
  unsigned char high = 0xBF;
  CodePoint bits = 0;
};

std::optional<Lead> leadOf(unsigned char byte) {
  if (byte >= 0xC2 && byte <= 0xDF) return Lead{1, 0x80, 0xBF, CodePoint(byte & 0x1F)};
  if (byte >= 0xE0 && byte <= 0xEF) {
    Lead lead{2, 0x80, 0xBF, CodePoint(byte & 0x0F)};
    if (byte == 0xE0) lead.low = 0xA0;
    if (byte == 0xED) lead.high = 0x9F;
    return lead;
  }
  if (byte >= 0xF0 && byte <= 0xF4) {
    Lead lead{3, 0x80, 0xBF, CodePoint(byte & 0x07)};
    if (byte == 0xF0) lead.low = 0x90;
    if (byte == 0xF4) lead.high = 0x8F;
    return lead;
  }
  return std::nullopt;
}

// Takes one character off the text, which starts with a byte of 128 or more; nothing for a bad
// sequence, whose bytes are taken off up to the first that cannot belong to it.
std::optional<CodePoint> takeCharacter(std::string_view& text) {
  const auto lead = leadOf(static_cast<unsigned char>(text.front()));
  text.remove_prefix(1);
  if (!lead) return std::nullopt;
  CodePoint character = lead->bits;
  unsigned char low = lead->low;
  unsigned char high = lead->high;
  for (std::size_t index = 0; index < lead->following; ++index) {
    if (text.empty()) return std::nullopt;
    const auto byte = static_cast<unsigned char>(text.front());
    if (byte < low || byte > high) return std::nullopt;
    character = character << 6 | (byte & 0x3F);
    text.remove_prefix(1);
    low = 0x80;
    high = 0xBF;
  }
  return character;
}

bool isAscii(char character) { return static_cast<unsigned char>(character) < 0x80; }

// Length of the ASCII run at the start of the text.
std::size_t asciiLength(std::string_view text) {
  return static_cast<std::size_t>(std::find_if_not(text.begin(), text.end(), isAscii) -
                                  text.begin());
}

}  // namespace

struct CodePage::Tables {
  struct Entry {
    CodePoint character;
    char byte;
  };

  std::array<std::string, kByteValues> utf8;  // by byte
  std::vector<Entry> bytes;                   // of the characters beyond ASCII, in their order

  explicit Tables(int number) {
    Iconv iconv("UTF-32LE", "CP" + std::to_string(number));
    if (!iconv.valid()) throw unknown(number);

    std::array<std::optional<CodePoint>, kByteValues> characters;
    for (std::size_t byte = 0; byte < kByteValues; ++byte) {
      try {
        characters[byte] = iconv.character(static_cast<unsigned char>(byte));
      } catch (const std::invalid_argument&) {
        throw unknown(number);
      }
      if (byte < 0x80 && characters[byte] != CodePoint(byte)) throw unknown(number);
    }
    for (std::size_t byte = 0x80; byte < kByteValues; ++byte) {
      if (!characters[byte]) characters[byte] = standIn(byte, characters);
      bytes.push_back({*characters[byte], static_cast<char>(byte)});
    }
    for (std::size_t byte = 0; byte < kByteValues; ++byte) {
      appendUtf8(utf8[byte], *characters[byte]);
    }
    std::ranges::sort(bytes, {}, &Entry::character);
  }

  char byteOf(CodePoint character) const {
    const auto entry = std::ranges::lower_bound(bytes, character, {}, &Entry::character);
    return entry != bytes.end() && entry->character == character ? entry->byte : kNoCharacter;
  }

 private:
  static std::invalid_argument unknown(int number) {
    return std::invalid_argument("code page " + std::to_string(number) +
                                 " is unknown or not a single-byte page");
  }

  // The character for an undefined byte: that of the same number, or, where another byte of the
  // page is that character, one for private use.
  static CodePoint standIn(std::size_t byte,
                           const std::array<std::optional<CodePoint>, kByteValues>& characters) {
    constexpr CodePoint kPrivateUse = 0xF700;
    const auto same = static_cast<CodePoint>(byte);
    return std::ranges::find(characters, same) == characters.end() ? same : kPrivateUse + same;
  }
};

CodePage::CodePage(int number) : number_(number) {
  if (number != kUtf8) tables_ = std::make_shared<const Tables>(number);
}

std::string CodePage::fromUtf8(std::string_view utf8) const {
  if (!tables_) return std::string(utf8);
  std::string result;
  result.reserve(utf8.size());
  while (!utf8.empty()) {
    const std::size_t plain = asciiLength(utf8);
    result.append(utf8.substr(0, plain));
    utf8.remove_prefix(plain);
    if (utf8.empty()) break;
    const auto character = takeCharacter(utf8);
    result += character ? tables_->byteOf(*character) : kNoCharacter;
  }
  return result;
}

std::string CodePage::toUtf8(std::string_view text) const {
  if (!tables_) return std::string(text);
  std::string result;
  result.reserve(text.size());
  while (!text.empty()) {
    const std::size_t plain = asciiLength(text);
    result.append(text.substr(0, plain));
    text.remove_prefix(plain);
    if (text.empty()) break;
    result += tables_->utf8[static_cast<unsigned char>(text.front())];
    text.remove_prefix(1);
  }
  return result;
}

}  // namespace tarrowin
