// Real databases and exports, copied into a folder of the test, so that nothing is ever written
// beside the originals.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "cli/run_program.h"
#include "support/test_session.h"

namespace tarrowin::test {

class Samples : public testing::Test {
 protected:
  void SetUp() override {
    if (!std::filesystem::is_directory(samples())) GTEST_SKIP() << "no samples in " << samples();
  }

  // Copies a file, or a folder with all that is in it, and returns the copy's path. The copy keeps
  // the last two names of the path, which tell an export's database.
  std::string copied(const std::filesystem::path& relative) const {
    return copiedTo(relative, relative.parent_path().filename() / relative.filename());
  }
  std::string copiedTo(const std::filesystem::path& relative,
                       const std::filesystem::path& target) const {
    const std::filesystem::path copy = path(target);
    std::filesystem::create_directories(copy.parent_path());
    std::filesystem::copy(samples() / relative, copy, std::filesystem::copy_options::recursive);
    return copy.string();
  }

  ProgramResult run(const std::vector<std::string>& arguments) const {
    return runCli(arguments, {folder_.path().string(), [] {}});
  }
  std::filesystem::path path(const std::filesystem::path& relative) const {
    return folder_.path() / relative;
  }

 private:
  static std::filesystem::path samples() {
    if (const char* named = std::getenv("TARROWIN_SAMPLES")) return named;
    return std::filesystem::path(TARROWIN_SOURCE_DIR) / ".." / "shared" / "samples";
  }

  TemporaryFolder folder_;
};

}  // namespace tarrowin::test
