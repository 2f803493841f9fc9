// The second rendering of a report: an ordinary form that shows the report's sections one below the
// other. No driver asks for it. All take the report from mrptCurr and write to output file 1.
#pragma once

#include "core/main_object.h"

namespace tarrowin {

// Prints the header from "VERSION 5.00" to the Tag line; sets intRptHeights, lngReportHeight, the
// intClientHeight by which data controls are placed, and strRptCaption.
void GetAccReportProps(MainObject& main);

// Prints the controls, as those of a form and as those that a report alone knows, and the closing
// line; sets intNumControls and astrCtlNames.
void CreateVBReport(MainObject& main);
void CreateVBDataReport(MainObject& main);

}  // namespace tarrowin
