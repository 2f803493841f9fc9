// The three ways in which databases hold the tree of streams, one for each age of Access.
#pragma once

#include "access/mdb/mdb_database.h"
#include "access/vba/stream_store.h"

namespace tarrowin::vba {

// Access 2002 and later: the rows of MSysAccessStorage.
StreamStore openAccessStorage(const mdb::Database& database);

// Access 2000: the compound file in the rows of MSysAccessObjects.
StreamStore openAccessObjects(const mdb::Database& database);

// Access 97: the columns of MSysObjects and MSysModules2.
StreamStore openCatalogColumns(const mdb::Database& database);

}  // namespace tarrowin::vba
