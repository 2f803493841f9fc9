// Chunks, plain bytes and copies.
// See decompress.h.
#include "access/vba/decompress.h"

#include <algorithm>
#include <array>
#include <bit>
#include <string>

#include "access/mdb/byte_view.h"
#include "access/mdb/damage.h"

namespace tarrowin::vba {
namespace {

constexpr std::uint8_t kStart = 1;
constexpr std::size_t kChunkSize = 4096;  // bytes that a chunk gives at most

// The head of a chunk, u16: size of the chunk less 3, a fixed mark, whether it is compressed.
constexpr std::size_t kHeadSize = 2;
constexpr std::uint16_t kSizeBits = 0x0FFF;
constexpr std::uint16_t kMarkBits = 0x7000;
constexpr std::uint16_t kMark = 0x3000;
constexpr std::uint16_t kCompressed = 0x8000;

constexpr std::size_t kShortestCopy = 3;

// The two parts of a copy: the more bytes the chunk has given, the more bits the distance needs.
struct Copy {
  Copy(std::uint16_t token, std::size_t given) {
    const int distanceBits = std::max(4, static_cast<int>(std::bit_width(given - 1)));
    length = (token & (0xFFFFu >> distanceBits)) + kShortestCopy;
    distance = (token >> (16 - distanceBits)) + std::size_t{1};
  }
  std::size_t length;
  std::size_t distance;
};

// Appends what the items of one compressed chunk give.
void decompressChunk(const mdb::ByteView& items, Bytes& target) {
  const std::size_t start = target.size();
  const auto check = [&](std::size_t more) {
    if (target.size() - start + more > kChunkSize) {
      mdb::raiseDamaged("a compressed chunk gives more than 4,096 bytes");
    }
  };
  std::size_t at = 0;
  while (at < items.size()) {
    const std::uint8_t flags = items.u8(at++);
    for (int bit = 0; bit < 8 && at < items.size(); ++bit) {
      if ((flags >> bit & 1) == 0) {
        check(1);
        target.push_back(items.u8(at++));
        continue;
      }
      const std::size_t given = target.size() - start;
      const std::uint16_t token = items.u16(at);
      at += 2;
      if (given == 0) mdb::raiseDamaged("a compressed chunk begins with a copy");
      const Copy copy(token, given);
      if (copy.distance > given) {
        mdb::raiseDamaged("a compressed chunk copies from before its start");
      }
      check(copy.length);
      // Byte by byte: the copy may reach into itself.
      for (std::size_t i = 0; i < copy.length; ++i) {
        target.push_back(target[target.size() - copy.distance]);
      }
    }
  }
}

}  // namespace

Bytes decompress(std::span<const std::uint8_t> compressed, std::size_t limit) {
  const mdb::ByteView view(compressed, {"compressed data"});
  if (view.u8(0) != kStart) mdb::raiseDamaged("the compressed data lacks its start byte");
  Bytes result;
  std::size_t at = 1;
  while (at < view.size()) {
    const std::uint16_t head = view.u16(at);
    if ((head & kMarkBits) != kMark) mdb::raiseDamaged("the head of a compressed chunk is damaged");
    if ((head & kCompressed) != 0) {
      const std::size_t size = (head & kSizeBits) + std::size_t{3};
      decompressChunk(view.sub(at + kHeadSize, size - kHeadSize), result);
      at += size;
    } else {
      const auto plain = view.sub(at + kHeadSize, kChunkSize).bytes();
      result.insert(result.end(), plain.begin(), plain.end());
      at += kHeadSize + kChunkSize;
    }
    if (result.size() > limit) mdb::raiseDamaged("the decompressed data is too long");
  }
  return result;
}

// The text begins with "Attribute", so its first chunk with a flag byte that announces eight plain
// bytes, and these. Before it stand the start byte and the head of the chunk.
std::optional<std::size_t> findCompressedSource(std::span<const std::uint8_t> stream) {
  constexpr std::array<std::uint8_t, 9> kBeginning{0, 'A', 't', 't', 'r', 'i', 'b', 'u', 't'};
  constexpr std::size_t kBefore = 1 + kHeadSize;
  auto end = stream.end();
  for (;;) {
    const auto found = std::find_end(stream.begin(), end, kBeginning.begin(), kBeginning.end());
    if (found == end) return std::nullopt;
    const auto at = static_cast<std::size_t>(found - stream.begin());
    if (at >= kBefore && stream[at - kBefore] == kStart && stream[at - 1] >> 4 == 0xB) {
      return at - kBefore;
    }
    end = found + (kBeginning.size() - 1);
  }
}

}  // namespace tarrowin::vba
