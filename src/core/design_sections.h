// The sections of a form or report.
#pragma once

#include <cstdint>

#include "core/access_objects.h"

namespace tarrowin {

// By Access's number; raises 2462 when there is none.
inline LateBound sectionOf(const LateBound& design, std::int32_t number) {
  return LateBound(toObject(design.get("Section", {Value(number)})));
}

}  // namespace tarrowin
