// Reads a query out of the text that Access exports of it, or out of the SQL files of other tools.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "access/model/database_model.h"
#include "shared/code_page.h"

namespace tarrowin::exports {

struct ExportedQuery {
  std::string sql;      // QueryDef.SQL
  std::string connect;  // QueryDef.Connect, of a pass-through query
  // The declared ones, where the export has the query in parts; else the text declares them.
  std::vector<ParameterModel> parameters;
};

// The text is in the code page, and so is the result. A query is exported with its SQL text, or in
// its parts, of which the text is put together as Access does it. Throws ExportTextError for what
// is no exported query or a damaged one.
ExportedQuery readQueryText(std::string_view text, const CodePage& codePage);

// A file that holds nothing but SQL text, with any line ends: as Access has it, which ends lines
// with CR LF, the last one too behind a semicolon.
std::string sqlFromFile(std::string_view text);

// DAO's QueryDef.Type of the number behind "Operation ="; none for an unknown one.
std::optional<std::int32_t> queryTypeOfOperation(std::int32_t operation);

}  // namespace tarrowin::exports
