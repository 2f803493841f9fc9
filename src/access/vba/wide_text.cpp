// UTF-16 to UTF-8.
// See wide_text.h.
#include "access/vba/wide_text.h"

#include "access/mdb/text.h"

namespace tarrowin::vba {

std::string wideText(std::span<const std::uint8_t> utf16) {
  static const mdb::TextDecoder kDecoder(false, CodePage(CodePage::kUtf8));
  return kDecoder.plain(utf16);
}

}  // namespace tarrowin::vba
