// One SELECT of one name, told by its clauses.
#include "access/record_source/plain_select.h"

#include <algorithm>
#include <vector>

#include "access/record_source/sql_statement.h"
#include "access/record_source/sql_tokens.h"

namespace tarrowin {

namespace {

bool isPlain(const Statement& statement) {
  const QueryTree& query = statement.query;
  if (!statement.parameters.empty() || query.branches.size() != 1 || query.pivot) return false;
  const SelectTree& select = query.branches.front();
  return select.sources.size() == 1 && !select.sources.front().subquery &&
         select.sources.front().name.parts.size() == 1 && select.conditions.empty() &&
         select.groupBy.empty() && select.having.empty() && select.orderBy.empty() &&
         query.orderBy.empty();
}

// DISTINCT leaves rows out, and IN takes them from another file.
bool changesRows(const Token& token) { return token.isWord("DISTINCT") || token.isWord("IN"); }

}  // namespace

std::optional<std::string> plainSourceOf(std::string_view sql) {
  try {
    const std::vector<Token> tokens = tokenize(sql);
    const Statement statement = parseStatement(tokens);
    if (!isPlain(statement) || std::ranges::any_of(tokens, changesRows)) return std::nullopt;
    return statement.query.branches.front().sources.front().name.parts.front();
  } catch (const Unresolvable&) {
    return std::nullopt;
  } catch (const ActionQuery&) {
    return std::nullopt;
  }
}

}  // namespace tarrowin
