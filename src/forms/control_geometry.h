// Where a control stands in the flat form: the section stack and the nesting of containers folded
// into one Top and one Left, in twips.
#pragma once

#include <cstdint>

#include "core/main_object.h"

namespace tarrowin {

// What a subform's frame adds to the section stack of its controls.
inline constexpr std::int64_t kSubFormFrame = 120;

// Left inside the container. Controls of a tab page behind the first are moved 75000 twips out of
// sight, as Visual Basic's tab control keeps them. A Left or a Parent's Left that does not fit
// gives 32767; other failures that are not usual at the end of a chain of Parents have a box, and
// what could not be read counts as 0.
std::int64_t GetControlLeft(MainObject& main, const LateBound& ctl);

// Top below the sections above, inside the container; errors as in GetControlLeft.
std::int64_t GetFormSection(MainObject& main, const LateBound& ctl);

// GetReportSection while a report is being converted, else GetFormSection.
std::int64_t topInHand(MainObject& main, const LateBound& ctl);

}  // namespace tarrowin
