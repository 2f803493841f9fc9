// Down through queries on queries to the table, and its columns in another order.
#include "access/model/query_rows.h"

#include <algorithm>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "access/record_source/plain_select.h"

namespace tarrowin {

namespace {

constexpr std::size_t kComputed = SIZE_MAX;
// E_NOTIMPL.
constexpr std::int32_t kErrNotImplemented = static_cast<std::int32_t>(0x80004001u);
// Queries on queries; a query that rests on itself ends here too.
constexpr int kDeepest = 50;

class SelectedColumns : public RowCursor {
 public:
  SelectedColumns(std::unique_ptr<RowCursor> rows, std::vector<std::size_t> columns)
      : rows_(std::move(rows)), columns_(std::move(columns)) {}

  bool next() override { return rows_->next(); }
  Recorded<Value> cell(std::size_t field) const override {
    if (columns_[field] == kComputed) return RecordedError{kErrNotImplemented, std::nullopt};
    return rows_->cell(columns_[field]);
  }

 private:
  std::unique_ptr<RowCursor> rows_;
  std::vector<std::size_t> columns_;
};

const TableModel* tableBelow(const DatabaseModel& database, std::string source) {
  for (int depth = 0; depth < kDeepest; ++depth) {
    if (const TableModel* table = database.tables.find(source, database.folding)) return table;
    if (const QueryModel* query = database.queries.find(source, database.folding)) {
      const std::string* sql = query->sql.get().ifRead();
      if (!sql) return nullptr;
      source = *sql;
    }
    const auto below = plainSourceOf(database.codePage.toUtf8(source));
    if (!below) return nullptr;
    source = database.codePage.fromUtf8(*below);
  }
  return nullptr;
}

// The position in the table of each field.
std::vector<std::size_t> columnsOf(const FieldList& fields, const FieldList& ofTable,
                                   const CaseFolding& folding) {
  std::vector<std::size_t> columns;
  for (const FieldModel& field : fields) {
    // A recorded field may not tell its name in the table.
    const std::string& name = field.sourceField.empty() ? field.name : field.sourceField;
    const auto column = std::ranges::find_if(ofTable, [&](const FieldModel& candidate) {
      return folding.equal(candidate.sourceTable, field.sourceTable) &&
             folding.equal(candidate.sourceField, name);
    });
    columns.push_back(column == ofTable.end() ? kComputed
                                              : static_cast<std::size_t>(column - ofTable.begin()));
  }
  return columns;
}

}  // namespace

std::unique_ptr<RowCursor> openQueryRows(const Session& session, std::string_view source,
                                         const FieldList& fields) {
  const DatabaseModel& database = session.model();
  const TableModel* table = tableBelow(database, std::string(source));
  if (!table || !table->openRows) return nullptr;
  std::vector<std::size_t> columns =
      columnsOf(fields, session.fieldsOfTable(*table), database.folding);
  // Nothing but computed columns may as well be totals, which have one row for all.
  if (std::ranges::all_of(columns, [](std::size_t column) { return column == kComputed; }))
    return nullptr;
  std::unique_ptr<RowCursor> rows = table->openRows();
  if (!rows) return nullptr;
  return std::make_unique<SelectedColumns>(std::move(rows), std::move(columns));
}

}  // namespace tarrowin
