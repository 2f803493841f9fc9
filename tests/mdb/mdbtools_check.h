// Compares what the reader says of a database with what the mdbtools programs say.
#pragma once

#include <filesystem>
#include <string>

#include "access/mdb/mdb_database.h"

namespace tarrowin::mdb {

// Every difference is a failed expectation of the running test.
void expectSameTables(const Database& database, const std::filesystem::path& file);
void expectSameColumns(const Database& database, const CatalogObject& table,
                       const std::filesystem::path& file);
void expectSameRows(const Database& database, const CatalogObject& table,
                    const std::filesystem::path& file);

}  // namespace tarrowin::mdb
