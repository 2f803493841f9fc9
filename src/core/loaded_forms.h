// The program's own collection of loaded forms, which is not Access's.
#pragma once

#include <string_view>

namespace tarrowin {

// Whether a form of that name stands in it. The program's windows are drawn by its faces and none
// of them is a form of that kind, so the collection is empty.
inline bool IsFormLoaded(std::string_view name) {
  static_cast<void>(name);
  return false;
}

}  // namespace tarrowin
