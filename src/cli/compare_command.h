// tarrowin-cli compare: where two sources differ, object by object.
#pragma once

#include <string>

#include "cli/environment.h"
#include "cli/exit_status.h"

namespace tarrowin {

struct CompareOptions {
  std::string first, second;
  bool json = false;
  bool generatorsOnly = false;
};

// kDone when nothing differs, kDiffers otherwise.
ExitStatus compareSources(const Environment& environment, const CompareOptions& options);

}  // namespace tarrowin
