// The public cursor over the rows of a table.
// No source: a table without rows of its own.
#include "access/mdb/rows.h"

#include "access/mdb/damage.h"

namespace tarrowin::mdb {

Rows::Rows(std::unique_ptr<Source> source) : source_(std::move(source)) {}
Rows::Rows(Rows&&) noexcept = default;
Rows& Rows::operator=(Rows&&) noexcept = default;
Rows::~Rows() = default;

bool Rows::next() {
  if (!source_) return false;
  return inContext("table", source_->tableName, [&] { return source_->cursor.next(); });
}

RowAddress Rows::address() const { return source_->cursor.address(); }

void Rows::revisit(RowAddress address) {
  inContext("table", source_->tableName, [&] { source_->cursor.revisit(address); });
}

std::size_t Rows::columnCount() const {
  return source_ ? source_->cursor.definition().columns.size() : 0;
}

Value Rows::value(std::size_t column) const {
  return inContext("table", source_->tableName, [&] { return source_->cursor.value(column); });
}

std::vector<Value> Rows::values() const {
  std::vector<Value> values;
  values.reserve(columnCount());
  for (std::size_t i = 0; i < columnCount(); ++i) values.push_back(value(i));
  return values;
}

}  // namespace tarrowin::mdb
