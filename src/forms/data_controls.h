// The data controls that a bound form gets: invisible, at the foot of the client area.
#pragma once

#include "core/main_object.h"

namespace tarrowin {

// The VB.Data control of the main form, at the top level; of the report while one is converted.
void GetVbDataCtlProps(MainObject& main);
// The same of the report mrptCurr.
void GetVbReportDataCtlProps(MainObject& main);
// The VB.Data control of the subform or subreport frmSubCurr; leaves strIndent at three blanks.
void GetSubFormDataCtlProps(MainObject& main);
// An ADO data control for the form; leaves strIndent at three blanks.
void CreateAdoDataCtl(MainObject& main, const LateBound& frm);

}  // namespace tarrowin
