// The definition of one table: its columns, how they are stored, and where the rows are.
#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <optional>
#include <string_view>
#include <vector>

#include "access/mdb/data_page.h"
#include "access/mdb/page_file.h"
#include "access/mdb/table.h"
#include "access/mdb/text.h"

namespace tarrowin::mdb {

struct StoredColumn {
  int type = 0;              // as stored; 16 Decimal, 17 fixed binary differ from DAO's numbers
  std::size_t number = 0;    // bit in a row's null mask
  bool fixed = false;        // stored in the fixed part of the row
  std::size_t offset = 0;    // in the fixed part, from behind the row's column count
  std::size_t variable = 0;  // index among the variable columns
  std::size_t length = 0;    // in bytes
  int scale = 0;             // Decimal: digits behind the point
};

struct TableDefinition {
  std::uint32_t page = 0;      // its first page, which names it in the data pages
  std::uint32_t rowCount = 0;  // as the definition states it
  // The lowest number of a column in the variable part. Rows with no more columns than that were
  // written before the table had any such column and may lack the part altogether.
  std::size_t firstVariable = std::numeric_limits<std::size_t>::max();
  RowAddress usageMap;
  // Both in the order of display.
  std::vector<Column> columns;
  std::vector<StoredColumn> stored;

  // Position of the column whose name matches without regard to the case of letters.
  // Throws Error (kDamaged) when there is none.
  std::size_t require(std::string_view name) const;
  // The same; columns.size() when there is none.
  std::size_t find(std::string_view name) const;
};

// Stored type numbers that DAO does not share.
inline constexpr int kStoredDecimal = 16;
inline constexpr int kStoredFixedBinary = 17;

// Bytes of a number, a date or a GUID; nothing for the types whose size is the column's own.
std::optional<std::size_t> sizeOfType(int type);

// The definition that begins on the page. Throws Error (kDamaged).
TableDefinition readTableDefinition(const PageFile& file, std::uint32_t page,
                                    const TextDecoder& text);

}  // namespace tarrowin::mdb
