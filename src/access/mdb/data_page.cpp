// The row table of a data page and the pointers from page to page.
// Rows are laid down from the end of the page towards its front, their offsets from the front.
#include "access/mdb/data_page.h"

#include "access/mdb/damage.h"

namespace tarrowin::mdb {
namespace {

constexpr std::uint16_t kOffsetMask = 0x1FFF;
constexpr std::uint16_t kSkipped = 0x8000;
constexpr std::uint16_t kPointer = 0x4000;

// A row that has outgrown its page moves once; Jet updates the first pointer when it moves again.
constexpr int kMaximumMoves = 8;

std::string rowName(RowAddress address) {
  return "row " + std::to_string(address.row) + " of page " + std::to_string(address.page);
}

}  // namespace

RowAddress readRowAddress(const ByteView& view, std::size_t at) {
  return RowAddress{view.u24(at + 1), view.u8(at)};
}

DataPage::DataPage(const PageFile& file, std::uint32_t number)
    : page_(file.page(number, kDataPage)),
      tableStart_(file.format().dataRowCount + 2),
      rowCount_(page_.u16(file.format().dataRowCount)) {
  if (entry(rowCount_) > page_.size()) {
    raiseDamaged("page " + std::to_string(number) + " cannot hold the " +
                 std::to_string(rowCount_) + " rows that it announces");
  }
}

DataPage::Slot DataPage::slot(std::size_t row) const {
  if (row >= rowCount_) {
    raiseDamaged(describe(page_.place()) + " has " + std::to_string(rowCount_) + " rows, but row " +
                 std::to_string(row) + " is asked for");
  }
  std::uint16_t word = page_.u16(entry(row));
  std::size_t start = word & kOffsetMask;
  std::size_t end = row == 0 ? page_.size() : page_.u16(entry(row - 1)) & kOffsetMask;
  if (start < entry(rowCount_) || start > end || end > page_.size()) {
    raiseDamaged("row " + std::to_string(row) + " of " + describe(page_.place()) +
                 " lies outside its place");
  }
  return Slot{page_.sub(start, end - start), (word & kSkipped) != 0, (word & kPointer) != 0};
}

ByteView readRow(const PageFile& file, RowAddress address, std::uint32_t owner) {
  for (int moves = 0; moves <= kMaximumMoves; ++moves) {
    DataPage page(file, address.page);
    if (page.owner() != owner) {
      raiseDamaged(rowName(address) + " does not belong to the table that points at it");
    }
    DataPage::Slot slot = page.slot(address.row);
    if (!slot.pointer) return slot.bytes;
    address = readRowAddress(slot.bytes, 0);
  }
  raiseDamaged(rowName(address) + " is only one of many pointers that lead nowhere");
}

}  // namespace tarrowin::mdb
