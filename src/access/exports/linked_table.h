// What exports tell of links: of tables, and of queries that another server answers.
#pragma once

#include <string>
#include <vector>

#include "access/exports/export_source.h"
#include "access/exports/folder_catalog.h"
#include "access/model/database_model.h"

namespace tarrowin::exports {

// DAO's Connect out of the file of a linked table; empty for a table of the database itself. A file
// that cannot be read is of a linked table all the same, of an unknown kind.
std::string connectOfLink(const ExportSource& source, const std::string& path);

// The linked tables of the list that some tools keep of all tables; without fields.
std::vector<TableModel> linkedTables(const ExportSource& source, const ExportCatalog& catalog);

// QueryDef.Connect out of the settings beside a query's SQL file; empty without any.
std::string connectBesideQuery(const ExportSource& source, const std::string& sqlPath);

}  // namespace tarrowin::exports
