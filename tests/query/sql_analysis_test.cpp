// The scans of SQL text, with the limits that the designers rely on.
#include "query/sql_analysis.h"

#include <gtest/gtest.h>

#include "support/test_session.h"

namespace tarrowin::test {
namespace {

using Tables = std::vector<std::string>;

class SqlAnalysis : public testing::Test {
 protected:
  std::int32_t scan(std::string_view sql) { return GetSQLRecordsetInfo(session.main, sql); }
  const Tables& tables() const { return session.main.state.gstrSourceTables; }
  TestSession session;
};

TEST_F(SqlAnalysis, NamesBehindFromAndJoin) {
  EXPECT_EQ(scan("SELECT * FROM Orders INNER JOIN Customers ON a = b"), 2);
  EXPECT_EQ(tables(), (Tables{"Orders", "Customers", "", ""}));
}

TEST_F(SqlAnalysis, FromEntriesKeepTheirBracketsAndAreCutAtTheBlankJoinEntriesLoseThem) {
  EXPECT_EQ(scan("SELECT * FROM [Order Details] INNER JOIN [Products] ON x = y"), 2);
  EXPECT_EQ(tables(), (Tables{"[Order", "Products", "", ""}));
}

TEST_F(SqlAnalysis, AJoinNameWithBlanksInItsBracketsIsWhole) {
  EXPECT_EQ(scan("SELECT * FROM A LEFT JOIN [Order Details] ON x = y"), 2);
  EXPECT_EQ(tables(), (Tables{"A", "Order Details", "", ""}));
}

TEST_F(SqlAnalysis, AJoinNameBehindOpeningBracketsIsTrimmed) {
  EXPECT_EQ(scan("SELECT * FROM A INNER JOIN ((Orders INNER JOIN B ON c) ON d"), 3);
  EXPECT_EQ(tables(), (Tables{"A", "Orders", "B", "", ""}));
}

TEST_F(SqlAnalysis, AKeywordInLowerCaseIsNotSeenAndANameIsCutFromCharacter5) {
  EXPECT_EQ(scan("select * from Orders where 1"), 1);
  EXPECT_EQ(tables(), (Tables{"ct", "", ""}));
  EXPECT_TRUE(session.user.boxes.empty());
}

TEST_F(SqlAnalysis, TheSemicolonIsPartOfTheNameUnlessABlankFollows) {
  EXPECT_EQ(scan("SELECT * FROM Orders; "), 1);
  EXPECT_EQ(tables()[0], "Orders;");
}

TEST_F(SqlAnalysis, ANameAtTheVeryEndCannotBeCutAndEndsTheScan) {
  EXPECT_EQ(scan("SELECT * FROM Orders;"), 1);
  EXPECT_EQ(session.onlyBox(),
            (Box{16, "GetSQLRecordsetInfo() - Error #5\r\nInvalid procedure call or argument",
                 "Access to Visual Basic Tarrowin"}));
  EXPECT_EQ(tables(), (Tables{"", "", ""}));
}

TEST_F(SqlAnalysis, AJoinNameAtTheVeryEndLeavesTheNameBeforeIt) {
  EXPECT_EQ(scan("SELECT * FROM A INNER JOIN B INNER JOIN C"), 3);
  EXPECT_EQ(session.user.boxes.size(), 1u);
  EXPECT_EQ(tables(), (Tables{"A", "B", "B", "", ""}));
}

TEST_F(SqlAnalysis, FromInsideASubselectOrATextCountsAsAKeyword) {
  EXPECT_EQ(scan("SELECT 'FROM x' FROM T WHERE a IN (SELECT b FROM U )"), 3);
  EXPECT_EQ(tables(), (Tables{"x'", "T", "U", "", ""}));
}

TEST_F(SqlAnalysis, TwoBlanksBehindAKeywordGiveAnEmptyNameAndTheScanGoesOn) {
  EXPECT_EQ(scan("SELECT * FROM  Orders INNER JOIN Products ON a = b"), 2);
  EXPECT_EQ(tables(), (Tables{"", "Products", "", ""}));
}

TEST_F(SqlAnalysis, AJoinNameWhoseBracketNeverClosesEndsTheScan) {
  EXPECT_EQ(scan("SELECT * FROM A INNER JOIN [Order Details INNER JOIN B ON c"), 2);
  EXPECT_EQ(session.user.boxes.size(), 1u);
  EXPECT_EQ(tables(), (Tables{"A", "Orde", "", ""}));
}

TEST_F(SqlAnalysis, AnEmptyTextHasNoNames) {
  EXPECT_EQ(scan(""), 0);
  EXPECT_EQ(tables(), (Tables{"", ""}));
}

TEST_F(SqlAnalysis, ParameterNamesLoseTheirFirstBlankInClauseAndBody) {
  std::string sql =
      "PARAMETERS [Start Date] DateTime, [End Date] DateTime; SELECT * FROM T WHERE d "
      "Between [Start Date] And [End Date] Or e = [Start Date];";
  EXPECT_EQ(ExtractSQLParams(session.main, sql),
            "PARAMETERS Start_Date DateTime, End_Date DateTime; SELECT * FROM T WHERE d "
            "Between Start_Date And End_Date Or e = Start_Date;");
  EXPECT_EQ(sql, " SELECT * FROM T WHERE d Between Start_Date And End_Date Or e = Start_Date;");
  EXPECT_TRUE(session.user.boxes.empty());
}

TEST_F(SqlAnalysis, AFirstParameterWithoutABlankStopsTheRepair) {
  std::string sql = "PARAMETERS Country Text, [End Date] DateTime; SELECT [End Date];";
  EXPECT_EQ(ExtractSQLParams(session.main, sql),
            "PARAMETERS Country Text, [End Date] DateTime; SELECT [End Date];");
}

TEST_F(SqlAnalysis, ANameWithTwoBlanksLosesTheFirstAndItsBrackets) {
  std::string sql = "PARAMETERS [First Start Date] DateTime; SELECT [First Start Date];";
  EXPECT_EQ(ExtractSQLParams(session.main, sql),
            "PARAMETERS First_Start Date DateTime; SELECT First_Start Date;");
}

TEST_F(SqlAnalysis, ATextWithoutAClauseGivesNothing) {
  std::string sql = "SELECT 1;";
  EXPECT_EQ(ExtractSQLParams(session.main, sql), "");
  EXPECT_EQ(sql, "SELECT 1;");
  sql = "parameters [a b] Text; SELECT 1;";
  EXPECT_EQ(ExtractSQLParams(session.main, sql), "");
}

TEST_F(SqlAnalysis, AClauseWithoutASemicolonIsReported) {
  std::string sql = "PARAMETERS [a b] Text";
  EXPECT_EQ(ExtractSQLParams(session.main, sql), ";PARAMETERS [a b] Text");
  // Neither the clause nor a first name can be cut.
  const std::string box = "ExtractSQLParams() - Error #5\r\nInvalid procedure call or argument";
  ASSERT_EQ(session.user.boxes.size(), 2u);
  EXPECT_EQ(session.user.boxes[0].text, box);
  EXPECT_EQ(session.user.boxes[1].text, box);
}

Json field(const std::string& name, const std::string& table) {
  return {{"name", name}, {"type", 10}, {"size", 50}, {"sourceTable", table}};
}

TEST_F(SqlAnalysis, EachRunOfFieldsOfOneTableIsAnEntry) {
  Json database = emptyDatabase();
  database["recordsets"].push_back({{"source", "SELECT x"},
                                    {"fields",
                                     {field("a", "T"), field("b", "T"), field("c", ""),
                                      field("d", ""), field("e", "U"), field("f", "T")}}});
  session.open(database);
  std::string source = "SELECT x";
  EXPECT_EQ(GetRecordsetSourceTables(session.main, source), 4);
  EXPECT_EQ(tables(), (Tables{"T", "QUERY", "U", "T", "", ""}));
  EXPECT_EQ(source, "T");
}

TEST_F(SqlAnalysis, TheSourceItselfIsWhatTheFirstTableIsComparedWith) {
  Json database = emptyDatabase();
  database["tables"].push_back(
      {{"name", "Orders"}, {"fields", {{{"name", "ID"}, {"type", 4}, {"size", 4}}}}});
  session.open(database);
  std::string source = "Orders";
  EXPECT_EQ(GetRecordsetSourceTables(session.main, source), 0);
  EXPECT_EQ(source, "Orders");
  EXPECT_EQ(tables(), (Tables{"", ""}));
}

TEST_F(SqlAnalysis, ASourceThatCannotBeOpenedHasNoTables) {
  session.open(emptyDatabase());
  std::string source = "Nothing";
  EXPECT_EQ(GetRecordsetSourceTables(session.main, source), 0);
  EXPECT_TRUE(session.user.boxes.empty());
}

TEST_F(SqlAnalysis, TablesQueriesAndUnknownNames) {
  Json database = emptyDatabase();
  database["tables"].push_back({{"name", "Orders"}, {"fields", Json::array()}});
  database["queries"].push_back(query("Big", "SELECT 1"));
  session.open(database);
  EXPECT_EQ(TableOrQuery(session.main, "Orders"), 1);
  EXPECT_EQ(TableOrQuery(session.main, "ORDERS"), 1);
  EXPECT_EQ(TableOrQuery(session.main, "Big"), 0);
  EXPECT_EQ(TableOrQuery(session.main, "Nothing"), 0);
}

TEST_F(SqlAnalysis, TheSqlOfAQueryIsFoundByItsExactNameAndCleaned) {
  Json database = emptyDatabase();
  database["queries"] = {query("Big", "SELECT \"a\"\r\nFROM T;\r\n"),
                         query("~hidden", "SELECT 1"),
                         query("Refused", {{"error", 2601}}),
                         query("Joins", {{"error", 3258}}),
                         query("Broken", {{"error", 3011}, {"description", "Gone"}}),
                         query("Empty", "")};
  session.open(database);
  EXPECT_EQ(ExtractSQL(session.main, "Big"), "SELECT 'a'  FROM T;  ");
  for (const char* name : {"big", "~hidden", "Refused", "Joins", "Empty", "Nothing"}) {
    EXPECT_EQ(ExtractSQL(session.main, name), "") << name;
  }
  EXPECT_TRUE(session.user.boxes.empty());
  EXPECT_EQ(ExtractSQL(session.main, "Broken"), "");
  EXPECT_EQ(session.onlyBox().text, "ExtractSQL() - Error #3011\r\nGone");
}

TEST_F(SqlAnalysis, AQueryWithoutParametersIsLeftAlone) {
  Json database = emptyDatabase();
  database["queries"] = {query("A", "SELECT 1")};
  session.open(database);
  GetQueryParams(session.main, session.main.state.mdbCurr.QueryDefs()("A"));
  EXPECT_TRUE(session.user.boxes.empty());
}

TEST_F(SqlAnalysis, ParametersTakeAValueOfTheirType) {
  const std::vector<std::pair<int, Value>> values = {
      {8, Date{46000}}, {22, Date{46000.5}}, {23, Date{46000.5}}, {10, ""}, {18, ""}, {2, ""},
      {12, ""},         {14, Value()}};
  Json database = emptyDatabase();
  Json parameters = Json::array();
  for (const auto& [type, value] : values) {
    parameters.push_back({{"name", "p" + std::to_string(type)}, {"type", type}});
  }
  for (const int type : {20, 7, 21, 15, 3, 16, 4, 9, 11, 19, 6, 5, 1, 17}) {
    parameters.push_back({{"name", "p" + std::to_string(type)}, {"type", type}});
  }
  database["queries"].push_back({{"name", "A"}, {"sql", "SELECT 1"}, {"parameters", parameters}});
  session.open(database);
  const QueryDef queryDef = session.main.state.mdbCurr.QueryDefs()("A");
  GetQueryParams(session.main, queryDef);
  const Collection<Parameter> given = queryDef.Parameters();
  ASSERT_EQ(given.Count(), static_cast<std::int32_t>(parameters.size()));
  for (std::int32_t i = 0; i < given.Count(); ++i) {
    const Value value = given(i).get("Value");
    if (i < static_cast<std::int32_t>(values.size())) {
      const Value& expected = values[static_cast<std::size_t>(i)].second;
      EXPECT_TRUE(value == expected || (expected.isEmpty() && value.isNull())) << given(i).Type();
    } else {
      EXPECT_EQ(value, Value(std::int32_t{0})) << given(i).Type();
    }
  }
}

}  // namespace
}  // namespace tarrowin::test
