// What an exported file holds, told by how it begins and not by its name.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "shared/code_page.h"

namespace tarrowin::exports {

enum class FileNature {
  kOther,
  kText,  // of any kind
  kForm,
  kReport,
  kBareDesign,  // a design's head without the form or report behind it
  kMacro,
  kQuery,
  kClassModule,  // or the code behind a form
  kModule,
  kTableSchema,
  kCreateTable,
};

struct FileHead {
  FileNature nature = FileNature::kOther;
  // Of a design its version, of a query the number of its operation; 0 unknown.
  std::int32_t number = 0;
};

// As much of a file as its nature shows in.
inline constexpr std::size_t kHeadSize = 4096;

// The first kHeadSize bytes of a file, or all of a shorter one.
FileHead headOf(std::string_view bytes);

}  // namespace tarrowin::exports
