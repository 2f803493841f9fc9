// Of what kind a stored property is.
#pragma once

#include <cstdint>

namespace tarrowin {

enum class ValueKind : std::uint8_t {
  kBoolean,  // stored by its presence, later ones as a byte
  kByte,
  kInteger,  // 16 bits
  kLong,     // 32 bits
  kSingle,
  kDouble,
  kGuid,
  kText,
  kBinary,
  kMacro,   // a macro of its own inside the design, since Access 2007
  kBySlot,  // the record does not tell
  kUnknown,
};

}  // namespace tarrowin
