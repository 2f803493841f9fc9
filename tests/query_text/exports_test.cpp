// Real queries exported as text: designs whose SQL text is exported too, and the join lists of real
// SQL texts, taken apart and put together again.
#include <gtest/gtest.h>

#include "access/mdb/query_text.h"
#include "query_text/from_text.h"
#include "query_text/query_export.h"

namespace tarrowin::mdb {
namespace {

std::string withoutReturns(std::string text) {
  std::erase(text, '\r');
  return text;
}

std::string verbOf(QueryKind kind) {
  switch (kind) {
    case QueryKind::kUpdate:
      return "UPDATE ";
    case QueryKind::kDelete:
      return "DELETE ";
    case QueryKind::kAppend:
      return "INSERT INTO ";
    case QueryKind::kCrosstab:
      return "TRANSFORM ";
    default:
      return "SELECT ";
  }
}

class QueryExports : public testing::Test {
 protected:
  void SetUp() override {
    if (samplesFolder().empty()) GTEST_SKIP() << "no folder of sample databases";
    files_ = exportedQueries(samplesFolder() / "exports");
  }

  std::vector<std::filesystem::path> files_;
};

TEST_F(QueryExports, DesignGivesTheSqlTextBesideIt) {
  int pairs = 0;
  for (const auto& file : files_) {
    const std::filesystem::path sqlFile = std::filesystem::path(file).replace_extension(".sql");
    const QueryExport query = readQueryExport(file);
    if (query.rows.empty() || !std::filesystem::exists(sqlFile)) continue;
    EXPECT_EQ(withoutReturns(querySql(query.rows, 0)), withoutReturns(readFile(sqlFile))) << file;
    ++pairs;
  }
  EXPECT_GE(pairs, 1);
}

TEST_F(QueryExports, EveryDesignGivesAStatement) {
  int designs = 0;
  for (const auto& file : files_) {
    const QueryExport query = readQueryExport(file);
    if (query.sql) continue;
    ASSERT_FALSE(query.rows.empty()) << file;
    const std::string text = querySql(query.rows, 0);
    EXPECT_TRUE(text.starts_with(verbOf(queryKind(query.rows, 0)))) << text;
    EXPECT_TRUE(text.ends_with(";\r\n")) << text;
    for (const QueryRow& row : query.rows) {
      EXPECT_NE(text.find(row.expression.value_or("")), std::string::npos) << text;
    }
    ++designs;
  }
  EXPECT_GE(designs, 29);
}

TEST_F(QueryExports, JoinListsOfRealTextsComeBack) {
  int lists = 0;
  for (const auto& file : files_) {
    const QueryExport query = readQueryExport(file);
    if (!query.sql || query.sql->find("\r\nUNION") != std::string::npos) continue;
    const auto begin = query.sql->find("\r\nFROM ");
    if (begin == std::string::npos) continue;
    const auto end = query.sql->find_first_of(";\r", begin + 2);
    const std::string from = query.sql->substr(begin + 7, end - begin - 7);
    const FromRows rows = takeFromApart(from);
    EXPECT_EQ(joinedSources(rows.sources, rows.joins), from) << file;
    ++lists;
  }
  EXPECT_GE(lists, 39);
}

}  // namespace
}  // namespace tarrowin::mdb
