// A folder with a small database, and the program run in it as a process.
#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "cli/run_program.h"
#include "support/test_session.h"

namespace tarrowin::test {

using Names = std::vector<std::string>;

class CommandProcess : public testing::Test {
 protected:
  CommandProcess() {
    Json database = emptyDatabase();
    database["tables"] = Json::parse(
        R"([{"name": "Orders", "fields": [{"name": "ID", "type": 4, "size": 4}], "rows": []},
            {"name": "MSysObjects", "fields": [], "rows": []}])");
    database["queries"] = {query("Big Orders", "SELECT * FROM Orders;"),
                           query("M\xc3\xa4rz", "SELECT 3;"), query("~sq_f", "SELECT 4;")};
    database["forms"] =
        Json::parse(R"([{"name": "frmMain", "properties": {}, "sections": [], "controls": []}])");
    write("orders.access.json", database.dump());
  }

  void write(const char* name, std::string_view content) const { writeFile(path(name), content); }
  std::string path(std::string_view name) const { return (folder.path() / name).string(); }
  ProgramResult run(
      const Names& arguments, std::function<void()> inChild = [] {}) const {
    return runCli(arguments, {folder.path().string(), std::move(inChild)});
  }
  bool exists(const char* name) const { return std::filesystem::exists(path(name)); }

  TemporaryFolder folder;
};

}  // namespace tarrowin::test
