// Takes apart the column LvProp of the catalog: the properties of an object and of its columns.
#pragma once

#include <cstdint>
#include <span>

#include "access/mdb/property_set.h"
#include "access/mdb/text.h"

namespace tarrowin::mdb {

// No bytes give no properties. Throws Error (kDamaged).
PropertySet readProperties(std::span<const std::uint8_t> bytes, const TextDecoder& text);

}  // namespace tarrowin::mdb
