// An in-memory SQLite database that holds empty tables and tells where the columns of a SELECT on
// them come from. It never touches a file and never runs a query.
#pragma once

#include <memory>
#include <string>
#include <vector>

struct sqlite3;

namespace tarrowin {

// A column of a SELECT. The last two are empty for a computed column.
struct ColumnOrigin {
  std::string name;
  std::string table;
  std::string column;
};

class ColumnDatabase {
 public:
  // Throws std::bad_alloc when SQLite has no memory.
  ColumnDatabase();

  // Creates a table with a new name, which is returned. Throws Unresolvable for columns that SQLite
  // does not take: none, too many (2,000), two of the same name, an empty name.
  std::string createTable(const std::vector<std::string>& columns);
  void dropTable(const std::string& table) noexcept;

  // The columns of a SELECT. Throws Unresolvable when SQLite does not accept it.
  std::vector<ColumnOrigin> columnsOf(const std::string& select);

 private:
  struct Closer {
    void operator()(sqlite3* database) const;
  };
  std::unique_ptr<sqlite3, Closer> database_;
  int tablesCreated_ = 0;
};

// The text as a name in SQLite's double quotes.
std::string quotedName(const std::string& name);

}  // namespace tarrowin
