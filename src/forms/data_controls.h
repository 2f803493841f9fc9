// The data controls that a bound form gets: invisible, at the foot of the client area.
#pragma once

#include "core/main_object.h"

namespace tarrowin {

// The VB.Data control of the main form, at the top level.
void GetVbDataCtlProps(MainObject& main);
// The VB.Data control of the subform frmSubCurr; leaves strIndent at three blanks.
void GetSubFormDataCtlProps(MainObject& main);
// An ADO data control for the form; leaves strIndent at three blanks.
void CreateAdoDataCtl(MainObject& main, const LateBound& frm);

}  // namespace tarrowin
