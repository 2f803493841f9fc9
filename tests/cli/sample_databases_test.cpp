// Real databases: what they hold, counted by other means than this program, and that converting
// their queries succeeds and leaves them as they are.
#include <cstdlib>
#include <filesystem>
#include <ostream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "cli/run_program.h"
#include "support/test_session.h"

namespace tarrowin::test {
namespace {

namespace fs = std::filesystem;

struct SampleDatabase {
  std::string file;
  std::size_t queries, forms, reports, macros, modules;  // hidden queries are not counted
};

void PrintTo(const SampleDatabase& sample, std::ostream* out) { *out << sample.file; }

fs::path sampleFolder() {
  if (const char* named = std::getenv("TARROWIN_SAMPLES")) return named;
  return fs::path(TARROWIN_SOURCE_DIR) / ".." / "shared" / "samples";
}

class SampleDatabases : public testing::TestWithParam<SampleDatabase> {
 protected:
  void SetUp() override {
    database = sampleFolder() / "mdb" / GetParam().file;
    if (!fs::exists(database)) GTEST_SKIP() << "no sample " << database;
  }

  fs::path database;
};

TEST_P(SampleDatabases, ListsAndConvertsItsQueries) {
  const std::string before = fileContent(database);
  const ProgramResult listed = runCli({"list", "--json", database.string()});
  ASSERT_EQ(listed.status, 0) << listed.err;
  const Json found = Json::parse(listed.out);
  EXPECT_EQ(found["queries"].size(), GetParam().queries);
  EXPECT_EQ(found["forms"].size(), GetParam().forms);
  EXPECT_EQ(found["reports"].size(), GetParam().reports);
  EXPECT_EQ(found["macros"].size(), GetParam().macros);
  EXPECT_EQ(found["modules"].size(), GetParam().modules);

  const TemporaryFolder folder;
  const std::string out = (folder.path() / "out").string();
  const ProgramResult converted = runCli({"convert", database.string(), "--to", out, "--queries"});
  EXPECT_EQ(converted.status, 0) << converted.err;
  EXPECT_EQ(fileNames(out).size(), GetParam().queries);
  EXPECT_TRUE(fileContent(database) == before) << "the database was changed";
}

INSTANTIATE_TEST_SUITE_P(
    Files, SampleDatabases,
    testing::Values(
        SampleDatabase{"ailtonz__MSACCESS/MinimizaApp.mdb", 0, 0, 0, 1, 1},
        SampleDatabase{"ailtonz__vba_msaccess/BalemAgenda97.mdb", 4, 5, 0, 0, 7},
        SampleDatabase{"ailtonz__vba_msaccess/CodBarra39Etiquetas.mdb", 0, 1, 1, 0, 3},
        SampleDatabase{"ailtonz__vba_msaccess/BalemAgenda2000.mdb", 4, 5, 0, 0, 7},
        SampleDatabase{"MattFisher__AccessVCS/TestDB.mdb", 1, 3, 1, 2, 2},
        SampleDatabase{"ailtonz__MSACCESS/MinimizaApp_2003.mdb", 0, 0, 0, 1, 1},
        SampleDatabase{"ailtonz__vba_msaccess/CodBarra39Etiquetas_2003.mdb", 0, 1, 1, 0, 3},
        SampleDatabase{"mnieto__MSAccess-VCS/asvnTest2003.mdb", 0, 3, 1, 1, 2},
        SampleDatabase{"solondon__MSAccess2010InsideOutSampleCode/Reports.mdb", 2, 6, 14, 0, 2}));

class SampleOfNewerFormat : public testing::TestWithParam<const char*> {};

TEST_P(SampleOfNewerFormat, IsRefused) {
  const fs::path database = sampleFolder() / "mdb" / GetParam();
  if (!fs::exists(database)) GTEST_SKIP() << "no sample " << database;
  const ProgramResult result = runCli({"list", database.string()});
  EXPECT_EQ(result.status, 2);
  EXPECT_EQ(result.out, "");
  EXPECT_NE(result.err.find("tarrowin-cli: " + database.string() + ": "), std::string::npos)
      << result.err;
}

INSTANTIATE_TEST_SUITE_P(
    Files, SampleOfNewerFormat,
    testing::Values("joyfullservice__msaccess-vcs-addin/Testing.accdb",
                    "msaccess-vcs-integration__msaccess-vcs-integration/demo.accdb"));

}  // namespace
}  // namespace tarrowin::test
