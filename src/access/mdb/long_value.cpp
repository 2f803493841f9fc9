// The reference in the row: u32 length with two flags, u8 row, u24 page, u32 that readers ignore.
// See long_value.h.
#include "access/mdb/long_value.h"

#include <algorithm>

#include "access/mdb/damage.h"
#include "access/mdb/data_page.h"

namespace tarrowin::mdb {
namespace {

constexpr std::uint32_t kLengthMask = 0x3FFFFFFF;
constexpr std::uint32_t kInRow = 0x80000000;
constexpr std::uint32_t kOnePiece = 0x40000000;
constexpr std::size_t kAddress = 4;
constexpr std::size_t kReferenceSize = 12;
constexpr std::size_t kNextPieceSize = 4;  // u8 row, u24 page in front of each piece of a chain

Bytes copy(const ByteView& view) {
  auto bytes = view.bytes();
  return Bytes(bytes.begin(), bytes.end());
}

ByteView piece(const PageFile& file, RowAddress address, StepBudget& budget) {
  ByteView bytes = DataPage(file, address.page).slot(address.row).bytes;
  budget.spend(bytes.size() + 64);
  return bytes;
}

Bytes readChain(const PageFile& file, RowAddress address, std::size_t length, StepBudget& budget) {
  Bytes value;
  value.reserve(length);
  while (value.size() < length) {
    if (address.page == 0) {
      raiseDamaged("a long value of " + std::to_string(length) + " bytes ends after " +
                   std::to_string(value.size()));
    }
    ByteView stored = piece(file, address, budget);
    address = readRowAddress(stored, 0);
    auto bytes = stored.from(kNextPieceSize).bytes();
    auto take = static_cast<std::ptrdiff_t>(std::min(bytes.size(), length - value.size()));
    value.insert(value.end(), bytes.begin(), bytes.begin() + take);
  }
  return value;
}

}  // namespace

Bytes readLongValue(const PageFile& file, const ByteView& cell, StepBudget& budget) {
  std::uint32_t word = cell.u32(0);
  std::size_t length = word & kLengthMask;
  if (length > file.fileSize()) {
    raiseDamaged("a long value claims " + std::to_string(length) +
                 " bytes, more than the file holds");
  }
  budget.spend(length);
  if (length == 0) return {};
  if ((word & kInRow) != 0) return copy(cell.sub(kReferenceSize, length));
  RowAddress address = readRowAddress(cell, kAddress);
  if ((word & kOnePiece) != 0) return copy(piece(file, address, budget).sub(0, length));
  return readChain(file, address, length, budget);
}

}  // namespace tarrowin::mdb
