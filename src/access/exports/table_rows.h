// The rows of a table out of the file to which a tool exported its data.
#pragma once

#include <memory>
#include <string>

#include "access/model/database_model.h"
#include "shared/code_page.h"

namespace tarrowin::exports {

// Walks the rows of a text with a line of field names at the top, separated by tabs or, with texts
// in quotes, by commas; or of Access's XML. The text is in the code page. A field that the file
// lacks is Null, a cell that is no value of its field's type raises 3421. Throws ExportTextError
// for XML that is damaged.
std::unique_ptr<RowCursor> exportedRows(std::string text, const FieldList& fields,
                                        const CodePage& codePage);

}  // namespace tarrowin::exports
