// The command line: arguments to commands, failures to exit statuses.
#pragma once

#include <string>
#include <vector>

#include "cli/environment.h"

namespace tarrowin {

// Runs the program with its arguments, without the program's own name, and gives the exit status.
// The console has been flushed by then; a result that could not be written gives 2.
int runCommandLine(const std::vector<std::string>& arguments, const Environment& environment);

}  // namespace tarrowin
