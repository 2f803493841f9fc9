// SQL texts of exported queries.
#include "access/exports/query_export.h"

#include <gtest/gtest.h>

#include "access/macro/export_lines.h"

namespace tarrowin::exports {
namespace {

std::string sqlOf(const std::string& text, const CodePage& page = CodePage()) {
  return readQueryText(text, page).sql;
}

std::string problemOf(const std::string& text) {
  try {
    sqlOf(text);
  } catch (const ExportTextError& error) {
    return error.what();
  }
  return "";
}

TEST(QueryExport, SqlFormIsUsedUnchanged) {
  const ExportedQuery query = readQueryText(
      "dbMemo \"SQL\" =\"SELECT a, b\\015\\012FROM t\\015\\012WHERE "
      "(((a)=\\\"x\\\"));\\015\\012\"\n"
      "dbMemo \"Connect\" =\"ODBC;DSN=x\"\ndbBoolean \"ReturnsRecords\" =\"-1\"\n",
      CodePage());
  EXPECT_EQ(query.sql, "SELECT a, b\r\nFROM t\r\nWHERE (((a)=\"x\"));\r\n");
  EXPECT_EQ(query.connect, "ODBC;DSN=x");
}

TEST(QueryExport, SelectWithJoinsGroupsAndOrder) {
  EXPECT_EQ(
      sqlOf(
          "Operation =1\nOption =2\nWhere =\"(((Orders.ID)>5))\"\nHaving =\"(Count(C2.a)>1)\"\n"
          "Begin InputTables\nName =\"Orders\"\nName =\"Customers\"\nAlias =\"C2\"\nEnd\n"
          "Begin OutputColumns\nExpression =\"Orders.ID\"\nAlias =\"X Y\"\nExpression "
          "=\"C2.a\"\nEnd\n"
          "Begin Joins\nLeftTable =\"Orders\"\nRightTable =\"C2\"\n"
          "Expression =\"Orders.CustomerID = C2.ID\"\nFlag =2\nEnd\n"
          "Begin OrderBy\nExpression =\"Orders.ID\"\nFlag =1\nExpression =\"C2.a\"\nFlag =0\nEnd\n"
          "Begin Groups\nExpression =\"Orders.ID\"\nGroupLevel =0\nEnd\n"
          "dbBoolean \"ReturnsRecords\" =\"-1\"\nBegin\nBegin\ndbText \"Name\" "
          "=\"Orders.ID\"\nEnd\nEnd\n"
          "Begin\nState =0\nLeft =0\nLeft =-1\nEnd\n"),
      "SELECT DISTINCT Orders.ID, C2.a AS [X Y]\r\n"
      "FROM Orders LEFT JOIN Customers AS C2 ON Orders.CustomerID = C2.ID\r\n"
      "WHERE (((Orders.ID)>5))\r\nGROUP BY Orders.ID\r\nHAVING (Count(C2.a)>1)\r\n"
      "ORDER BY Orders.ID DESC , C2.a;\r\n");
}

TEST(QueryExport, ConditionsOfOneJoinStandLastOneFirst) {
  EXPECT_EQ(
      sqlOf("Operation =1\nOption =1\nBegin InputTables\nName =\"a\"\nName =\"b\"\nEnd\n"
            "Begin Joins\nLeftTable =\"a\"\nRightTable =\"b\"\nExpression =\"a.x = b.x\"\nFlag =1\n"
            "LeftTable =\"a\"\nRightTable =\"b\"\nExpression =\"a.y = b.y\"\nFlag =1\nEnd\n"),
      "SELECT *\r\nFROM a INNER JOIN b ON (a.y = b.y) AND (a.x = b.x);\r\n");
}

TEST(QueryExport, TopWithTies) {
  EXPECT_EQ(
      sqlOf("Operation =1\nOption =49\nRowCount =\"10\"\nBegin InputTables\nName =\"t\"\nEnd\n"),
      "SELECT TOP 10 PERCENT *\r\nFROM t;\r\n");
}

TEST(QueryExport, AppendAndMakeTable) {
  const std::string rest =
      "Begin InputTables\nName =\"s\"\nEnd\nBegin OutputColumns\nName =\"f1\"\nExpression "
      "=\"s.a\"\n"
      "Alias =\"q\"\nName =\"f 2\"\nExpression =\"s.b\"\nEnd\n";
  EXPECT_EQ(sqlOf("Operation =3\nOption =0\nName =\"target\"\n" + rest),
            "INSERT INTO target ( f1, [f 2] )\r\nSELECT s.a, s.b AS q\r\nFROM s;\r\n");
  EXPECT_EQ(
      sqlOf("Operation =2\nOption =0\nName =\"my target\"\nDatabase =\"C:\\\\x.mdb\"\n"
            "Begin InputTables\nName =\"s\"\nEnd\nBegin OutputColumns\nExpression =\"s.a\"\nEnd\n"),
      "SELECT s.a INTO [my target] IN 'C:\\x.mdb'\r\nFROM s;\r\n");
}

TEST(QueryExport, UpdateAndDelete) {
  EXPECT_EQ(
      sqlOf("Operation =4\nOption =0\nWhere =\"((t.b)=1)\"\nBegin InputTables\nName =\"t\"\nEnd\n"
            "Begin OutputColumns\nName =\"t.a\"\nExpression =\"[b]+1\"\nEnd\n"),
      "UPDATE t SET t.a = [b]+1\r\nWHERE ((t.b)=1);\r\n");
  EXPECT_EQ(sqlOf("Operation =5\nOption =0\nBegin InputTables\nName =\"t\"\nEnd\n"
                  "Begin OutputColumns\nExpression =\"t.*\"\nEnd\n"),
            "DELETE t.*\r\nFROM t;\r\n");
}

TEST(QueryExport, Crosstab) {
  EXPECT_EQ(sqlOf("Operation =6\nOption =0\nBegin InputTables\nName =\"t\"\nEnd\n"
                  "Begin OutputColumns\nExpression =\"t.r\"\nGroupLevel =2\nExpression =\"t.c\"\n"
                  "GroupLevel =1\nAlias =\"S\"\nExpression =\"Sum(t.v)\"\nEnd\n"
                  "Begin Groups\nExpression =\"t.r\"\nGroupLevel =2\nExpression =\"t.c\"\n"
                  "GroupLevel =1\nEnd\n"),
            "TRANSFORM Sum(t.v) AS S\r\nSELECT t.r\r\nFROM t\r\nGROUP BY t.r\r\nPIVOT t.c;\r\n");
}

TEST(QueryExport, DeclaredParameters) {
  const ExportedQuery query = readQueryText(
      "Operation =1\nOption =1\nBegin InputTables\nName =\"t\"\nEnd\n"
      "Begin Parameters\nName =\"[Start day]\"\nFlag =8\nName =\"Name\"\nFlag =10\nEnd\n",
      CodePage());
  EXPECT_EQ(query.sql,
            "PARAMETERS [Start day] DateTime, Name Text ( 255 );\r\nSELECT *\r\nFROM t;\r\n");
  ASSERT_EQ(query.parameters.size(), 2u);
  EXPECT_EQ(query.parameters[0].name, "Start day");
  EXPECT_EQ(query.parameters[0].type, 8);
  EXPECT_EQ(query.parameters[1].name, "Name");
  EXPECT_EQ(query.parameters[1].type, 10);
}

TEST(QueryExport, DerivedTableStandsInParentheses) {
  EXPECT_EQ(
      sqlOf("Operation =1\nOption =1\nBegin InputTables\nName =\"SELECT a FROM t\"\nAlias =\"q\"\n"
            "Name =\"Selected\"\nEnd\n"),
      "SELECT *\r\nFROM (SELECT a FROM t) AS q, Selected;\r\n");
}

// "Gr\xF6\xDFe" is a word and needs no brackets, in whatever code page it comes.
TEST(QueryExport, LettersBeyondAsciiNeedNoBrackets) {
  EXPECT_EQ(sqlOf("Operation =1\nOption =1\nBegin InputTables\nName =\"Gr\xF6\xDF"
                  "e\"\nEnd\n"),
            "SELECT *\r\nFROM Gr\xF6\xDF"
            "e;\r\n");
  EXPECT_EQ(sqlOf("Operation =1\nOption =1\nBegin InputTables\nName =\"Gr\xC3\xB6\xC3\x9F"
                  "e\"\nEnd\n",
                  CodePage(CodePage::kUtf8)),
            "SELECT *\r\nFROM Gr\xC3\xB6\xC3\x9F"
            "e;\r\n");
}

TEST(QueryExport, SqlFiles) {
  EXPECT_EQ(sqlFromFile("SELECT a\nFROM t;"), "SELECT a\r\nFROM t;\r\n");
  EXPECT_EQ(sqlFromFile("SELECT a\r\nFROM t;\r\n\r\n"), "SELECT a\r\nFROM t;\r\n");
  EXPECT_EQ(sqlFromFile("EXEC p"), "EXEC p");
  EXPECT_EQ(sqlFromFile(""), "");
}

TEST(QueryExport, TypesOfOperations) {
  EXPECT_EQ(queryTypeOfOperation(1), 0);
  EXPECT_EQ(queryTypeOfOperation(6), 0x10);
  EXPECT_EQ(queryTypeOfOperation(4), 0x30);
  EXPECT_FALSE(queryTypeOfOperation(0));
  EXPECT_FALSE(queryTypeOfOperation(7));
}

TEST(QueryExportDamage, SaysWhatIsWrong) {
  EXPECT_EQ(problemOf(""), "line 1: neither \"Operation =\" nor an SQL text");
  EXPECT_EQ(problemOf("Operation =9\n"), "line 1: an unknown operation");
  EXPECT_EQ(problemOf("Operation =1\nBegin InputTables\nAlias =\"a\"\nEnd\n"),
            "line 3: an alias without its table");
  EXPECT_EQ(problemOf("Operation =1\nBegin Joins\nExpression =\"a\"\nEnd\n"),
            "line 2: a join without its kind");
  EXPECT_EQ(problemOf("Operation =1\nBegin Wings\nEnd\n"),
            "line 2: \"Wings\" is no part of a query");
}

}  // namespace
}  // namespace tarrowin::exports
