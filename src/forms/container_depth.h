// Option groups and tab controls inside each other. Each prints all that stands in it at any depth,
// so that what lies in several is printed by each of them: every further level, which Access itself
// does not make, would double the output.
#pragma once

#include "core/access_objects.h"

namespace tarrowin {

// Whether the container stands in more of them than any real form has around one. It is then
// printed without its members, which the outer ones print.
bool isTooDeepContainer(const LateBound& ctl);

}  // namespace tarrowin
