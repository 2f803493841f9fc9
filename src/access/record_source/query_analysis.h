// From the clauses of a statement to the fields of its result: names are bound to sources, and
// SQLite is asked what columns come out and where they come from.
#pragma once

#include <memory>
#include <vector>

#include "access/record_source/sql_statement.h"
#include "access/record_source/stand_in.h"

namespace tarrowin {

// Where an analysis finds tables and saved queries.
class SourceLookup {
 public:
  virtual ~SourceLookup() = default;
  // Throws Unresolvable with the name when there is none.
  virtual std::shared_ptr<const StandIn> source(const NameChain& name) = 0;
  virtual ColumnDatabase& database() = 0;
  // How deep the analysis is nested now, over all queries.
  virtual int& nesting() = 0;
};

// The result of a whole text. Throws Unresolvable or ActionQuery.
QueryResult analyseStatement(std::string_view sql, SourceLookup& lookup);

}  // namespace tarrowin
