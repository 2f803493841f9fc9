// Cells of a table by the number of the row, read when asked for.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

#include "access/mdb/mdb_database.h"

namespace tarrowin::vba {

// A row is found by one walk over the table up to it, and again without any.
class TableCells {
 public:
  // The database must live and stay in its place. Throws mdb::Error (kDamaged) when it has no such
  // table.
  TableCells(const mdb::Database& database, std::string_view table);

  // 0-based position of the column. Throws mdb::Error (kDamaged) when there is none.
  std::size_t column(std::string_view name) const;

  // To the 0-based row; false when the table has fewer. Throws mdb::Error (kDamaged).
  bool moveTo(std::size_t row);
  // Cells of the row reached. Throw mdb::Error (kDamaged), also for a cell of another type; Null
  // gives 0 and no bytes.
  std::int32_t number(std::size_t column) const;
  std::string text(std::size_t column) const;
  Bytes bytes(std::size_t column) const;

 private:
  const mdb::Database* database_;
  const mdb::CatalogObject* table_;
  std::optional<mdb::Rows> rows_;
  std::vector<mdb::RowAddress> passed_;  // the rows that the walk has met
};

}  // namespace tarrowin::vba
