// Text as database files store it, and the comparing of names.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "shared/code_page.h"

namespace tarrowin::mdb {

// Turns stored text into UTF-8. Jet 3 stores text in an ANSI code page, Jet 4 as UTF-16.
class TextDecoder {
 public:
  TextDecoder(bool jet3, CodePage codePage) : jet3_(jet3), codePage_(std::move(codePage)) {}

  // Of Text and Memo columns, which Jet 4 may store compressed: FF FE, then runs of one byte a
  // character (the first 256 of Unicode) and runs of two, a zero byte between them.
  std::string column(std::span<const std::uint8_t> bytes) const;
  // Of names and properties, which are never compressed.
  std::string plain(std::span<const std::uint8_t> bytes) const;

 private:
  bool jet3_;
  CodePage codePage_;
};

// The code page of that number, or the Western one when it is not known.
CodePage knownCodePage(int number);

// Under 0, 0 or above 0, as the names of objects stand in lists: letters compare without regard to
// case (Latin, Greek, Cyrillic), by Unicode number.
int compareIgnoringCase(std::string_view left, std::string_view right);

// The order of all lists of objects: as above, names that differ only in case by their bytes.
bool nameLess(std::string_view left, std::string_view right);

}  // namespace tarrowin::mdb
