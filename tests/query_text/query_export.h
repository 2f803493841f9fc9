// Reads the text export of a saved query, which holds either its SQL text or its design; the
// design is turned into rows.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "access/mdb/query_rows.h"

namespace tarrowin::mdb {

struct QueryExport {
  std::optional<std::string> sql;
  std::vector<QueryRow> rows;  // of the design form
};

QueryExport readQueryExport(const std::filesystem::path& file);

// The whole file without a byte order mark.
std::string readFile(const std::filesystem::path& file);

// The folder of real databases and exports, or an empty path.
std::filesystem::path samplesFolder();
// All exported queries below the folder, by path.
std::vector<std::filesystem::path> exportedQueries(const std::filesystem::path& folder);

}  // namespace tarrowin::mdb
