// The rows of a saved query as Jet keeps them in the system table MSysQueries: the parsed query, of
// which the SQL text is put together again.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "shared/value.h"

namespace tarrowin::mdb {

// One row. Texts are UTF-8; what is Null in the table is absent here.
struct QueryRow {
  int attribute = 0;  // what the row tells: 0 start, 1 kind, 5 source, 6 column, ... 255 end
  Bytes order;        // place among the rows of the same attribute, compared as bytes
  std::optional<std::string> name1;
  std::optional<std::string> name2;
  std::optional<std::string> expression;
  std::optional<std::int32_t> flag;
  std::optional<std::int32_t> extra;  // column LvExtra (Jet 4 only): size of a text parameter
};

}  // namespace tarrowin::mdb
