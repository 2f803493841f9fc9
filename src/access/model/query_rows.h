// The rows of record sources that show those of one table, one for one.
#pragma once

#include <memory>
#include <string_view>

#include "access/model/session.h"

namespace tarrowin {

// The rows of a query by its name or of an SQL text, under these fields. Null when they are not
// those of a table as they stand there, or not known. A computed field raises E_NOTIMPL.
std::unique_ptr<RowCursor> openQueryRows(const Session& session, std::string_view source,
                                         const FieldList& fields);

}  // namespace tarrowin
