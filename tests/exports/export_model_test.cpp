// Folders of exports as databases.
#include <filesystem>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "access/database_source.h"
#include "access/exports/database_facts.h"
#include "access/model/object_keeper.h"
#include "exports/export_files.h"

namespace tarrowin::exports {
namespace {

std::unique_ptr<DatabaseModel> opened(const ExportFolder& folder) {
  return openDatabaseFile(folder.path(), CodePage());
}

Value propertyOf(const DatabaseModel& model, const PropertyBag& bag, std::string_view name) {
  const NameId key = model.names.find(name);
  const Recorded<Value>* const found = key == kNoName ? nullptr : bag.valueOf(key);
  return found ? found->read(name) : Value("(none)");
}
Value propertyOf(const DatabaseModel& model, std::string_view name) {
  return propertyOf(model, model.properties, name);
}

template <class Action>
std::string errorOf(Action action) {
  try {
    action();
  } catch (const VbError& error) {
    return std::to_string(error.number()) + " " + error.description();
  }
  return "";
}

std::string failureOf(const std::string& path, bool designsFromExports = false) {
  try {
    openDatabaseFile(path, CodePage(), nullptr, designsFromExports);
  } catch (const OpenFailure& failure) {
    return std::to_string(failure.number()) + " " + failure.reason();
  }
  return "";
}

TEST(ExportModel, ObjectsAreReadWhenTheyAreAskedFor) {
  const ExportFolder folder;
  folder.write("forms/good.bas", std::string(kSmallForm) + std::string(kFormCode))
      .write("forms/bad.bas", "Version =20\nBegin Form\n")
      .write("queries/q.bas", "dbMemo \"SQL\" =\"SELECT 1;\\015\\012\"\n")
      .write("queries/bad.bas", "Operation =1\nBegin InputTables\n")
      .write("macros/m.bas", "Version =0\nColumnsShown =0\nBegin\n    Action =\"Beep\"\nEnd\n")
      .write("macros/bad.bas", "Version =0\nBegin\n")
      .write("modules/x.bas", "Option Explicit\nSub a()\n");
  const auto model = opened(folder);
  ASSERT_EQ(model->forms.size(), 2u);
  const DesignModel& good = *model->forms.find("good", model->folding);
  EXPECT_EQ(good.body.get()->controls.size(), 2u);
  EXPECT_TRUE(good.module.get()->ends_with("Private Sub Form_Load()\r\nEnd Sub\r\n"));
  EXPECT_EQ(good.countOfLines.get(), 4);
  EXPECT_EQ(
      errorOf([&] { model->forms.find("bad", model->folding)->body.get(); }),
      "2601 Microsoft Access can't open the form 'bad'. forms/bad.bas: line 2: a block without "
      "\"End\".");
  EXPECT_EQ(model->queries.find("q", model->folding)->sql.get().read("SQL"), "SELECT 1;\r\n");
  EXPECT_EQ(errorOf([&] { model->queries.find("bad", model->folding)->sql.get(); }),
            "3049 queries/bad.bas: line 2: a block without \"End\".");
  EXPECT_EQ(model->macros.find("m", model->folding)->actions.get().at(0).action, "Beep");
  EXPECT_EQ(errorOf([&] { model->macros.find("bad", model->folding)->actions.get(); }),
            "3049 macros/bad.bas: line 2: a row without \"End\".");
  EXPECT_EQ(model->modules[0].text.get(), "Option Explicit\r\nSub a()\r\n");
  EXPECT_EQ(model->modules[0].countOfLines.get(), 2);
}

TEST(ExportModel, FileThatDisappearsIsAnErrorOfItsObject) {
  const ExportFolder folder;
  folder.write("forms/a.bas", kSmallForm).write("forms/b.bas", kSmallForm);
  const auto model = opened(folder);
  std::filesystem::remove(folder.path("forms/a.bas"));
  EXPECT_EQ(errorOf([&] { model->forms[0].body.get(); }),
            "2601 Microsoft Access can't open the form 'a'. forms/a.bas: cannot be read.");
  EXPECT_EQ(model->forms[1].body.get()->controls.size(), 2u);
}

TEST(ExportModel, SplitCode) {
  const ExportFolder folder;
  folder.write("forms/a.bas", std::string(kSmallForm) + "CodeBehindForm\n' See \"a.cls\"\n")
      .write("forms/a.cls", std::string(kFormCode).substr(15))
      .write("forms/b.form", kSmallForm)
      .write("forms/b.cls", std::string(kFormCode).substr(15))
      .write("forms/c.bas", std::string(kSmallForm) + "CodeBehindForm\n' See \"c.cls\"\n")
      .write("forms/d.bas", kSmallForm);
  const auto model = opened(folder);
  for (const std::size_t i : {0u, 1u}) {
    EXPECT_TRUE(
        model->forms[i].module.get()->starts_with("Attribute VB_GlobalNameSpace = False\r\n"));
    EXPECT_EQ(model->forms[i].countOfLines.get(), 4);
  }
  EXPECT_EQ(errorOf([&] { model->forms[2].module.get(); }),
            "53 forms/c.bas: the file with its code is missing.");
  EXPECT_FALSE(model->forms[3].module.get());
}

TEST(ExportModel, EncodingsOfOneFolderMayDiffer) {
  const ExportFolder folder;
  folder.write("queries/a.bas", utf16("dbMemo \"SQL\" =\"SELECT 1;\"\r\n"))
      .write("queries/b.bas",
             "\xEF\xBB\xBF"
             "dbMemo \"SQL\" =\"SELECT 'Gr\xC3\xB6\xC3\x9F"
             "e';\"\r\n")
      .write("queries/c.bas",
             "dbMemo \"SQL\" =\"SELECT 'Gr\xF6\xDF"
             "e';\"\r\n")
      .write("queries/d.bas",
             "dbMemo \"SQL\" =\"SELECT 'Gr\xC3\xB6\xC3\x9F"
             "e';\"\r\n");
  const auto model = opened(folder);
  EXPECT_EQ(model->queries[0].sql.get().read("SQL"), "SELECT 1;");
  for (const std::size_t i : {1u, 2u, 3u})
    EXPECT_EQ(model->queries[i].sql.get().read("SQL"),
              "SELECT 'Gr\xF6\xDF"
              "e';");
}

TEST(ExportModel, DatabaseProperties) {
  const ExportFolder folder;
  folder.write("forms/a.bas", kSmallForm)
      .write("dbs-properties.json",
             "{\"Info\": {\"Class\": \"x\"}, \"Items\": {"
             "\"AccessVersion\": {\"Value\": \"08.50\", \"Type\": 10},"
             "\"StartUpForm\": {\"Value\": \"Form.a\", \"Type\": 10},"
             "\"AllowFullMenus\": {\"Value\": true, \"Type\": 1},"
             "\"Build\": {\"Value\": 720, \"Type\": 4},"
             "\"Name\": {\"Value\": \"rel:Sales.mdb\", \"Type\": 12},"
             "\"Version\": {\"Value\": \"4.0\", \"Type\": 12}}}")
      .write("vbe-references.json",
             "{\"Items\": {\"DAO\": {\"GUID\": \"{4AC9}\", \"Version\": \"12.1\"},"
             "\"Mine\": {\"FullPath\": \"C:\\\\x.mda\"}}}");
  const auto model = opened(folder);
  EXPECT_EQ(propertyOf(*model, "AccessVersion"), Value("08.50"));
  EXPECT_EQ(propertyOf(*model, "StartUpForm"), Value("Form.a"));
  EXPECT_EQ(propertyOf(*model, "AllowFullMenus"), Value(true));
  EXPECT_EQ(propertyOf(*model, "Build"), Value(720));
  EXPECT_EQ(model->version, "4.0");
  EXPECT_TRUE(model->name.ends_with("/Shop/Sales.mdb")) << model->name;
  ASSERT_EQ(model->references.size(), 2u);
  EXPECT_EQ(propertyOf(*model, model->references[0], "Name"), Value("DAO"));
  EXPECT_EQ(propertyOf(*model, model->references[0], "Guid"), Value("{4AC9}"));
  EXPECT_EQ(propertyOf(*model, model->references[0], "Major"), Value(12));
  EXPECT_EQ(propertyOf(*model, model->references[0], "Minor"), Value(1));
  EXPECT_EQ(propertyOf(*model, model->references[1], "FullPath"), Value("C:\\x.mda"));
}

TEST(ExportModel, AccessVersionIsWorkedOutWhereItIsMissing) {
  const auto versionWith = [](std::string_view form, std::string_view project) {
    const ExportFolder folder;
    folder.write("forms/a.bas", form);
    if (!project.empty()) folder.write("project.json", project);
    return toText(propertyOf(*opened(folder), "AccessVersion"));
  };
  const std::string begin = "\nBegin Form\nEnd\n";
  EXPECT_EQ(versionWith("Version =17" + begin, ""), "07.53");
  EXPECT_EQ(versionWith("Version =19" + begin, ""), "08.50");
  EXPECT_EQ(versionWith("Version =20" + begin, ""), "09.50");
  EXPECT_EQ(versionWith("Version =17" + begin, "{\"Items\": {\"FileFormat\": 9}}"), "08.50");
  EXPECT_EQ(versionWith("Version =20" + begin, "{\"Items\": {\"FileFormat\": 8}}"), "07.53");
  EXPECT_EQ(versionWith("Version =17" + begin, "{\"Items\": {\"FileFormat\": 12}}"), "09.50");
  EXPECT_EQ(versionWith("Version =17" + begin, "{\"Items\": damaged"), "07.53");
}

TEST(ExportModel, RelationsOfEachForm) {
  const ExportFolder folder;
  folder
      .write("relations/a.json",
             "{\"Items\": {\"Name\": \"ab\", \"Attributes\": 2, \"Table\": \"a\", "
             "\"ForeignTable\": \"b\","
             "\"Fields\": [{\"Name\": \"x\", \"ForeignName\": \"y\"}]}}")
      .write("relations/b.txt",
             "4096\r\ncd\r\nc\r\nd\r\nField = Begin\r\nx\r\ny\r\nEnd\r\n"
             "Field = Begin\r\nz\r\nw\r\nEnd\r\n")
      .write("relations/c.txt", "0\nMSysX\nc\nd\n")
      .write("relations/d.txt", "0\n")
      .write("forms/a.bas", kSmallForm)
      .write("__RELATIONS__.xml",
             "<root><dataroot><r><RelName>ef</RelName><RelTable>e</RelTable><RelForeignTable>f"
             "</RelForeignTable><RelFieldName>1</RelFieldName><RelForeignFieldName>2"
             "</RelForeignFieldName></r></dataroot></root>");
  const auto model = opened(folder);
  ASSERT_EQ(model->relations.size(), 3u);
  EXPECT_EQ(model->relations[0].table, "a");
  EXPECT_EQ(model->relations[0].fields.at(0).foreignName, "y");
  EXPECT_EQ(model->relations[1].name, "cd");
  ASSERT_EQ(model->relations[1].fields.size(), 2u);
  EXPECT_EQ(model->relations[1].fields[1].name, "z");
  EXPECT_EQ(model->relations[2].foreignTable, "f");
}

TEST(ExportModel, TablesAndTheirRows) {
  const ExportFolder folder;
  folder.write("tbldefs/t.sql", "CREATE TABLE [t] (\n  [id] LONG,\n  [name] VARCHAR (20)\n)\n")
      .write("tables/t.txt", "id\tname\n7\tx\n")
      .write("tbldefs/l.json",
             "{\"Items\": {\"Name\": \"l\", \"Connect\": \";DATABASE=C:\\\\x.mdb\"}}")
      .write("tbldefs/o.LNKD", "o\r\nODBC;DSN=y\r\nsource\r\n\r\n")
      .write("tbldefs/bad.sql", "CREATE TABLE [bad] (\n  [id] HOLOGRAM\n)\n");
  const auto model = opened(folder);
  ASSERT_EQ(model->tables.size(), 4u);
  EXPECT_EQ(errorOf([&] { model->tables[0].fields.get(); }),
            "3049 tbldefs/bad.sql: line 2: the type of the field \"id\" is not known.");
  EXPECT_EQ(model->tables[1].connect, ";DATABASE=C:\\x.mdb");
  EXPECT_TRUE(model->tables[1].fields.get().empty());
  EXPECT_EQ(model->tables[2].connect, "ODBC;DSN=y");
  const TableModel& table = model->tables[3];
  EXPECT_EQ(table.connect, "");
  EXPECT_EQ(table.fields.get().at(1).size, 20);
  const auto rows = table.openRows();
  ASSERT_TRUE(rows->next());
  EXPECT_EQ(rows->cell(0).read("id"), Value(7));
}

TEST(ExportModel, PassThroughQueryOfAnSqlFile) {
  const ExportFolder folder;
  folder.write("queries/p.sql", "EXEC p")
      .write("queries/p.json", "{\"Items\": {\"Connect\": \"ODBC;\"}}");
  const auto model = opened(folder);
  EXPECT_EQ(model->queries[0].sql.get().read("SQL"), "EXEC p");
  EXPECT_EQ(model->queries[0].connect.get(), "ODBC;");
}

TEST(ExportModel, PathOfTheDatabase) {
  const ExportFolder folder;
  folder.write("a", "").write("source/x", "").write("Old.src/x", "");
  EXPECT_TRUE(databasePathOf(folder.path()).ends_with("/Shop/Orders.mdb"));
  EXPECT_TRUE(databasePathOf(folder.path("Old.src")).ends_with("/Old.mdb"));
  EXPECT_TRUE(
      databasePathOf(folder.path("source")).ends_with("/Orders.mdb.src/Orders.mdb.src.mdb"));
  folder.write("One.mdb", "");
  EXPECT_TRUE(databasePathOf(folder.path("source")).ends_with("/Orders.mdb.src/One.mdb"));
  EXPECT_TRUE(databasePathOf(folder.path("a.form")).ends_with("/a.mdb"));
}

// Listing reads the heads of files alone; a broken one among many costs nothing but itself.
TEST(ExportModel, ThousandsOfObjects) {
  const ExportFolder folder;
  constexpr int kCount = 2000;
  for (int i = 0; i < kCount; ++i)
    folder.write("forms/f" + std::to_string(i) + ".bas",
                 i == 77 ? std::string_view("Version =20\n0x01\n") : kSmallForm);
  const auto model = opened(folder);
  ASSERT_EQ(model->forms.size(), std::size_t{kCount});
  EXPECT_THROW(model->forms.find("f77", model->folding)->body.get(), VbError);
  EXPECT_EQ(model->forms.find("f78", model->folding)->body.get()->controls.size(), 2u);
}

TEST(ExportOpening, SingleFile) {
  const ExportFolder folder;
  folder.write("a.form", kSmallForm);
  const auto model = openDatabaseFile(folder.path("a.form"), CodePage());
  EXPECT_EQ(model->forms.size(), 1u);
  EXPECT_EQ(model->forms[0].name, "a");
  EXPECT_EQ(propertyOf(*model, "AccessVersion"), Value("09.50"));
}

TEST(ExportOpening, WhatIsNeitherRaisesAsBefore) {
  const ExportFolder folder;
  folder.write("readme.txt", "Dear reader\n");
  EXPECT_EQ(failureOf(folder.path()), "-2147467259 is a directory");
  EXPECT_EQ(failureOf(folder.path("none")), "-2147467259 the file does not exist");
  EXPECT_NE(failureOf(folder.path("readme.txt")), "");
}

TEST(ExportOpening, NewObjectsLieBesideTheFolderHoweverItIsNamed) {
  const ExportFolder folder;
  folder.write("forms/a.bas", kSmallForm);
  const std::filesystem::path kept = folder.path() + ".tarrowin.access.json";
  const auto keepModule = [&](const std::string& path, const std::string& name) {
    const auto model = openDatabaseFile(path, CodePage());
    ModuleModel module;
    module.name = name;
    model->keeper->keepModule(module);
  };
  keepModule(folder.path() + "/", "one");
  EXPECT_TRUE(std::filesystem::exists(kept));
  keepModule(folder.path() + "/.", "two");
  keepModule(folder.path() + "/forms/..", "three");
  EXPECT_EQ(opened(folder)->modules.size(), 3u);
  std::size_t inside = 0;
  for ([[maybe_unused]] const auto& entry :
       std::filesystem::recursive_directory_iterator(folder.path()))
    ++inside;
  EXPECT_EQ(inside, 2u);
}

TEST(ExportOpening, DesignsBesideADatabaseMustBeThere) {
  const std::filesystem::path samples = sampleExports().parent_path();
  if (samples.empty()) GTEST_SKIP() << "no samples";
  const std::filesystem::path sample = samples / "mdb/MattFisher__AccessVCS/TestDB.mdb";
  const ExportFolder folder;
  folder.write("x", "");
  std::filesystem::copy_file(sample, folder.path("TestDB.mdb"));
  EXPECT_EQ(failureOf(folder.path("TestDB.mdb"), true),
            "-2147467259 there are no exported designs beside it");
  folder.write("TestDB.src/forms/TestTasksFrm.bas", kSmallForm)
      .write("TestDB.src/forms/Unknown.bas", kSmallForm)
      .write("TestDB.src/macros/ImportDatabaseMac.bas",
             "Version =0\nColumnsShown =0\nBegin\n    Action =\"Beep\"\nEnd\n");
  const auto model = openDatabaseFile(folder.path("TestDB.mdb"), CodePage(), nullptr, true);
  EXPECT_EQ(model->forms.size(), 3u);
  EXPECT_EQ(model->forms.find("TestTasksFrm", model->folding)->body.get()->controls.size(), 2u);
  EXPECT_EQ(model->macros.find("ImportDatabaseMac", model->folding)->actions.get().size(), 1u);
}

}  // namespace
}  // namespace tarrowin::exports
