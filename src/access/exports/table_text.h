// Reads the fields of a table out of its exported schema or its CREATE TABLE statement.
#pragma once

#include <string>
#include <string_view>

#include "access/model/database_model.h"
#include "shared/code_page.h"

namespace tarrowin::exports {

// An XML schema by Access, which may stand inside another element. Throws ExportTextError for any
// other text.
FieldList fieldsOfSchema(std::string_view text, const CodePage& codePage);

// "CREATE TABLE [a] ( [b] LONG, [c] VARCHAR (50) NOT NULL, CONSTRAINT ... )". Throws
// ExportTextError for any other text, and for a type that is not known.
FieldList fieldsOfCreateTable(std::string_view text);

}  // namespace tarrowin::exports
