// Databases built in memory: what holds the tree of streams, in each of the three ways.
#include <algorithm>
#include <optional>

#include <gtest/gtest.h>

#include "access/mdb/mdb_database.h"
#include "access/vba/object_tree.h"
#include "access/vba/vba_project.h"
#include "mdb/file_builder.h"
#include "vba/expect_damage.h"
#include "vba/stream_builder.h"

namespace tarrowin::vba {
namespace {

using mdb::Cell;
using mdb::join;
using mdb::le32;

constexpr std::uint32_t kSystem = 0x80000000u;
constexpr std::int32_t kFolder = 1, kStream = 2;

Bytes longNumber(std::int32_t value) { return le32(static_cast<std::uint32_t>(value)); }

mdb::Database built(mdb::FileBuilder& builder) {
  return mdb::Database::fromBytes(builder.build(), "built");
}

// Access 2002 and later.
class AccessStorage : public testing::Test {
 protected:
  void add(std::int32_t id, std::int32_t parent, std::int32_t type, const std::string& name,
           Cell bytes = {}) {
    if (bytes) bytes = builder_.longInRow(*bytes);
    rows_.push_back(
        {longNumber(id), longNumber(parent), longNumber(type), builder_.text(name), bytes});
  }
  void addRoots() {
    add(10, 10, kFolder, "MSysAccessStorage_ROOT");
    add(11, 11, kFolder, "MSysAccessStorage_SCRATCH");
  }
  StreamStore open() {
    const std::uint16_t textLength = 128;
    builder_.addTable(
        "MSysAccessStorage",
        {{"Id", 4, 4}, {"ParentId", 4, 4}, {"Type", 4, 4}, {"Name", 10, textLength}, {"Lv", 11}},
        rows_, kSystem);
    database_.emplace(built(builder_));
    return StreamStore::open(*database_);
  }

  mdb::FileBuilder builder_{false};
  std::vector<std::vector<Cell>> rows_;
  std::optional<mdb::Database> database_;
};

TEST_F(AccessStorage, RowsInAnyOrder) {
  add(3, 2, kStream, "dir", bytesOf("deep"));
  add(2, 1, kFolder, "VBAProject");
  addRoots();
  add(4, 10, kStream, "Empty");
  add(1, 10, kFolder, "VBA");
  add(5, 11, kFolder, "Forms");
  const StreamStore store = open();
  EXPECT_EQ(store.read(store.find({"VBA", "VBAProject", "dir"}).value()), bytesOf("deep"));
  EXPECT_TRUE(store.read(store.find({"Empty"}).value()).empty());
  EXPECT_EQ(store.find({"Forms"}), std::nullopt);  // of the scratch root
  EXPECT_EQ(store.children(StreamStore::kRoot).size(), 2u);
}

TEST_F(AccessStorage, StreamsReadBackwardsAndTwice) {
  addRoots();
  for (int i = 0; i < 50; ++i) {
    add(100 + i, 10, kStream, "S" + std::to_string(i), Bytes(static_cast<std::size_t>(i), 1));
  }
  const StreamStore store = open();
  for (int i = 49; i >= 0; --i) {
    const auto node = store.find({"S" + std::to_string(i)}).value();
    EXPECT_EQ(store.read(node).size(), static_cast<std::size_t>(i));
    EXPECT_EQ(store.read(node).size(), static_cast<std::size_t>(i));
  }
}

// Each reading is an operation of its own: together they copy far more than the file holds.
TEST_F(AccessStorage, StreamReadAThousandTimes) {
  addRoots();
  add(1, 10, kStream, "S", Bytes(3000, 1));
  const StreamStore store = open();
  for (int i = 0; i < 1000; ++i) ASSERT_EQ(store.read(store.find({"S"}).value()).size(), 3000u);
}

TEST_F(AccessStorage, FoldersInsideEachOtherAreNeverReached) {
  addRoots();
  add(1, 2, kFolder, "A");
  add(2, 1, kFolder, "B");
  add(3, 10, kFolder, "C");
  const StreamStore store = open();
  ASSERT_EQ(store.children(StreamStore::kRoot).size(), 1u);
  EXPECT_TRUE(store.children(store.find({"C"}).value()).empty());
}

TEST_F(AccessStorage, IdMetTwiceDoesNotLeadInCircles) {
  addRoots();
  add(1, 10, kFolder, "A");
  add(10, 1, kFolder, "the root again");
  add(1, 10, kFolder, "A again");
  const StreamStore store = open();
  EXPECT_EQ(store.children(StreamStore::kRoot).size(), 2u);
}

TEST_F(AccessStorage, MissingRootIsDamage) {
  add(1, 10, kFolder, "VBA");
  EXPECT_EQ(damageOf([&] { open(); }), "the table MSysAccessStorage has no root");
  const VbaProject project = VbaProject::open(*database_);
  ASSERT_TRUE(project.damage());
  EXPECT_EQ(damageOf([&] { project.moduleText("Main"); }),
            "module \"Main\": the table MSysAccessStorage has no root");
}

TEST_F(AccessStorage, LongValueThatIsDamagedIsDamageOfOneStream) {
  addRoots();
  add(1, 10, kStream, "Good", bytesOf("good"));
  add(2, 10, kStream, "Bad");
  rows_.back()[4] = join({le32(0x40000000u | 5000), le32(0xFFFFFF00u), le32(0)});
  const StreamStore store = open();
  EXPECT_NE(damageOf([&] { store.read(store.find({"Bad"}).value()); }), "");
  EXPECT_EQ(store.read(store.find({"Good"}).value()), bytesOf("good"));
}

TEST(AccessStorageTable, WithoutItsColumnsIsDamage) {
  mdb::FileBuilder builder(false);
  builder.addTable("MSysAccessStorage", {{"Id", 4, 4, true}}, {}, kSystem);
  const mdb::Database database = built(builder);
  EXPECT_EQ(damageOf([&] { StreamStore::open(database); }),
            "the table MSysAccessStorage has no column ParentId");
}

// Access 2000. Pieces of 1,000 bytes serve as well as those of 3,992.
class AccessObjects : public testing::Test {
 protected:
  static constexpr std::size_t kPiece = 1000;

