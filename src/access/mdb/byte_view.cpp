// The message of a read beyond the end of a view.
// Kept apart from the header so that the reads stay small.
#include "access/mdb/byte_view.h"

#include <bit>

#include "access/mdb/damage.h"

namespace tarrowin::mdb {

static_assert(std::endian::native == std::endian::little, "reads assume a little-endian machine");

void ByteView::fail(std::size_t at, std::size_t length) const {
  raiseDamaged(describe(place_) + " holds " + std::to_string(bytes_.size()) +
               " bytes, but something of " + std::to_string(length) +
               " bytes should stand at byte " + std::to_string(at));
}

}  // namespace tarrowin::mdb
