// The designs of real databases: every one is read to its last byte, and nearly all that is stored
// in them is understood.
#include <filesystem>
#include <iostream>
#include <map>
#include <optional>
#include <string>

#include <gtest/gtest.h>

#include "access/design_blob/design_streams.h"
#include "access/design_blob/object_types.h"
#include "access/design_blob/record_reader.h"
#include "access/design_blob/slot_table.h"
#include "access/mdb/mdb_database.h"
#include "access/vba/vba_project.h"
#include "mdb/sample_files.h"

namespace tarrowin {
namespace {

namespace fs = std::filesystem;
using Counts = std::map<std::int32_t, std::size_t>;  // designs by version

// One database with everything that reads designs from it.
class SampleDatabase {
 public:
  explicit SampleDatabase(const fs::path& path)
      : database_(open(path)), objects_(vba::ObjectTree::open(database_)) {}

  StoredDesign read(vba::Container container, const std::string& name) const {
    return readStoredDesign(objects_, container, name, ansi_, utf8_);
  }
  // Calls back with each design's bytes and what was read from them.
  template <class Action>
  void forEach(Action action) const {
    const auto all = [&](vba::Container container, const auto& objects) {
      for (const mdb::CatalogObject& object : objects) {
        SCOPED_TRACE(object.name);
        const vba::StoredObject* const stored = objects_.find(container, object.name);
        ASSERT_NE(stored, nullptr);
        action(object.name, objects_.stream(*stored, "Blob").value(), read(container, object.name));
      }
    };
    all(vba::Container::kForms, database_.forms());
    all(vba::Container::kReports, database_.reports());
  }

 private:
  static mdb::Database open(const fs::path& path) {
    mdb::Options options;
    options.allowNewerFormat = true;
    return mdb::Database::open(path.string(), options);
  }

  mdb::Database database_;
  vba::ObjectTree objects_;
  Lazy<CodePage> ansi_{CodePage(CodePage::kWestern)};
  CodePage utf8_{CodePage::kUtf8};
};

class SampleDesigns : public testing::Test {
 protected:
  void SetUp() override {
    if (mdb::sampleDatabases().empty()) GTEST_SKIP() << "no sample databases here";
  }
};

// Records whose meaning no table tells, by code, walking over the bytes once more.
void countUnknown(RecordReader& records, std::map<std::uint16_t, std::size_t>& byCode) {
  const Numbering numbering = objectType(records.beginObject()).numbering;
  Record record;
  while (records.next(record))
    if (!findSlot(numbering, record.id) && keywordOfCode(record.code).empty())
      ++byCode[record.code];
  for (std::size_t left = records.objectsInside(); left > 0; --left) countUnknown(records, byCode);
}

struct Totals {
  std::size_t designs = 0;
  Understood understood;
  std::map<std::uint16_t, std::size_t> unknownByCode;