  AccessObjects()
      : file_(compoundFile({{"VBA", true, 0, {}},
                            {"dir", false, 1, bytesOf("small")},
                            {"Large", false, 0, Bytes(6000, 7)}})) {
    addHead(static_cast<std::uint32_t>(file_.size()));
  }

  void addRow(std::int32_t id, Bytes bytes) {
    bytes.resize(kPiece);
    rows_.push_back({longNumber(id), std::move(bytes)});
  }
  void addHead(std::uint32_t total) { addRow(0, join({le32(5), le32(total)})); }
  Bytes piece(std::size_t number) const {
    const std::size_t at = number * kPiece;
    const std::size_t size = std::min(kPiece, file_.size() - at);
    const auto start = file_.begin() + static_cast<std::ptrdiff_t>(at);
    return Bytes(start, start + static_cast<std::ptrdiff_t>(size));
  }
  std::size_t pieces() const { return (file_.size() + kPiece - 1) / kPiece; }
  StreamStore open() {
    mdb::FileBuilder builder(false);
    builder.addTable("MSysAccessObjects",
                     {{"ID", 4, 4}, {"Data", 17, static_cast<std::uint16_t>(kPiece), true}}, rows_,
                     kSystem);
    database_.emplace(built(builder));
    return StreamStore::open(*database_);
  }

