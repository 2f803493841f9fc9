// Reads an Access SQL expression: checks its grammar, says its type, and gives SQLite the columns
// and aggregates in it.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "access/record_source/sql_statement.h"
#include "access/record_source/sql_tokens.h"

namespace tarrowin {

// What an expression is to SQLite and to DAO. Operators, plain functions and literals change
// neither the columns nor the validity of a SELECT, so SQLite is given only the columns and
// aggregates, in SQLite's syntax and behind "NULL+", which keeps a computed column computed. A
// column alone stays bare, as it has an origin; an integer alone stays, as it numbers a column in
// ORDER BY.
struct ExpressionValue {
  std::string sql;
  int type = 0;  // DAO type number; 0 unknown
};

// What the surrounding SELECT knows.
class ExpressionScope {
 public:
  virtual ~ExpressionScope() = default;
  // A name that is no function. The sql is empty for a name that SQLite need not see.
  virtual ExpressionValue resolve(const NameChain& name) = 0;
  // The type of the first column of a subquery in the expression.
  virtual int subqueryType(const QueryTree& query) = 0;
  // How deep the analysis is nested now, over all queries.
  virtual int& nesting() = 0;
};

// The name that the range consists of; nothing when it is more or less than a name.
std::optional<NameChain> loneName(const std::vector<Token>& tokens, TokenRange range);

// Reads exactly the tokens of the range. Throws Unresolvable when they are no expression or nest
// deeper than kMaxNesting, and what the scope throws.
ExpressionValue readExpression(const std::vector<Token>& tokens, TokenRange range,
                               ExpressionScope& scope);

}  // namespace tarrowin
