// The clauses of a saved query as SQL text, one function a clause, in the order of printing.
// Expressions are printed as stored; only names are given brackets.
#include "access/mdb/query_clauses.h"

#include <array>
#include <utility>

#include "access/mdb/query_joins.h"
#include "access/mdb/query_names.h"

namespace tarrowin::mdb {
namespace {

void appendItem(std::string& list, std::string_view item) {
  if (!list.empty()) list += ", ";
  list += item;
}

std::string clause(std::string_view keywords, std::string_view content) {
  if (content.empty()) return {};
  return std::string(kQueryLineEnd) + std::string(keywords) + std::string(content);
}

std::string expressionOf(const QueryRowTable& rows, QueryAttribute attribute) {
  const QueryRow* row = rows.first(attribute);
  return row ? std::string(textOf(row->expression)) : std::string();
}

// The words of the DAO types that a parameter can have; others count as Value.
std::string_view parameterTypeName(std::int32_t type) {
  static constexpr auto kNames = std::to_array<std::pair<std::int32_t, std::string_view>>({
      {0, "Value"},
      {1, "Bit"},
      {2, "Byte"},
      {3, "Short"},
      {4, "Long"},
      {5, "Currency"},
      {6, "IEEESingle"},
      {7, "IEEEDouble"},
      {8, "DateTime"},
      {9, "Binary"},
      {10, "Text"},
      {11, "LongBinary"},
      {12, "Text"},
      {15, "Guid"},
  });
  for (const auto& [number, name] : kNames) {
    if (number == type) return name;
  }
  return kNames.front().second;
}

std::string parameterDeclaration(const QueryRow& row) {
  constexpr std::int32_t kText = 10;
  std::string text = bracketedName(textOf(row.name1)) + " ";
  text += parameterTypeName(flagOf(&row));
  if (flagOf(&row) == kText && row.extra.value_or(0) > 0) {
    text += " ( " + std::to_string(*row.extra) + " )";
  }
  return text;
}

std::string withAlias(std::string text, std::string_view alias) {
  if (!alias.empty()) text += " AS " + bracketedName(alias);
  return text;
}

std::string column(const QueryRow& row) {
  return withAlias(std::string(textOf(row.expression)), textOf(row.name1));
}

// " IN 'path'[connect]". A quote in the path is doubled.
std::string inDatabase(std::string_view path, std::string_view connect) {
  if (path.empty() && connect.empty()) return {};
  std::string text = " IN '";
  for (const char c : path) text += c == '\'' ? std::string_view("''") : std::string_view(&c, 1);
  text += "'";
  if (connect.starts_with('[')) return text + std::string(connect);
  return connect.empty() ? text : text + "[" + std::string(connect) + "]";
}

// A subquery in the place of a name, as text exports have it; no table is named like that.
bool isSubquery(std::string_view name) {
  constexpr std::string_view kSelect = "SELECT";
  if (name.size() <= kSelect.size()) return false;
  for (std::size_t i = 0; i < kSelect.size(); ++i)
    if ((name[i] & ~0x20) != kSelect[i]) return false;
  return std::string_view(" \t\r\n").find(name[kSelect.size()]) != std::string_view::npos;
}

// A table of another database, or a plain name, or a subquery as Access 97 to 2003 writes it.
std::string sourceText(const QueryRow& row) {
  const std::string_view name = textOf(row.name1);
  const std::string_view expression = textOf(row.expression);
  std::string text;
  if (name.empty() && !expression.empty()) {
    text = "[" + std::string(expression) + "].";
  } else if (!expression.empty()) {
    const bool written = expression.starts_with('[');
    text = (written ? std::string(expression) : "[" + std::string(expression) + "]") + "." +
           bracketedName(name);
  } else {
    text = isSubquery(name) ? "(" + std::string(name) + ")" : bracketedName(name);
  }
  return withAlias(std::move(text), textOf(row.name2));
}

std::vector<QuerySource> sources(const QueryRowTable& rows) {
  std::vector<QuerySource> list;
  for (const QueryRow* row : rows.of(QueryAttribute::kSource)) {
    if (textOf(row->name1).empty() && textOf(row->expression).empty()) continue;
    const std::string_view alias = textOf(row->name2);
    list.push_back({std::string(alias.empty() ? textOf(row->name1) : alias), sourceText(*row)});
  }
  return list;
}

JoinKind joinKind(std::int32_t flag) {
  constexpr std::int32_t kLeft = 2;
  constexpr std::int32_t kRight = 3;
  return flag == kLeft ? JoinKind::kLeft : flag == kRight ? JoinKind::kRight : JoinKind::kInner;
}

std::vector<QueryJoin> joins(const QueryRowTable& rows) {
  std::vector<QueryJoin> list;
  for (const QueryRow* row : rows.of(QueryAttribute::kJoin)) {
    list.push_back({std::string(textOf(row->name1)), std::string(textOf(row->name2)),
                    std::string(textOf(row->expression)), joinKind(flagOf(row))});
  }
  return list;
}

bool endsInBlank(std::string_view text) {
  return !text.empty() && std::string_view(" \t\r\n").find(text.back()) != std::string_view::npos;
}

}  // namespace

std::int32_t optionsOf(const QueryRowTable& rows) {
  return flagOf(rows.first(QueryAttribute::kOptions));
}

std::string parametersClause(const QueryRowTable& rows) {
  std::string list;
  for (const QueryRow* row : rows.of(QueryAttribute::kParameter)) {
    if (!textOf(row->name1).empty()) appendItem(list, parameterDeclaration(*row));
  }
  if (list.empty()) return {};
  return "PARAMETERS " + list + ";" + std::string(kQueryLineEnd);
}

std::string predicate(const QueryRowTable& rows) {
  const std::int32_t options = optionsOf(rows);
  std::string text;
  if (options & kDistinct) {
    text = "DISTINCT ";
  } else if (options & kDistinctRow) {
    text = "DISTINCTROW ";
  }
  if (!(options & (kTop | kPercent))) return text;
  const std::string_view number = textOf(rows.first(QueryAttribute::kOptions)->name1);
  if (number.empty()) return text;
  text += "TOP " + std::string(number) + " ";
  return options & kPercent ? text + "PERCENT " : text;
}

std::string withList(std::string_view verb, const std::string& list) {
  return list.empty() ? std::string(verb) : std::string(verb) + " " + list;
}

std::string columnList(const QueryRowTable& rows) {
  std::string list;
  for (const QueryRow* row : rows.of(QueryAttribute::kColumn)) {
    if (!textOf(row->expression).empty()) appendItem(list, column(*row));
  }
  if (optionsOf(rows) & kAllColumns) appendItem(list, "*");
  return list;
}

std::string crosstabColumnList(const QueryRowTable& rows, QueryColumnFlag role) {
  std::string list;
  for (const QueryRow* row : rows.of(QueryAttribute::kColumn)) {
    if (flagOf(row) == role && !textOf(row->expression).empty()) appendItem(list, column(*row));
  }
  return list;
}

std::string assignmentList(const QueryRowTable& rows) {
  std::string list;
  for (const QueryRow* row : rows.of(QueryAttribute::kColumn)) {
    if (textOf(row->name2).empty() || textOf(row->expression).empty()) continue;
    appendItem(list, bracketedField(*row->name2) + " = " + *row->expression);
  }
  return list;
}

std::string valueList(const QueryRowTable& rows) {
  std::string list;
  for (const QueryRow* row : rows.of(QueryAttribute::kColumn)) {
    if (!(flagOf(row) & kValuesItem) || textOf(row->expression).empty()) continue;
    appendItem(list, *row->expression);
  }
  return list;
}

std::string targetFieldList(const QueryRowTable& rows) {
  std::string list;
  for (const QueryRow* row : rows.of(QueryAttribute::kColumn)) {
    if (textOf(row->name2).empty() || textOf(row->expression).empty()) continue;
    appendItem(list, bracketedField(*row->name2));
  }
  return list.empty() ? list : " ( " + list + " )";
}

std::string targetName(const QueryRowTable& rows) {
  const QueryRow* row = rows.first(QueryAttribute::kKind);
  return row ? bracketedName(textOf(row->name1)) : std::string();
}

std::string targetDatabase(const QueryRowTable& rows) {
  const QueryRow* row = rows.first(QueryAttribute::kKind);
  return row ? inDatabase(textOf(row->name2), textOf(row->expression)) : std::string();
}

std::string sourceList(const QueryRowTable& rows) {
  std::string text = joinedSources(sources(rows), joins(rows));
  const QueryRow* other = rows.first(QueryAttribute::kOtherDatabase);
  if (!text.empty() && other) text += inDatabase(textOf(other->name1), textOf(other->expression));
  return text;
}

std::string fromClause(const QueryRowTable& rows) { return clause("FROM ", sourceList(rows)); }

std::string whereClause(const QueryRowTable& rows) {
  return clause("WHERE ", expressionOf(rows, QueryAttribute::kWhere));
}

std::string groupByClause(const QueryRowTable& rows) {
  std::string list;
  for (const QueryRow* row : rows.of(QueryAttribute::kGroupBy)) {
    if (!textOf(row->expression).empty()) appendItem(list, textOf(row->expression));
  }
  return clause("GROUP BY ", list);
}

std::string crosstabGroupByClause(const QueryRowTable& rows) {
  std::string list;
  for (const QueryRow* row : rows.of(QueryAttribute::kGroupBy)) {
    if (flagOf(row) == kCrosstabHeading || textOf(row->expression).empty()) continue;
    appendItem(list, textOf(row->expression));
  }
  return clause("GROUP BY ", list);
}

std::string havingClause(const QueryRowTable& rows) {
  return clause("HAVING ", expressionOf(rows, QueryAttribute::kHaving));
}

// Access leaves a blank behind DESC, except at the end: "a DESC , b DESC".
std::string orderByClause(const QueryRowTable& rows) {
  std::string list;
  bool descending = false;
  for (const QueryRow* row : rows.of(QueryAttribute::kOrderBy)) {
    if (textOf(row->expression).empty()) continue;
    if (descending) list += " ";
    appendItem(list, textOf(row->expression));
    descending = textOf(row->name1) == "D" || textOf(row->name1) == "d";
    if (descending) list += " DESC";
  }
  return clause("ORDER BY ", list);
}

// The heading alone, without its alias; should its column be missing, that of the grouping.
std::string pivotClause(const QueryRowTable& rows) {
  for (const QueryAttribute attribute : {QueryAttribute::kColumn, QueryAttribute::kGroupBy}) {
    for (const QueryRow* row : rows.of(attribute)) {
      if (flagOf(row) != kCrosstabHeading || textOf(row->expression).empty()) continue;
      return clause("PIVOT ", textOf(row->expression));
    }
  }
  return {};
}

std::string ownerAccessClause(const QueryRowTable& rows) {
  return optionsOf(rows) & kOwnerAccess ? clause("WITH OWNERACCESS ", "OPTION") : std::string();
}

std::string unionParts(const QueryRowTable& rows) {
  const bool isAll = !(optionsOf(rows) & kDistinct);
  std::string text;
  for (const QueryRow* row : rows.of(QueryAttribute::kSource)) {
    if (textOf(row->expression).empty()) continue;
    if (!text.empty()) {
      if (!endsInBlank(text)) text += kQueryLineEnd;
      text += isAll ? "UNION ALL " : "UNION ";
    }
    text += textOf(row->expression);
  }
  return text;
}

}  // namespace tarrowin::mdb
