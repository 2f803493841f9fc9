// What a record source is, a table, a query or an SQL text, and what stands behind it, found by
// plain text scans and by asking DAO. Keywords are searched in upper case only; a name ends at the
// next blank. There is no SQL parser, and the limits of the scans shape the generated designers.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "core/access_objects.h"

namespace tarrowin {

struct MainObject;

// 1 when TableDefs has the name; 0 for a query and for an unknown name.
std::int32_t TableOrQuery(MainObject& main, std::string_view strName);

// The cleaned SQL of the query of exactly that name; empty for an unknown or hidden query, for an
// empty text, and when reading it raised 2601 or 3258.
std::string ExtractSQL(MainObject& main, std::string_view strQueryName);

// Blanks inside bracketed parameter names become "_", as far as a Data Environment needs it. The
// result is the PARAMETERS clause, ";" and the body; the argument becomes the body. Empty, with
// the argument unchanged, when the text has no such clause.
std::string ExtractSQLParams(MainObject& main, std::string& strSQL);

// Fills gstrSourceTables with one entry for each run of fields of one source table, "QUERY" for
// fields without one, and returns their number. The argument is compared with the first field's
// table and ends as the last one.
std::int32_t GetRecordsetSourceTables(MainObject& main, std::string& strSourceTable);

// Fills gstrSourceTables with the names behind FROM and JOIN; their number.
std::int32_t GetSQLRecordsetInfo(MainObject& main, std::string_view strSQL);

// Gives every parameter of the query a value of its type, so that a recordset opens unasked.
void GetQueryParams(MainObject& main, const QueryDef& queryDef);

}  // namespace tarrowin