  void add(const Bytes& blob, const StoredDesign& design) {
    ++designs;
    understood.controls += design.understood.controls;
    understood.controlsKnown += design.understood.controlsKnown;
    understood.properties += design.understood.properties;
    understood.propertiesKnown += design.understood.propertiesKnown;
    RecordReader records(blob);
    countUnknown(records, unknownByCode);
    EXPECT_TRUE(records.atEnd());
  }
  std::size_t unknown() const { return understood.properties - understood.propertiesKnown; }
};

TEST_F(SampleDesigns, EveryDesignIsReadToItsLastByte) {
  std::map<bool, Totals> totals;  // by: of Access 2002 and later
  for (const fs::path& path : mdb::sampleDatabases(true)) {
    SCOPED_TRACE(path);
    SampleDatabase(path).forEach(
        [&](const std::string&, const Bytes& blob, const StoredDesign& design) {
          totals[design.version >= 20].add(blob, design);
        });
  }
  for (const auto& [isLater, total] : totals) {
    const Understood& known = total.understood;
    std::cout << (isLater ? "Access 2002 and later: " : "Access 97 and 2000: ") << total.designs
              << " designs, understood " << known.controlsKnown << " of " << known.controls
              << " controls, " << known.propertiesKnown << " of " << known.properties
              << " stored properties\n";
    EXPECT_EQ(known.controlsKnown, known.controls);
  }
  EXPECT_EQ(totals[false].designs, 18u);
  EXPECT_EQ(totals[true].designs, 29u);
  EXPECT_EQ(totals[false].unknown(), 0u);
  // All that is not understood has the code 0, under which Access keeps what is no property: its
  // own text exports have nothing at that place.
  EXPECT_EQ(totals[true].unknownByCode.size(), 1u);
  EXPECT_EQ(totals[true].unknownByCode[0], totals[true].unknown());
  EXPECT_LT(totals[true].unknown() * 100, 3 * totals[true].understood.properties);
}

// The versions that the first word of each design has.
TEST_F(SampleDesigns, VersionsOfEachDatabase) {
  const std::map<std::string, Counts> expected{{"BalemAgenda97.mdb", {{17, 5}}},
                                               {"CodBarra39Etiquetas.mdb", {{17, 2}}},
                                               {"BalemAgenda2000.mdb", {{17, 5}}},
                                               {"TestDB.mdb", {{19, 4}}},
                                               {"CodBarra39Etiquetas_2003.mdb", {{17, 2}}},
                                               {"asvnTest2003.mdb", {{20, 4}}},
                                               {"Reports.mdb", {{20, 20}}},
                                               {"Testing.accdb", {{20, 3}}},
                                               {"demo.accdb", {{20, 2}}},
                                               {"MinimizaApp.mdb", {}},
                                               {"MinimizaApp_2003.mdb", {}}};
  for (const auto& [name, versions] : expected) {
    SCOPED_TRACE(name);
    const fs::path path = mdb::sampleDatabase(name);
    ASSERT_FALSE(path.empty());
    Counts found;
    SampleDatabase(path).forEach([&](const std::string&, const Bytes&, const StoredDesign& design) {
      ++found[design.version];
    });
    EXPECT_EQ(found, versions);
  }
}

std::optional<Value> property(const StoredBlock& block, std::string_view keyword) {
  for (const StoredProperty& stored : block.properties)
    if (stored.keyword == keyword)
      if (const Value* const value = std::get_if<Value>(&stored.value)) return *value;
  return std::nullopt;
}

// Style blocks, group levels and sections, in this order; controls and sections have names.
TEST_F(SampleDesigns, ShapeOfEveryTree) {
  enum Part { kStyle, kLevel, kSection };
  const auto partOf = [](const std::string& kind) {
    if (kind == "BreakLevel") return kLevel;
    const bool isSection =
        kind == "Section" || kind.ends_with("Header") || kind.ends_with("Footer");
    return isSection ? kSection : kStyle;
  };
  for (const fs::path& path : mdb::sampleDatabases(true)) {
    SCOPED_TRACE(path);
    SampleDatabase(path).forEach([&](const std::string&, const Bytes&, const StoredDesign& design) {
      Part reached = kStyle;
      std::size_t details = 0;
      for (const StoredBlock& block : design.root.children) {
        const Part part = partOf(block.kind);
        EXPECT_GE(part, reached) << block.kind;
        reached = part;
        EXPECT_EQ(property(block, "Name").has_value(), part == kSection) << block.kind;
        EXPECT_TRUE(part == kSection || block.children.empty()) << block.kind;
        details += block.kind == "Section" ? 1 : 0;
        for (const StoredBlock& control : block.children)
          EXPECT_TRUE(property(control, "Name")) << control.kind;
      }
      EXPECT_EQ(details, 1u);
    });
  }
}

// The same application, converted from 97 to 2003 and never saved there.
TEST_F(SampleDesigns, ConvertedDatabaseHoldsTheSameDesigns) {
  const auto old = mdb::sampleDatabase("CodBarra39Etiquetas.mdb");
  const auto converted = mdb::sampleDatabase("CodBarra39Etiquetas_2003.mdb");
  if (old.empty() || converted.empty()) GTEST_SKIP() << "the two databases are not here";
  std::map<std::string, Bytes> blobs;
  SampleDatabase(old).forEach(
      [&](const std::string& name, const Bytes& blob, const StoredDesign&) { blobs[name] = blob; });
  std::size_t same = 0;
  SampleDatabase(converted).forEach(
      [&](const std::string& name, const Bytes& blob, const StoredDesign& design) {
        EXPECT_TRUE(design.hasModule);
        same += blobs.at(name) == blob ? 1 : 0;
      });
  EXPECT_EQ(same, blobs.size());
}

// Beside its text export, which has these lines.
TEST_F(SampleDesigns, FormAsItsTextExportHasIt) {
  const auto path = mdb::sampleDatabase("TestDB.mdb");
  if (path.empty()) GTEST_SKIP() << "the database is not here";
  const StoredDesign form = SampleDatabase(path).read(vba::Container::kForms, "TestTasksFrm");
  EXPECT_FALSE(form.hasModule);
  EXPECT_EQ(property(form.root, "RecordSource"), Value("Tasks"));
  EXPECT_EQ(property(form.root, "Width"), Value(std::int32_t{7021}));
  ASSERT_EQ(form.root.children.size(), 3u);
  const StoredBlock& detail = form.root.children[2];
  EXPECT_EQ(property(detail, "BackColor"), Value(std::int32_t{-2147483633}));
  const StoredBlock& box = detail.children.at(0);
  EXPECT_EQ(box.kind, "TextBox");
  EXPECT_EQ(property(box, "Name"), Value("TaskID"));
  EXPECT_EQ(property(box, "Left"), Value(std::int32_t{1927}));
  EXPECT_EQ(property(box.children.at(0), "Caption"), Value("Task ID"));
}

}  // namespace
}  // namespace tarrowin
