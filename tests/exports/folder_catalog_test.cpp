// What is found in folders of different layouts.
#include "access/exports/folder_catalog.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "access/exports/object_names.h"
#include "exports/export_files.h"

namespace tarrowin::exports {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

template <class List>
std::vector<std::string> namesOf(const List& list) {
  std::vector<std::string> names;
  for (const auto& each : list) names.push_back(each.name);
  return names;
}

constexpr std::string_view kReportText = "Version =20\nVersionRequired =20\nBegin Report\nEnd\n";
constexpr std::string_view kMacroText = "Version =196611\nColumnsShown =0\nBegin\nEnd\n";
constexpr std::string_view kQueryText = "Operation =4\nOption =0\n";
constexpr std::string_view kSqlQueryText = "dbMemo \"SQL\" =\"SELECT 1;\"\n";
constexpr std::string_view kClassText =
    "Attribute VB_GlobalNameSpace = False\nOption Compare Database\n";

TEST(FileNature, ByTheFirstLines) {
  using enum FileNature;
  const auto natureOf = [](std::string_view text) { return headOf(text).nature; };
  EXPECT_EQ(natureOf(kSmallForm), kForm);
  EXPECT_EQ(natureOf("\xEF\xBB\xBF" + std::string(kReportText)), kReport);
  EXPECT_EQ(natureOf(utf16(kReportText)), kReport);
  EXPECT_EQ(natureOf(kMacroText), kMacro);
  EXPECT_EQ(natureOf("Version =0\r\nColumnsShown =8\r\n"), kMacro);
  EXPECT_EQ(natureOf(kQueryText), kQuery);
  EXPECT_EQ(natureOf(kSqlQueryText), kQuery);
  EXPECT_EQ(natureOf("VERSION 1.0 CLASS\nBEGIN\n"), kClassModule);
  EXPECT_EQ(natureOf(kClassText), kClassModule);
  EXPECT_EQ(natureOf("Attribute VB_Name = \"a\"\nOption Explicit\n"), kModule);
  EXPECT_EQ(natureOf("Attribute VB_Name = \"a\"\nAttribute VB_GlobalNameSpace = False\n"),
            kClassModule);
  EXPECT_EQ(natureOf("Option Compare Database\n"), kModule);
  EXPECT_EQ(natureOf("Version =20\nWidth =1\nEnd\n"), kBareDesign);
  EXPECT_EQ(natureOf("Version =20\nVersionRequired =20\nCodeBehindForm\n"), kBareDesign);
  EXPECT_EQ(natureOf("CREATE TABLE [a] (\n"), kCreateTable);
  EXPECT_EQ(natureOf("Dear reader\n"), kText);
  EXPECT_EQ(natureOf(""), kOther);
  EXPECT_EQ(natureOf("{\"a\": 1}"), kOther);
  EXPECT_EQ(natureOf(std::string_view("\0\1\0\0Standard Jet DB", 19)), kOther);
  EXPECT_EQ(headOf("Version =19\nBegin Form\n").number, 19);
  EXPECT_EQ(headOf(kQueryText).number, 4);
}

TEST(ObjectNames, CodesOfCharactersThatNoFileNameHas) {
  EXPECT_EQ(nameOfFile("a%2Fb %3C%3E%3A%22%5C%7C%3F%2A"), "a/b <>:\"\\|?*");
  EXPECT_EQ(nameOfFile("100%25 %253F"), "100% %3F");
  EXPECT_EQ(nameOfFile("a%2fb"), "a/b");
  EXPECT_EQ(nameOfFile("50%20x %4"), "50%20x %4");
  EXPECT_EQ(nameOfFile("%"), "%");
}

TEST(FolderCatalog, OneFolderAKind) {
  const ExportFolder folder;
  folder.write("forms/B form.bas", kSmallForm)
      .write("forms/a.bas", utf16(kSmallForm))
      .write("forms/a.json", "{}")
      .write("reports/What%3F.bas", kReportText)
      .write("reports/What%3F.pv", "1\n2\n")
      .write("macros/m.bas", kMacroText)
      .write("queries/q.bas", kQueryText)
      .write("queries/q.sql", "UPDATE t SET a = 1;")
      .write("modules/mod.bas", "Option Compare Database\n")
      .write("modules/cls.bas", kClassText)
      .write("tbldefs/t.sql", "CREATE TABLE [t] (\n  [a] LONG\n)\n")
      .write("tbldefs/l.LNKD", "l\n;DATABASE=x\ns\n")
      .write("tables/t.txt", "a\n1\n")
      .write("relations/r.txt", "2\nr\nt\nu\n")
      .write("references.csv", "{0},1,0\n")
      .write("readme.txt", "Dear reader\n");
  const auto catalog = catalogOfFolder(folder.path());
  ASSERT_TRUE(catalog);
  EXPECT_THAT(namesOf(catalog->forms), ElementsAre("a", "B form"));
  EXPECT_THAT(namesOf(catalog->reports), ElementsAre("What?"));
  EXPECT_THAT(namesOf(catalog->macros), ElementsAre("m"));
  EXPECT_THAT(namesOf(catalog->queries), ElementsAre("q"));
  EXPECT_TRUE(catalog->queries[0].path.ends_with("q.bas"));
  EXPECT_EQ(catalog->queries[0].head.number, 4);
  EXPECT_THAT(namesOf(catalog->modules), ElementsAre("cls", "mod"));
  EXPECT_EQ(catalog->modules[0].head.nature, FileNature::kClassModule);
  EXPECT_EQ(catalog->modules[1].head.nature, FileNature::kModule);
  EXPECT_THAT(namesOf(catalog->tables), ElementsAre("l", "t"));
  EXPECT_FALSE(catalog->tables[1].statementPath.empty());
  EXPECT_FALSE(catalog->tables[1].rowsPath.empty());
  EXPECT_FALSE(catalog->tables[0].linkPath.empty());
  EXPECT_EQ(catalog->relationPaths.size(), 1u);
  EXPECT_FALSE(catalog->system.referenceList.empty());
}

TEST(FolderCatalog, NewerEndingsAndSplitCode) {
  const ExportFolder folder;
  folder.write("vcs-options.json", "{}")
      .write("forms/a.form", kSmallForm)
      .write("forms/a.cls", kClassText)
      .write("reports/r.report", kReportText)
      .write("queries/q.sql", "SELECT 1;")
      .write("queries/q.json", "{}")
      .write("queries/d.qdef", kSqlQueryText)
      .write("queries/d.sql", "SELECT 1;")
      .write("macros/m.macro", kMacroText)
      .write("modules/deep/er/x.cls", "VERSION 1.0 CLASS\nBEGIN\nEND\n")
      .write("project.json", "{}");
  const auto catalog = catalogOfFolder(folder.path());
  ASSERT_TRUE(catalog);
  EXPECT_THAT(namesOf(catalog->forms), ElementsAre("a"));
  EXPECT_TRUE(catalog->forms[0].codePath.ends_with("a.cls"));
  EXPECT_THAT(namesOf(catalog->queries), ElementsAre("d", "q"));
  EXPECT_TRUE(catalog->queries[0].path.ends_with("d.qdef"));
  EXPECT_THAT(namesOf(catalog->macros), ElementsAre("m"));
  EXPECT_THAT(namesOf(catalog->modules), ElementsAre("x"));
  EXPECT_FALSE(catalog->system.project.empty());
}

TEST(FolderCatalog, FlatFolderWithPrefixes) {
  const ExportFolder folder;
  folder.write("Frm_Orders.frm", kSmallForm)
      .write("Rpt_r.rpt", kReportText)
      .write("Mac_m.mac", kMacroText)
      .write("Qry_q.qry", kQueryText)
      .write("Mod_x.bas", "Option Compare Database\n")
      .write(
          "Tbl_t.xsd",
          "<?xml version=\"1.0\"?>\n<xsd:schema xmlns:od=\"urn:schemas-microsoft-com:officedata\">")
      .write("Tbl_t.txt", "\"a\"\n1\n")
      .write("__RELATIONS__.xml", "<root/>");
  const auto catalog = catalogOfFolder(folder.path());
  ASSERT_TRUE(catalog);
  EXPECT_THAT(namesOf(catalog->forms), ElementsAre("Orders"));
  EXPECT_THAT(namesOf(catalog->reports), ElementsAre("r"));
  EXPECT_THAT(namesOf(catalog->macros), ElementsAre("m"));
  EXPECT_THAT(namesOf(catalog->queries), ElementsAre("q"));
  EXPECT_THAT(namesOf(catalog->modules), ElementsAre("x"));
  EXPECT_THAT(namesOf(catalog->tables), ElementsAre("t"));
  EXPECT_FALSE(catalog->tables[0].rowsPath.empty());
  EXPECT_FALSE(catalog->system.relationTable.empty());
}

TEST(FolderCatalog, PrefixThatOneObjectLacksIsPartOfTheNames) {
  const ExportFolder folder;
  folder.write("Frm_Orders.frm", kSmallForm).write("Other.frm", kSmallForm);
  EXPECT_THAT(namesOf(catalogOfFolder(folder.path())->forms), ElementsAre("Frm_Orders", "Other"));
}

TEST(FolderCatalog, FoldersOfOtherNames) {
  const ExportFolder folder;
  folder.write("Form/a.accfrm", kSmallForm)
      .write("Report/r.accrep", kReportText)
      .write("Query/q.accqry", kQueryText)
      .write("Macros/m.accmac", kMacroText)
      .write("Module/c.cls", kClassText);
  const auto catalog = catalogOfFolder(folder.path());
  ASSERT_TRUE(catalog);
  EXPECT_EQ(catalog->forms.size() + catalog->reports.size() + catalog->queries.size() +
                catalog->macros.size() + catalog->modules.size(),
            5u);
}

TEST(FolderCatalog, ModulesBesideTheFoldersAreOfAnotherProgram) {
  const ExportFolder folder;
  folder.write("forms/a.bas", kSmallForm)
      .write("tool.bas", "Option Explicit\n")
      .write("q.qry", kQueryText);
  const auto catalog = catalogOfFolder(folder.path());
  EXPECT_THAT(namesOf(catalog->modules), IsEmpty());
  EXPECT_THAT(namesOf(catalog->queries), ElementsAre("q"));
}

TEST(FolderCatalog, ContentDecidesNotTheFolder) {
  const ExportFolder folder;
  folder.write("forms/r.bas", kReportText);
  const auto catalog = catalogOfFolder(folder.path());
  EXPECT_THAT(namesOf(catalog->forms), IsEmpty());
  EXPECT_THAT(namesOf(catalog->reports), ElementsAre("r"));
}

TEST(FolderCatalog, DamagedDesignStaysInItsList) {
  const ExportFolder folder;
  folder.write("forms/gone.bas", "Version =20\nWidth =1\nEnd\n")
      .write("forms/empty.bas", "")
      .write("reports/garbage.bas", "\x01\x02")
      .write("forms/notes.md", "Dear reader\n");
  const auto catalog = catalogOfFolder(folder.path());
  EXPECT_THAT(namesOf(catalog->forms), ElementsAre("empty", "gone"));
  EXPECT_THAT(namesOf(catalog->reports), ElementsAre("garbage"));
}

TEST(FolderCatalog, OfTwoFilesForOneNameTheNewerFormCounts) {
  const ExportFolder folder;
  folder.write("forms/a.bas", kSmallForm)
      .write("forms/a.form", kSmallForm)
      .write("forms/A.bas", kSmallForm);
  const auto catalog = catalogOfFolder(folder.path());
  EXPECT_THAT(namesOf(catalog->forms), ElementsAre("A", "a"));
  EXPECT_TRUE(catalog->forms[1].path.ends_with("a.form"));
}

TEST(FolderCatalog, UsualFolderInsideIsFound) {
  const ExportFolder folder;
  folder.write("source/forms/a.bas", kSmallForm).write("readme.md", "Dear reader\n");
  const auto catalog = catalogOfFolder(folder.path());
  ASSERT_TRUE(catalog);
  EXPECT_TRUE(catalog->path.ends_with("source"));
  folder.write("src/forms/a.bas", kSmallForm);
  EXPECT_FALSE(catalogOfFolder(folder.path()));
}

TEST(FolderCatalog, FoldersWithoutExports) {
  const ExportFolder folder;
  folder.write("readme.txt", "Dear reader\n")
      .write("Module1.bas", "Attribute VB_Name = \"Module1\"\n");
  EXPECT_FALSE(catalogOfFolder(folder.path()));
  EXPECT_FALSE(isExport(folder.path()));
  EXPECT_FALSE(isExport(folder.path("nowhere")));
  folder.write("forms/notes.md", "Dear reader\n");
  EXPECT_FALSE(isExport(folder.path()));
}

TEST(FileCatalog, OneObjectAlone) {
  const ExportFolder folder;
  folder.write("a.form", kSmallForm)
      .write("a.cls", kClassText)
      .write("m.bas", "Sub a()\nEnd Sub\n")
      .write("q.txt", kQueryText)
      .write("readme.txt", "Dear reader\n")
      .write("x.mdb", std::string_view("\0\1\0\0Standard Jet DB", 19))
      .write("x.json", "{}");
  const auto form = catalogOfFile(folder.path("a.form"));
  ASSERT_TRUE(form);
  EXPECT_THAT(namesOf(form->forms), ElementsAre("a"));
  EXPECT_FALSE(form->forms[0].codePath.empty());
  EXPECT_THAT(namesOf(catalogOfFile(folder.path("m.bas"))->modules), ElementsAre("m"));
  EXPECT_THAT(namesOf(catalogOfFile(folder.path("q.txt"))->queries), ElementsAre("q"));
  EXPECT_FALSE(catalogOfFile(folder.path("readme.txt")));
  EXPECT_FALSE(catalogOfFile(folder.path("x.mdb")));
  EXPECT_FALSE(catalogOfFile(folder.path("x.json")));
  EXPECT_FALSE(catalogOfFile(folder.path("nothing.bas")));
}

}  // namespace
}  // namespace tarrowin::exports
