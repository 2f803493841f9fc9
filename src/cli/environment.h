// What the command line is given from outside: its streams, its clock, its machine.
#pragma once

#include <string>

#include "program/program_run.h"

namespace tarrowin {

class Console;

struct Environment {
  Console& console;
  // Absolute, as the disk knows it.
  std::string workingDirectory;
  RunEnvironment run = {};
};

}  // namespace tarrowin
