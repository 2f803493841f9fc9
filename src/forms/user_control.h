// The code of the user control that a continuous form becomes: one property a bound control.
#pragma once

#include "core/main_object.h"

namespace tarrowin {

// Appends the code of all controls of frmCurr to output file number 1, which stays open.
void CreateVBUserControl(MainObject& main);

// The code of one control under the name strCtlName: check boxes, combo boxes, list boxes and text
// boxes have some. ActiveX controls raise their project flags.
void GetUserControlProps(MainObject& main, const LateBound& ctl);

}  // namespace tarrowin
