// The stream "dir" of a Visual Basic project: its code page, its references, and where the code of
// each module stands.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "access/mdb/mdb_error.h"
#include "shared/code_page.h"
#include "shared/value.h"

namespace tarrowin::vba {

// A library that the project refers to.
struct Reference {
  std::string name;     // such as "DAO", UTF-8; may be empty
  std::string library;  // "*\G{guid}#major.minor#language#path#description", UTF-8
};

struct DirectoryModule {
  std::string name;                     // UTF-8
  std::string stream;                   // UTF-8; Access 97 says "_VBA_MODULE" for all
  std::optional<std::uint32_t> offset;  // of the compressed source text in the stream
  bool isClass = false;                 // or the code behind a form or report
};

struct ProjectDirectory {
  std::string name;  // UTF-8
  int codePage = CodePage::kWestern;
  // Nothing when the code page is not known or has several bytes a character: then only texts of
  // plain ASCII can be told.
  std::optional<CodePage> page;
  std::vector<Reference> references;
  std::vector<DirectoryModule> modules;
  // What kept the rest from being read; the parts above stand before it.
  std::optional<mdb::Error> damage;

  // Text of the project as UTF-8. Throws mdb::Error (kDamaged) when it is not ASCII and there is
  // no page.
  std::string toUtf8(std::string_view text) const;
};

// Reads the decompressed stream. Does not throw for damage.
ProjectDirectory readProjectDirectory(const Bytes& stream);

}  // namespace tarrowin::vba
