// The six lists of the window: filled from the open database, with their totals and buttons. Each
// procedure reports an error in a box with its own name and ends, except GetReportNames, which
// goes on over any error.
#pragma once

namespace tarrowin {

struct MainObject;

void GetQueryNames(MainObject& main);
void GetFormNames(MainObject& main);
void GetMacroNames(MainObject& main);
void GetModuleNames(MainObject& main);
void GetReportNames(MainObject& main);
// Forms and modules together, from their name arrays; the database is not asked.
void GetObjectNames(MainObject& main);

// With items in the list its convert button and cmdBrowse are enabled; with several also its
// convert-all button, and heading and tool tip read in the plural. Nothing is ever disabled.
void EnableQryButtons(MainObject& main);
void EnableFrmButtons(MainObject& main);
void EnableMacButtons(MainObject& main);
void EnableModButtons(MainObject& main);
void EnableRptButtons(MainObject& main);
void EnableObjButtons(MainObject& main);

// All six, and the heading above a list of at most one item reads in the singular again.
void ApplyButtonState(MainObject& main);

// Refills the lists of forms, modules and objects after macros became modules. cboFormNames is not
// cleared, so its names then appear twice.
void InsertObjectNames(MainObject& main);

}  // namespace tarrowin
