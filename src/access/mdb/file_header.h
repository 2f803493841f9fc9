// Page 0 of a database file: which format it is, its language, and whether it is protected.
#pragma once

#include <cstdint>
#include <span>

#include "access/mdb/jet_format.h"

namespace tarrowin::mdb {

struct FileHeader {
  const JetFormat* format = &kJet4;
  int versionByte = 0;        // 0 Jet 3, 1 Jet 4, 2 and up: Access 2007 and later
  int codePage = 0;           // ANSI code page as the header states it
  int languageId = 0;         // of the sort order
  std::uint32_t pageKey = 0;  // 0 = the pages are plain
  bool hasPassword = false;

  bool isNewer() const { return versionByte >= 2; }
};

// Throws Error: kNotADatabase without Jet's signature, kDamaged when the page is cut short.
FileHeader readFileHeader(std::span<const std::uint8_t> file);

}  // namespace tarrowin::mdb
