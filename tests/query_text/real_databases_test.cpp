// The queries of real databases: every text is put together, and equals what the export beside the
// database gives.
#include <map>

#include <gtest/gtest.h>

#include "access/mdb/mdb_database.h"
#include "access/mdb/query_text.h"
#include "query_text/query_export.h"

namespace tarrowin::mdb {
namespace {

using Texts = std::map<std::string, std::string>;  // by query name

Database openSample(const std::string& file) {
  Options options;
  options.allowNewerFormat = true;
  return Database::open((samplesFolder() / "mdb" / file).string(), options);
}

// The queries that a user sees; the hidden ones are checked to give a statement.
Texts textsOf(const std::string& file) {
  const Database database = openSample(file);
  Texts texts;
  for (const CatalogObject& query : database.queries()) {
    const std::string text =
        querySql(database.queryRows(query), static_cast<std::int32_t>(query.flags));
    EXPECT_TRUE(text.ends_with(";\r\n")) << file << " " << query.name << ": " << text;
    EXPECT_NE(text.find("\r\nFROM "), std::string::npos) << file << " " << query.name;
    if (!query.name.starts_with('~')) texts[query.name] = text;
  }
  return texts;
}

std::string exported(const std::string& file) {
  return querySql(readQueryExport(samplesFolder() / "exports" / file).rows, 0);
}

class RealDatabases : public testing::Test {
 protected:
  void SetUp() override {
    if (samplesFolder().empty()) GTEST_SKIP() << "no folder of sample databases";
  }
};

TEST_F(RealDatabases, EveryQueryGivesAStatement) {
  std::size_t queries = 0;
  int databases = 0;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(samplesFolder() / "mdb")) {
    if (!entry.is_regular_file()) continue;
    queries += textsOf(std::filesystem::relative(entry.path(), samplesFolder() / "mdb")).size();
    ++databases;
  }
  EXPECT_EQ(databases, 11);
  EXPECT_EQ(queries, 13u);
}

TEST_F(RealDatabases, Access2000PairWithItsExport) {
  const Texts texts = textsOf("MattFisher__AccessVCS/TestDB.mdb");
  ASSERT_EQ(texts.size(), 1u);
  EXPECT_EQ(texts.begin()->second, exported("MattFisher__AccessVCS/TestDB/src/Qry_TestQry.qry"));
}

TEST_F(RealDatabases, NewerPairWithItsExportedSql) {
  const Texts texts = textsOf("joyfullservice__msaccess-vcs-addin/Testing.accdb");
  ASSERT_EQ(texts.size(), 1u);
  const std::string folder = "joyfullservice__msaccess-vcs-addin/Testing.accdb.src/queries/";
  std::string sql =
      readFile(samplesFolder() / "exports" / (folder + texts.begin()->first + ".sql"));
  for (std::size_t at = 0; (at = sql.find('\n', at)) != std::string::npos; at += 2) {
    sql.replace(at, 1, "\r\n");
  }
  EXPECT_EQ(texts.begin()->second, sql);
  EXPECT_EQ(texts.begin()->second, exported(folder + texts.begin()->first + ".bas"));
}

TEST_F(RealDatabases, NewerPairWithItsExportedDesign) {
  const std::string folder = "msaccess-vcs-integration__msaccess-vcs-integration/demo";
  const Texts texts = textsOf(folder + ".accdb");
  ASSERT_EQ(texts.size(), 1u);
  EXPECT_EQ(texts.begin()->second,
            exported(folder + "/source/queries/" + texts.begin()->first + ".bas"));
}

TEST_F(RealDatabases, Access97AndItsConversionGiveTheSameTexts) {
  const Texts old = textsOf("ailtonz__vba_msaccess/BalemAgenda97.mdb");
  EXPECT_EQ(old.size(), 4u);
  EXPECT_EQ(old, textsOf("ailtonz__vba_msaccess/BalemAgenda2000.mdb"));
}

}  // namespace
}  // namespace tarrowin::mdb
