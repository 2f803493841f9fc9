// The rows of one saved query, put in order and handed out by what they tell.
// The column Order holds binary numbers that compare as bytes.
#include "access/mdb/query_row_table.h"

#include <algorithm>

namespace tarrowin::mdb {

QueryRowTable::QueryRowTable(std::span<const QueryRow> rows) {
  rows_.reserve(rows.size());
  for (const QueryRow& row : rows) rows_.push_back(&row);
  std::stable_sort(rows_.begin(), rows_.end(), [](const QueryRow* left, const QueryRow* right) {
    if (left->attribute != right->attribute) return left->attribute < right->attribute;
    return left->order < right->order;
  });
}

std::span<const QueryRow* const> QueryRowTable::of(QueryAttribute attribute) const {
  struct ByAttribute {
    bool operator()(const QueryRow* row, int wanted) const { return row->attribute < wanted; }
    bool operator()(int wanted, const QueryRow* row) const { return wanted < row->attribute; }
  };
  const auto [begin, end] =
      std::equal_range(rows_.begin(), rows_.end(), static_cast<int>(attribute), ByAttribute{});
  return {begin, end};
}

const QueryRow* QueryRowTable::first(QueryAttribute attribute) const {
  const auto rows = of(attribute);
  return rows.empty() ? nullptr : rows.front();
}

}  // namespace tarrowin::mdb
