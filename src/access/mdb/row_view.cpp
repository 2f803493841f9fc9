// The two row formats. In front the fixed part; at the end, read backwards, the null mask, the
// number of variable columns and the offsets of their data.
#include "access/mdb/row_view.h"

#include <algorithm>

#include "access/mdb/damage.h"

namespace tarrowin::mdb {
namespace {

std::size_t fixedSize(const StoredColumn& column) {
  // A decimal is stored with a byte of its own for the sign.
  constexpr std::size_t kStoredDecimalSize = 17;
  if (column.type == kStoredDecimal) return kStoredDecimalSize;
  return sizeOfType(column.type).value_or(column.length);
}

}  // namespace

RowView::RowView(const ByteView& bytes, const JetFormat& format, std::size_t firstVariable)
    : bytes_(bytes), jet3_(format.jet3), columnCountSize_(format.columnCountSize) {
  columnCount_ = jet3_ ? bytes_.u8(0) : bytes_.u16(0);
  std::size_t maskSize = (columnCount_ + 7) / 8;
  if (columnCountSize_ + maskSize > bytes_.size()) {
    raiseDamaged("a row on " + describe(bytes_.place()) + " is too short for its " +
                 std::to_string(columnCount_) + " columns");
  }
  maskStart_ = bytes_.size() - maskSize;
  dataEnd_ = maskStart_;
  if (columnCount_ <= firstVariable) return;
  if (jet3_) {
    findVariablePartJet3();
  } else {
    findVariablePartJet4();
  }
}

// Before the mask: u16 number of columns; before it the u16 offsets, the first column's nearest.
// One offset more than columns: the last is the end of the data.
void RowView::findVariablePartJet4() {
  std::size_t need = 2;
  if (maskStart_ >= need) {
    variableCount_ = bytes_.u16(maskStart_ - 2);
    need += 2 * (variableCount_ + 1);
  }
  if (maskStart_ < columnCountSize_ + need) {
    raiseDamaged("a row on " + describe(bytes_.place()) + " is too short for its " +
                 std::to_string(variableCount_) + " variable columns");
  }
  dataEnd_ = maskStart_ - need;
  offsetsEnd_ = maskStart_ - 2;
}

// Before the mask: u8 number of columns, the jump table, the u8 offsets. An offset of one byte
// reaches 255; the jump table names the columns from which on another 256 are to be added. It has a
// byte for each 256 bytes of the row, of which the last ones mean nothing when the data, without
// all that stands behind it, does not reach that far.
void RowView::findVariablePartJet3() {
  std::size_t jumpBytes = (bytes_.size() - 1) / 256;
  if (maskStart_ > columnCountSize_) variableCount_ = bytes_.u8(maskStart_ - 1);
  std::size_t need = 1 + jumpBytes + variableCount_ + 1;
  if (maskStart_ < columnCountSize_ + need) {
    raiseDamaged("a row on " + describe(bytes_.place()) + " is too short for its " +
                 std::to_string(variableCount_) + " variable columns");
  }
  dataEnd_ = maskStart_ - need;
  offsetsEnd_ = maskStart_ - 1 - jumpBytes;
  jumpCount_ = std::min(jumpBytes, dataEnd_ / 256);
}

bool RowView::bit(const StoredColumn& column) const {
  if (column.number >= columnCount_) return false;
  return (bytes_.u8(maskStart_ + column.number / 8) >> (column.number % 8) & 1) != 0;
}

std::optional<ByteView> RowView::cell(const StoredColumn& column) const {
  if (!bit(column)) return std::nullopt;
  if (column.fixed) {
    return bytes_.sub(0, dataEnd_).sub(columnCountSize_ + column.offset, fixedSize(column));
  }
  if (column.variable >= variableCount_) return std::nullopt;
  std::size_t start = variableOffset(column.variable);
  std::size_t end = variableOffset(column.variable + 1);
  if (start > end || end > dataEnd_) {
    raiseDamaged("a row on " + describe(bytes_.place()) + " has a cell outside of it");
  }
  return bytes_.sub(start, end - start);
}

std::size_t RowView::variableOffset(std::size_t index) const {
  if (!jet3_) return bytes_.u16(offsetsEnd_ - 2 * (index + 1));
  return bytes_.u8(offsetsEnd_ - 1 - index) + 256 * jumpsBefore(index);
}

std::size_t RowView::jumpsBefore(std::size_t index) const {
  std::size_t jumps = 0;
  for (std::size_t i = 0; i < jumpCount_; ++i) {
    if (bytes_.u8(maskStart_ - 2 - i) <= index) ++jumps;
  }
  return jumps;
}

}  // namespace tarrowin::mdb
