// Telling encodings apart.
// See export_encoding.h.
#include "access/macro/export_encoding.h"

#include <cstddef>
#include <string_view>

#include "access/mdb/text.h"

namespace tarrowin {

namespace {

constexpr std::string_view kUtf16Mark = "\xFF\xFE", kUtf8Mark = "\xEF\xBB\xBF";

// How many bytes a character has that begins with this one; 0 when none does.
std::size_t utf8Length(unsigned char first) {
  if (first < 0x80) return 1;
  if (first >= 0xC2 && first < 0xE0) return 2;
  if (first >= 0xE0 && first < 0xF0) return 3;
  return first >= 0xF0 && first < 0xF5 ? 4 : 0;
}

// Overlong forms and surrogates of three bytes pass: no text of another encoding looks like one.
bool isUtf8(std::string_view text) {
  while (!text.empty()) {
    const std::size_t length = utf8Length(static_cast<unsigned char>(text.front()));
    if (length == 0 || length > text.size()) return false;
    for (const char next : text.substr(1, length - 1))
      if ((static_cast<unsigned char>(next) & 0xC0) != 0x80) return false;
    text.remove_prefix(length);
  }
  return true;
}

}  // namespace

std::string exportText(std::span<const std::uint8_t> bytes, const CodePage& codePage) {
  std::string_view text(reinterpret_cast<const char*>(bytes.data()), bytes.size());
  if (text.starts_with(kUtf16Mark)) {
    const mdb::TextDecoder decoder(false, CodePage(CodePage::kUtf8));
    return codePage.fromUtf8(decoder.plain(bytes.subspan(kUtf16Mark.size())));
  }
  if (text.starts_with(kUtf8Mark)) {
    text.remove_prefix(kUtf8Mark.size());
  } else if (!isUtf8(text)) {
    return codePage.number() == CodePage::kUtf8 ? CodePage().toUtf8(text) : std::string(text);
  }
  return codePage.fromUtf8(text);
}

}  // namespace tarrowin
