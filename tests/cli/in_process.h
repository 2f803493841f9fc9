// Runs the command line inside the test, where the clock and the machine can be replaced.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "access/access_host.h"
#include "shared/value.h"

namespace tarrowin::test {

struct CommandResult {
  int status = -1;
  std::string out;
  std::string err;
};

struct CommandSettings {
  std::string workingDirectory = "/";
  std::function<Date()> clock = [] { return Date{46000.5}; };
  std::function<ObjectRef(HostOptions)> createHost = createAccessHost;
  bool showsProgress = false;
};

CommandResult runCommand(const std::vector<std::string>& arguments,
                         const CommandSettings& settings);

}  // namespace tarrowin::test
