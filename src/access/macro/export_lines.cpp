// The grammar below the blocks:
//   Left =120                        a number, or
//   Caption ="a long te"             a text, \" \\ and \015 (octal) standing for characters,
//       "xt"                         which may go on in the lines below
//   GUID = Begin                     bytes, 32 a line
//       0x0123 ,
//   End
#include "access/macro/export_lines.h"

#include <algorithm>

namespace tarrowin {

namespace {

bool isKeywordCharacter(char character) {
  return (character >= 'A' && character <= 'Z') || (character >= 'a' && character <= 'z') ||
         (character >= '0' && character <= '9') || character == '_';
}

std::string_view trimmed(std::string_view line) {
  if (line.ends_with('\r')) line.remove_suffix(1);
  const std::size_t start = line.find_first_not_of(' ');
  if (start == std::string_view::npos) return {};
  return line.substr(start, line.find_last_not_of(' ') - start + 1);
}

std::size_t keywordLength(std::string_view line) {
  return static_cast<std::size_t>(std::ranges::find_if_not(line, isKeywordCharacter) -
                                  line.begin());
}

// The value of a hexadecimal digit, or -1.
int digitValue(char digit) {
  if (digit >= '0' && digit <= '9') return digit - '0';
  if (digit >= 'a' && digit <= 'f') return digit - 'a' + 10;
  return digit >= 'A' && digit <= 'F' ? digit - 'A' + 10 : -1;
}

constexpr std::string_view kEquals = " =",
                           kNoProperty = "neither a property nor \"Begin\" or \"End\"";

}  // namespace

void ExportLines::fail(const std::string& problem) const {
  throw ExportTextError(std::max<std::size_t>(number_, 1), problem);
}

bool ExportLines::next() {
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

ExportLines::Property ExportLines::property() const {
  const std::size_t length = keywordLength(line_);
  Property found{{}, line_.substr(0, length), {}};
  std::string_view behind = line_.substr(length);
  constexpr std::string_view kNameStart = " \"";
  if (length > 0 && behind.starts_with(kNameStart)) {
    behind.remove_prefix(kNameStart.size());
    const std::size_t end = std::min(behind.find('"'), behind.size());
    found = {found.keyword, behind.substr(0, end), {}};
    behind.remove_prefix(std::min(end + 1, behind.size()));
  }
  if (length == 0 || !behind.starts_with(kEquals)) fail(std::string(kNoProperty));
  found.value = behind.substr(kEquals.size());
  return found;
}

bool ExportLines::readText(std::string_view value, std::string& text) {
  if (!value.starts_with('"')) fail("a text in quotes is expected");
  bool more = true;
  do {
    appendPiece(value, text);
    more = next();
    value = line_;
  } while (more && value.starts_with('"'));
  return more;
}

void ExportLines::appendPiece(std::string_view piece, std::string& text) const {
  piece.remove_prefix(1);
  while (!piece.starts_with('"')) {
    if (piece.empty()) fail("a text without closing quote");
    if (piece.front() == '\\') {
      piece.remove_prefix(1);
      appendEscaped(piece, text);
    } else {
      const std::size_t plain = std::min(piece.find_first_of("\"\\"), piece.size());
      text += piece.substr(0, plain);
      piece.remove_prefix(plain);
    }
  }
  if (piece.size() > 1) fail("something stands behind the closing quote");
}

// Takes what stands behind a backslash.
void ExportLines::appendEscaped(std::string_view& piece, std::string& text) const {
  if (piece.starts_with('"') || piece.starts_with('\\')) {
    text += piece.front();
    piece.remove_prefix(1);
    return;
  }
  constexpr std::size_t kDigits = 3;
  constexpr unsigned kLastCode = 255, kLastAscii = 127;
  unsigned code = 0;
  for (std::size_t i = 0; i < kDigits; ++i, piece.remove_prefix(1)) {
    if (piece.empty() || piece.front() < '0' || piece.front() > '7')
      fail("an unknown character behind \"\\\"");
    code = code * 8 + static_cast<unsigned>(piece.front() - '0');
  }
  if (code > kLastCode) fail("an unknown character behind \"\\\"");
  const std::string character(1, static_cast<char>(code));
  // A lone byte beyond ASCII is no character of UTF-8.
  const bool isAnsi = code > kLastAscii && codePage_.number() == CodePage::kUtf8;
  text += isAnsi ? CodePage().toUtf8(character) : character;
}

Bytes ExportLines::readHex(std::size_t start) {
  Bytes bytes;
  for (; line_ != "End"; next()) {
    if (line_.empty()) throw ExportTextError(start, "a block without \"End\"");
    constexpr std::string_view kPrefix = "0x", kMore = " ,";
    std::string_view digits = line_;
    if (!digits.starts_with(kPrefix)) fail("a line of hexadecimal digits is expected");
    digits.remove_prefix(kPrefix.size());
    if (digits.ends_with(kMore)) digits.remove_suffix(kMore.size());
    appendHex(digits, bytes);
  }
  return bytes;
}

void ExportLines::appendHex(std::string_view digits, Bytes& bytes) const {
  if (digits.size() % 2 != 0) fail("half a byte in a line of hexadecimal digits");
  for (std::size_t i = 0; i < digits.size(); i += 2) {
    const int high = digitValue(digits[i]), low = digitValue(digits[i + 1]);
    if (high < 0 || low < 0) fail("no hexadecimal digit");
    bytes.push_back(static_cast<std::uint8_t>(high * 16 + low));
  }
}

}  // namespace tarrowin
