// The group levels of a report.
#pragma once

#include <cstdint>

#include "core/access_objects.h"
#include "core/conversion_state.h"

namespace tarrowin {

// How many levels own a header or a footer; a level that only sorts does not count. 0 when a level
// cannot be read, and when the report has nine levels or more.
std::int32_t GetNumGroupLevels(const LateBound& report);

// Fills strGroupFields with the ControlSource of every level, from element 0 on, and one empty
// element behind.
void GetGroupLevelFields(const LateBound& report, ConversionState& state);

}  // namespace tarrowin
