// Where the tests find real databases, and running a program and taking what it prints.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "shared/value.h"

namespace tarrowin::mdb {

// All sample databases (.mdb, and .accdb when asked for), sorted; empty where there are none.
std::vector<std::filesystem::path> sampleDatabases(bool withNewer = false);

// A sample by the end of its path, such as "BalemAgenda97.mdb"; empty when it is not there.
std::filesystem::path sampleDatabase(const std::string& name);

Bytes fileBytes(const std::filesystem::path& path);

struct ProgramResult {
  int status = -1;  // exit status, or -1 when it could not be run or was killed
  std::string output;
};

// The arguments are passed as they are; no shell looks at them. Standard error is discarded.
ProgramResult runProgram(const std::vector<std::string>& arguments);

bool haveMdbTools();

}  // namespace tarrowin::mdb
