// Reads the system tables MSysQueries and MSysRelationships.
#pragma once

#include <cstdint>
#include <unordered_map>
#include <vector>

#include "access/mdb/query_rows.h"
#include "access/mdb/relation.h"
#include "access/mdb/row_cursor.h"

namespace tarrowin::mdb {

// Where the rows of each query stand, by the query's catalog id, in the order of storage.
using QueryIndex = std::unordered_map<std::int32_t, std::vector<RowAddress>>;

QueryIndex indexQueries(const FileContext& file, const TableDefinition& definition);

std::vector<QueryRow> readQueryRows(const FileContext& file, const TableDefinition& definition,
                                    const std::vector<RowAddress>& rows);

// Relations of system tables left out, the rest by name.
std::vector<Relation> readRelations(const FileContext& file, const TableDefinition& definition);

}  // namespace tarrowin::mdb