  Bytes file_;
  std::vector<std::vector<Cell>> rows_;
  std::optional<mdb::Database> database_;
};

TEST_F(AccessObjects, PiecesInAnyOrder) {
  for (std::size_t i = pieces(); i > 0; --i) addRow(static_cast<std::int32_t>(i), piece(i - 1));
  const StreamStore store = open();
  EXPECT_EQ(store.read(store.find({"VBA", "dir"}).value()), bytesOf("small"));
  EXPECT_EQ(store.read(store.find({"Large"}).value()), Bytes(6000, 7));
}

// The large stream fills the last 6,144 bytes of the file.
TEST_F(AccessObjects, MissingPieceIsZeros) {
  for (std::size_t i = 1; i <= pieces(); ++i) {
    if (i != pieces() - 2) addRow(static_cast<std::int32_t>(i), piece(i - 1));
  }
  const StreamStore store = open();
  EXPECT_EQ(store.read(store.find({"VBA", "dir"}).value()), bytesOf("small"));
  const Bytes large = store.read(store.find({"Large"}).value());
  EXPECT_EQ(large.size(), 6000u);
  EXPECT_EQ(std::count(large.begin(), large.end(), 0), static_cast<std::ptrdiff_t>(kPiece));
}

TEST_F(AccessObjects, MissingLastPiecesAreZeros) {
  for (std::size_t i = 1; i < pieces(); ++i) addRow(static_cast<std::int32_t>(i), piece(i - 1));
  const StreamStore store = open();
  EXPECT_EQ(store.read(store.find({"VBA", "dir"}).value()), bytesOf("small"));
  EXPECT_EQ(store.read(store.find({"Large"}).value()).size(), 6000u);
}

TEST_F(AccessObjects, PiecesBehindTheTotalAreNotUsed) {
  for (std::size_t i = 1; i <= pieces(); ++i) addRow(static_cast<std::int32_t>(i), piece(i - 1));
  addRow(0x7FFFFFFF, Bytes(kPiece, 0xEE));
  addRow(-5, Bytes(kPiece, 0xEE));
  const StreamStore store = open();
  EXPECT_EQ(store.read(store.find({"Large"}).value()), Bytes(6000, 7));
}

TEST_F(AccessObjects, MissingHeadIsDamage) {
  rows_.clear();
  addRow(1, piece(0));
  EXPECT_EQ(damageOf([&] { open(); }), "the table MSysAccessObjects has no head");
}

TEST_F(AccessObjects, TotalThatLiesIsDamage) {
  rows_.clear();
  addHead(0xFFFFFFFF);
  addRow(1, piece(0));
  EXPECT_EQ(damageOf([&] { open(); }), "the table MSysAccessObjects holds less than it says");
}

TEST_F(AccessObjects, NoPiecesAtAllAreDamage) {
  EXPECT_NE(damageOf([&] { open(); }), "");
}

TEST_F(AccessObjects, FirstPieceAloneIsDamage) {
  addRow(1, piece(0));
  EXPECT_NE(damageOf([&] { open(); }), "");
}

// Access 97: the code in a container per row, names in the page of the file's head.
class CatalogColumns : public testing::Test {
 protected:
  CatalogColumns() { builder_.addObject(2, "MSysObjects", 1, kSystem); }

  static Bytes entry(const std::string& name, const Bytes& bytes) {
    const Bytes wide = join({mdb::utf16(std::u16string(name.begin(), name.end())), Bytes{0, 0}});
    return join({Bytes{static_cast<std::uint8_t>(wide.size())}, wide,
                 le32(static_cast<std::uint32_t>(bytes.size())), bytes});
  }
  static Bytes container97(std::initializer_list<Bytes> entries) {
    return join({Bytes{0x69, 0x12, 4, 0, 1, 0, 0, 0}, join(entries)});
  }
  void addRow(const std::string& name, const Bytes& module, const std::string& form = {}) {
    rows_.push_back({mdb::ansi(name), builder_.longOnePage(module),
                     builder_.longInRow(bytesOf(form)), builder_.longInRow(bytesOf("info"))});
  }
  const mdb::Database& open() {
    builder_.addTable("MSysModules2",
                      {{"Name", 10, 64}, {"Module", 11}, {"Form", 11}, {"TypeInfo", 11}}, rows_,
                      kSystem);
    database_.emplace(built(builder_));
    return *database_;
  }

