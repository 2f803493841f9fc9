// The version comes from the build.
#include "help/about.h"

namespace tarrowin {

std::string programVersion() { return TARROWIN_VERSION; }

std::string AboutAppInfo() {
  return "Tarrowin " + programVersion() + ", Microsoft Access to Visual Basic 6";
}

}  // namespace tarrowin
