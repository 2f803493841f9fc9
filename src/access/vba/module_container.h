// The container in which Access 97 keeps the streams of one module, or of the project, in a cell.
#pragma once

#include <string_view>

#include "shared/value.h"

namespace tarrowin::vba {

// The bytes of the entry of that name. Throws mdb::Error (kDamaged) when there is none or the
// container is damaged before it.
Bytes readContainerEntry(const Bytes& container, std::string_view name);

}  // namespace tarrowin::vba
