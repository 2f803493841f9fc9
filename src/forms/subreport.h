// A subform control of a report that shows another report.
#pragma once

#include "core/main_object.h"

namespace tarrowin {

// A frame with the subreport's controls, behind its data control. Expects strCtlName.
void GetSubReportProps(MainObject& main, const LateBound& ctl);

}  // namespace tarrowin
