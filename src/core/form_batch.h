// ConvertForms: the driver of the Forms list.
#pragma once

namespace tarrowin {

struct MainObject;

// Converts the selected forms, or all, each to a form file. A continuous form becomes, with the
// second choice of optContinuous, a user control and the form that hosts it. A project follows when
// a form needs one or several were converted.
void ConvertForms(MainObject& main, bool blnAll);

}  // namespace tarrowin
