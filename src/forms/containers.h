// The controls that hold others: option groups, tab controls, subforms.
#pragma once

#include "core/main_object.h"

namespace tarrowin {

// An option group with its members, a VB.Frame. Leaves strIndent at three blanks.
void GetOptionGroupProps(MainObject& main, const LateBound& ctl);

// A tab control with the controls of its pages, a TabDlg.SSTab.
void GetTabControlProps(MainObject& main, const LateBound& ctl);

// A subform control: a frame with the subform's controls, or a data control and a grid.
void GetSubFormProps(MainObject& main, const LateBound& ctl);

}  // namespace tarrowin
