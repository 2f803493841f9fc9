// The SQL text of a saved query, put together from its rows as Access does it: one function a kind
// of query, each the list of its clauses in order.
#include "access/mdb/query_text.h"

#include <algorithm>
#include <array>

#include "access/mdb/query_clauses.h"

namespace tarrowin::mdb {
namespace {

constexpr std::int32_t kKindBits = 0xF0;

// By the Flag of the kind row, which counts from 1.
constexpr std::array kKindsByFlag = {
    QueryKind::kSelect,         QueryKind::kMakeTable,   QueryKind::kAppend,
    QueryKind::kUpdate,         QueryKind::kDelete,      QueryKind::kCrosstab,
    QueryKind::kDataDefinition, QueryKind::kPassThrough, QueryKind::kUnion,
};

QueryKind kindOf(const QueryRowTable& rows, std::int32_t catalogFlags) {
  const std::int32_t flag = flagOf(rows.first(QueryAttribute::kKind));
  if (flag >= 1 && flag <= static_cast<std::int32_t>(kKindsByFlag.size())) {
    return kKindsByFlag[flag - 1];
  }
  const auto kind = static_cast<QueryKind>(catalogFlags & kKindBits);
  return std::ranges::find(kKindsByFlag, kind) != kKindsByFlag.end() ? kind : QueryKind::kSelect;
}

std::string end(const QueryRowTable& rows) {
  return ownerAccessClause(rows) + ";" + std::string(kQueryLineEnd);
}

// A select statement; into is what stands between its columns and its sources.
std::string selectStatement(const QueryRowTable& rows, const std::string& into) {
  return withList("SELECT", predicate(rows) + columnList(rows)) + into + fromClause(rows) +
         whereClause(rows) + groupByClause(rows) + havingClause(rows) + orderByClause(rows) +
         end(rows);
}

std::string selectText(const QueryRowTable& rows) {
  return parametersClause(rows) + selectStatement(rows, {});
}

std::string makeTableText(const QueryRowTable& rows) {
  const std::string target = targetName(rows);
  const std::string into = target.empty() ? target : " INTO " + target + targetDatabase(rows);
  return parametersClause(rows) + selectStatement(rows, into);
}

std::string appendText(const QueryRowTable& rows) {
  const std::string values = valueList(rows);
  return parametersClause(rows) + withList("INSERT INTO", targetName(rows)) +
         targetFieldList(rows) + targetDatabase(rows) + std::string(kQueryLineEnd) +
         (values.empty() ? selectStatement(rows, {}) : "VALUES (" + values + ")" + end(rows));
}

std::string distinctRow(const QueryRowTable& rows) {
  return optionsOf(rows) & kDistinctRow ? "DISTINCTROW " : "";
}

std::string updateText(const QueryRowTable& rows) {
  return parametersClause(rows) + withList("UPDATE", distinctRow(rows) + sourceList(rows)) +
         withList(" SET", assignmentList(rows)) + whereClause(rows) + end(rows);
}

std::string deleteText(const QueryRowTable& rows) {
  return parametersClause(rows) + withList("DELETE", distinctRow(rows) + columnList(rows)) +
         fromClause(rows) + whereClause(rows) + end(rows);
}

std::string crosstabText(const QueryRowTable& rows) {
  return parametersClause(rows) + withList("TRANSFORM", crosstabColumnList(rows, kCrosstabValue)) +
         std::string(kQueryLineEnd) +
         withList("SELECT", predicate(rows) + crosstabColumnList(rows, kCrosstabRowHeading)) +
         fromClause(rows) + whereClause(rows) + crosstabGroupByClause(rows) + havingClause(rows) +
         orderByClause(rows) + pivotClause(rows) + end(rows);
}

// Data definition and pass-through queries are kept as they were written.
std::string writtenText(const QueryRowTable& rows) {
  const QueryRow* row = rows.first(QueryAttribute::kKind);
  return row ? std::string(textOf(row->expression)) : std::string();
}

bool endsStatement(std::string_view text) {
  const std::size_t last = text.find_last_not_of(" \t\r\n");
  return last != std::string_view::npos && text[last] == ';';
}

// The last part may bring its own line end, and its own semicolon, which isn't doubled.
std::string unionText(const QueryRowTable& rows) {
  std::string text = unionParts(rows);
  std::string tail = orderByClause(rows) + end(rows);
  if (tail.starts_with(';') && endsStatement(text)) tail.erase(0, 1);
  if (text.ends_with(kQueryLineEnd) && tail.starts_with(kQueryLineEnd)) {
    tail.erase(0, kQueryLineEnd.size());
  }
  return parametersClause(rows) + text + tail;
}

}  // namespace

QueryKind queryKind(std::span<const QueryRow> rows, std::int32_t catalogFlags) {
  return kindOf(QueryRowTable(rows), catalogFlags);
}

std::string querySql(std::span<const QueryRow> rows, std::int32_t catalogFlags) {
  const QueryRowTable table(rows);
  if (table.empty()) return {};
  switch (kindOf(table, catalogFlags)) {
    case QueryKind::kMakeTable:
      return makeTableText(table);
    case QueryKind::kAppend:
      return appendText(table);
    case QueryKind::kUpdate:
      return updateText(table);
    case QueryKind::kDelete:
      return deleteText(table);
    case QueryKind::kCrosstab:
      return crosstabText(table);
    case QueryKind::kDataDefinition:
    case QueryKind::kPassThrough:
      return writtenText(table);
    case QueryKind::kUnion:
      return unionText(table);
    case QueryKind::kSelect:
      break;
  }
  return selectText(table);
}

std::vector<QueryParameter> queryParameters(std::span<const QueryRow> rows) {
  const QueryRowTable table(rows);
  std::vector<QueryParameter> parameters;
  for (const QueryRow* row : table.of(QueryAttribute::kParameter)) {
    std::string_view name = textOf(row->name1);
    if (name.empty()) continue;
    if (name.starts_with('[') && name.find(']') == name.size() - 1) {
      name = name.substr(1, name.size() - 2);
    }
    parameters.push_back({std::string(name), static_cast<int>(flagOf(row)), row->extra});
  }
  return parameters;
}

std::string queryConnect(std::span<const QueryRow> rows, std::int32_t catalogFlags) {
  const QueryRowTable table(rows);
  const QueryRow* row = table.first(QueryAttribute::kKind);
  const bool isPassThrough = kindOf(table, catalogFlags) == QueryKind::kPassThrough;
  return row && isPassThrough ? std::string(textOf(row->name1)) : std::string();
}

std::string queryTarget(std::span<const QueryRow> rows, std::int32_t catalogFlags) {
  const QueryRowTable table(rows);
  const QueryRow* row = table.first(QueryAttribute::kKind);
  const QueryKind kind = kindOf(table, catalogFlags);
  if (!row || (kind != QueryKind::kAppend && kind != QueryKind::kMakeTable)) return {};
  return std::string(textOf(row->name1));
}

std::vector<std::string> queryTargetFields(std::span<const QueryRow> rows,
                                           std::int32_t catalogFlags) {
  const QueryRowTable table(rows);
  const QueryKind kind = kindOf(table, catalogFlags);
  std::vector<std::string> fields;
  if (kind != QueryKind::kAppend && kind != QueryKind::kUpdate) return fields;
  for (const QueryRow* row : table.of(QueryAttribute::kColumn)) {
    if (!textOf(row->name2).empty()) fields.push_back(*row->name2);
  }
  return fields;
}

}  // namespace tarrowin::mdb
