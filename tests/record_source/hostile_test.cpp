// Texts that nobody means well with: random damage, depth, length, and what must never happen.
#include <chrono>
#include <random>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "access/record_source/column_database.h"
#include "access/record_source/sql_tokens.h"
#include "order_schema.h"
#include "shared/vb_error.h"

namespace tarrowin {
namespace {

using testing::AnyOf;
using testing::ElementsAre;

std::string repeated(std::string_view text, int times) {
  std::string result;
  for (int i = 0; i < times; ++i) result += text;
  return result;
}

// Whether the analyzer answers or raises one of its errors; anything else fails the test.
void expectAnswerOrError(RecordSourceAnalyzer& analyzer, const std::string& sql) {
  try {
    analyzer.fieldsOf(sql);
  } catch (const VbError& error) {
    EXPECT_THAT(error.number(), AnyOf(3061, 3078, 3219)) << sql;
  }
}

TEST(HostileTexts, RandomDamage) {
  const std::vector<std::string> seeds = {
      "SELECT o.*, c.CompanyName AS [A b], Sum(Freight)*2, IIf(c.Active,'x',\"y\") FROM Orders AS "
      "o "
      "INNER JOIN (Customers c LEFT JOIN Employees e ON e.Boss=c.Active) ON o.CustomerID = "
      "c.CustomerID WHERE o.Freight Between 1 And .5 AND c.Country Like '[a-c]*' ORDER BY 1 DESC;",
      "PARAMETERS [Start Date] DateTime; SELECT DISTINCTROW TOP 5 PERCENT x.N FROM [SELECT "
      "Count(*) "
      "AS N FROM [Order Details]]. AS x WHERE x.N > [Start Date] WITH OWNERACCESS OPTION",
      "TRANSFORM Sum(Freight) AS s SELECT CustomerID FROM Orders GROUP BY CustomerID PIVOT "
      "Year([OrderDate]) IN (1997, \"b\", Null)",
      "SELECT Ort FROM Städte IN 'x' UNION ALL (SELECT FullName FROM Names) UNION TABLE Linked "
      "ORDER BY Ort",
      "SELECT Both.Orders.CustomerID, [Forms]![a]![b], #1/1/99#, {guid {1}}, &HFF FROM Both WHERE "
      "EXISTS (SELECT * FROM Quarters, Years WHERE Years.[1997] = Both.OrderID) AND NOT 1 IN "
      "(2,3)"};
  const std::vector<std::string> pieces = {
      "(",     ")",       "[",      "]",       "'",    "\"",     "#",      ",",          ".",
      "!",     "*",       "&",      "=",       ";",    "{",      "}",      "-",          "^",
      "\\",    "?",       " ",      "\t",      "[] ",  " AS ",   " FROM ", " SELECT ",   " ON ",
      " IN ",  " NOT ",   " NULL ", " UNION ", " BY ", " JOIN ", "Orders", "CustomerID", "Both",
      "Years", "Cycle A", "Sum(",   "0",       "1e5",  "\xC3",   "\xFF"};
  const OrderSchema schema;
  RecordSourceAnalyzer analyzer(schema);
  std::mt19937 random(20260101);
  const auto below = [&random](std::size_t bound) {
    return static_cast<std::size_t>(random()) % bound;
  };
  for (int round = 0; round < 20000; ++round) {
    std::string sql = seeds[below(seeds.size())];
    for (std::size_t edits = 1 + below(4); edits > 0; --edits) {
      const std::size_t at = below(sql.size());
      switch (below(5)) {
        case 0:
          sql.erase(at, 1 + below(12));
          break;
        case 1:
          sql.insert(at, pieces[below(pieces.size())]);
          break;
        case 2:
          sql[at] = static_cast<char>(below(256));
          break;
        case 3:
          sql.insert(below(sql.size()), sql.substr(at, 1 + below(40)));
          break;
        default:
          sql.replace(at, 1 + below(6), pieces[below(pieces.size())]);
          break;
      }
      if (sql.empty()) sql = "S";
    }
    expectAnswerOrError(analyzer, sql);
  }
  EXPECT_EQ(analyzer.fieldsOf("Orders").size(), 5u);
}

class HostileSize : public testing::TestWithParam<std::string> {};

TEST_P(HostileSize, EndsSoon) {
  const OrderSchema schema;
  RecordSourceAnalyzer analyzer(schema);
  const auto start = std::chrono::steady_clock::now();
  expectAnswerOrError(analyzer, GetParam());
  const auto taken = std::chrono::steady_clock::now() - start;
  EXPECT_LT(std::chrono::duration<double>(taken).count(), 10.0);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, HostileSize,
    testing::Values("SELECT " + repeated("(", 60000), "SELECT " + repeated("-", 100000) + "1",
                    "SELECT " + repeated("NOT ", 30000) + "1",
                    "SELECT " + repeated("(", 60000) + "1" + repeated(")", 60000),
                    "SELECT " + repeated("F(", 50000), "SELECT " + repeated("(SELECT ", 14000),
                    "SELECT 1 FROM " + repeated("(", 100000),
                    "SELECT * FROM " + repeated("(SELECT * FROM ", 8000),
                    "SELECT * FROM " + repeated("[SELECT * FROM ", 8000) + repeated("]. ", 1000),
                    "SELECT 1+" + repeated("1+", 60000) + "1",
                    "SELECT " + repeated("a.", 60000) + "a",
                    "SELECT " + repeated("OrderID+", 15000) + "1 FROM Orders",
                    "SELECT 1 FROM Orders WHERE Freight=1" + repeated(" OR Freight=1", 9000),
                    "SELECT 1 FROM Orders WHERE Freight IN (1" + repeated(",1", 60000) + ")",
                    "SELECT 1" + repeated(",1", 60000),
                    "SELECT *" + repeated(",*", 60000) + " FROM Orders",
                    "SELECT 1" + repeated(" UNION SELECT 1", 8000),
                    "SELECT 1 FROM Orders" + repeated(",Orders", 15000),
                    "SELECT 1 FROM Städte WHERE 1 IN (SELECT 1 FROM Orders)" +
                        repeated(" AND 1 IN (SELECT 1 FROM Orders)", 3500),
                    "SELECT 1 FROM Orders WHERE [" + std::string(100000, 'x') + "]=1",
                    "SELECT '" + std::string(1000000, 'x') + "'", std::string(1000000, '['),
                    std::string(5000000, ' '), "SELECT " + std::string(100000, '\0'),
                    "SELECT * FROM [a\0b]" + std::string(1, '\0')));

TEST(HostileTexts, ManyDistinctParametersAreCounted) {
  std::string sql = "SELECT 1";
  for (int i = 0; i < 5000; ++i) sql += "+[p" + std::to_string(i) + "]";
  EXPECT_EQ(errorOf(sql), tooFew(5000));
}

TEST(HostileTexts, LengthLimit) {
  const std::string fits = "SELECT OrderID FROM Orders";
  EXPECT_EQ(errorOf(fits + std::string(kMaxSqlLength - fits.size() - 1, ' ') + ";"), "none");
  const std::string tooLong = fits + std::string(kMaxSqlLength - fits.size(), ' ') + ";";
  EXPECT_EQ(errorOf(tooLong), unknown(tooLong));
}

TEST(HostileTexts, NestingLimit) {
  const auto nested = [](int depth) {
    return "SELECT " + repeated("(", depth) + "1" + repeated(")", depth) + " AS a";
  };
  EXPECT_EQ(errorOf(nested(kMaxNesting - 2)), "none");
  EXPECT_EQ(errorOf(nested(kMaxNesting)), unknown(nested(kMaxNesting)));
}

TEST(HostileQueries, LongChainOfQueriesIsBounded) {
  OrderSchema schema;
  for (int i = 0; i < 500; ++i) {
    const std::string below = i == 0 ? "Orders" : "q" + std::to_string(i - 1);
    schema.add(SchemaQuery{"q" + std::to_string(i), "SELECT * FROM " + below, {}, std::nullopt});
  }
  RecordSourceAnalyzer analyzer(schema);
  EXPECT_THROW(analyzer.fieldsOf("q499"), VbError);
  EXPECT_EQ(analyzer.fieldsOf("q40").size(), 5u);
}

TEST(HostileQueries, EachQueryUsingTheOneBelowTwiceTakesNoExponentialTime) {
  OrderSchema schema;
  schema.add(SchemaQuery{"q0", "SELECT OrderID, Freight FROM Orders", {}, std::nullopt});
  for (int i = 1; i <= 40; ++i) {
    const std::string below = "q" + std::to_string(i - 1);
    schema.add(
        SchemaQuery{"q" + std::to_string(i),
                    "SELECT a.OrderID, b.Freight FROM " + below + " AS a, " + below + " AS b",
                    {},
                    std::nullopt});
  }
  RecordSourceAnalyzer analyzer(schema);
  EXPECT_THAT(shown(analyzer.fieldsOf("q40")),
              ElementsAre("OrderID 4 4 Orders", "Freight 5 8 Orders"));
}

TEST(HostileSchemas, OddFieldNames) {
  OrderSchema schema;
  schema.add(SchemaTable{"sqlite_master", {{"rowid", 4, 4, "", ""}, {"a\"b]", 10, 9, "", ""}}});
  schema.add(SchemaTable{"Empty", {}});
  schema.add(SchemaTable{"Twice", {{"a", 4, 4, "", ""}, {"A", 4, 4, "", ""}}});
  RecordSourceAnalyzer analyzer(schema);
  EXPECT_THAT(shown(analyzer.fieldsOf("SELECT * FROM sqlite_master")),
              ElementsAre("rowid 4 4 sqlite_master", "a\"b] 10 9 sqlite_master"));
  EXPECT_TRUE(analyzer.fieldsOf("Empty").empty());
  EXPECT_THROW(analyzer.fieldsOf("SELECT * FROM Empty"), VbError);
  EXPECT_EQ(analyzer.fieldsOf("Twice").size(), 2u);
  EXPECT_THROW(analyzer.fieldsOf("SELECT * FROM Twice"), VbError);
}

TEST(ColumnDatabase, RefusesAllButTablesAndSelect) {
  ColumnDatabase database;
  const std::string table = database.createTable({"a"});
  EXPECT_EQ(database.columnsOf("SELECT a FROM " + table).size(), 1u);
  for (const char* sql :
       {"ATTACH ':memory:' AS x", "PRAGMA user_version", "CREATE VIEW v AS SELECT 1",
        "CREATE TRIGGER g AFTER INSERT ON t1 BEGIN SELECT 1; END", "BEGIN",
        "SELECT \"no column\""}) {
    EXPECT_THROW(database.columnsOf(sql), Unresolvable) << sql;
  }
}

}  // namespace
}  // namespace tarrowin
