// Real databases, table by table against the mdbtools programs.
// Skipped where the samples or the programs are absent.
#include <gtest/gtest.h>

#include "access/mdb/mdb_database.h"
#include "mdb/mdbtools_check.h"
#include "mdb/sample_files.h"

namespace tarrowin::mdb {
namespace {

class Samples : public testing::Test {
 protected:
  void SetUp() override {
    if (sampleDatabases().empty()) GTEST_SKIP() << "no sample databases here";
    if (!haveMdbTools()) GTEST_SKIP() << "the mdbtools programs are not installed";
  }

  // Newer files share most of the format: more cases for the same code.
  template <class Check>
  void forEachDatabase(Check check) {
    Options options;
    options.allowNewerFormat = true;
    for (const auto& path : sampleDatabases(true)) {
      SCOPED_TRACE(path.filename());
      check(Database::open(path, options), path);
    }
  }

  template <class Check>
  void forEachTable(Check check) {
    forEachDatabase([&](const Database& database, const std::filesystem::path& path) {
      for (const CatalogObject& table : database.objects(ObjectKind::kTable)) {
        SCOPED_TRACE(table.name);
        check(database, table, path);
      }
    });
  }
};

TEST_F(Samples, TablesAsMdbTables) { forEachDatabase(expectSameTables); }

TEST_F(Samples, ColumnsAsMdbSchema) { forEachTable(expectSameColumns); }

TEST_F(Samples, RowsAsMdbExport) { forEachTable(expectSameRows); }

// By the text exports that lie beside these files.
class TextExports : public testing::Test {
 protected:
  Database open(const std::string& name) {
    Options options;
    options.allowNewerFormat = true;
    return Database::open(sampleDatabase(name), options);
  }
};

TEST_F(TextExports, ColumnsInTheOrderOfDisplay) {
  if (sampleDatabase("demo.accdb").empty()) GTEST_SKIP() << "no sample databases here";
  Database database = open("demo.accdb");
  const auto& columns = database.columns(*database.findTable("people"));
  ASSERT_EQ(columns.size(), 3u);  // stored in another order
  EXPECT_EQ(columns[0].name, "id");
  EXPECT_TRUE(columns[0].autoNumber);
  EXPECT_EQ(columns[1].name, "full_name");
  EXPECT_EQ(columns[1].size, 100);
  EXPECT_EQ(columns[2].name, "favorite_color");
}

TEST_F(TextExports, RelationAndLinkedTables) {
  if (sampleDatabase("Testing.accdb").empty()) GTEST_SKIP() << "no sample databases here";
  Database database = open("Testing.accdb");
  ASSERT_EQ(database.relations().size(), 1u);
  const Relation& relation = database.relations()[0];
  EXPECT_EQ(relation.name, "tblInternaltblSaveXML");
  EXPECT_EQ(relation.attributes, 2);
  EXPECT_EQ(relation.table, "tblInternal");
  EXPECT_EQ(relation.foreignTable, "tblSaveXML");
  ASSERT_EQ(relation.fields.size(), 1u);
  EXPECT_EQ(relation.fields[0].name, "ObjectType");
  EXPECT_EQ(relation.fields[0].foreignName, "ObjectType");
  const CatalogObject* linked = database.findTable("tblLinkedAccess");
  ASSERT_NE(linked, nullptr);
  EXPECT_EQ(linked->kind, ObjectKind::kLinkedTable);
  EXPECT_EQ(linked->foreignName, "tblInternal");
  EXPECT_EQ(database.findTable("tblLinkedCSV")->connect.substr(0, 5), "Text;");
}

}  // namespace
}  // namespace tarrowin::mdb
