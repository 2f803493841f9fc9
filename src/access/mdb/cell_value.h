// The bytes of a cell as a value.
#pragma once

#include <cstdint>
#include <span>

#include "access/mdb/byte_view.h"
#include "access/mdb/table_definition.h"
#include "access/mdb/text.h"
#include "shared/value.h"

namespace tarrowin::mdb {

// A cell that stands in its row: everything but Boolean, Memo and OLE. A type that is not known
// gives its bytes. Throws Error (kDamaged) when the cell is too short for its type.
Value cellValue(const ByteView& cell, const StoredColumn& column, const TextDecoder& text);

// "{00000000-0000-0000-0000-000000000000}" of the 16 bytes.
std::string guidText(const ByteView& bytes);

}  // namespace tarrowin::mdb
