// The commands as processes: version, help, arguments, list, record.
#include "cli/command_process.h"

#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace tarrowin::test {
namespace {

TEST_F(CommandProcess, VersionAtEveryLevel) {
  const std::string version = "tarrowin-cli " TARROWIN_VERSION "\n";
  EXPECT_EQ(run({"--version"}).out, version);
  for (const char* command : {"list", "convert", "record", "preview", "compare", "script"}) {
    const ProgramResult result = run({command, "--version"});
    EXPECT_EQ(result.status, 0) << command;
    EXPECT_EQ(result.out, version) << command;
    EXPECT_EQ(result.err, "") << command;
  }
}

TEST_F(CommandProcess, HelpAtEveryLevel) {
  const ProgramResult top = run({"--help"});
  EXPECT_EQ(top.status, 0);
  for (const char* command : {"list", "convert", "record", "preview", "compare", "script"}) {
    EXPECT_NE(top.out.find(command), std::string::npos) << command;
    const ProgramResult result = run({command, "--help"});
    EXPECT_EQ(result.status, 0) << command;
    EXPECT_NE(result.out.find("tarrowin-cli " + std::string(command)), std::string::npos)
        << result.out;
    EXPECT_EQ(result.err, "") << command;
  }
}

TEST_F(CommandProcess, UnusableArguments) {
  const std::vector<Names> unusable = {
      {},
      {"lst"},
      {"--nonsense"},
      {"list"},
      {"list", "a", "b"},
      {"convert", "orders.access.json", "--queries"},
      {"convert", "orders.access.json", "--to", "out"},
      {"convert", "orders.access.json", "--to", "", "--queries"},
      {"convert", "orders.access.json", "--to", "out", "--all", "--queries"},
      {"convert", "orders.access.json", "--to", "out", "--queries", "--code-page", "x"},
      {"convert", "orders.access.json", "--to", "out", "--queries", "--code-page", "932"},
      {"record", "orders.access.json"},
      {"preview", "orders.access.json"},
      {"script"},
  };
  for (const Names& arguments : unusable) {
    const ProgramResult result = run(arguments);
    EXPECT_EQ(result.status, 2) << testing::PrintToString(arguments);
    EXPECT_EQ(result.out, "") << testing::PrintToString(arguments);
    EXPECT_TRUE(result.err.starts_with("tarrowin-cli: ")) << result.err;
  }
  EXPECT_FALSE(exists("out"));
}

TEST_F(CommandProcess, ListForAPerson) {
  const ProgramResult result = run({"list", "orders.access.json"});
  EXPECT_EQ(result.status, 0) << result.err;
  EXPECT_EQ(result.out, path("orders.access.json") +
                            " (Access 08.50)\n\nQueries: 2\n  Big Orders\n  M\xc3\xa4rz\n\n"
                            "Forms: 1\n  frmMain\n\nReports: 0\n\nMacros: 0\n\nModules: 0\n\n"
                            "Tables: 1\n  Orders\n");
  EXPECT_EQ(result.err, "");
}

TEST_F(CommandProcess, ListForAProgram) {
  const ProgramResult result = run({"list", "--json", "orders.access.json"});
  EXPECT_EQ(result.status, 0) << result.err;
  const Json expected = {{"database", path("orders.access.json")},
                         {"version", "08.50"},
                         {"queries", {"Big Orders", "M\xc3\xa4rz"}},
                         {"forms", {"frmMain"}},
                         {"reports", Json::array()},
                         {"macros", Json::array()},
                         {"modules", Json::array()},
                         {"tables", {"Orders"}}};
  EXPECT_EQ(Json::parse(result.out), expected) << result.out;
}

TEST_F(CommandProcess, ListNamesWhatTheCodePageLacks) {
  Json database = emptyDatabase();
  database["queries"] = {query("\xe6\x9c\x88", "SELECT 1;")};
  write("\xe6\x9c\x88.access.json", database.dump());
  const ProgramResult result = run({"list", "\xe6\x9c\x88.access.json"});
  EXPECT_EQ(result.status, 0) << result.err;
  EXPECT_NE(result.out.find("  \xe6\x9c\x88\n"), std::string::npos) << result.out;
}

TEST_F(CommandProcess, RecordGivesWhatListsTheSame) {
  const ProgramResult result = run({"record", "orders.access.json", "copy.access.json"});
  EXPECT_EQ(result.status, 0) << result.err;
  EXPECT_EQ(result.out,
            "Recorded orders.access.json in copy.access.json: 2 tables, 3 queries, 1 form\n");
  Json original = Json::parse(run({"list", "--json", "orders.access.json"}).out);
  Json copy = Json::parse(run({"list", "--json", "copy.access.json"}).out);
  original.erase("database");
  copy.erase("database");
  EXPECT_EQ(copy, original);
  EXPECT_EQ(fileNames(folder.path()), (Names{"copy.access.json", "orders.access.json"}));
}

TEST_F(CommandProcess, RecordNeverReplacesItsSource) {
  const std::string before = fileContent(path("orders.access.json"));
  std::filesystem::create_hard_link(path("orders.access.json"), path("link.access.json"));
  for (const char* target : {"orders.access.json", "./orders.access.json", "link.access.json"}) {
    const ProgramResult result = run({"record", "orders.access.json", target});
    EXPECT_EQ(result.status, 2) << target;
    EXPECT_EQ(result.err, "tarrowin-cli: " + std::string(target) + ": is the source itself\n");
  }
  EXPECT_EQ(fileContent(path("orders.access.json")), before);
}

TEST_F(CommandProcess, RecordRefusesWhatIsNoFile) {
  EXPECT_EQ(run({"record", "orders.access.json", "/dev/null"}).err,
            "tarrowin-cli: /dev/null: is no regular file\n");
  EXPECT_EQ(run({"record", "orders.access.json", "."}).err, "tarrowin-cli: .: is a directory\n");
  const ProgramResult missing = run({"record", "orders.access.json", "none/x.access.json"});
  EXPECT_EQ(missing.status, 2);
  EXPECT_NE(missing.err.find("none/x.access.json"), std::string::npos) << missing.err;
}

}  // namespace
}  // namespace tarrowin::test
