// The files that the other tests build, read by the mdbtools programs: what the builder writes is
// what others take for a database, too, and not only the mirror of our own reading.
#include <algorithm>
#include <fstream>

#include <gtest/gtest.h>
#include <unistd.h>

#include "access/mdb/mdb_database.h"
#include "mdb/file_builder.h"
#include "mdb/mdbtools_check.h"
#include "mdb/sample_files.h"

namespace tarrowin::mdb {
namespace {

namespace fs = std::filesystem;

class BuiltFiles : public testing::TestWithParam<bool> {
 protected:
  void SetUp() override {
    if (!haveMdbTools()) GTEST_SKIP() << "the mdbtools programs are not installed";
    path_ = fs::temp_directory_path() / ("tarrowin_built_" + std::to_string(::getpid()) + ".mdb");
  }
  void TearDown() override {
    if (!path_.empty()) fs::remove(path_);
  }

  void compare() {
    Bytes file = builder_.build();
    std::ofstream(path_, std::ios::binary)
        .write(reinterpret_cast<const char*>(file.data()),
               static_cast<std::streamsize>(file.size()));
    Database database = Database::open(path_);
    for (const CatalogObject& table : database.tables()) {
      SCOPED_TRACE(table.name);
      expectSameColumns(database, table, path_);
      expectSameRows(database, table, path_);
    }
    EXPECT_FALSE(database.tables().empty());
  }

  std::uint16_t textLength(int characters) const {
    return static_cast<std::uint16_t>(GetParam() ? characters : 2 * characters);
  }

  FileBuilder builder_{GetParam()};
  fs::path path_;
};

INSTANTIATE_TEST_SUITE_P(IsJet3, BuiltFiles, testing::Values(true, false),
                         testing::PrintToStringParamName());

TEST_P(BuiltFiles, EveryType) {
  std::vector<BuiltColumn> columns{
      {"Flag", 1, 1, true},  {"Small", 2, 1, true}, {"Whole", 3, 2, true},
      {"Big", 4, 4, true},   {"Money", 5, 8, true}, {"Real", 6, 4, true},
      {"Exact", 7, 8, true}, {"Day", 8, 8, true},   {"Word", 10, textLength(20)},
      {"Picture", 11},       {"Note", 12},          {"Guid", 15, 16, true},
  };
  Bytes guid{0x78, 0x56, 0x34, 0x12, 0xBC, 0x9A, 0xF0, 0xDE, 1, 2, 3, 4, 5, 6, 7, 8};
  Bytes single = builder_.longOnePage(Bytes(1500, 7));
  Bytes chain = builder_.longChain({Bytes(1900, 1), Bytes(1800, 2), Bytes(3, 3)});
  Bytes memo = builder_.longChain({builder_.text("first, "), builder_.text("second")});
  builder_.addTable(
      "All", columns,
      {{Cell(Bytes{}), Bytes{200}, le16(0xFFFE), le32(0xFFFEEE90), join({le32(123456), le32(0)}),
        Bytes{0, 0, 0xC0, 0x3F}, leDouble(-2.25), leDouble(37000.5), builder_.text("Hello"),
        builder_.longInRow({1, 0, 2}), builder_.longInRow(builder_.text("Memo")), guid},
       {std::nullopt, Bytes{0}, le16(0), le32(0), join({le32(0xFFFFFFFF), le32(0xFFFFFFFF)}),
        Bytes{0, 0, 0, 0}, leDouble(0), leDouble(25000.25), builder_.text("b"), single, memo, guid},
       {std::nullopt, Bytes{1}, le16(1), le32(1), join({le32(5), le32(0)}), Bytes{0, 0, 0x80, 0x3F},
        leDouble(1), leDouble(30000), builder_.text("c"), chain, memo, guid}});
  compare();
}

// Here the jump table of Jet 3 comes into play.
TEST_P(BuiltFiles, RowsOfAllLengths) {
  std::vector<BuiltColumn> columns{{"A", 10, textLength(255)}, {"B", 10, textLength(255)},
                                   {"C", 10, textLength(255)}, {"D", 4, 4, true},
                                   {"E", 10, textLength(255)}, {"F", 10, textLength(255)}};
  std::vector<std::vector<Cell>> cells;
  for (std::size_t total = 5; total < 1000; ++total) {
    std::size_t rest = total - 5;
    std::vector<Bytes> texts;
    for (std::size_t i = 0; i < 5; ++i) {
      std::size_t length = std::min<std::size_t>(rest, i == 0 ? total % 99 : 240);
      texts.push_back(builder_.text(std::string(length + 1, static_cast<char>('a' + i))));
      rest -= length;
    }
    cells.push_back({texts[0], texts[1], texts[2], le32(static_cast<std::uint32_t>(total)),
                     texts[3], texts[4]});
  }
  builder_.addTable("Long", columns, cells);
  compare();
}

TEST_P(BuiltFiles, EncodedFile) {
  builder_.setPageKey(0x1234ABCD);
  builder_.addTable("Secret", {{"Id", 4, 4, true}, {"Word", 10, textLength(20)}},
                    {{le32(1), builder_.text("one")}, {le32(2), builder_.text("two")}});
  compare();
}

TEST_P(BuiltFiles, Decimals) {
  if (GetParam()) GTEST_SKIP() << "only Jet 4 has them";
  auto decimal = [](std::uint8_t sign, std::uint32_t high, std::uint32_t low) {
    return join({{sign}, le32(0), le32(0), le32(high), le32(low)});
  };
  std::vector<BuiltColumn> columns{{"Two", 16, 17, true, 0, -1, 2}, {"None", 16, 17, true}};
  builder_.addTable("Decimals", columns,
                    {{decimal(0x80, 0, 1234), decimal(0, 1, 0)},
                     {decimal(0, 0x7F, 0xFFFFFFFF), decimal(0x80, 0, 5)}});
  compare();
}

}  // namespace
}  // namespace tarrowin::mdb
