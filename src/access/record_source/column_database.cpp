// SQLite behind an authorizer that knows only tables and SELECT: nothing can be attached or loaded.
#include "access/record_source/column_database.h"

#include <new>

#include <sqlite3.h>

#include "access/record_source/sql_tokens.h"

namespace tarrowin {
namespace {

constexpr int kMaxSelectLength = 4'000'000;  // bytes; a select list of long qualified names

int authorize(void*, int action, const char*, const char*, const char*, const char*) {
  switch (action) {
    case SQLITE_CREATE_TABLE:
    case SQLITE_DROP_TABLE:
    case SQLITE_SELECT:
    case SQLITE_READ:
    case SQLITE_FUNCTION:
    case SQLITE_INSERT:  // these three change the catalog as tables come and go
    case SQLITE_UPDATE:
    case SQLITE_DELETE:
      return SQLITE_OK;
    default:
      return SQLITE_DENY;
  }
}

std::string textOrEmpty(const char* text) { return text != nullptr ? text : ""; }

struct Finalizer {
  void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};

}  // namespace

void ColumnDatabase::Closer::operator()(sqlite3* database) const { sqlite3_close(database); }

ColumnDatabase::ColumnDatabase() {
  sqlite3* database = nullptr;
  const int result = sqlite3_open_v2(
      ":memory:", &database,
      SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_MEMORY | SQLITE_OPEN_NOMUTEX,
      nullptr);
  database_.reset(database);
  if (result != SQLITE_OK) throw std::bad_alloc();
  // A name in double quotes that is no column is an error, not a text.
  sqlite3_db_config(database, SQLITE_DBCONFIG_DQS_DML, 0, nullptr);
  sqlite3_db_config(database, SQLITE_DBCONFIG_DQS_DDL, 0, nullptr);
  sqlite3_limit(database, SQLITE_LIMIT_SQL_LENGTH, kMaxSelectLength);
  sqlite3_limit(database, SQLITE_LIMIT_ATTACHED, 0);
  sqlite3_set_authorizer(database, authorize, nullptr);
}

std::string ColumnDatabase::createTable(const std::vector<std::string>& columns) {
  const std::string table = "t" + std::to_string(++tablesCreated_);
  std::string sql = "CREATE TABLE " + table + " (";
  for (const std::string& column : columns) {
    if (column.empty()) throw Unresolvable();
    if (sql.back() != '(') sql += ',';
    sql += quotedName(column);
  }
  sql += ')';
  if (sqlite3_exec(database_.get(), sql.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK) {
    throw Unresolvable();
  }
  return table;
}

void ColumnDatabase::dropTable(const std::string& table) noexcept {
  const std::string sql = "DROP TABLE " + table;
  sqlite3_exec(database_.get(), sql.c_str(), nullptr, nullptr, nullptr);
}

std::vector<ColumnOrigin> ColumnDatabase::columnsOf(const std::string& select) {
  sqlite3_stmt* prepared = nullptr;
  const int result = sqlite3_prepare_v2(database_.get(), select.c_str(),
                                        static_cast<int>(select.size()) + 1, &prepared, nullptr);
  const std::unique_ptr<sqlite3_stmt, Finalizer> statement(prepared);
  if (result != SQLITE_OK) throw Unresolvable();
  std::vector<ColumnOrigin> columns;
  const int count = sqlite3_column_count(prepared);
  for (int i = 0; i < count; ++i) {
    columns.push_back({textOrEmpty(sqlite3_column_name(prepared, i)),
                       textOrEmpty(sqlite3_column_table_name(prepared, i)),
                       textOrEmpty(sqlite3_column_origin_name(prepared, i))});
  }
  return columns;
}

std::string quotedName(const std::string& name) {
  std::string quoted = "\"";
  for (const char c : name) {
    if (c == '"') quoted += '"';
    quoted += c;
  }
  return quoted + '"';
}

}  // namespace tarrowin
