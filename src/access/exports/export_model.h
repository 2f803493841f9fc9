// The tree of a folder of exported objects, or of a single exported file.
#pragma once

#include <memory>
#include <string>

#include "access/exports/folder_catalog.h"
#include "access/model/database_model.h"
#include "shared/code_page.h"

namespace tarrowin::exports {

// Of each object only its name, and the head of its file, are read here; the rest when it is asked
// for. A damaged form or report then raises 2601 when it is opened, anything else that is damaged
// 3049 when it is read, with the file, the line and the problem.
std::unique_ptr<DatabaseModel> makeExportModel(const ExportCatalog& catalog,
                                               const CodePage& codePage);

// Takes the designs of the forms and reports of the model, and the actions of its macros, out of
// the exports, as far as these have them. Code stays as the model has it.
void takeDesigns(const ExportCatalog& catalog, DatabaseModel& model);

// The exports that lie beside the database file at that path: in NAME.mdb.src, NAME.src or source,
// the first of these with forms, reports or macros. None without one.
std::optional<ExportCatalog> catalogBeside(const std::string& databasePath);

}  // namespace tarrowin::exports
