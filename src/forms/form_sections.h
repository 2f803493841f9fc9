// The sections of a form.
#pragma once

#include <cstdint>

#include "core/access_objects.h"

namespace tarrowin {

inline LateBound sectionOf(const LateBound& form, std::int32_t number) {
  return LateBound(toObject(form.get("Section", {Value(number)})));
}

}  // namespace tarrowin
