// tarrowin-cli list: what a database holds, by kind.
#pragma once

#include <string>

#include "cli/environment.h"
#include "cli/exit_status.h"

namespace tarrowin {

struct ListOptions {
  std::string source;
  bool json = false;
  // Also how much of the design of each form, report and macro is understood.
  bool detail = false;
};

// Names are printed without loss, whatever the code page of a conversion would make of them.
ExitStatus listSource(const Environment& environment, const ListOptions& options);

}  // namespace tarrowin
