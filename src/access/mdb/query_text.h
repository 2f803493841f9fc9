// The SQL text of a saved query, put together from its rows as Access does it, and what else DAO
// tells of a query from those rows. All text is UTF-8; every function takes any rows whatsoever.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "access/mdb/query_rows.h"

namespace tarrowin::mdb {

// The kinds of query, by the numbers of DAO's QueryDef.Type; the catalog keeps the same in the
// bits 0xF0 of a query's Flags.
enum class QueryKind : std::int32_t {
  kSelect = 0,
  kCrosstab = 0x10,
  kDelete = 0x20,
  kUpdate = 0x30,
  kAppend = 0x40,
  kMakeTable = 0x50,
  kDataDefinition = 0x60,
  kPassThrough = 0x70,
  kUnion = 0x80,
};

// What the kind row says; without one, or with a number out of range, what the catalog's Flags say,
// else a select query.
QueryKind queryKind(std::span<const QueryRow> rows, std::int32_t catalogFlags);

// QueryDef.SQL as Access 97 to 2003 shows it. Lines end in CR LF, the last one too, save the text
// of data definition and pass-through queries, which is kept as it was written. A query without
// any row has empty text.
//
// Rows that make no sense never fail: what lacks its text is left out of its list, an unknown
// source of a join is printed as a source, and a statement that lacks a clause is printed
// without it.
std::string querySql(std::span<const QueryRow> rows, std::int32_t catalogFlags);

// A declared parameter.
struct QueryParameter {
  std::string name;  // without the brackets around a single name
  int type = 0;      // the DAO type number as stored; 0 is Value, which has no type of its own
  std::optional<std::int32_t> size;  // of a text, as far as it is stored (not in Access 97)
};

// The parameters in the order of the PARAMETERS clause. A parameter that is only used and not
// declared has no row.
std::vector<QueryParameter> queryParameters(std::span<const QueryRow> rows);

// QueryDef.Connect: set for a pass-through query, else empty. Whether such a query returns records
// is no row but a property of the catalog object.
std::string queryConnect(std::span<const QueryRow> rows, std::int32_t catalogFlags);

// The table that an append or make-table query writes, and the fields that an append or update
// query names, as stored; empty for the other kinds.
std::string queryTarget(std::span<const QueryRow> rows, std::int32_t catalogFlags);
std::vector<std::string> queryTargetFields(std::span<const QueryRow> rows,
                                           std::int32_t catalogFlags);

}  // namespace tarrowin::mdb