  mdb::FileBuilder builder_{true};
  std::vector<std::vector<Cell>> rows_;
  std::optional<mdb::Database> database_;
};

Bytes source(const std::string& name, const std::string& code) {
  return compressed("Attribute VB_Name = \"" + name + "\"\r\n" + code);
}

TEST_F(CatalogColumns, ModulesAndFormsWithCode) {
  builder_.addObject(20, "Main", -32761);
  builder_.addObject(21, "Orders", -32768);
  addRow("Main",
         container97({entry("__SRP_0", bytesOf("cache")),
                      entry("_VBA_MODULE", join({Bytes(5, 0xAA), source("Main", "A\r\n")}))}));
  addRow("Form_Orders", container97({entry("_VBA_MODULE", source("Form_Orders", "B\r\n"))}),
         "design");
  addRow("MSysDb",
         container97({entry("_VBA_PROJECT", bytesOf("cache")),
                      entry("dir", compressed(directory(
                                       {moduleRecords("Main", "_VBA_MODULE", 5, false),
                                        moduleRecords("Form_Orders", "_VBA_MODULE", 0, true)})))}));
  const mdb::Database& database = open();
  const VbaProject project = VbaProject::open(database);
  ASSERT_FALSE(project.damage()) << project.damage()->message();
  ASSERT_EQ(project.modules().size(), 2u);
  EXPECT_EQ(project.modules()[0].name, "Form_Orders");
  EXPECT_EQ(project.modules()[0].kind, ModuleKind::kForm);
  EXPECT_EQ(project.moduleText("Main"), "A\r\n");
  EXPECT_EQ(project.moduleText("Form_Orders"), "B\r\n");

  const ObjectTree tree = ObjectTree::open(database);
  EXPECT_TRUE(tree.hasModule(Container::kForms, "Orders"));
  EXPECT_FALSE(tree.hasModule(Container::kReports, "Orders"));
  EXPECT_TRUE(tree.hasModule(Container::kModules, "Main"));
  const StoredObject* form = tree.find(Container::kForms, "orders");
  ASSERT_NE(form, nullptr);
  EXPECT_EQ(tree.stream(*form, "Blob"), bytesOf("design"));
  EXPECT_EQ(tree.stream(*form, "TypeInfo"), bytesOf("info"));
}

// The head says 1252, the project 1251: the catalog's spelling of the name finds the module.
TEST_F(CatalogColumns, NameInAnotherCodePageThanTheHead) {
  const std::string name = "\xCC\xEE\xE4";
  builder_.addObject(20, name, -32761);
  addRow(name, container97({entry("_VBA_MODULE", source("x", "Print \"\xCC\"\r\n"))}));
  const Bytes directoryBytes = join({record(0x03, mdb::le16(1251)), record(0x19, mdb::ansi(name)),
                                     record(0x2B, {}), record(0x10, {})});
  addRow("MSysDb", container97({entry("dir", compressed(directoryBytes))}));
  const mdb::Database& database = open();
  ASSERT_EQ(database.modules().size(), 1u);
  const VbaProject project = VbaProject::open(database);
  EXPECT_EQ(project.moduleText(database.modules()[0].name), "Print \"М\"\r\n");
}

TEST_F(CatalogColumns, DatabaseWithoutTheTableIsEmpty) {
  database_.emplace(built(builder_));
  const VbaProject project = VbaProject::open(*database_);
  EXPECT_FALSE(project.damage());
  EXPECT_TRUE(project.modules().empty());
}

TEST_F(CatalogColumns, ContainerCutShortIsDamageOfOneModule) {
  Bytes cut = container97({entry("_VBA_MODULE", source("Bad", "B\r\n"))});
  cut.pop_back();
  addRow("Bad", cut);
  addRow("NoSignature", Bytes(40, 1));
  addRow("NoEntry", container97({entry("Other", {})}));
  addRow("Good", container97({entry("_VBA_MODULE", source("Good", "A\r\n"))}));
  const Bytes bytes = directory({moduleRecords("Bad", "_VBA_MODULE", 0, false),
                                 moduleRecords("NoSignature", "_VBA_MODULE", 0, false),
                                 moduleRecords("NoEntry", "_VBA_MODULE", 0, false),
                                 moduleRecords("NoRow", "_VBA_MODULE", 0, false),
                                 moduleRecords("Good", "_VBA_MODULE", 0, false)});
  addRow("MSysDb", container97({entry("dir", compressed(bytes))}));
  const VbaProject project = VbaProject::open(open());
  EXPECT_EQ(project.moduleText("Good"), "A\r\n");
  EXPECT_NE(damageOf([&] { project.moduleText("Bad"); }), "");
  EXPECT_EQ(damageOf([&] { project.moduleText("NoSignature"); }),
            "module \"NoSignature\": the module container lacks its signature");
  EXPECT_EQ(damageOf([&] { project.moduleText("NoEntry"); }),
            "module \"NoEntry\": the module container has no entry \"_VBA_MODULE\"");
  EXPECT_EQ(damageOf([&] { project.moduleText("NoRow"); }),
            "module \"NoRow\": its stream is missing");
}

}  // namespace
}  // namespace tarrowin::vba
