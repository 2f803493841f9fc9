// Rows and their cells on pages built by hand, for both formats.
// The values are written down here, not taken from the reader.
#include <algorithm>

#include <gtest/gtest.h>

#include "access/mdb/mdb_database.h"
#include "mdb/file_builder.h"

namespace tarrowin::mdb {
namespace {

const Value kNull{Value::Null{}};

const CatalogObject& tableOf(const Database& database, std::string_view name) {
  const CatalogObject* table = database.findTable(name);
  if (table == nullptr) throw Error(ErrorKind::kDamaged, "no table " + std::string(name));
  return *table;
}

std::vector<std::vector<Value>> allRows(const Database& database, std::string_view table) {
  std::vector<std::vector<Value>> result;
  Rows rows = database.rows(tableOf(database, table));
  while (rows.next()) result.push_back(rows.values());
  return result;
}

ErrorKind kindOfRows(const Database& database, std::string_view table) {
  try {
    allRows(database, table);
  } catch (const Error& error) {
    EXPECT_NE(error.message().find(table), std::string::npos) << error.message();
    return error.kind();
  }
  ADD_FAILURE() << "no error";
  return ErrorKind::kUnreadable;
}

class BothFormats : public testing::TestWithParam<bool> {
 protected:
  FileBuilder builder_{GetParam()};
  Database open() { return Database::fromBytes(builder_.build(), "built"); }
  std::uint16_t textLength(int characters) const {
    return static_cast<std::uint16_t>(GetParam() ? characters : 2 * characters);
  }
};

INSTANTIATE_TEST_SUITE_P(IsJet3, BothFormats, testing::Values(true, false),
                         testing::PrintToStringParamName());

TEST_P(BothFormats, EveryType) {
  std::vector<BuiltColumn> columns{
      {"Flag", 1, 1, true},         {"Small", 2, 1, true}, {"Whole", 3, 2, true},
      {"Big", 4, 4, true, 4},       {"Money", 5, 8, true}, {"Real", 6, 4, true},
      {"Exact", 7, 8, true},        {"Day", 8, 8, true},   {"Raw", 9, 50},
      {"Word", 10, textLength(20)}, {"Picture", 11},       {"Note", 12},
      {"Guid", 15, 16, true},
  };
  Bytes guid{0x78, 0x56, 0x34, 0x12, 0xBC, 0x9A, 0xF0, 0xDE, 1, 2, 3, 4, 5, 6, 7, 8};
  builder_.addTable(
      "All", columns,
      {{Cell(Bytes{}), Bytes{200}, le16(0xFFFE), le32(0xFFFEEE90), join({le32(123456), le32(0)}),
        Bytes{0, 0, 0xC0, 0x3F}, leDouble(-2.25), leDouble(37000.5), Bytes{0, 0xFF, 0},
        builder_.text("Hello"), builder_.longInRow({1, 0, 2}),
        builder_.longInRow(builder_.text("Memo")), guid},
       {std::nullopt, Bytes{0}, le16(0), le32(0), join({le32(0xFFFFFFFF), le32(0xFFFFFFFF)}),
        Bytes{0, 0, 0, 0}, leDouble(0), leDouble(-1.25), Bytes{}, Bytes{}, builder_.longInRow({}),
        builder_.longInRow({}), Bytes(16)}});
  Database database = open();
  const auto& described = database.columns(tableOf(database, "All"));
  ASSERT_EQ(described.size(), 13u);
  std::vector<std::pair<int, int>> expected{{1, 1},  {2, 1},  {3, 2},  {4, 4},  {5, 8},
                                            {6, 4},  {7, 8},  {8, 8},  {9, 50}, {10, 20},
                                            {11, 0}, {12, 0}, {15, 16}};
  for (std::size_t i = 0; i < described.size(); ++i) {
    EXPECT_EQ(described[i].name, columns[i].name);
    EXPECT_EQ(described[i].type, expected[i].first) << columns[i].name;
    EXPECT_EQ(described[i].size, expected[i].second) << columns[i].name;
    EXPECT_EQ(described[i].autoNumber, columns[i].name == "Big");
  }
  auto rows = allRows(database, "All");
  ASSERT_EQ(rows.size(), 2u);
  std::vector<Value> first{true,
                           200,
                           -2,
                           -70000,
                           12.3456,
                           1.5,
                           -2.25,
                           Date{37000.5},
                           Bytes{0, 0xFF, 0},
                           "Hello",
                           Bytes{1, 0, 2},
                           "Memo",
                           "{12345678-9ABC-DEF0-0102-030405060708}"};
  EXPECT_EQ(rows[0], first);
  std::vector<Value> second{false,
                            0,
                            0,
                            0,
                            -0.0001,
                            0.0,
                            0.0,
                            Date{-1.25},
                            Bytes{},
                            "",
                            Bytes{},
                            "",
                            "{00000000-0000-0000-0000-000000000000}"};
  EXPECT_EQ(rows[1], second);
}

TEST_P(BothFormats, NullInEveryTypeButBoolean) {
  std::vector<BuiltColumn> columns;
  for (int type = 1; type <= 12; ++type) {
    columns.push_back({"C" + std::to_string(type), type, 8, type < 9});
  }
  builder_.addTable("Nulls", columns, {std::vector<Cell>(columns.size())});
  auto rows = allRows(open(), "Nulls");
  ASSERT_EQ(rows.size(), 1u);
  EXPECT_EQ(rows[0][0], Value(false));
  for (std::size_t i = 1; i < columns.size(); ++i) EXPECT_EQ(rows[0][i], kNull) << i;
}

TEST_P(BothFormats, ColumnsAddedLaterAreNullInOldRows) {
  std::vector<BuiltColumn> columns{{"Id", 4, 4, true},
                                   {"Old", 10, textLength(10)},
                                   {"New", 10, textLength(10)},
                                   {"NewNumber", 4, 4, true},
                                   {"NewFlag", 1, 1, true}};
  std::vector<Cell> cells{le32(7), builder_.text("old"), {}, {}, {}};
  builder_.addTableOfRows("Grown", columns,
                          std::vector<BuiltRow>{{builder_.row(columns, cells, 2)}});
  auto rows = allRows(open(), "Grown");
  ASSERT_EQ(rows.size(), 1u);
  EXPECT_EQ(rows[0], (std::vector<Value>{7, "old", kNull, kNull, false}));
}

// Such a row has no variable part at all.
TEST_P(BothFormats, FirstVariableColumnAddedLater) {
  std::vector<BuiltColumn> columns{{"Id", 4, 4, true}, {"New", 10, textLength(10)}};
  Bytes old = builder_.format().jet3 ? join({{1}, le32(0x01020304), {1}})
                                     : join({le16(1), le32(0x01020304), {1}});
  builder_.addTableOfRows("Grown", columns, std::vector<BuiltRow>{{old}});
  EXPECT_EQ(allRows(open(), "Grown").at(0), (std::vector<Value>{0x01020304, kNull}));
}

TEST_P(BothFormats, TableWithoutVariableColumns) {
  std::vector<BuiltColumn> columns{{"Id", 4, 4, true}};
  Bytes row = builder_.format().jet3 ? join({{1}, le32(99), {1}}) : join({le16(1), le32(99), {1}});
  builder_.addTableOfRows("Fixed", columns, std::vector<BuiltRow>{{row}});
  EXPECT_EQ(allRows(open(), "Fixed").at(0), std::vector<Value>{99});
}

TEST_P(BothFormats, StorageGoesByTheFlagAndNotByTheType) {
  std::vector<BuiltColumn> columns{
      {"Block", 17, 6, true}, {"Code", 10, textLength(3), true}, {"Long", 4, 4, false}};
  builder_.addTable("Odd", columns, {{Bytes{1, 2, 3, 4, 5, 6}, builder_.text("abc"), le32(5)}});
  Database database = open();
  EXPECT_EQ(allRows(database, "Odd").at(0),
            (std::vector<Value>{Bytes{1, 2, 3, 4, 5, 6}, "abc", 5}));
  EXPECT_EQ(database.columns(tableOf(database, "Odd"))[0].type, kDaoBinary);
}

TEST_P(BothFormats, ColumnsInTheOrderOfDisplay) {
  std::vector<BuiltColumn> columns{
      {"Third", 4, 4, true, 0, 9}, {"First", 4, 4, true, 0, 2}, {"Second", 4, 4, true, 0, 2}};
  builder_.addTable("Order", columns, {{le32(3), le32(1), le32(2)}});
  Database database = open();
  const auto& described = database.columns(tableOf(database, "Order"));
  EXPECT_EQ(described[0].name, "First");
  EXPECT_EQ(described[1].name, "Second");
  EXPECT_EQ(described[2].name, "Third");
  EXPECT_EQ(allRows(database, "Order").at(0), (std::vector<Value>{1, 2, 3}));
}

TEST_P(BothFormats, DeletedRowsAreSkipped) {
  std::vector<BuiltColumn> columns{{"Id", 4, 4, true}};
  auto row = [&](std::uint32_t id) { return builder_.row(columns, {le32(id)}); };
  builder_.addTableOfRows(
      "Some", columns,
      std::vector<BuiltRow>{{row(1), 0xC000}, {row(2)}, {row(3), 0x8000}, {row(4)}});
  auto rows = allRows(open(), "Some");
  ASSERT_EQ(rows.size(), 2u);
  EXPECT_EQ(rows[0][0], Value(2));
  EXPECT_EQ(rows[1][0], Value(4));
}

// The row that has moved is marked as deleted at its new place, or it would be met twice.
TEST_P(BothFormats, MovedRowsStandWhereTheirPointerStands) {
  std::vector<BuiltColumn> columns{{"Id", 4, 4, true}};
  auto row = [&](std::uint32_t id) { return builder_.row(columns, {le32(id)}); };
  std::uint32_t page = builder_.nextPage();
  Bytes pointer = le32(((page + 2) << 8) | 2);
  builder_.addTableOfRows("Moved", columns,
                          std::vector<BuiltRow>{{pointer, 0x4000}, {row(2)}, {row(1), 0x8000}});
  auto rows = allRows(open(), "Moved");
  ASSERT_EQ(rows.size(), 2u);
  EXPECT_EQ(rows[0][0], Value(1));
  EXPECT_EQ(rows[1][0], Value(2));
}

TEST_P(BothFormats, PointersInACircle) {
  std::uint32_t page = builder_.nextPage();
  Bytes pointer = le32((page + 2) << 8);
  builder_.addTableOfRows("Circle", {{"Id", 4, 4, true}}, std::vector<BuiltRow>{{pointer, 0x4000}});
  EXPECT_EQ(kindOfRows(open(), "Circle"), ErrorKind::kDamaged);
}

TEST_P(BothFormats, PointerIntoAnotherTable) {
  std::vector<BuiltColumn> columns{{"Id", 4, 4, true}};
  std::uint32_t other = builder_.addTable("Other", columns, {{le32(1)}});
  builder_.addTableOfRows("Thief", columns,
                          std::vector<BuiltRow>{{le32((other + 2) << 8), 0x4000}});
  Database database = open();
  EXPECT_EQ(kindOfRows(database, "Thief"), ErrorKind::kDamaged);
  EXPECT_EQ(allRows(database, "Other").size(), 1u);
}

TEST_P(BothFormats, RowsOnManyPages) {
  std::vector<BuiltColumn> columns{{"Id", 4, 4, true}, {"Name", 10, textLength(100)}};
  std::vector<std::vector<Cell>> cells;
  for (std::uint32_t i = 0; i < 200; ++i) {
    cells.push_back({le32(i), builder_.text(std::string(90, 'x'))});
  }
  builder_.addTable("Many", columns, cells);
  auto rows = allRows(open(), "Many");
  ASSERT_EQ(rows.size(), 200u);
  for (int i = 0; i < 200; ++i) EXPECT_EQ(rows[static_cast<std::size_t>(i)][0], Value(i));
}

TEST_P(BothFormats, UsageMapByReference) {
  std::vector<BuiltColumn> columns{{"Id", 4, 4, true}};
  std::uint32_t page = builder_.addTable("Big", columns, {{le32(42)}});
  std::size_t covered = 8 * (builder_.format().pageSize - 4);
  Bytes bitmap(builder_.format().pageSize);
  bitmap[0] = 5;
  bitmap[4 + (page + 2) / 8] = static_cast<std::uint8_t>(1 << ((page + 2) % 8));
  ASSERT_LT(page + 2, covered);
  std::uint32_t bitmapPage = builder_.addPage(bitmap);
  builder_.setPage(page + 1,
                   builder_.rowsPage(0, {{join({{1}, le32(bitmapPage), le32(0), le32(0)})}}));
  EXPECT_EQ(allRows(open(), "Big").at(0), std::vector<Value>{42});
}

TEST_P(BothFormats, UsageMapBeyondTheEndOfTheFile) {
  std::vector<BuiltColumn> columns{{"Id", 4, 4, true}};
  std::uint32_t page = builder_.addTable("Cut", columns, {{le32(42)}});
  builder_.setPage(page + 1, builder_.rowsPage(0, {{join({{0}, le32(5000), {1}})}}));
  builder_.addTable("Whole", columns, {{le32(1)}});
  Database database = open();
  EXPECT_EQ(kindOfRows(database, "Cut"), ErrorKind::kDamaged);
  EXPECT_EQ(allRows(database, "Whole").size(), 1u);
}

TEST_P(BothFormats, PageOfRowsLost) {
  std::vector<BuiltColumn> columns{{"Id", 4, 4, true}};
  std::uint32_t page = builder_.addTable("Lost", columns, {{le32(42)}});
  Bytes other(builder_.format().pageSize);
  other[0] = 9;
  builder_.setPage(page + 2, other);
  EXPECT_EQ(kindOfRows(open(), "Lost"), ErrorKind::kDamaged);
}

TEST_P(BothFormats, RowOutsideOfItsPlace) {
  std::vector<BuiltColumn> columns{{"Id", 4, 4, true}};
  std::uint32_t page = builder_.addTable("Bad", columns, {{le32(42)}});
  Bytes rows = builder_.rowsPage(page, {{builder_.row(columns, {le32(42)})}});
  rows[builder_.format().dataRowCount + 2] = 3;  // into the page's head
  rows[builder_.format().dataRowCount + 3] = 0;
  builder_.setPage(page + 2, rows);
  EXPECT_EQ(kindOfRows(open(), "Bad"), ErrorKind::kDamaged);
}

TEST_P(BothFormats, DefinitionInACircle) {
  std::vector<BuiltColumn> columns{{"Id", 4, 4, true}};
  std::uint32_t page = builder_.addTable("Circle", columns, {{le32(42)}});
  Bytes file = builder_.build();
  file[page * builder_.format().pageSize + 4] = static_cast<std::uint8_t>(page);
  Database database = Database::fromBytes(file, "built");
  EXPECT_THROW(database.columns(tableOf(database, "Circle")), Error);
  EXPECT_EQ(kindOfRows(database, "Circle"), ErrorKind::kDamaged);
}

TEST_P(BothFormats, DefinitionOnSeveralPages) {
  std::vector<BuiltColumn> columns;
  std::vector<Cell> cells;
  for (int i = 0; i < 200; ++i) {
    columns.push_back({"A column with a long name, number " + std::to_string(i), 2, 1, true});
    cells.push_back(Bytes{static_cast<std::uint8_t>(i)});
  }
  std::uint32_t page = builder_.nextPage();
  builder_.addTableOfRows("Wide", {{"Id", 4, 4, true}},
                          std::vector<BuiltRow>{{builder_.row(columns, cells)}});
  std::vector<Bytes> parts = builder_.definitionPages(columns, 1, page + 1);
  ASSERT_GT(parts.size(), 2u);
  builder_.setPage(page, parts[0]);
  Database database = open();
  const auto& described = database.columns(tableOf(database, "Wide"));
  ASSERT_EQ(described.size(), 200u);
  EXPECT_EQ(described[199].name, "A column with a long name, number 199");
  EXPECT_EQ(allRows(database, "Wide").at(0).at(199), Value(199));
}

// 256, 512... bytes of data need one more entry in Jet 3's jump table; around these lengths the
// row passes them with and without what stands behind the data.
TEST_P(BothFormats, RowsAroundMultiplesOf256Bytes) {
  std::vector<BuiltColumn> columns{{"A", 10, textLength(255)}, {"B", 10, textLength(255)},
                                   {"C", 10, textLength(255)}, {"D", 4, 4, true},
                                   {"E", 10, textLength(255)}, {"F", 10, textLength(255)}};
  std::vector<std::vector<Cell>> cells;
  std::vector<std::vector<Value>> expected;
  for (std::size_t total = 0; total<1000; total += total % 256> 225 || total % 256 < 5 ? 1 : 7) {
    std::vector<std::string> texts;
    std::size_t left = total;
    for (std::size_t i = 0; i < 5; ++i) {
      std::size_t length = std::min<std::size_t>(left, i == 0 ? total % 99 : 251);
      texts.push_back(std::string(length, static_cast<char>('a' + i)));
      left -= length;
    }
    auto id = static_cast<std::uint32_t>(total);
    cells.push_back({builder_.text(texts[0]), builder_.text(texts[1]), builder_.text(texts[2]),
                     le32(id), builder_.text(texts[3]), builder_.text(texts[4])});
    expected.push_back(
        {texts[0], texts[1], texts[2], static_cast<std::int32_t>(total), texts[3], texts[4]});
  }
  builder_.addTable("Long", columns, cells);
  EXPECT_EQ(allRows(open(), "Long"), expected);
}

TEST_P(BothFormats, LongValueOnOnePageAndOnAChain) {
  Bytes single(1500, 7);
  Bytes one(1900, 1), two(1800, 2), three(3, 3);
  Bytes whole = join({one, two, three});
  Bytes singleCell = builder_.longOnePage(single);
  Bytes chainCell = builder_.longChain({one, two, three});
  Bytes memoCell = builder_.longChain({builder_.text("first, "), builder_.text("second")});
  builder_.addTable("Longs", {{"Single", 11}, {"Chain", 11}, {"Memo", 12}},
                    {{singleCell, chainCell, memoCell}});
  EXPECT_EQ(allRows(open(), "Longs").at(0), (std::vector<Value>{single, whole, "first, second"}));
}

TEST_P(BothFormats, LongValuesThatLieFailAlone) {
  Bytes shortChain = builder_.longChain({{1, 2, 3}});
  shortChain[0] = 10;  // of which three are there
  Bytes shortPage = builder_.longOnePage({1, 2, 3});
  shortPage[0] = 10;
  Bytes huge = builder_.longChain({{1, 2, 3}});
  huge[3] = 0x3F;  // a gigabyte
  Bytes inRow = builder_.longInRow({1, 2, 3});
  inRow[0] = 4;
  Bytes beyond = join({le32(0x40000003), le32(0xFFFFFF00), le32(0)});
  builder_.addTable("Liars",
                    {{"A", 11},
                     {"B", 11},
                     {"C", 11},
                     {"D", 11},
                     {"E", 11},
                     {"F", 11},
                     {"G", 11},
                     {"Id", 4, 4, true}},
                    {{shortChain, shortPage, huge, inRow, beyond, Bytes{1, 2},
                      builder_.longInRow({5}), le32(1)}});
  Database database = open();
  Rows rows = database.rows(tableOf(database, "Liars"));
  ASSERT_TRUE(rows.next());
  for (std::size_t i = 0; i < 6; ++i) EXPECT_THROW(rows.value(i), Error) << i;
  EXPECT_EQ(rows.value(6), Value(Bytes{5}));
  EXPECT_EQ(rows.value(7), Value(1));
}

TEST_P(BothFormats, LongValueInACircle) {
  std::uint32_t page = builder_.nextPage();
  builder_.addRows(0, {{le32(page << 8)}});  // a piece without a byte of its own
  builder_.addTable("Circle", {{"A", 11}}, {{join({le32(1000), le32(page << 8), le32(0)})}});
  EXPECT_EQ(kindOfRows(open(), "Circle"), ErrorKind::kDamaged);
}

// A thousand rows that are all the same one, which holds a value of half the file: the work is
// limited by the size of the file.
TEST_P(BothFormats, ManyPointersToOneLongValue) {
  std::vector<Bytes> pieces(200, Bytes(1500, 7));
  Bytes whole = builder_.longChain(pieces);
  std::vector<BuiltColumn> columns{{"A", 11}};
  std::uint32_t page = builder_.nextPage();
  std::vector<BuiltRow> rows{{builder_.row(columns, {whole}), 0x8000}};
  for (int i = 0; i < 1000; ++i) rows.push_back({le32((page + 2) << 8), 0x4000});
  builder_.addTableOfRows("Many", columns, rows);
  Database database = open();
  Rows cursor = database.rows(tableOf(database, "Many"));
  ASSERT_TRUE(cursor.next());
  EXPECT_EQ(cursor.value(0).bytes()->size(), 300000u);
  EXPECT_EQ(kindOfRows(database, "Many"), ErrorKind::kDamaged);
}

TEST(RowsJet3, TextIsInTheCodePage) {
  FileBuilder builder(true);
  builder.addTable("Words", {{"A", 10, 20}, {"B", 12}},
                   {{ansi("Sess\xE3o"), builder.longInRow(ansi("\x80 5"))}});
  Bytes file = builder.build();
  EXPECT_EQ(allRows(Database::fromBytes(file, "built"), "Words").at(0),
            (std::vector<Value>{"Sessão", "€ 5"}));
  Options cyrillic;
  cyrillic.codePage = 1251;
  Database database = Database::fromBytes(file, "built", cyrillic);
  EXPECT_EQ(database.codePage(), 1251);
  EXPECT_EQ(allRows(database, "Words").at(0), (std::vector<Value>{"Sessгo", "Ђ 5"}));
}

TEST(RowsJet4, CompressedText) {
  FileBuilder builder(false);
  Bytes oneByte{0xFF, 0xFE, 'S', 0xE9, 'c'};
  Bytes mixed{0xFF, 0xFE, 'A', 'b', 0, 0x10, 0x04, 0x11, 0x04, 0, 'c'};
  Bytes onlyMark{0xFF, 0xFE};
  builder.addTable(
      "Words", {{"A", 10, 40}, {"B", 10, 40}, {"C", 10, 40}, {"D", 12}, {"E", 11}},
      {{oneByte, mixed, onlyMark, builder.longInRow(mixed), builder.longInRow(mixed)}});
  // An OLE value that looks the same is left as it is.
  EXPECT_EQ(allRows(Database::fromBytes(builder.build(), "built"), "Words").at(0),
            (std::vector<Value>{"Séc", "AbАБc", "", "AbАБc", mixed}));
}

TEST(RowsJet4, Utf16WithAndWithoutPartners) {
  FileBuilder builder(false);
  builder.addTable("Words", {{"A", 10, 40}, {"B", 10, 40}, {"C", 10, 40}, {"D", 10, 40}},
                   {{utf16(u"\u20AC\U0001F600!"), Bytes{0x3D, 0xD8, 'x', 0},
                     Bytes{'x', 0, 0x3D, 0xD8}, Bytes{'x', 0, 'y'}}});
  EXPECT_EQ(allRows(Database::fromBytes(builder.build(), "built"), "Words").at(0),
            (std::vector<Value>{"€😀!", "\uFFFDx", "x\uFFFD", "x"}));
}

TEST(RowsJet4, Decimal) {
  FileBuilder builder(false);
  std::vector<BuiltColumn> columns{{"Two", 16, 17, true, 0, -1, 2}, {"None", 16, 17, true}};
  Bytes small = join({{0x80}, le32(0), le32(0), le32(0), le32(1234)});
  Bytes large = join({{0}, le32(0), le32(0), le32(1), le32(0)});  // 2 to the power of 32
  builder.addTable("Decimals", columns, {{small, large}});
  Database database = Database::fromBytes(builder.build(), "built");
  EXPECT_EQ(allRows(database, "Decimals").at(0), (std::vector<Value>{-12.34, 4294967296.0}));
  EXPECT_EQ(database.columns(tableOf(database, "Decimals"))[0].type, kDaoDecimal);
  EXPECT_EQ(database.columns(tableOf(database, "Decimals"))[0].size, 16);
}

}  // namespace
}  // namespace tarrowin::mdb
