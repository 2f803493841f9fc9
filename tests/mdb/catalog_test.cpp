// The lists of objects, properties, query rows and relations.
// Files built by hand, and what is known of the samples.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "access/mdb/mdb_database.h"
#include "access/mdb/text.h"
#include "mdb/file_builder.h"
#include "mdb/sample_files.h"

namespace tarrowin::mdb {
namespace {

using testing::ElementsAre;

std::vector<std::string> names(const std::vector<CatalogObject>& objects) {
  std::vector<std::string> result;
  for (const CatalogObject& object : objects) result.push_back(object.name);
  return result;
}

Database open(FileBuilder& builder) { return Database::fromBytes(builder.build(), "built"); }

TEST(CompareNames, LettersWithoutCase) {
  EXPECT_EQ(compareIgnoringCase("Orders", "oRDERS"), 0);
  EXPECT_EQ(compareIgnoringCase("SESSÃO", "sessão"), 0);
  EXPECT_EQ(compareIgnoringCase("ЖУРНАЛ", "журнал"), 0);
  EXPECT_EQ(compareIgnoringCase("ΑΒΓ", "αβγ"), 0);
  EXPECT_EQ(compareIgnoringCase("ŁÓDŹ", "łódź"), 0);
  EXPECT_LT(compareIgnoringCase("a", "B"), 0);
  EXPECT_LT(compareIgnoringCase("ab", "ABC"), 0);
  EXPECT_GT(compareIgnoringCase("b", "A"), 0);
  EXPECT_NE(compareIgnoringCase("×", "÷"), 0);
  EXPECT_TRUE(nameLess("A", "a"));
  EXPECT_FALSE(nameLess("a", "A"));
}

TEST(Catalog, ListsByKindInTheOrderOfNames) {
  FileBuilder builder(false);
  builder.addTable("zebra", {{"Id", 4, 4, true}}, std::vector<std::vector<Cell>>{});
  builder.addTable("MSysQueries", {{"Id", 4, 4, true}}, std::vector<std::vector<Cell>>{},
                   0x80000000);
  builder.addTable("Apple", {{"Id", 4, 4, true}}, std::vector<std::vector<Cell>>{}, 8);
  builder.addObject(-100, "middle", 6, 0x200000, {}, ";DATABASE=C:\\other.mdb", "Middle");
  builder.addObject(-101, "odbc", 4, 0x100000, {}, "ODBC;DSN=x", "dbo.odbc");
  builder.addObject(1, "b", -32768);
  builder.addObject(2, "A", -32768);
  builder.addObject(3, "a", -32768);
  builder.addObject(4, "~TMPCLP123", -32768);
  builder.addObject(5, "Report", -32764);
  builder.addObject(6, "Macro", -32766);
  builder.addObject(7, "Module", -32761);
  builder.addObject(8, "Append", 5, 0x40);
  builder.addObject(9, "~sq_fA", 5, 3);
  builder.addObject(10, "Hidden", 5, 0x28);
  builder.addObject(11, "Rel", 8);
  builder.addObject(12, "Page", -32756);
  builder.addObject(13, "MSysDb", 2);
  builder.addObject(14, "SummaryInfo", -32757);
  builder.addObject(15, "Forms", 3);
  Database database = open(builder);
  EXPECT_THAT(names(database.tables()),
              ElementsAre("Apple", "middle", "MSysQueries", "odbc", "zebra"));
  EXPECT_THAT(names(database.objects(ObjectKind::kTable)),
              ElementsAre("Apple", "MSysQueries", "zebra"));
  EXPECT_THAT(names(database.forms()), ElementsAre("A", "a", "b"));
  EXPECT_THAT(names(database.reports()), ElementsAre("Report"));
  EXPECT_THAT(names(database.macros()), ElementsAre("Macro"));
  EXPECT_THAT(names(database.modules()), ElementsAre("Module"));
  EXPECT_THAT(names(database.queries()), ElementsAre("Append", "Hidden", "~sq_fA"));
  EXPECT_THAT(names(database.objects(ObjectKind::kDocument)), ElementsAre("MSysDb", "SummaryInfo"));
  EXPECT_THAT(names(database.objects(ObjectKind::kContainer)), ElementsAre("Forms"));
  EXPECT_THAT(names(database.objects(ObjectKind::kOther)), ElementsAre("Page", "Rel"));

  EXPECT_TRUE(database.findTable("MSysQueries")->isSystem());
  EXPECT_FALSE(database.findTable("Apple")->isSystem());
  EXPECT_TRUE(database.findTable("Apple")->isHidden());
  EXPECT_FALSE(database.findTable("zebra")->isHidden());
  EXPECT_EQ(database.findQuery("Append")->queryKind(), 0x40);
  EXPECT_EQ(database.findQuery("Hidden")->queryKind(), 0x20);
  EXPECT_TRUE(database.findQuery("Hidden")->isHidden());
  EXPECT_FALSE(database.findQuery("Append")->isHidden());
  EXPECT_TRUE(database.findQuery("~sq_fA")->isHidden());

  const CatalogObject& linked = *database.findTable("MIDDLE");
  EXPECT_EQ(linked.kind, ObjectKind::kLinkedTable);
  EXPECT_EQ(linked.connect, ";DATABASE=C:\\other.mdb");
  EXPECT_EQ(linked.foreignName, "Middle");
  EXPECT_TRUE(database.columns(linked).empty());
  EXPECT_FALSE(database.rows(linked).next());
  EXPECT_EQ(database.findTable("odbc")->connect, "ODBC;DSN=x");

  // An exact match comes first.
  EXPECT_EQ(database.find(ObjectKind::kForm, "a")->id, 3);
  EXPECT_EQ(database.find(ObjectKind::kForm, "A")->id, 2);
  EXPECT_EQ(database.find(ObjectKind::kForm, "B")->id, 1);
  EXPECT_EQ(database.find(ObjectKind::kForm, "c"), nullptr);
  EXPECT_EQ(database.find(ObjectKind::kForm, "a")->updated, Date{37258.5});
}

TEST(Catalog, VesselOfDesigns) {
  auto storage = [](bool jet3, std::vector<std::string> tables) {
    FileBuilder builder(jet3);
    for (const std::string& table : tables) {
      builder.addTable(table, {{"Id", 4, 4, true}}, std::vector<std::vector<Cell>>{}, 2);
    }
    return open(builder).designStorage();
  };
  EXPECT_EQ(storage(false, {}), DesignStorage::kNone);
  EXPECT_EQ(storage(false, {"MSysAccessObjects"}), DesignStorage::kAccessObjects);
  EXPECT_EQ(storage(false, {"MSysAccessStorage"}), DesignStorage::kAccessStorage);
  EXPECT_EQ(storage(false, {"MSysAccessObjects", "MSysAccessStorage"}),
            DesignStorage::kAccessStorage);
  // The copy that a later Access leaves in an Access 97 file does not count.
  EXPECT_EQ(storage(true, {"MSysAccessObjects"}), DesignStorage::kCatalog);
}

class Properties : public testing::TestWithParam<bool> {
 protected:
  static Bytes sized(const Bytes& bytes) {
    return join({le16(static_cast<std::uint32_t>(bytes.size())), bytes});
  }
  static Bytes block(std::uint32_t kind, const Bytes& body) {
    return join({le32(static_cast<std::uint32_t>(body.size() + 6)), le16(kind), body});
  }
  static Bytes owner(const Bytes& name) {
    return join({le32(static_cast<std::uint32_t>(name.size() + 6)), sized(name)});
  }
  static Bytes record(std::uint8_t type, std::uint32_t name, const Bytes& value) {
    return join(
        {le16(static_cast<std::uint32_t>(value.size() + 8)), {0, type}, le16(name), sized(value)});
  }
  Bytes signature() const { return GetParam() ? Bytes{'K', 'K', 'D', 0} : Bytes{'M', 'R', '2', 0}; }

