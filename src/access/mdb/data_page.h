// Pages of rows: the rows of tables, and the pieces of long values.
#pragma once

#include <cstddef>
#include <cstdint>

#include "access/mdb/byte_view.h"
#include "access/mdb/jet_format.h"
#include "access/mdb/page_file.h"
#include "access/mdb/row_address.h"

namespace tarrowin::mdb {

// The form in which pages point at rows: u8 row, u24 page.
RowAddress readRowAddress(const ByteView& view, std::size_t at);

class DataPage {
 public:
  struct Slot {
    ByteView bytes;
    // The row is deleted, or has moved here from another page, which points at it.
    bool skipped = false;
    // The bytes are only a pointer to the row on another page.
    bool pointer = false;
  };

  // Throws Error (kDamaged) when the page is no data page or its row table does not fit.
  DataPage(const PageFile& file, std::uint32_t number);

  std::size_t rowCount() const { return rowCount_; }
  std::uint32_t owner() const { return page_.u32(kPageOwner); }
  // Throws Error (kDamaged) for a row that is not there or lies outside its place.
  Slot slot(std::size_t row) const;

 private:
  std::size_t entry(std::size_t row) const { return tableStart_ + 2 * row; }

  ByteView page_;
  std::size_t tableStart_;
  std::size_t rowCount_;
};

// The row of a table at the address, pointers to other pages followed.
ByteView readRow(const PageFile& file, RowAddress address, std::uint32_t owner);

}  // namespace tarrowin::mdb
