// Every real export among the samples is read to its last line.
#include <filesystem>
#include <iostream>
#include <map>

#include <gtest/gtest.h>

#include "access/database_source.h"
#include "access/exports/design_text.h"
#include "access/exports/folder_catalog.h"
#include "access/exports/text_tree.h"
#include "access/macro/export_encoding.h"
#include "access/macro/macro_text.h"
#include "exports/export_files.h"

namespace tarrowin::exports {
namespace {

namespace fs = std::filesystem;

constexpr const char* kFolders[] = {"joyfullservice__msaccess-vcs-addin",
                                    "maria-neelyc__Accounting", "MattFisher__AccessVCS/TestDB",
                                    "msaccess-vcs-integration__msaccess-vcs-integration/demo",
                                    "TheArtist__uplan"};

class SampleExports : public testing::Test {
 protected:
  void SetUp() override {
    if (samples_.empty()) GTEST_SKIP() << "no samples";
  }
  std::unique_ptr<DatabaseModel> opened(const char* folder) const {
    return openDatabaseFile((samples_ / folder).string(), CodePage(CodePage::kUtf8));
  }

  fs::path samples_ = sampleExports();
};

// Lines of a text that hold anything.
std::size_t filledLines(std::string_view text) {
  ExportLines lines(text, CodePage());
  std::size_t count = 0;
  while (lines.next()) ++count;
  return count;
}

// What the tree has of them: a line a property, a text's and a block's further ones apart.
std::size_t linesOf(const TextBlock& block) {
  std::size_t count = block.properties.size();
  for (const TextBlock& child : block.children) count += linesOf(child) + 2;
  return count;
}

// The numbers of files that lie in the folders.
TEST_F(SampleExports, EveryObjectIsFound) {
  std::size_t forms = 0, reports = 0, macros = 0, queries = 0, modules = 0;
  for (const char* folder : kFolders) {
    const auto model = opened(folder);
    forms += model->forms.size();
    reports += model->reports.size();
    macros += model->macros.size();
    queries += model->queries.size();
    modules += model->modules.size();
  }
  EXPECT_EQ(forms, 64u);
  EXPECT_EQ(reports, 40u);
  EXPECT_EQ(macros, 11u);
  EXPECT_EQ(queries, 91u);
  EXPECT_EQ(modules, 13u);
}

TEST_F(SampleExports, EveryDesignIsUnderstood) {
  Understood all;
  std::map<std::int32_t, std::size_t> byType;
  for (const char* folder : kFolders) {
    const auto model = opened(folder);
    for (const auto* list : {&model->forms, &model->reports})
      for (const DesignModel& design : *list) {
        const auto held = design.body.get();
        const DesignBody& body = *held;
        ASSERT_TRUE(body.understood);
        ASSERT_FALSE(body.sections.empty()) << folder << " " << design.name;
        EXPECT_EQ(body.controls.size(), body.understood->controls) << folder << " " << design.name;
        all.controls += body.understood->controls;
        all.controlsKnown += body.understood->controlsKnown;
        all.properties += body.understood->properties;
        all.propertiesKnown += body.understood->propertiesKnown;
        for (const ControlModel& control : body.controls) ++byType[control.type];
      }
  }
  std::cout << "controls " << all.controlsKnown << " of " << all.controls << ", properties "
            << all.propertiesKnown << " of " << all.properties << "\n";
  // As many as the samples' inventory counts, and 19 that share a block with a combo box.
  // Read by hand: Label12, Box22, btnClose and cmdFirst, HasChanged twice, six text boxes and seven
  // combo boxes.
  const std::map<std::int32_t, std::size_t> expected = {
      {100, 884 + 1}, {101, 37 + 1}, {102, 278}, {103, 17},      {104, 272 + 2},
      {105, 22},      {106, 40 + 2}, {107, 43},  {109, 847 + 6}, {110, 18},
      {111, 102 + 7}, {112, 10},     {119, 19},  {123, 6},       {124, 18}};
  EXPECT_EQ(byType, expected);
  EXPECT_EQ(all.propertiesKnown, all.properties);
}

TEST_F(SampleExports, EveryMacroAndQueryIsRead) {
  for (const char* folder : kFolders) {
    const auto model = opened(folder);
    for (const MacroModel& macro : model->macros)
      EXPECT_NO_THROW(macro.actions.get()) << folder << " " << macro.name;
    for (const QueryModel& query : model->queries) {
      const std::string& sql = query.sql.get().read("SQL");
      EXPECT_TRUE(sql.ends_with(";\r\n")) << folder << " " << query.name << ": " << sql;
    }
    for (const ModuleModel& module : model->modules)
      EXPECT_FALSE(module.text.get().empty()) << folder << " " << module.name;
    for (const TableModel& table : model->tables)
      EXPECT_NO_THROW(table.fields.get()) << folder << " " << table.name;
  }
}

TEST_F(SampleExports, NoLineIsLeftOut) {
  std::size_t files = 0, lines = 0;
  for (const auto& entry : fs::recursive_directory_iterator(samples_)) {
    if (!entry.is_regular_file()) continue;
    const std::string bytes = contentOf(entry.path());
    const FileNature nature = headOf(bytes.substr(0, kHeadSize)).nature;
    if (nature != FileNature::kForm && nature != FileNature::kReport &&
        nature != FileNature::kQuery)
      continue;
    const CodePage page(CodePage::kUtf8);
    const std::string text =
        exportText({reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size()}, page);
    const TextTree tree = parseTextTree(text, page);
    // Counted apart from the parser: lines of bytes and of texts that go on, and their ends.
    std::string rest;
    std::size_t further = 0, start = 0;
    bool inBlock = false;
    while (start < text.size()) {
      const std::size_t end = std::min(text.find('\n', start), text.size());
      std::string line = text.substr(start, end - start);
      start = end + 1;
      line.erase(0, line.find_first_not_of(" \r"));
      while (line.ends_with('\r') || line.ends_with(' ')) line.pop_back();
      if (line == "CodeBehindForm") break;
      if (line.starts_with("0x") || line.starts_with('"')) ++further;
      if (line.ends_with("= Begin") || line.ends_with("} Begin")) inBlock = true;
      if (line == "End" && inBlock) {
        inBlock = false;
        ++further;
      }
      rest += line + "\n";
    }
    EXPECT_EQ(linesOf(tree.top) + further, filledLines(rest)) << entry.path();
    ++files;
    lines += filledLines(rest);
  }
  EXPECT_GT(files, 190u);
  std::cout << files << " files, " << lines << " lines\n";
}

std::string withoutBlanks(std::string text) {
  std::erase_if(text, [](char character) {
    return character == ' ' || character == '\r' || character == '\n';
  });
  return text;
}

TEST_F(SampleExports, SqlTextThatAToolKeptAgreesButForBlanks) {
  const fs::path folder =
      samples_ /
      "joyfullservice__msaccess-vcs-addin/Testing.accdb.src/queries/qryNavigationPaneGroups.sql";
  std::string expected = contentOf(folder);
  if (expected.starts_with("\xEF\xBB\xBF")) expected.erase(0, 3);
  const auto model = opened(kFolders[0]);
  EXPECT_EQ(
      withoutBlanks(
          model->queries.find("qryNavigationPaneGroups", model->folding)->sql.get().read("SQL")),
      withoutBlanks(expected));
}

// A database and its export of the same moment.
TEST_F(SampleExports, AgreesWithItsDatabase) {
  const CodePage page(CodePage::kUtf8);
  const auto exported = opened("MattFisher__AccessVCS/TestDB");
  const auto database = openDatabaseFile(
      (samples_.parent_path() / "mdb/MattFisher__AccessVCS/TestDB.mdb").string(), page);
  const auto namesOf = [](const auto& list) {
    std::vector<std::string> names;
    for (const auto& each : list) names.push_back(each.name);
    return names;
  };
  EXPECT_EQ(namesOf(exported->forms), namesOf(database->forms));
  EXPECT_EQ(namesOf(exported->reports), namesOf(database->reports));
  EXPECT_EQ(namesOf(exported->macros), namesOf(database->macros));
  EXPECT_EQ(namesOf(exported->modules), namesOf(database->modules));
  // The export leaves out the hidden queries of forms and reports.
  ASSERT_EQ(exported->queries.size(), 1u);
  ASSERT_EQ(database->queries[0].name, exported->queries[0].name);
  EXPECT_EQ(exported->queries[0].sql.get().read("SQL"), database->queries[0].sql.get().read("SQL"));
  EXPECT_EQ(exported->queries[0].type, database->queries[0].type);
  for (const MacroModel& macro : exported->macros)
    EXPECT_EQ(macro.actions.get(),
              database->macros.find(macro.name, database->folding)->actions.get());
  for (const ModuleModel& module : exported->modules) {
    const ModuleModel& other = *database->modules.find(module.name, database->folding);
    // The tool took blank lines off the end.
    EXPECT_EQ(withoutBlanks(module.text.get()), withoutBlanks(other.text.get()));
    EXPECT_EQ(module.type.get(), other.type.get());
  }
  for (const DesignModel& form : exported->forms) {
    const DesignModel& other = *database->forms.find(form.name, database->folding);
    ASSERT_EQ(form.module.get().has_value(), other.module.get().has_value()) << form.name;
    if (!form.module.get()) continue;
    EXPECT_EQ(withoutBlanks(*form.module.get()), withoutBlanks(*other.module.get()));
  }
  for (const TableModel& table : exported->tables) {
    const TableModel* other = database->tables.find(table.name, database->folding);
    ASSERT_NE(other, nullptr) << table.name;
    const FieldList &left = table.fields.get(), &right = other->fields.get();
    if (!table.connect.empty()) continue;
    ASSERT_EQ(left.size(), right.size()) << table.name;
    for (std::size_t i = 0; i < left.size(); ++i) {
      EXPECT_EQ(left[i].name, right[i].name);
      EXPECT_EQ(left[i].type, right[i].type) << left[i].name;
      EXPECT_EQ(left[i].size, right[i].size) << left[i].name;
    }
  }
}

}  // namespace
}  // namespace tarrowin::exports
