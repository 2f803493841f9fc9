// Tables of a database file as DAO describes them: columns, and a cursor over the rows.
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include "access/mdb/row_address.h"
#include "shared/value.h"

namespace tarrowin::mdb {

// DAO's type numbers (DataTypeEnum).
enum DaoType : int {
  kDaoBoolean = 1,
  kDaoByte = 2,
  kDaoInteger = 3,
  kDaoLong = 4,
  kDaoCurrency = 5,
  kDaoSingle = 6,
  kDaoDouble = 7,
  kDaoDate = 8,
  kDaoBinary = 9,
  kDaoText = 10,
  kDaoLongBinary = 11,
  kDaoMemo = 12,
  kDaoGuid = 15,
  kDaoDecimal = 20,
};

struct Column {
  std::string name;  // UTF-8
  int type = 0;      // DAO's type number
  // DAO's Size: bytes of a number, date or GUID (Boolean 1), characters of a Text, the limit of a
  // Binary in bytes; 0 for Memo and long binary.
  int size = 0;
  bool autoNumber = false;
};

// Walks the rows of one table in the order of storage, one row in memory at a time. Valid as long
// as its Database. After an Error the cursor is at its end.
class Rows {
 public:
  class Source;
  explicit Rows(std::unique_ptr<Source> source);
  Rows(Rows&&) noexcept;
  Rows& operator=(Rows&&) noexcept;
  ~Rows();

  // To the next row; false when there is none left. Throws Error (kDamaged).
  bool next();
  // Where the current row is to be found again.
  RowAddress address() const;
  // To a row passed before, by what address() gave there; next() goes on from where it was. Throws
  // Error (kDamaged).
  void revisit(RowAddress address);
  std::size_t columnCount() const;
  // The cell of the current row in the column at the 0-based position of Database::columns. Byte,
  // Integer and Long are longs; Currency, Single, Double and Decimal doubles; a GUID is text in
  // braces; binary and OLE are bytes; Text and Memo are UTF-8. A Boolean is never Null.
  // Reads long values when asked, each time anew. Throws Error (kDamaged).
  Value value(std::size_t column) const;
  // All cells of the current row.
  std::vector<Value> values() const;

 private:
  std::unique_ptr<Source> source_;
};

}  // namespace tarrowin::mdb
