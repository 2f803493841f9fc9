// The walk: the pages of the usage map that belong to the table, on each the rows that are alive.
// See row_cursor.h.
#include "access/mdb/row_cursor.h"

#include "access/mdb/cell_value.h"
#include "access/mdb/damage.h"
#include "access/mdb/long_value.h"
#include "access/mdb/usage_map.h"

namespace tarrowin::mdb {
namespace {

// What opening a page or a row costs, in steps.
constexpr std::uint64_t kPageSteps = 64;
constexpr std::uint64_t kRowSteps = 16;

}  // namespace

RowCursor::RowCursor(const FileContext& file, const TableDefinition& definition)
    : file_(&file), definition_(&definition), budget_(StepBudget::forFile(file.pages.fileSize())) {}

bool RowCursor::next() {
  if (atEnd_) return false;
  atEnd_ = true;  // stays so when something below throws
  if (!advance()) {
    checkCount();
    return false;
  }
  atEnd_ = false;
  return true;
}

bool RowCursor::advance() {
  while (true) {
    if (!page_ || nextRow_ >= page_->rowCount()) {
      if (!nextPage()) return false;
      continue;
    }
    std::size_t row = nextRow_++;
    if (page_->slot(row).skipped) continue;
    moveTo(RowAddress{(*pages_)[nextPage_ - 1], static_cast<std::uint16_t>(row)});
    ++rowsMet_;
    return true;
  }
}

// A usage map may also name pages that have gone to another table since.
bool RowCursor::nextPage() {
  page_.reset();
  nextRow_ = 0;
  file_->pages.checkStillThere();
  if (!pages_) pages_ = readUsageMap(file_->pages, definition_->usageMap);
  while (nextPage_ < pages_->size()) {
    budget_.spend(kPageSteps);
    std::uint32_t number = (*pages_)[nextPage_++];
    ByteView bytes = file_->pages.page(number);
    if (bytes.u8(0) == kDataPage && bytes.u32(kPageOwner) == definition_->page) {
      page_.emplace(file_->pages, number);
      return true;
    }
    skippedPages_ = true;
  }
  return false;
}

void RowCursor::moveTo(RowAddress address) {
  ByteView bytes = readRow(file_->pages, address, definition_->page);
  budget_.spend(bytes.size() + kRowSteps);
  row_ = RowView(bytes, file_->pages.format(), definition_->firstVariable);
  address_ = address;
}

void RowCursor::revisit(RowAddress address) {
  file_->pages.checkStillThere();
  budget_ = StepBudget::forFile(file_->pages.fileSize());
  moveTo(address);
}

// The count of a definition is not exact. Only when it promises more rows than were met and pages
// have been passed over, or pages of the table are missing in its usage map, are rows lost.
void RowCursor::checkCount() const {
  if (rowsMet_ >= definition_->rowCount) return;
  if (!skippedPages_ && !hasUnlistedPages()) return;
  raiseDamaged("it should have " + std::to_string(definition_->rowCount) + " rows, but only " +
               std::to_string(rowsMet_) + " can be found");
}

bool RowCursor::hasUnlistedPages() const {
  auto listed = pages_->begin();
  for (std::uint32_t number = 1; number < file_->pages.pageCount(); ++number) {
    while (listed != pages_->end() && *listed < number) ++listed;
    if (listed != pages_->end() && *listed == number) continue;
    ByteView page = file_->pages.page(number);
    if (page.u8(0) == kDataPage && page.u32(kPageOwner) == definition_->page) return true;
  }
  return false;
}

Value RowCursor::value(std::size_t column) const {
  const StoredColumn& stored = definition_->stored[column];
  if (stored.type == kDaoBoolean) return Value(row_.bit(stored));
  std::optional<ByteView> cell = row_.cell(stored);
  if (!cell) return Value(Value::Null{});
  if (stored.type != kDaoMemo && stored.type != kDaoLongBinary) {
    return cellValue(*cell, stored, file_->text);
  }
  file_->pages.checkStillThere();
  Bytes bytes = readLongValue(file_->pages, *cell, budget_);
  if (stored.type == kDaoMemo) return Value(file_->text.column(bytes));
  return Value(std::move(bytes));
}

std::optional<std::string> RowCursor::text(std::size_t column) const {
  const StoredColumn& stored = definition_->stored[column];
  if (stored.type == kDaoText) {
    const std::optional<ByteView> cell = row_.cell(stored);
    return cell ? std::optional(file_->text.column(cell->bytes())) : std::nullopt;
  }
  Value value = this->value(column);
  if (value.text() == nullptr) return std::nullopt;
  return *value.text();
}

std::optional<std::int32_t> RowCursor::number(std::size_t column) const {
  const StoredColumn& stored = definition_->stored[column];
  if (stored.type == kDaoLong) {
    const std::optional<ByteView> cell = row_.cell(stored);
    return cell ? std::optional(cell->s32(0)) : std::nullopt;
  }
  Value value = this->value(column);
  if (value.longInteger() == nullptr) return std::nullopt;
  return *value.longInteger();
}

Bytes RowCursor::bytes(std::size_t column) const {
  Value value = this->value(column);
  return value.bytes() == nullptr ? Bytes{} : *value.bytes();
}

}  // namespace tarrowin::mdb
