// The clauses of a saved query as SQL text, one function a clause, in the order of printing.
// A clause without rows is empty text. Clauses on a line of their own begin with the line end.
#pragma once

#include <string>

#include "access/mdb/query_row_table.h"

namespace tarrowin::mdb {

inline constexpr std::string_view kQueryLineEnd = "\r\n";

// Flag of the options row.
enum QueryOption : std::int32_t {
  kAllColumns = 1,
  kDistinct = 2,  // in a union: UNION instead of UNION ALL
  kOwnerAccess = 4,
  kDistinctRow = 8,
  kTop = 0x10,
  kPercent = 0x20,
};

// Flag of a column row: the role of a crosstab's column, or an item of VALUES.
enum QueryColumnFlag : std::int32_t {
  kCrosstabValue = 0,
  kCrosstabHeading = 1,
  kCrosstabRowHeading = 2,
  kValuesItem = 0x8000,
};

std::int32_t optionsOf(const QueryRowTable& rows);

// "PARAMETERS a DateTime, [b c] Text ( 255 );" and a line end.
std::string parametersClause(const QueryRowTable& rows);

// "DISTINCT " or "DISTINCTROW ", then "TOP n " or "TOP n PERCENT ". A TOP without its number is
// left out; of both words the first is printed.
std::string predicate(const QueryRowTable& rows);

// A verb and the list behind it; the verb alone when the list is empty.
std::string withList(std::string_view verb, const std::string& list);

// "expression AS alias, expression", then "*" for all columns. A column without expression is left
// out here and in the lists below.
std::string columnList(const QueryRowTable& rows);
// The same for those columns of a crosstab that bear the flag, without "*".
std::string crosstabColumnList(const QueryRowTable& rows, QueryColumnFlag role);
// "field = value, field = value"
std::string assignmentList(const QueryRowTable& rows);
// "a, b" of an append query's VALUES
std::string valueList(const QueryRowTable& rows);
// " ( field, field )", or nothing when no column names its target.
std::string targetFieldList(const QueryRowTable& rows);
// The name and place of an append's or make-table's target, from the kind row.
std::string targetName(const QueryRowTable& rows);
std::string targetDatabase(const QueryRowTable& rows);  // " IN 'path'[connect]"

// "a INNER JOIN b ON a.x = b.y, c IN 'path'[connect]", without FROM.
std::string sourceList(const QueryRowTable& rows);
std::string fromClause(const QueryRowTable& rows);
std::string whereClause(const QueryRowTable& rows);
std::string groupByClause(const QueryRowTable& rows);
std::string crosstabGroupByClause(const QueryRowTable& rows);  // without the column heading
std::string havingClause(const QueryRowTable& rows);
std::string orderByClause(const QueryRowTable& rows);
std::string pivotClause(const QueryRowTable& rows);
std::string ownerAccessClause(const QueryRowTable& rows);

// The parts of a union with what stands between them; no semicolon is put behind the last.
std::string unionParts(const QueryRowTable& rows);

}  // namespace tarrowin::mdb
