// The clauses of an Access SELECT statement: which tokens are the columns, the sources, the
// conditions. Expressions stay ranges of tokens.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "access/record_source/record_source.h"
#include "access/record_source/sql_tokens.h"

namespace tarrowin {

// Tokens begin to end - 1.
struct TokenRange {
  std::size_t begin = 0;
  std::size_t end = 0;
  bool empty() const { return begin == end; }
};

// A name with its qualifiers: Orders, [Orders].[Order ID], Forms!frmMain!txtFrom.
struct NameChain {
  std::vector<std::string> parts;
  std::string written;  // with its brackets and separators, for a message

  // All parts, joined by dots.
  std::string joined(std::size_t first = 0) const;
};

// One entry of the select list.
struct SelectItem {
  bool isStar = false;
  NameChain starOf;  // of a star: t in t.*; no parts for a plain *
  TokenRange expression;
  std::string alias;
};

struct QueryTree;

// One entry of the FROM clause: a name or a subquery.
struct FromSource {
  NameChain name;
  std::shared_ptr<const QueryTree> subquery;
  std::string alias;
};

// One SELECT. The joins are a flat list of sources in the order of the text: which rows match
// matters for no column.
struct SelectTree {
  std::vector<SelectItem> items;
  std::vector<FromSource> sources;
  std::vector<TokenRange> conditions;  // of ON, WHERE
  std::vector<TokenRange> groupBy;
  TokenRange having;
  std::vector<TokenRange> orderBy;  // without ASC and DESC
};

struct Pivot {
  TokenRange value;                   // behind TRANSFORM
  TokenRange heading;                 // behind PIVOT
  std::vector<std::string> headings;  // of the In list, in its order
};

// A SELECT, a union of several or a crosstab.
struct QueryTree {
  std::vector<SelectTree> branches;
  std::vector<TokenRange> orderBy;  // of a union as a whole
  std::optional<Pivot> pivot;       // then there is one branch
};

struct Statement {
  std::vector<SourceParameter> parameters;  // of the PARAMETERS clause
  QueryTree query;
};

// INSERT, UPDATE, DELETE, SELECT INTO, a data definition or a procedure call.
class ActionQuery : public std::runtime_error {
 public:
  ActionQuery() : std::runtime_error("an action query gives no records") {}
};

// Reads a whole text. Throws ActionQuery, or Unresolvable for what is no SELECT statement.
Statement parseStatement(const std::vector<Token>& tokens);

// Reads the query from token pos on, which is left behind its last token.
QueryTree parseQuery(const std::vector<Token>& tokens, std::size_t& pos);

// Whether a query begins at the token.
bool startsQuery(const Token& token);

// Reads the name at token pos, which is left behind it.
NameChain parseNameChain(const std::vector<Token>& tokens, std::size_t& pos);

// The DAO number of a type name of a PARAMETERS clause, such as "DateTime"; 10 for others.
int parameterType(std::string_view name);

}  // namespace tarrowin
