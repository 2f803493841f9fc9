// A walk over the rows of one table: the source behind Rows, and what the readers of the system
// tables use.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "access/mdb/data_page.h"
#include "access/mdb/page_file.h"
#include "access/mdb/row_view.h"
#include "access/mdb/step_budget.h"
#include "access/mdb/table.h"
#include "access/mdb/table_definition.h"
#include "access/mdb/text.h"

namespace tarrowin::mdb {

// What all cursors of one open file share.
struct FileContext {
  PageFile pages;
  TextDecoder text;
};

class RowCursor {
 public:
  // Stands before the first row. Reads nothing yet. The file and the definition must outlive the
  // cursor.
  RowCursor(const FileContext& file, const TableDefinition& definition);

  const TableDefinition& definition() const { return *definition_; }
  // To the next row; false at the end, and after an error.
  bool next();
  // Straight to a row that address() once gave.
  void moveTo(RowAddress address);
  // The same as an operation of its own, with a new budget; next() goes on from where it was.
  void revisit(RowAddress address);
  // Where the current row is to be found again.
  RowAddress address() const { return address_; }

  Value value(std::size_t column) const;
  // Typed cells of system tables; Null and cells of another type are absent.
  std::optional<std::string> text(std::size_t column) const;
  std::optional<std::int32_t> number(std::size_t column) const;
  Bytes bytes(std::size_t column) const;

 private:
  bool advance();
  bool nextPage();
  void checkCount() const;
  bool hasUnlistedPages() const;

  const FileContext* file_;
  const TableDefinition* definition_;
  std::optional<std::vector<std::uint32_t>> pages_;  // read by the first next()
  std::size_t nextPage_ = 0;
  std::optional<DataPage> page_;
  std::size_t nextRow_ = 0;
  std::uint64_t rowsMet_ = 0;
  bool skippedPages_ = false;  // pages of the usage map that are not the table's
  bool atEnd_ = false;
  RowAddress address_;
  RowView row_;
  mutable StepBudget budget_;
};

}  // namespace tarrowin::mdb
