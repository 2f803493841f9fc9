// The compression of Visual Basic projects: chunks of at most 4,096 bytes, made of plain bytes and
// of copies of what the chunk has given so far.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

#include "shared/value.h"

namespace tarrowin::vba {

// No text can be longer: a module has at most 65,534 lines of 1,023 characters and a line end.
inline constexpr std::size_t kMaximumDecompressed = std::size_t{65534} * 1025;

// The compressed data runs to the end of the span. Throws mdb::Error (kDamaged): a missing start
// byte, a chunk that is cut short or gives more than 4,096 bytes, a copy from before the chunk's
// start, more than the limit.
Bytes decompress(std::span<const std::uint8_t> compressed,
                 std::size_t limit = kMaximumDecompressed);

// Where the compressed source text of a module begins in its stream, found by the look of its first
// bytes; nothing when there is none. The last such place counts.
std::optional<std::size_t> findCompressedSource(std::span<const std::uint8_t> stream);

}  // namespace tarrowin::vba
