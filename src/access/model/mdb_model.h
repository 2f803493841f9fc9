// The tree of an .mdb file over the reader of its pages. Rows, query texts, fields and designs are
// read when asked for.
#pragma once

#include <memory>
#include <string>

#include "access/mdb/mdb_database.h"
#include "access/model/database_model.h"

namespace tarrowin {

// Designs of forms and reports, macros and code are read when they are opened. A design that cannot
// be read raises 2601 from opening its object, which every conversion takes as refused. Any other
// damaged part raises 3049, DAO's number for a file that may be corrupt, when it is asked for.
std::unique_ptr<DatabaseModel> makeMdbModel(mdb::Database database, const CodePage& codePage);

}  // namespace tarrowin
