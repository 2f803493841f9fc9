// The tree of an .mdb file over the reader of its pages. Rows, query texts and fields are read when
// asked for.
#pragma once

#include <memory>
#include <string>

#include "access/mdb/mdb_database.h"
#include "access/model/database_model.h"

namespace tarrowin {

// Of forms, reports and macros there are only the names and the code behind them: opening a form or
// report raises 2601, which every conversion takes as refused, with a description that says that it
// cannot be opened. A damaged part raises 3049, DAO's number for a file that may be corrupt, when
// it is asked for.
std::unique_ptr<DatabaseModel> makeMdbModel(mdb::Database database, const CodePage& codePage);

}  // namespace tarrowin
