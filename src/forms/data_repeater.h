// The DataRepeater, which repeats the user control of a continuous form for every record.
#pragma once

#include "core/main_object.h"

namespace tarrowin {

// Prints the DataRepeater of frmCurr with one binding for each bound control.
void GetDataRepeaterProps(MainObject& main);

// The same for the subform frmSubCurr in the place of its control; no conversion calls it.
void GetSubformDataRepeaterProps(MainObject& main, const LateBound& ctl);

}  // namespace tarrowin
