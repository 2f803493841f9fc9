// The type libraries that the Access side of the program needs.
#pragma once

namespace tarrowin {

struct MainObject;

// Tells the user which references to select, unless the running Access counts nine of them. What
// cannot be read counts as none.
void CheckAccessRefs(MainObject& main);

}  // namespace tarrowin
