// One row cut into cells.
#pragma once

#include <cstddef>
#include <optional>

#include "access/mdb/byte_view.h"
#include "access/mdb/table_definition.h"

namespace tarrowin::mdb {

class RowView {
 public:
  RowView() = default;
  // firstVariable: see TableDefinition. Throws Error (kDamaged) when the parts of the row do not
  // fit into it.
  RowView(const ByteView& bytes, const JetFormat& format, std::size_t firstVariable);

  // The bit of the column in the null mask: for a Boolean its value, else whether it has one.
  bool bit(const StoredColumn& column) const;
  // The bytes of the cell; nothing for Null. Not for Booleans.
  std::optional<ByteView> cell(const StoredColumn& column) const;

 private:
  void findVariablePartJet4();
  void findVariablePartJet3();
  std::size_t variableOffset(std::size_t index) const;
  std::size_t jumpsBefore(std::size_t index) const;

  ByteView bytes_;
  bool jet3_ = false;
  std::size_t columnCountSize_ = 0;
  std::size_t columnCount_ = 0;  // when the row was written; younger columns are null
  std::size_t maskStart_ = 0;
  std::size_t dataEnd_ = 0;     // where the offsets of the variable columns begin
  std::size_t offsetsEnd_ = 0;  // the first column's offset ends here
  std::size_t variableCount_ = 0;
  std::size_t jumpCount_ = 0;  // Jet 3: entries of the jump table in use
};

}  // namespace tarrowin::mdb
