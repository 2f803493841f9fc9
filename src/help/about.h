// The product's own line.
#pragma once

#include <string>

namespace tarrowin {

// One line: the program's name, its version, and what it is.
std::string AboutAppInfo();

// The version alone, as in "0.1.0".
std::string programVersion();

}  // namespace tarrowin
