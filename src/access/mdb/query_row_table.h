// The rows of one saved query, put in order and handed out by what they tell.
// Takes the rows as the system table yields them; the clauses of the SQL text read them here.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

#include "access/mdb/query_rows.h"

namespace tarrowin::mdb {

// What a row of MSysQueries tells: its column Attribute. Start (0) and end (255) carry nothing.
enum class QueryAttribute : int {
  kKind = 1,
  kParameter = 2,
  kOptions = 3,
  kOtherDatabase = 4,
  kSource = 5,
  kColumn = 6,
  kJoin = 7,
  kWhere = 8,
  kGroupBy = 9,
  kHaving = 10,
  kOrderBy = 11,
};

// A view: the rows must outlive it.
class QueryRowTable {
 public:
  explicit QueryRowTable(std::span<const QueryRow> rows);

  bool empty() const { return rows_.empty(); }
  // All rows of one attribute by their column Order, those of equal order as they came.
  std::span<const QueryRow* const> of(QueryAttribute attribute) const;
  // The first of them, or nullptr.
  const QueryRow* first(QueryAttribute attribute) const;

 private:
  std::vector<const QueryRow*> rows_;  // sorted by attribute, then order
};

// A text column; Null and the empty text count alike.
inline std::string_view textOf(const std::optional<std::string>& column) {
  return column ? std::string_view(*column) : std::string_view();
}

// The Flag column, 0 for Null or for no row.
inline std::int32_t flagOf(const QueryRow* row) { return row ? row->flag.value_or(0) : 0; }

}  // namespace tarrowin::mdb
