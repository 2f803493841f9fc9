// The frame of a form file: its header, the walk over the controls, its closing lines.
#pragma once

#include "core/main_object.h"

namespace tarrowin {

// Prints the header from "VERSION 5.00" to the Tag line; sets intClientHeight and the heights of
// the sections.
void GetAccFormProps(MainObject& main);

// Prints the controls and the closing lines; sets intNumControls and astrCtlNames.
void CreateVBForm(MainObject& main);

}  // namespace tarrowin
