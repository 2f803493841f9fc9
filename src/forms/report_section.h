// Where a control of a report stands on the form that shows the report's sections one below the
// other.
#pragma once

#include <cstdint>

#include "core/main_object.h"

namespace tarrowin {

// Top below the report's sections above, in twips: intRptHeights, or those of the subreport that
// the control stands in. A control in an option group or on a tab page counts from the container.
// A Top that does not fit gives 32767; other failures that are not usual at the end of a chain of
// Parents have a box, and what could not be read counts as 0.
std::int64_t GetReportSection(MainObject& main, const LateBound& ctl);

}  // namespace tarrowin
