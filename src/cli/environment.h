// What the command line is given from outside: its streams, its clock, its machine.
#pragma once

#include <functional>
#include <string>

#include "access/access_host.h"
#include "core/main_object.h"

namespace tarrowin {

class Console;

struct Environment {
  Console& console;
  // Absolute, as the disk knows it.
  std::string workingDirectory;
  std::function<Date()> clock = systemNow;
  std::function<ObjectRef(HostOptions)> createHost = createAccessHost;
};

}  // namespace tarrowin
