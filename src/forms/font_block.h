// The font of a control.
#pragma once

#include "core/main_object.h"

namespace tarrowin {

// Prints the font block with strIndent. At 438 or 2186, a control without fonts, the block is
// closed at once; other failures have a box, and their line alone is missing.
void GetFontProps(MainObject& main, const LateBound& ctl);

}  // namespace tarrowin
