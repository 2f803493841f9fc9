// Walking a table forwards, and straight back to a row passed already.
// See table_cells.h.
#include "access/vba/table_cells.h"

#include "access/mdb/damage.h"
#include "access/mdb/text.h"

namespace tarrowin::vba {

TableCells::TableCells(const mdb::Database& database, std::string_view table)
    : database_(&database), table_(database.find(mdb::ObjectKind::kTable, table)) {
  if (table_ == nullptr) mdb::raiseDamaged("the table " + std::string(table) + " is missing");
}

std::size_t TableCells::column(std::string_view name) const {
  const auto& columns = database_->columns(*table_);
  for (std::size_t i = 0; i < columns.size(); ++i) {
    if (mdb::compareIgnoringCase(columns[i].name, name) == 0) return i;
  }
  mdb::raiseDamaged("the table " + table_->name + " has no column " + std::string(name));
}

bool TableCells::moveTo(std::size_t row) {
  try {
    if (row < passed_.size()) {
      rows_->revisit(passed_[row]);
      return true;
    }
    if (!rows_) rows_.emplace(database_->rows(*table_));
    while (passed_.size() <= row) {
      if (!rows_->next()) return false;
      passed_.push_back(rows_->address());
    }
    return true;
  } catch (...) {
    rows_.reset();
    passed_.clear();
    throw;
  }
}

std::int32_t TableCells::number(std::size_t column) const {
  const Value value = rows_->value(column);
  if (value.isNull()) return 0;
  const std::int32_t* number = value.longInteger();
  if (number == nullptr) mdb::raiseDamaged("a cell of " + table_->name + " holds no number");
  return *number;
}

std::string TableCells::text(std::size_t column) const {
  const Value value = rows_->value(column);
  if (value.isNull()) return {};
  const std::string* text = value.text();
  if (text == nullptr) mdb::raiseDamaged("a cell of " + table_->name + " holds no text");
  return *text;
}

Bytes TableCells::bytes(std::size_t column) const {
  const Value value = rows_->value(column);
  if (value.isNull()) return {};
  const Bytes* bytes = value.bytes();
  if (bytes == nullptr) mdb::raiseDamaged("a cell of " + table_->name + " holds no bytes");
  return *bytes;
}

}  // namespace tarrowin::vba
