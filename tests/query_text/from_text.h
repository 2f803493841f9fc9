// Takes a FROM list as Access prints it apart into sources and join rows, the inner joins first.
#pragma once

#include <string>
#include <vector>

#include "access/mdb/query_joins.h"

namespace tarrowin::mdb {

struct FromRows {
  std::vector<QuerySource> sources;
  std::vector<QueryJoin> joins;
};

// Throws std::runtime_error when the text is of another form.
FromRows takeFromApart(const std::string& text);

}  // namespace tarrowin::mdb
