// What the stored data of an OLE object tells about it.
#pragma once

#include <cstdint>
#include <span>

namespace tarrowin {

// OLEType of an unbound object frame, a chart or an ActiveX control, which no design stores: 0 the
// object is linked, 1 embedded, 3 there is none. The bytes are the stored property OleData: the
// length of a compound file in four bytes, and the file; none at all when it is not stored.
std::int32_t oleTypeOf(std::span<const std::uint8_t> oleData);

}  // namespace tarrowin
