// Every kind of query: rows written by hand, and the text that Access shows for them.
#include <gtest/gtest.h>

#include "access/mdb/query_text.h"
#include "query_text/row_builder.h"

namespace tarrowin::mdb {
namespace {

std::string sql(RowBuilder& rows, std::int32_t catalogFlags = 0) {
  return querySql(rows.rows(), catalogFlags);
}

TEST(QueryKinds, SelectWithEveryClause) {
  RowBuilder rows;
  rows.kind(1)
      .parameter("[From Date]", 8)
      .options(4)
      .source("Orders")
      .column("Orders.CustomerID")
      .column("Sum(Orders.Total)", "Whole Sum")
      .where("(((Orders.OrderDate)>=[From Date]))")
      .groupBy("Orders.CustomerID")
      .groupBy("Orders.Region")
      .having("(((Sum(Orders.Total))>100))")
      .orderBy("Sum(Orders.Total)", "D")
      .orderBy("Orders.CustomerID");
  EXPECT_EQ(sql(rows),
            "PARAMETERS [From Date] DateTime;\r\n"
            "SELECT Orders.CustomerID, Sum(Orders.Total) AS [Whole Sum]\r\n"
            "FROM Orders\r\n"
            "WHERE (((Orders.OrderDate)>=[From Date]))\r\n"
            "GROUP BY Orders.CustomerID, Orders.Region\r\n"
            "HAVING (((Sum(Orders.Total))>100))\r\n"
            "ORDER BY Sum(Orders.Total) DESC , Orders.CustomerID\r\n"
            "WITH OWNERACCESS OPTION;\r\n");
}

TEST(QueryKinds, SelectWithoutKindRow) {
  RowBuilder rows;
  rows.options(9).source("Tasks");
  EXPECT_EQ(sql(rows), "SELECT DISTINCTROW *\r\nFROM Tasks;\r\n");
}

TEST(QueryKinds, SelectWithoutSources) {
  RowBuilder rows;
  rows.kind(1).column("Date()", "Today");
  EXPECT_EQ(sql(rows), "SELECT Date() AS Today;\r\n");
}

TEST(QueryKinds, MakeTable) {
  RowBuilder rows;
  rows.kind(2, "Old Orders").options(0).source("Orders").column("Orders.*");
  rows.where("(((Orders.Done)=True))");
  EXPECT_EQ(sql(rows),
            "SELECT Orders.* INTO [Old Orders]\r\n"
            "FROM Orders\r\n"
            "WHERE (((Orders.Done)=True));\r\n");
  EXPECT_EQ(queryTarget(rows.rows(), 0), "Old Orders");
}

TEST(QueryKinds, MakeTableInOtherDatabase) {
  RowBuilder rows;
  rows.kind(2, "Archive", "C:\\Data\\old.mdb").source("Orders").column("Orders.ID");
  EXPECT_EQ(sql(rows),
            "SELECT Orders.ID INTO Archive IN 'C:\\Data\\old.mdb'\r\n"
            "FROM Orders;\r\n");
}

TEST(QueryKinds, MakeTableInOtherDatabaseWithConnect) {
  RowBuilder rows;
  rows.kind(2, "Archive", "C:\\Data", "dBase IV;").source("Orders").column("Orders.ID");
  EXPECT_EQ(sql(rows),
            "SELECT Orders.ID INTO Archive IN 'C:\\Data'[dBase IV;]\r\n"
            "FROM Orders;\r\n");
}

TEST(QueryKinds, AppendFromSelect) {
  RowBuilder rows;
  rows.kind(3, "Archive")
      .options(0)
      .source("Orders")
      .fieldColumn("OrderID", "Orders.ID")
      .fieldColumn("Order Date", "Orders.OrderDate")
      .where("(((Orders.Done)=True))");
  EXPECT_EQ(sql(rows),
            "INSERT INTO Archive ( OrderID, [Order Date] )\r\n"
            "SELECT Orders.ID, Orders.OrderDate\r\n"
            "FROM Orders\r\n"
            "WHERE (((Orders.Done)=True));\r\n");
  EXPECT_EQ(queryTarget(rows.rows(), 0), "Archive");
  EXPECT_EQ(queryTargetFields(rows.rows(), 0), (std::vector<std::string>{"OrderID", "Order Date"}));
}

TEST(QueryKinds, AppendAliasedColumnWithOrder) {
  RowBuilder rows;
  rows.kind(3, "Archive").source("Orders");
  rows.add(6, "Expr1", "OrderID", "[ID]+1000", 0).orderBy("Orders.ID", "d");
  EXPECT_EQ(sql(rows),
            "INSERT INTO Archive ( OrderID )\r\n"
            "SELECT [ID]+1000 AS Expr1\r\n"
            "FROM Orders\r\n"
            "ORDER BY Orders.ID DESC;\r\n");
}

TEST(QueryKinds, AppendWithoutFieldList) {
  RowBuilder rows;
  rows.kind(3, "Archive").source("Orders").column("Orders.*");
  EXPECT_EQ(sql(rows), "INSERT INTO Archive\r\nSELECT Orders.*\r\nFROM Orders;\r\n");
}

TEST(QueryKinds, AppendValuesInOtherDatabase) {
  RowBuilder rows;
  rows.kind(3, "Log Book", "C:\\log.mdb")
      .parameter("pText", 10, 255)
      .fieldColumn("When", "Now()", 0x8000)
      .fieldColumn("What", "[pText]", -32768);  // the column is a signed 16-bit number
  EXPECT_EQ(sql(rows),
            "PARAMETERS pText Text ( 255 );\r\n"
            "INSERT INTO [Log Book] ( When, What ) IN 'C:\\log.mdb'\r\n"
            "VALUES (Now(), [pText]);\r\n");
}

TEST(QueryKinds, UpdateWithJoin) {
  RowBuilder rows;
  rows.kind(4)
      .options(8)
      .source("Orders")
      .source("Customers")
      .fieldColumn("Orders.Region", "[Customers].[Region]")
      .fieldColumn("Orders.Ship Name", "\"x\"")
      .fieldColumn("[Orders].[Old One]", "Null")
      .join("Customers", "Orders", "Customers.ID = Orders.CustomerID")
      .where("(((Orders.Region) Is Null))");
  EXPECT_EQ(sql(rows),
            "UPDATE DISTINCTROW Customers INNER JOIN Orders ON Customers.ID = Orders.CustomerID "
            "SET Orders.Region = [Customers].[Region], Orders.[Ship Name] = \"x\", "
            "[Orders].[Old One] = Null\r\n"
            "WHERE (((Orders.Region) Is Null));\r\n");
  EXPECT_EQ(queryTarget(rows.rows(), 0), "");
  EXPECT_EQ(queryTargetFields(rows.rows(), 0),
            (std::vector<std::string>{"Orders.Region", "Orders.Ship Name", "[Orders].[Old One]"}));
}

TEST(QueryKinds, UpdateWithoutCondition) {
  RowBuilder rows;
  rows.kind(4).source("Accounts").fieldColumn("Accounts.Opening", "0");
  EXPECT_EQ(sql(rows), "UPDATE Accounts SET Accounts.Opening = 0;\r\n");
}

TEST(QueryKinds, DeleteColumn) {
  RowBuilder rows;
  rows.kind(5).options(0).source("Dates").column("Dates.Day").where("(((Dates.Day)<Date()))");
  EXPECT_EQ(sql(rows),
            "DELETE Dates.Day\r\n"
            "FROM Dates\r\n"
            "WHERE (((Dates.Day)<Date()));\r\n");
}

TEST(QueryKinds, DeleteAllColumnsDistinctRow) {
  RowBuilder rows;
  rows.kind(5).options(9).source("A").source("B").column("A.*").join("A", "B", "A.x = B.x", 2);
  EXPECT_EQ(sql(rows), "DELETE DISTINCTROW A.*, *\r\nFROM A LEFT JOIN B ON A.x = B.x;\r\n");
}

TEST(QueryKinds, Crosstab) {
  RowBuilder rows;
  rows.kind(6)
      .parameter("[Forms]![Pick]![Year]", 3)
      .options(0)
      .source("Orders")
      .column("Sum(Orders.Total)", "SumOfTotal", 0)
      .column("Orders.Customer", "", 2)
      .column("Sum(Orders.Total)", "Total Of Total", 2)
      .column("Format([OrderDate],\"mmm\") In (\"Jan\",\"Feb\")", "", 1)
      .where("(((Year([OrderDate]))=[Forms]![Pick]![Year]))")
      .groupBy("Orders.Customer", 2)
      .groupBy("Format([OrderDate],\"mmm\")", 1)
      .orderBy("Orders.Customer");
  EXPECT_EQ(sql(rows),
            "PARAMETERS [Forms]![Pick]![Year] Short;\r\n"
            "TRANSFORM Sum(Orders.Total) AS SumOfTotal\r\n"
            "SELECT Orders.Customer, Sum(Orders.Total) AS [Total Of Total]\r\n"
            "FROM Orders\r\n"
            "WHERE (((Year([OrderDate]))=[Forms]![Pick]![Year]))\r\n"
            "GROUP BY Orders.Customer\r\n"
            "ORDER BY Orders.Customer\r\n"
            "PIVOT Format([OrderDate],\"mmm\") In (\"Jan\",\"Feb\");\r\n");
}

TEST(QueryKinds, CrosstabHeadingIsPrintedWithoutAlias) {
  RowBuilder rows;
  rows.kind(6).source("T").column("Count(T.a)").column("T.b", "", 2).column("T.c", "Expr1", 1);
  rows.groupBy("T.b", 2).groupBy("T.c", 1);
  EXPECT_EQ(sql(rows),
            "TRANSFORM Count(T.a)\r\nSELECT T.b\r\nFROM T\r\nGROUP BY T.b\r\nPIVOT T.c;\r\n");
}

TEST(QueryKinds, DataDefinitionIsKeptAsWritten) {
  RowBuilder rows;
  rows.kind(7, "", "", "CREATE TABLE t (a LONG)\r\n").parameter("p", 4);
  EXPECT_EQ(sql(rows), "CREATE TABLE t (a LONG)\r\n");
  EXPECT_EQ(queryConnect(rows.rows(), 0), "");
}

TEST(QueryKinds, PassThroughIsKeptAsWritten) {
  RowBuilder rows;
  rows.kind(8, "ODBC;DSN=Sales;UID=me", "", "select top 3 * from dbo.orders -- all");
  EXPECT_EQ(sql(rows), "select top 3 * from dbo.orders -- all");
  EXPECT_EQ(queryConnect(rows.rows(), 0x70), "ODBC;DSN=Sales;UID=me");
  EXPECT_EQ(queryTarget(rows.rows(), 0x70), "");
  EXPECT_EQ(queryKind(rows.rows(), 0), QueryKind::kPassThrough);
}

TEST(QueryKinds, UnionDropsDuplicates) {
  RowBuilder rows;
  rows.kind(9)
      .options(2)
      .source("", "X7YZ_____1", "SELECT a FROM t\r\n")
      .source("", "X7YZ_____2", "SELECT  b  FROM u")
      .orderBy("a", "D");
  EXPECT_EQ(sql(rows), "SELECT a FROM t\r\nUNION SELECT  b  FROM u\r\nORDER BY a DESC;\r\n");
}

TEST(QueryKinds, UnionAllOfThreeWithParameter) {
  RowBuilder rows;
  rows.kind(9)
      .parameter("x", 0)
      .options(0)
      .source("", "X7YZ_____1", "SELECT a FROM t WHERE a=x\r\n")
      .source("", "X7YZ_____2", "SELECT b FROM u;\r\n\r\n")
      .source("", "X7YZ_____3", "TABLE [c d]");
  EXPECT_EQ(sql(rows),
            "PARAMETERS x Value;\r\n"
            "SELECT a FROM t WHERE a=x\r\n"
            "UNION ALL SELECT b FROM u;\r\n"
            "\r\n"
            "UNION ALL TABLE [c d];\r\n");
}

TEST(QueryKinds, UnionPartWithoutLineEndGetsOne) {
  RowBuilder rows;
  rows.kind(9).options(2).source("", "X7YZ_____1", "SELECT a FROM t");
  rows.source("", "X7YZ_____2", "SELECT b FROM u\r\n").orderBy("a");
  EXPECT_EQ(sql(rows), "SELECT a FROM t\r\nUNION SELECT b FROM u\r\nORDER BY a;\r\n");
}

TEST(QueryKinds, UnionKeepsALastSemicolonSingle) {
  RowBuilder rows;
  rows.kind(9).options(2).source("", "X7YZ_____1", "SELECT a FROM t\r\n");
  rows.source("", "X7YZ_____2", "SELECT b FROM u;");
  EXPECT_EQ(sql(rows), "SELECT a FROM t\r\nUNION SELECT b FROM u;\r\n");
}

TEST(QueryKinds, KindComesFromTheCatalogWithoutKindRow) {
  RowBuilder rows;
  rows.source("Dates").column("Dates.Day");
  EXPECT_EQ(sql(rows, 0x28), "DELETE Dates.Day\r\nFROM Dates;\r\n");
  EXPECT_EQ(queryKind(rows.rows(), 0x28), QueryKind::kDelete);
  EXPECT_EQ(queryKind(rows.rows(), 3), QueryKind::kSelect);
  EXPECT_EQ(queryKind(rows.rows(), 0xA0), QueryKind::kSelect);
}

TEST(QueryKinds, KindRowWinsOverTheCatalog) {
  RowBuilder rows;
  rows.kind(1).source("T").column("T.a");
  EXPECT_EQ(sql(rows, 0x20), "SELECT T.a\r\nFROM T;\r\n");
}

}  // namespace
}  // namespace tarrowin::mdb
