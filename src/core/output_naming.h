// File names of forms, reports and modules: derived from the Access name by one cleaning rule.
// Older files of the name are deleted without asking. An error is reported in a box with the
// procedure's name and ends it. (Queries: query/query_module.h.)
#pragma once

#include <string_view>

namespace tarrowin {

struct MainObject;

// clean + ".frm"; ".dsr" with mblnReportMode; "ctl" + clean + ".ctl" with mblnUserControl. Leaves
// the file open for append as file number 1. mstrFormFile and gstrFormFile go without the "ctl".
void SetupFormNames(MainObject& main, std::string_view strObjName);

// "de" + clean + ".dsr", the Data Environment designer of a report; otherwise as SetupFormNames,
// and the names go without the "de".
void SetupDesignerName(MainObject& main, std::string_view strObjName);

// clean + ".bas", or ".cls" for a class module, which joins mstrVbClasses. A module that was a
// macro gives "Macro_" + clean. Opens nothing.
void SetupModNames(MainObject& main, std::string_view ModName);

}  // namespace tarrowin
