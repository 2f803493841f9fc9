// What each kind of Access control becomes.
#pragma once

#include "core/main_object.h"

namespace tarrowin {

// Prints one control of a form with all that it contains. Expects strCtlName and strIndent. A
// control of an unknown kind becomes a shape.
void GetControlProps(MainObject& main, const LateBound& ctl);

// The same for a control of a report that is shown as a form: object frames, images, labels, lines,
// rectangles and text boxes; all else becomes a shape.
void GetReportControlProps(MainObject& main, const LateBound& ctl);

}  // namespace tarrowin
