// Rows that make no sense, and very many rows: the text is the best there is, and never fails.
#include <chrono>
#include <random>

#include <gtest/gtest.h>

#include "access/mdb/query_text.h"
#include "query_text/row_builder.h"

namespace tarrowin::mdb {
namespace {

std::string sql(RowBuilder& rows, std::int32_t catalogFlags = 0) {
  return querySql(rows.rows(), catalogFlags);
}

TEST(DamagedRows, NoRows) {
  EXPECT_EQ(querySql({}, 0), "");
  EXPECT_EQ(querySql({}, 0x70), "");
  EXPECT_TRUE(queryParameters({}).empty());
  EXPECT_EQ(queryConnect({}, 0x70), "");
}

TEST(DamagedRows, StartRowAlone) {
  RowBuilder rows;
  EXPECT_EQ(sql(rows), "SELECT;\r\n");
  EXPECT_EQ(sql(rows, 0x60), "");
}

TEST(DamagedRows, KindOutOfRange) {
  RowBuilder rows;
  rows.kind(77).source("T").column("T.a");
  EXPECT_EQ(sql(rows), "SELECT T.a\r\nFROM T;\r\n");
  EXPECT_EQ(sql(rows, 0x20), "DELETE T.a\r\nFROM T;\r\n");
}

TEST(DamagedRows, RowsWithoutTheirTextAreLeftOut) {
  RowBuilder rows;
  rows.parameter("", 4).source("").source("T").column("").column("T.a").column("", "lost");
  rows.where("").groupBy("").having("").orderBy("", "D").orderBy("T.a").join("", "", "");
  EXPECT_EQ(sql(rows), "SELECT T.a\r\nFROM T\r\nORDER BY T.a;\r\n");
  EXPECT_TRUE(queryParameters(rows.rows()).empty());
}

TEST(DamagedRows, JoinOnUnknownSource) {
  RowBuilder rows;
  rows.source("T").column("T.a").join("T", "Gone Away", "T.a = [Gone Away].a", 2);
  EXPECT_EQ(sql(rows), "SELECT T.a\r\nFROM T LEFT JOIN [Gone Away] ON T.a = [Gone Away].a;\r\n");
}

TEST(DamagedRows, JoinWithoutFlagOrWithAnUnknownOne) {
  RowBuilder rows;
  rows.source("T").source("U").source("V").column("T.a");
  rows.join("T", "U", "c", std::nullopt).join("U", "V", "d", 9);
  EXPECT_EQ(sql(rows), "SELECT T.a\r\nFROM (T INNER JOIN U ON c) INNER JOIN V ON d;\r\n");
}

TEST(DamagedRows, ActionsWithoutTheirParts) {
  RowBuilder makeTable, append, update, remove, crosstab, unite;
  EXPECT_EQ(sql(makeTable.kind(2).source("T").column("T.a")), "SELECT T.a\r\nFROM T;\r\n");
  EXPECT_EQ(sql(append.kind(3)), "INSERT INTO\r\nSELECT;\r\n");
  EXPECT_EQ(sql(update.kind(4).source("T").fieldColumn("a", "").fieldColumn("", "1")),
            "UPDATE T SET;\r\n");
  EXPECT_EQ(sql(remove.kind(5)), "DELETE;\r\n");
  EXPECT_EQ(sql(crosstab.kind(6)), "TRANSFORM\r\nSELECT;\r\n");
  EXPECT_EQ(sql(unite.kind(9).source("T")), ";\r\n");
}

TEST(DamagedRows, CrosstabHeadingFromTheGrouping) {
  RowBuilder rows;
  rows.kind(6).source("T").column("Sum(T.a)").column("T.b", "", 2).groupBy("T.b", 2);
  rows.groupBy("T.c", 1);
  EXPECT_EQ(sql(rows),
            "TRANSFORM Sum(T.a)\r\nSELECT T.b\r\nFROM T\r\nGROUP BY T.b\r\nPIVOT T.c;\r\n");
}

TEST(DamagedRows, UnknownAttributesAreIgnored) {
  RowBuilder rows;
  rows.source("T").column("T.a").add(-5, "x", "x", "x", 1).add(99, "x", "x", "x", 1);
  EXPECT_EQ(sql(rows), "SELECT T.a\r\nFROM T;\r\n");
}

// Any rows give some text, and the same rows the same text.
TEST(DamagedRows, RandomRowsGiveTheSameTextTwice) {
  std::mt19937 random(977);
  const auto below = [&random](unsigned bound) { return static_cast<int>(random() % bound); };
  const std::vector<std::string> texts = {"",  "A",    "b c", "A.x", "[",    "]",   "[]", "'",
                                          ";", "\r\n", "B",   "D",   "\xFF", "[x]", "."};
  for (int round = 0; round < 3000; ++round) {
    RowBuilder rows;
    const int count = below(30);
    for (int i = 0; i < count; ++i) {
      rows.add(below(13), texts[below(15)], texts[below(15)], texts[below(15)], below(12) - 1);
      rows.rows().back().order.resize(below(4));
      rows.rows().back().extra = below(3) - 1;
    }
    const std::int32_t flags = below(256);
    const std::string text = sql(rows, flags);
    ASSERT_EQ(sql(rows, flags), text);
    queryParameters(rows.rows());
    queryConnect(rows.rows(), flags);
    queryTarget(rows.rows(), flags);
    queryTargetFields(rows.rows(), flags);
  }
}

double secondsFor(RowBuilder& rows, std::string& text) {
  const auto start = std::chrono::steady_clock::now();
  text = sql(rows);
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

std::string table(int number) { return "T" + std::to_string(number); }

// Nested as deep as it goes: the deepest join is the first, in as many parentheses as joins follow.
TEST(DamagedRows, TenThousandNestedJoinsWithTwoConditionsEach) {
  constexpr int kJoins = 10000;
  RowBuilder rows;
  for (int i = 0; i <= kJoins; ++i) rows.source(table(i));
  for (int i = 1; i <= kJoins; ++i) rows.join(table(i - 1), table(i), "a" + std::to_string(i));
  for (int i = 1; i <= kJoins; ++i) rows.join(table(0), table(i), "b" + std::to_string(i));
  rows.column("*");
  std::string text;
  EXPECT_LT(secondsFor(rows, text), 2.0);
  std::string from = "SELECT *\r\nFROM " + std::string(kJoins - 1, '(') + "T0";
  for (int i = 1; i <= kJoins; ++i) {
    const std::string number = std::to_string(i);
    from += " INNER JOIN T" + number + " ON (b" + number + ") AND (a" + number + ")";
    if (i < kJoins) from += ")";
  }
  EXPECT_TRUE(text == from + ";\r\n");
}

// Joined from the end, each new source takes the whole of the others in on its right.
TEST(DamagedRows, FiftyThousandJoinsFromTheEndWithTwoConditionsEach) {
  constexpr int kJoins = 50000;
  RowBuilder rows;
  for (int i = 0; i <= kJoins; ++i) rows.source(table(i));
  for (int i = kJoins; i >= 1; --i) rows.join(table(i - 1), table(i), "a" + std::to_string(i));
  for (int i = kJoins; i >= 1; --i) rows.join(table(i - 1), table(kJoins), "b");
  rows.column("*");
  std::string text;
  EXPECT_LT(secondsFor(rows, text), 2.0);
  EXPECT_TRUE(text.starts_with("SELECT *\r\nFROM T0 INNER JOIN (T1 INNER JOIN (T2 INNER JOIN ("));
  EXPECT_TRUE(text.ends_with(" ON (b) AND (a3)) ON (b) AND (a2)) ON (b) AND (a1);\r\n"));
}

TEST(DamagedRows, AHundredThousandConditionsOfOneJoin) {
  RowBuilder rows;
  rows.source("A").source("B").column("*");
  for (int i = 0; i < 100000; ++i) rows.join("A", "B", "c");
  std::string text;
  EXPECT_LT(secondsFor(rows, text), 2.0);
  EXPECT_TRUE(text.starts_with("SELECT *\r\nFROM A INNER JOIN B ON (c) AND (c)"));
  EXPECT_EQ(text.size(), std::string("SELECT *\r\nFROM A INNER JOIN B ON ").size() +
                             100000 * std::string("(c) AND ").size() - 5 + 3);
}

}  // namespace
}  // namespace tarrowin::mdb
