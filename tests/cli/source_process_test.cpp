// Sources that the program must refuse: the message, the status, and nothing written.
#include <utility>
#include <vector>

#include <gtest/gtest.h>
#include <unistd.h>

#include "cli/command_process.h"

namespace tarrowin::test {
namespace {

// The status of a child that could not start the program.
constexpr int kCannotRun = 126;

class SourceProcess : public CommandProcess {};

// Sources that cannot be used, and how the line about them goes on.
struct BadSource {
  const char* name;
  const char* content;  // none for a file that is not made
  const char* reason;   // how it begins
};

TEST_F(SourceProcess, UnusableSources) {
  const std::vector<BadSource> sources = {
      {"missing.mdb", nullptr, "there is no such file"},
      {"empty.mdb", "", "the file is empty"},
      {"text.mdb", "hello\n", "the file is not an Access database"},
      {"malformed.access.json", "{\"snapshot\": 1", "is not JSON"},
      {"list.access.json", "[1]", ""},
      {"wrong.access.json", R"({"snapshot": 1, "queries": 5})", "/queries: expected a list"},
      {"old.access.json",
       R"({"snapshot": 1, "database": {"properties": {"AccessVersion": "06.00"}}})",
       "cannot be used, for the reason given above"},
      {"star*.mdb", "x", "a file with \"*\" in its path cannot be opened"},
  };
  for (const BadSource& source : sources) {
    if (source.content) write(source.name, source.content);
    for (const Names& arguments :
         {Names{"list", source.name}, Names{"convert", source.name, "--to", "out", "--all"},
          Names{"record", source.name, "out.access.json"}}) {
      const ProgramResult result = run(arguments);
      EXPECT_EQ(result.status, 2) << source.name;
      EXPECT_EQ(result.out, "") << source.name;
      EXPECT_NE(result.err.find("tarrowin-cli: " + std::string(source.name) + ": " + source.reason),
                std::string::npos)
          << result.err;
      EXPECT_FALSE(exists("out") || exists("out.access.json")) << source.name;
    }
    if (source.content) {
      EXPECT_EQ(fileContent(path(source.name)), source.content);
    }
  }
}

TEST_F(SourceProcess, DirectoryAsSource) {
  std::filesystem::create_directory(path("folder"));
  const ProgramResult result = run({"list", "folder"});
  EXPECT_EQ(result.status, 2);
  EXPECT_TRUE(result.err.ends_with("\ntarrowin-cli: folder: is a directory\n")) << result.err;
}

TEST_F(SourceProcess, DeeplyNestedSource) {
  std::string deep = "{\"snapshot\": 1, \"x\": ";
  deep.append(300000, '[');
  write("deep.access.json", deep);
  const ProgramResult result = run({"list", "deep.access.json"});
  EXPECT_EQ(result.status, 2) << result.err;
  EXPECT_NE(result.err.find("tarrowin-cli: deep.access.json: "), std::string::npos) << result.err;
}

TEST_F(SourceProcess, PasswordAndNewerFormatAsRecorded) {
  for (const auto& [number, reason] :
       {std::pair{3031, "Not a valid password."}, std::pair{7866, ""}}) {
    Json database = emptyDatabase();
    database["application"]["errors"]["OpenCurrentDatabase"] = number;
    write("refused.access.json", database.dump());
    const ProgramResult result = run({"list", "refused.access.json"});
    EXPECT_EQ(result.status, 2);
    EXPECT_NE(result.err.find("tarrowin-cli: refused.access.json: " + std::string(reason)),
              std::string::npos)
        << result.err;
  }
}

TEST_F(SourceProcess, UnreadableSource) {
  namespace fs = std::filesystem;
  fs::permissions(folder.path(), fs::perms::owner_all | fs::perms::others_exec);
  fs::permissions(path("orders.access.json"), fs::perms::none);
  const ProgramResult result = run({"list", "orders.access.json"}, [] {
    // The administrator reads every file, so the program runs as nobody.
    constexpr uid_t kNobody = 65534;
    if (geteuid() == 0 && setuid(kNobody) != 0) _exit(kCannotRun);
  });
  if (result.status == kCannotRun) GTEST_SKIP() << "nobody else may run the program here";
  EXPECT_EQ(result.status, 2);
  EXPECT_NE(result.err.find("tarrowin-cli: orders.access.json: "), std::string::npos) << result.err;
}

}  // namespace
}  // namespace tarrowin::test
