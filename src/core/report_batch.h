// ConvertReports: the driver of the Reports list.
#pragma once

namespace tarrowin {

struct MainObject;

// Converts the selected reports, or all, each to a Data Environment and a Data Report, and writes
// the project around them with a form that shows them. Asks for the two libraries that the project
// names where their place is unknown.
void ConvertReports(MainObject& main, bool blnAll);

}  // namespace tarrowin
