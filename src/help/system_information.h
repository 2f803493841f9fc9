// What to name when asking for help: the program and the machine that it runs on.
#pragma once

#include <string>

namespace tarrowin {

// Program, version, code page, operating system and memory, one a line, with CR LF between them.
// What the machine does not tell is "unknown".
std::string systemInformation();

}  // namespace tarrowin
