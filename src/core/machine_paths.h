// What the machine that loads the output would tell about itself. The program may run elsewhere,
// so a person or a script says it.
#pragma once

#include <optional>
#include <string>

namespace tarrowin {

// Directories of that machine, with or without a final backslash; they are never looked up here.
// For the libraries the file itself may stand as well. An empty text means unknown; without a text
// the usual directory holds.
struct MachinePaths {
  std::optional<std::string> systemDir;    // C:\WINDOWS\system32
  std::optional<std::string> msderunPath;  // of msderun.dll
  std::optional<std::string> msadoPath;    // of msado15.dll
};

}  // namespace tarrowin