  FileBuilder builder_{GetParam()};
};

INSTANTIATE_TEST_SUITE_P(IsJet3, Properties, testing::Values(true, false),
                         testing::PrintToStringParamName());

TEST_P(Properties, OfTheDatabaseAnObjectAndItsColumns) {
  Bytes blob = join(
      {signature(),
       block(0x80, join({sized(builder_.text("AccessVersion")), sized(builder_.text("AllowKeys")),
                         sized(builder_.text("Build")), sized(builder_.text("Caption"))})),
       block(0, join({owner({}), record(4, 2, le32(1121)), record(10, 0, builder_.text("08.50")),
                      record(1, 1, {1}), record(8, 3, leDouble(2.5)), record(9, 3, {1, 2})})),
       block(1, join({owner(builder_.text("Id")), record(12, 3, builder_.text("Number"))}))});
  builder_.addObject(1, "MSysDb", 2, 0, blob);
  builder_.addObject(2, "Bare", 5);
  Database database = open(builder_);
  const PropertyList& own = database.databaseProperties();
  ASSERT_EQ(own.size(), 5u);
  EXPECT_EQ(own[0].name, "Build");
  EXPECT_EQ(own[0].type, kDaoLong);
  EXPECT_EQ(own[0].value, Value(1121));
  EXPECT_EQ(own[1].value, Value("08.50"));
  EXPECT_EQ(own[2].value, Value(true));
  EXPECT_EQ(own[3].value, Value(Date{2.5}));
  EXPECT_EQ(own[4].value, Value(Bytes{1, 2}));
  ASSERT_NE(findProperty(own, "accessversion"), nullptr);
  EXPECT_EQ(findProperty(own, "StartUpForm"), nullptr);
  const PropertySet& set = database.properties(*database.find(ObjectKind::kDocument, "MSysDb"));
  ASSERT_EQ(set.parts.size(), 1u);
  EXPECT_EQ(set.parts[0].name, "Id");
  EXPECT_EQ(set.parts[0].properties.at(0).value, Value("Number"));
  EXPECT_TRUE(database.properties(*database.findQuery("Bare")).own.empty());
}

TEST_P(Properties, LengthsThatLie) {
  Bytes good = join({signature(), block(0x80, sized(builder_.text("A"))),
                     block(0, join({owner({}), record(4, 0, le32(1))}))});
  builder_.addObject(1, "Good", 5, 0, good);
  std::vector<Bytes> bad{join({{'X', 'R', '2', 0}, block(0, owner({}))}),
                         join({signature(), le32(1000), le16(0)}),
                         join({signature(), {1, 2, 3}}),
                         join({signature(), block(0, join({owner({}), record(4, 7, le32(1))}))}),
                         join({signature(), block(0x80, le16(500))}),
                         join({signature(), block(0x80, sized(builder_.text("A"))),
                               block(0, join({owner({}), le16(0), le16(0), le16(0), le16(0)}))})};
  for (std::size_t i = 0; i < bad.size(); ++i) {
    builder_.addObject(static_cast<std::int32_t>(i + 2), "Bad" + std::to_string(i), 5, 0, bad[i]);
  }
  Database database = open(builder_);
  for (std::size_t i = 0; i < bad.size(); ++i) {
    EXPECT_THROW(database.properties(*database.findQuery("Bad" + std::to_string(i))), Error) << i;
  }
  EXPECT_EQ(database.properties(*database.findQuery("Good")).own.at(0).value, Value(1));
}

const std::vector<BuiltColumn> kQueryColumns{{"ObjectId", 4, 4, true}, {"Attribute", 2, 1, true},
                                             {"Order", 9, 510},        {"Name1", 10, 510},
                                             {"Name2", 10, 510},       {"Expression", 12},
                                             {"Flag", 3, 2, true},     {"LvExtra", 4, 4, true}};

TEST(QueryRows, OfEachQueryItsOwn) {
  FileBuilder builder(false);
  builder.addObject(-7, "First", 5);
  builder.addObject(-8, "Second", 5);
  builder.addObject(-9, "Empty", 5);
  builder.addTable("MSysQueries", kQueryColumns,
                   {{le32(0xFFFFFFF9), Bytes{2}, Bytes{0, 1}, builder.text("Start Date"),
                     std::nullopt, std::nullopt, le16(10), le32(50)},
                    {le32(0xFFFFFFF8), Bytes{0}, std::nullopt, std::nullopt, std::nullopt,
                     std::nullopt, std::nullopt, std::nullopt},
                    {le32(0xFFFFFFF9), Bytes{255}, Bytes{}, std::nullopt, builder.text("Alias"),
                     builder.longInRow(builder.text("[a]>1")), le16(0xFFFF), std::nullopt}});
  Database database = open(builder);
  auto rows = database.queryRows(*database.findQuery("First"));
  ASSERT_EQ(rows.size(), 2u);
  EXPECT_EQ(rows[0].attribute, 2);
  EXPECT_EQ(rows[0].order, (Bytes{0, 1}));
  EXPECT_EQ(rows[0].name1, "Start Date");
  EXPECT_EQ(rows[0].name2, std::nullopt);
  EXPECT_EQ(rows[0].flag, 10);
  EXPECT_EQ(rows[0].extra, 50);
  EXPECT_EQ(rows[1].attribute, 255);
  EXPECT_EQ(rows[1].name2, "Alias");
  EXPECT_EQ(rows[1].expression, "[a]>1");
  EXPECT_EQ(rows[1].flag, -1);
  EXPECT_EQ(rows[1].extra, std::nullopt);
  EXPECT_EQ(database.queryRows(*database.findQuery("Second")).size(), 1u);
  EXPECT_TRUE(database.queryRows(*database.findQuery("Empty")).empty());
}

TEST(QueryRows, WithoutTheirTable) {
  FileBuilder builder(false);
  builder.addObject(-7, "First", 5);
  Database database = open(builder);
  EXPECT_THROW(database.queryRows(*database.findQuery("First")), Error);
}

TEST(QueryRows, Jet3HasNoExtraColumn) {
  FileBuilder builder(true);
  builder.addObject(-7, "First", 5);
  std::vector<BuiltColumn> columns(kQueryColumns.begin(), kQueryColumns.end() - 1);
  builder.addTable("MSysQueries", columns,
                   {{le32(0xFFFFFFF9), Bytes{1}, std::nullopt, std::nullopt, std::nullopt,
                     std::nullopt, le16(1)}});
  Database database = open(builder);
  auto rows = database.queryRows(*database.findQuery("First"));
  ASSERT_EQ(rows.size(), 1u);
  EXPECT_EQ(rows[0].flag, 1);
  EXPECT_EQ(rows[0].extra, std::nullopt);
}

const std::vector<BuiltColumn> kRelationColumns{
    {"szRelationship", 10, 510},     {"grbit", 4, 4, true},          {"ccolumn", 4, 4, true},
    {"icolumn", 4, 4, true},         {"szObject", 10, 510},          {"szColumn", 10, 510},
    {"szReferencedObject", 10, 510}, {"szReferencedColumn", 10, 510}};

std::vector<Cell> relationRow(const FileBuilder& builder, const std::string& name,
                              std::uint32_t count, std::uint32_t index, const std::string& column,
                              const std::string& oneSide = "Customers") {
  return {builder.text(name),    le32(0x1100),           le32(count),
          le32(index),           builder.text("Orders"), builder.text("F" + column),
          builder.text(oneSide), builder.text(column)};
}

TEST(Relations, PairsInTheirOrder) {
  FileBuilder builder(false);
  builder.addTable("MSysRelationships", kRelationColumns,
                   {relationRow(builder, "two", 2, 1, "B"), relationRow(builder, "One", 1, 0, "Id"),
                    relationRow(builder, "two", 2, 0, "A"),
                    relationRow(builder, "system", 1, 0, "Id", "MSysNavPaneGroups")});
  Database database = open(builder);
  const std::vector<Relation>& relations = database.relations();
  ASSERT_EQ(relations.size(), 2u);
  EXPECT_EQ(relations[0].name, "One");
  EXPECT_EQ(relations[0].table, "Customers");
  EXPECT_EQ(relations[0].foreignTable, "Orders");
  EXPECT_EQ(relations[0].attributes, 0x1100);
  EXPECT_EQ(relations[1].name, "two");
  ASSERT_EQ(relations[1].fields.size(), 2u);
  EXPECT_EQ(relations[1].fields[0].name, "A");
  EXPECT_EQ(relations[1].fields[0].foreignName, "FA");
  EXPECT_EQ(relations[1].fields[1].name, "B");
}

TEST(Relations, PairMissing) {
  FileBuilder builder(false);
  builder.addTable("MSysRelationships", kRelationColumns, {relationRow(builder, "two", 2, 1, "B")});
  EXPECT_THROW(open(builder).relations(), Error);
}

TEST(Relations, NoTable) {
  FileBuilder builder(false);
  EXPECT_TRUE(open(builder).relations().empty());
}

TEST(Samples97And2000, SameApplicationInBothFormats) {
  auto path97 = sampleDatabase("BalemAgenda97.mdb");
  auto path2000 = sampleDatabase("BalemAgenda2000.mdb");
  if (path97.empty() || path2000.empty()) GTEST_SKIP() << "no sample databases here";
  Database old = Database::open(path97);
  Database converted = Database::open(path2000);
  EXPECT_EQ(old.designStorage(), DesignStorage::kCatalog);
  EXPECT_EQ(converted.designStorage(), DesignStorage::kAccessObjects);
  EXPECT_EQ(names(old.forms()), names(converted.forms()));
  EXPECT_EQ(names(old.modules()), names(converted.modules()));
  EXPECT_EQ(names(old.queries()), names(converted.queries()));
  EXPECT_EQ(old.forms().size(), 5u);
  EXPECT_EQ(old.relations().size(), 4u);
  EXPECT_EQ(findProperty(old.databaseProperties(), "AccessVersion")->value, Value("07.53"));
  EXPECT_EQ(findProperty(converted.databaseProperties(), "AccessVersion")->value, Value("08.50"));
  EXPECT_EQ(findProperty(converted.databaseProperties(), "StartUpForm")->value, Value("frmShift"));
  for (const CatalogObject& query : old.queries()) {
    const CatalogObject* twin = converted.findQuery(query.name);
    ASSERT_NE(twin, nullptr);
    EXPECT_EQ(old.queryRows(query).size(), converted.queryRows(*twin).size()) << query.name;
    EXPECT_GE(old.queryRows(query).size(), 4u);
  }
}

TEST(Samples97And2000, CountsOfTheInventory) {
  struct Counts {
    const char* file;
    std::size_t tables, linked, queries, forms, reports, macros, modules, relations;
  };
  constexpr Counts kCounts[]{
      {"MinimizaApp.mdb", 0, 0, 0, 0, 0, 1, 1, 0},
      {"CodBarra39Etiquetas.mdb", 1, 0, 0, 1, 1, 0, 3, 0},
      {"BalemAgenda2000.mdb", 5, 0, 4, 5, 0, 0, 7, 4},
      {"TestDB.mdb", 2, 2, 1, 3, 1, 2, 2, 1},
      {"asvnTest2003.mdb", 3, 0, 0, 3, 1, 1, 2, 2},
      {"Reports.mdb", 4, 0, 2, 6, 14, 0, 2, 1},
  };
  for (const Counts& counts : kCounts) {
    auto path = sampleDatabase(counts.file);
    if (path.empty()) GTEST_SKIP() << "no sample databases here";
    SCOPED_TRACE(counts.file);
    Database database = Database::open(path);
    std::size_t tables = 0;
    for (const CatalogObject& table : database.objects(ObjectKind::kTable)) {
      tables += table.isSystem() ? 0 : 1;
    }
    std::size_t queries = 0;
    for (const CatalogObject& query : database.queries()) queries += query.name[0] == '~' ? 0 : 1;
    EXPECT_EQ(tables, counts.tables);
    EXPECT_EQ(database.objects(ObjectKind::kLinkedTable).size(), counts.linked);
    EXPECT_EQ(queries, counts.queries);
    EXPECT_EQ(database.forms().size(), counts.forms);
    EXPECT_EQ(database.reports().size(), counts.reports);
    EXPECT_EQ(database.macros().size(), counts.macros);
    EXPECT_EQ(database.modules().size(), counts.modules);
    EXPECT_EQ(database.relations().size(), counts.relations);
  }
}

}  // namespace
}  // namespace tarrowin::mdb
