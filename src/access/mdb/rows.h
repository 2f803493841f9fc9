// What stands behind Rows: the cursor and the table's name for messages.
#pragma once

#include <string>

#include "access/mdb/row_cursor.h"
#include "access/mdb/table.h"

namespace tarrowin::mdb {

class Rows::Source {
 public:
  std::string tableName;
  RowCursor cursor;
};

}  // namespace tarrowin::mdb
