// Replacing a file: all or nothing, whatever step fails.
#include "access/snapshot/atomic_file.h"

#include <nlohmann/json.hpp>
#include <sys/stat.h>

#include "access/access_fixture.h"
#include "access/failing_operations.h"
#include "access/snapshot/snapshot_document.h"

namespace tarrowin {
namespace {

class AtomicFileTest : public AccessTest {};

TEST_F(AtomicFileTest, ReplacesTheFile) {
  writeFile(pathOf("a"), "old");
  replaceFile(pathOf("a"), "new");
  EXPECT_EQ(readFile(pathOf("a")), "new");
  EXPECT_EQ(filesInDirectory(), 1u);
}

TEST_F(AtomicFileTest, OldFileSurvivesEveryFailingOperation) {
  writeFile(pathOf("a"), "old content");
  const char* const steps[] = {"creating a temporary file",
                               "writing",
                               "setting the permissions",
                               "flushing",
                               "closing",
                               "renaming"};
  for (int failing = 1; failing <= 6; ++failing) {
    FailingOperations operations(failing);
    try {
      replaceFile(pathOf("a"), "new content", operations);
      ADD_FAILURE() << "operation " << failing << " did not fail";
    } catch (const AtomicWriteError& error) {
      EXPECT_TRUE(
          error.message().starts_with(pathOf("a") + ": " + steps[failing - 1] + " failed: "))
          << error.message();
    }
    EXPECT_EQ(readFile(pathOf("a")), "old content") << steps[failing - 1];
    EXPECT_EQ(filesInDirectory(), 1u) << steps[failing - 1];
  }
  FailingOperations none(7);
  replaceFile(pathOf("a"), "new content", none);
  EXPECT_EQ(readFile(pathOf("a")), "new content");
}

TEST_F(AtomicFileTest, PermissionsOfTheOldFileAreKept) {
  writeFile(pathOf("a"), "old");
  ASSERT_EQ(::chmod(pathOf("a").c_str(), 0640), 0);
  replaceFile(pathOf("a"), "new");
  struct stat status {};
  ASSERT_EQ(::stat(pathOf("a").c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 0777u, 0640u);
}

TEST_F(AtomicFileTest, SymbolicLinkStaysALink) {
  writeFile(pathOf("target"), "old");
  std::filesystem::create_symlink(pathOf("target"), pathOf("link"));
  replaceFile(pathOf("link"), "new");
  EXPECT_TRUE(std::filesystem::is_symlink(pathOf("link")));
  EXPECT_EQ(readFile(pathOf("target")), "new");
}

TEST_F(AtomicFileTest, MissingDirectoryIsNamed) {
  EXPECT_THROW(replaceFile(pathOf("none/a"), "x"), AtomicWriteError);
}

TEST_F(AtomicFileTest, SnapshotIsIndentedByTwoAndKeepsItsKeys) {
  const std::string text = R"({"snapshot":1,"zebra":{"b":1,"a":[1.0,"\u00e9"]},"database":{}})";
  writeSnapshotFile(pathOf("s.json"), parseSnapshotDocument(text));
  EXPECT_EQ(readFile(pathOf("s.json")),
            "{\n  \"snapshot\": 1,\n  \"zebra\": {\n    \"b\": 1,\n    \"a\": [\n      1.0,\n"
            "      \"\xC3\xA9\"\n    ]\n  },\n  \"database\": {}\n}\n");
}

TEST_F(AtomicFileTest, FailedWriteOfASnapshotLeavesTheOldOne) {
  writeSnapshotFile(pathOf("s.json"), {{"snapshot", 1}});
  const std::string before = readFile(pathOf("s.json"));
  for (int failing = 1; failing <= 6; ++failing) {
    FailingOperations operations(failing);
    EXPECT_THROW(writeSnapshotFile(pathOf("s.json"), {{"snapshot", 1}, {"x", 2}}, operations),
                 AtomicWriteError);
    EXPECT_EQ(readFile(pathOf("s.json")), before);
  }
}

}  // namespace
}  // namespace tarrowin
