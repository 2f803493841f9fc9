// Single clauses: options, parameters, names, aliases, order, other databases.
#include <gtest/gtest.h>

#include "access/mdb/query_names.h"
#include "access/mdb/query_text.h"
#include "query_text/row_builder.h"

namespace tarrowin::mdb {
namespace {

std::string sql(RowBuilder& rows) { return querySql(rows.rows(), 0); }

std::string withOptions(int flag, const std::string& top = {}) {
  RowBuilder rows;
  rows.kind(1).options(flag, top).source("T").column("T.a");
  return sql(rows);
}

TEST(QueryOptions, AllColumns) { EXPECT_EQ(withOptions(1), "SELECT T.a, *\r\nFROM T;\r\n"); }

TEST(QueryOptions, Distinct) { EXPECT_EQ(withOptions(2), "SELECT DISTINCT T.a\r\nFROM T;\r\n"); }

TEST(QueryOptions, DistinctRow) {
  EXPECT_EQ(withOptions(8), "SELECT DISTINCTROW T.a\r\nFROM T;\r\n");
}

TEST(QueryOptions, OwnerAccess) {
  EXPECT_EQ(withOptions(4), "SELECT T.a\r\nFROM T\r\nWITH OWNERACCESS OPTION;\r\n");
}

TEST(QueryOptions, Top) { EXPECT_EQ(withOptions(0x10, "5"), "SELECT TOP 5 T.a\r\nFROM T;\r\n"); }

TEST(QueryOptions, TopPercentDistinct) {
  EXPECT_EQ(withOptions(0x32, "25"), "SELECT DISTINCT TOP 25 PERCENT T.a\r\nFROM T;\r\n");
}

TEST(QueryOptions, TopPercentDistinctRowAllColumns) {
  EXPECT_EQ(withOptions(0x39, "25"), "SELECT DISTINCTROW TOP 25 PERCENT T.a, *\r\nFROM T;\r\n");
}

TEST(QueryOptions, TopWithoutNumberIsLeftOut) {
  EXPECT_EQ(withOptions(0x30), "SELECT T.a\r\nFROM T;\r\n");
}

TEST(QueryOptions, NumberWithoutTopIsLeftOut) {
  EXPECT_EQ(withOptions(0, "7"), "SELECT T.a\r\nFROM T;\r\n");
}

TEST(QueryParameters, AllTypes) {
  RowBuilder rows;
  rows.kind(1);
  for (const int type : {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 15}) {
    rows.parameter("p" + std::to_string(type), type);
  }
  rows.source("T").column("T.a");
  EXPECT_EQ(sql(rows),
            "PARAMETERS p0 Value, p1 Bit, p2 Byte, p3 Short, p4 Long, p5 Currency, "
            "p6 IEEESingle, p7 IEEEDouble, p8 DateTime, p9 Binary, p10 Text, p11 LongBinary, "
            "p12 Text, p13 Value, p15 Guid;\r\n"
            "SELECT T.a\r\nFROM T;\r\n");
}

TEST(QueryParameters, SizeIsPrintedForTextAlone) {
  RowBuilder rows;
  rows.parameter("a", 10, 255).parameter("b", 10, 0).parameter("c", 4, 255).parameter("d", 12, 9);
  EXPECT_EQ(sql(rows), "PARAMETERS a Text ( 255 ), b Text, c Long, d Text;\r\nSELECT;\r\n");
}

TEST(QueryParameters, NamesAsDaoTellsThem) {
  RowBuilder rows;
  rows.parameter("[b c]", 10, 50).parameter("d e", 8).parameter("[Forms]![F]![x]", 0);
  EXPECT_EQ(sql(rows),
            "PARAMETERS [b c] Text ( 50 ), [d e] DateTime, [Forms]![F]![x] Value;\r\nSELECT;\r\n");
  const auto parameters = queryParameters(rows.rows());
  ASSERT_EQ(parameters.size(), 3u);
  EXPECT_EQ(parameters[0].name, "b c");
  EXPECT_EQ(parameters[0].type, 10);
  EXPECT_EQ(parameters[0].size, 50);
  EXPECT_EQ(parameters[1].name, "d e");
  EXPECT_EQ(parameters[1].type, 8);
  EXPECT_FALSE(parameters[1].size);
  EXPECT_EQ(parameters[2].name, "[Forms]![F]![x]");
  EXPECT_EQ(parameters[2].type, 0);
}

TEST(QueryParameters, RepeatedNameIsRepeated) {
  RowBuilder rows;
  rows.parameter("p", 4).parameter("p", 4);
  EXPECT_EQ(sql(rows), "PARAMETERS p Long, p Long;\r\nSELECT;\r\n");
  EXPECT_EQ(queryParameters(rows.rows()).size(), 2u);
}

TEST(QueryOrder, BlankBehindDescExceptAtTheEnd) {
  RowBuilder rows;
  rows.source("T").column("T.a").orderBy("T.a", "D").orderBy("T.b").orderBy("T.c", "d");
  EXPECT_EQ(sql(rows), "SELECT T.a\r\nFROM T\r\nORDER BY T.a DESC , T.b, T.c DESC;\r\n");
}

TEST(QueryOrder, NoBlankBehindDescAtALineEnd) {
  RowBuilder rows;
  rows.options(4).source("T").column("T.a").orderBy("T.a", "D");
  EXPECT_EQ(sql(rows), "SELECT T.a\r\nFROM T\r\nORDER BY T.a DESC\r\nWITH OWNERACCESS OPTION;\r\n");
}

TEST(QueryOrder, RowsStandByTheirOrderBytes) {
  RowBuilder rows;
  rows.source("T").column("T.b").column("T.c").column("T.a");
  rows.rows()[2].order = {0x80, 0, 0, 2};
  rows.rows()[3].order = {0x80, 0, 1};
  rows.rows()[4].order = {0x7F, 0xFF, 0xFF, 0xFF};
  EXPECT_EQ(sql(rows), "SELECT T.a, T.b, T.c\r\nFROM T;\r\n");
}

TEST(QueryOrder, AttributesMayComeMixed) {
  RowBuilder rows;
  rows.orderBy("T.a").where("(1=1)").column("T.a").source("T").kind(1);
  EXPECT_EQ(sql(rows), "SELECT T.a\r\nFROM T\r\nWHERE (1=1)\r\nORDER BY T.a;\r\n");
}

TEST(QuerySources, OtherDatabaseStandsBehindAll) {
  RowBuilder rows;
  rows.otherDatabase("C:\\Bob's\\a.mdb").source("T").source("U").column("T.a");
  EXPECT_EQ(sql(rows), "SELECT T.a\r\nFROM T, U IN 'C:\\Bob''s\\a.mdb';\r\n");
}

TEST(QuerySources, OtherDatabaseByConnectAlone) {
  RowBuilder rows;
  rows.otherDatabase("", "ODBC;DSN=x;").source("T").column("T.a").where("(T.a=1)");
  EXPECT_EQ(sql(rows), "SELECT T.a\r\nFROM T IN ''[ODBC;DSN=x;]\r\nWHERE (T.a=1);\r\n");
}

TEST(QuerySources, ConnectThatBringsItsBrackets) {
  RowBuilder rows;
  rows.otherDatabase("C:\\d", "[dBase IV;]").source("T").column("T.a");
  EXPECT_EQ(sql(rows), "SELECT T.a\r\nFROM T IN 'C:\\d'[dBase IV;];\r\n");
}

TEST(QuerySources, OtherDatabaseRowWithoutTexts) {
  RowBuilder rows;
  rows.otherDatabase("").source("T").column("T.a");
  EXPECT_EQ(sql(rows), "SELECT T.a\r\nFROM T;\r\n");
}

TEST(QuerySources, TableOfAnotherDatabase) {
  RowBuilder rows;
  rows.source("My Table", "", "C:\\a.mdb").source("U", "x", "C:\\b.mdb").column("x.a");
  rows.join("My Table", "x", "[My Table].a = x.a");
  EXPECT_EQ(sql(rows),
            "SELECT x.a\r\n"
            "FROM [C:\\a.mdb].[My Table] INNER JOIN [C:\\b.mdb].U AS x "
            "ON [My Table].a = x.a;\r\n");
}

TEST(QuerySources, SubqueryWithAlias) {
  RowBuilder rows;
  rows.source("", "Sub Q", "SELECT a FROM t WHERE a > 1").column("[Sub Q].a");
  EXPECT_EQ(sql(rows), "SELECT [Sub Q].a\r\nFROM [SELECT a FROM t WHERE a > 1]. AS [Sub Q];\r\n");
}

TEST(QuerySources, SubqueryWithoutAlias) {
  RowBuilder rows;
  rows.source("", "%$##@_Alias", "SELECT a FROM t").column("a");
  EXPECT_EQ(sql(rows), "SELECT a\r\nFROM [SELECT a FROM t]. AS [%$##@_Alias];\r\n");
}

TEST(QueryNames, PlainWords) {
  for (const char* name :
       {"a", "Orders", "tbl_2", "_x", "Größe", "tblSessão", "Заказы", "受注", "Order", "Sum"}) {
    EXPECT_TRUE(isPlainName(name)) << name;
    EXPECT_EQ(bracketedName(name), name);
  }
}

TEST(QueryNames, NamesThatNeedBrackets) {
  for (const char* name : {"2nd Quarter", "2Quarter", "Order Details", "a.b", "a-b", "a!b", "a#",
                           "10€", "a°", "a×b", "a…b", "Sales→", "bad\xFF", "cut\xC3"}) {
    EXPECT_FALSE(isPlainName(name)) << name;
    EXPECT_EQ(bracketedName(name), "[" + std::string(name) + "]");
  }
}

TEST(QueryNames, EmptyNameStaysEmpty) {
  EXPECT_FALSE(isPlainName(""));
  EXPECT_EQ(bracketedName(""), "");
}

TEST(QueryNames, BracketsInSourcesTargetsAndAliases) {
  RowBuilder rows;
  rows.kind(2, "2001").source("Order Details", "2nd").source("Umsätze").column("[2nd].a", "x y");
  EXPECT_EQ(sql(rows),
            "SELECT [2nd].a AS [x y] INTO [2001]\r\n"
            "FROM [Order Details] AS [2nd], Umsätze;\r\n");
}

TEST(QueryNames, FieldsWithTheirTable) {
  EXPECT_EQ(bracketedField("T.a"), "T.a");
  EXPECT_EQ(bracketedField("Order Details.Unit Price"), "[Order Details].[Unit Price]");
  EXPECT_EQ(bracketedField("Unit Price"), "[Unit Price]");
  EXPECT_EQ(bracketedField("[T].[Unit Price]"), "[T].[Unit Price]");
}

}  // namespace
}  // namespace tarrowin::mdb
