// What the number of a stored property means.
#pragma once

#include <cstdint>
#include <string_view>

#include "access/design_blob/object_types.h"
#include "access/design_blob/value_kind.h"

namespace tarrowin {

struct Slot {
  std::string_view keyword;
  ValueKind kind = ValueKind::kUnknown;
};

// The slot of that number, or nullptr where none is known.
const Slot* findSlot(Numbering numbering, std::uint32_t id);

// The keyword of the code in a record of Access 2002 and later; empty where none is known.
std::string_view keywordOfCode(std::uint16_t code);

}  // namespace tarrowin
