// Runs a program as a user does, as a process, and keeps what it said.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace tarrowin::test {

struct ProgramResult {
  int status = -1;  // exit status; 128 and the signal's number when a signal ended it
  std::string out;
  std::string err;
};

struct ProgramSettings {
  std::string workingDirectory = "/";
  // Runs in the child before the program starts, with the streams already in place.
  std::function<void()> inChild = [] {};
};

ProgramResult runProgram(const std::string& program, const std::vector<std::string>& arguments,
                         const ProgramSettings& settings = {});

// tarrowin-cli as it was built.
ProgramResult runCli(const std::vector<std::string>& arguments,
                     const ProgramSettings& settings = {});

}  // namespace tarrowin::test
