// The code of real databases: every module is read, equals the export beside its database, and
// equals the same module in the editions of its application for other ages of Access.
#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <map>
#include <set>
#include <sstream>

#include <gtest/gtest.h>

#include "access/mdb/mdb_database.h"
#include "access/vba/vba_project.h"
#include "mdb/sample_files.h"

namespace tarrowin::vba {
namespace {

namespace fs = std::filesystem;
using Texts = std::map<std::string, std::string>;  // by module

mdb::Database openSample(const fs::path& path) {
  mdb::Options options;
  options.allowNewerFormat = true;
  return mdb::Database::open(path.string(), options);
}

Texts textsOf(const std::string& sample) {
  const mdb::Database database = openSample(mdb::sampleDatabase(sample));
  const VbaProject project = VbaProject::open(database);
  Texts texts;
  for (const Module& module : project.modules()) {
    texts[module.name] = project.moduleText(module.name);
  }
  return texts;
}

std::size_t count(const std::string& text, std::string_view part) {
  std::size_t found = 0;
  for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) {
    ++found;
  }
  return found;
}

class SampleCode : public testing::Test {
 protected:
  void SetUp() override {
    if (mdb::sampleDatabases().empty()) GTEST_SKIP() << "no sample databases here";
  }
};

TEST_F(SampleCode, EveryModuleOfEveryDatabase) {
  std::size_t modules = 0;
  for (const fs::path& path : mdb::sampleDatabases(true)) {
    SCOPED_TRACE(path);
    const mdb::Database database = openSample(path);
    const VbaProject project = VbaProject::open(database);
    EXPECT_FALSE(project.damage());
    EXPECT_EQ(project.codePage(), 1252);
    EXPECT_FALSE(project.references().empty());
    for (const mdb::CatalogObject& object : database.modules()) {
      EXPECT_NE(project.find(object.name), nullptr) << object.name;
    }
    for (const Module& module : project.modules()) {
      SCOPED_TRACE(module.name);
      const std::string text = project.moduleText(module.name);
      EXPECT_TRUE(text.ends_with("\r\n"));
      EXPECT_EQ(count(text, "\n"), count(text, "\r\n"));
      const bool standard = module.kind == ModuleKind::kStandard;
      // Access 97 knows no VB_GlobalNameSpace.
      const std::size_t hidden = standard ? 0 : database.isJet3() ? 3 : 4;
      EXPECT_EQ(count(text, "Attribute VB_"), hidden);
      EXPECT_EQ(project.countOfLines(module.name) + hidden, count(text, "\n"));
      EXPECT_EQ(
          project.sourceText(module.name).find("Attribute VB_Name = \"" + module.name + "\"\r\n"),
          0u);
      ++modules;
    }
  }
  EXPECT_EQ(modules, 64u);
}

// Two independent places say which forms and reports have code: their settings, and the project.
TEST_F(SampleCode, FormsAndReportsWithCode) {
  std::size_t with = 0;
  std::size_t without = 0;
  for (const fs::path& path : mdb::sampleDatabases(true)) {
    const mdb::Database database = openSample(path);
    const ObjectTree tree = ObjectTree::open(database);
    const VbaProject project = VbaProject::open(database);
    const auto check = [&](Container container, const mdb::CatalogObject& object,
                           const std::string& prefix, ModuleKind kind) {
      const bool has = tree.hasModule(container, object.name);
      const Module* module = project.find(prefix + object.name);
      EXPECT_EQ(has, module != nullptr) << path << " " << object.name;
      if (module != nullptr) {
        EXPECT_EQ(module->kind, kind) << path << " " << object.name;
      }
      ++(has ? with : without);
    };
    for (const auto& form : database.forms()) {
      check(Container::kForms, form, "Form_", ModuleKind::kForm);
    }
    for (const auto& report : database.reports()) {
      check(Container::kReports, report, "Report_", ModuleKind::kReport);
    }
  }
  EXPECT_EQ(with + without, 26u + 21u);
  EXPECT_EQ(with, 31u);
}

// Every form, report and macro has its design; its first word is the version of the design.
TEST_F(SampleCode, EveryObjectHasItsDesign) {
  std::size_t designs = 0;
  std::size_t macros = 0;
  for (const fs::path& path : mdb::sampleDatabases(true)) {
    SCOPED_TRACE(path);
    const mdb::Database database = openSample(path);
    const ObjectTree tree = ObjectTree::open(database);
    const auto blob = [&](Container container, const mdb::CatalogObject& object) {
      const StoredObject* stored = tree.find(container, object.name);
      return stored == nullptr ? Bytes{} : tree.stream(*stored, "Blob").value_or(Bytes{});
    };
    const auto check = [&](Container container, const std::vector<mdb::CatalogObject>& objects,
                           std::uint8_t type) {
      for (const mdb::CatalogObject& object : objects) {
        SCOPED_TRACE(object.name);
        const Bytes design = blob(container, object);
        ASSERT_GT(design.size(), 10u);
        EXPECT_TRUE(design[0] == 17 || design[0] == 19 || design[0] == 20) << int(design[0]);
        EXPECT_EQ(design[8], type);
        ++designs;
      }
    };
    check(Container::kForms, database.forms(), 150);
    check(Container::kReports, database.reports(), 151);
    for (const mdb::CatalogObject& macro : database.macros()) {
      EXPECT_GT(blob(Container::kMacros, macro).size(), 0x20u) << macro.name;
      ++macros;
    }
    for (const mdb::CatalogObject& module : database.modules()) {
      EXPECT_NE(tree.find(Container::kModules, module.name), nullptr) << module.name;
    }
  }
  EXPECT_EQ(designs, 26u + 21u);
  EXPECT_EQ(macros, 7u);
}

// The tools that made the exports changed line ends to LF and cut those at the end of the text;
// nothing else is forgiven.
std::string asTheToolsLeaveIt(std::string text) {
  std::erase(text, '\r');
  while (text.ends_with('\n')) text.pop_back();
  return text;
}

std::string exportedText(const fs::path& path, bool behindDesign) {
  const Bytes bytes = mdb::fileBytes(path);
  std::string text(bytes.begin(), bytes.end());
  if (text.starts_with("\xEF\xBB\xBF")) text.erase(0, 3);
  if (behindDesign) {
    const std::string mark = "CodeBehindForm";
    const std::size_t at = text.find("\n" + mark);
    EXPECT_NE(at, std::string::npos) << path;
    text.erase(0, text.find('\n', at + 1) + 1);
  }
  return asTheToolsLeaveIt(text);
}

struct Pair {
  std::string database;
  std::string module;
  std::string file;  // in the folder of exports
};

TEST_F(SampleCode, EqualsTheExportsToTheCharacter) {
  const fs::path exports =
      mdb::sampleDatabase("TestDB.mdb").parent_path().parent_path().parent_path() / "exports";
  const std::string testing = "joyfullservice__msaccess-vcs-addin/Testing.accdb.src/";
  const std::string testDb = "MattFisher__AccessVCS/TestDB/src/";
  const std::vector<Pair> pairs{
      {"TestDB.mdb", "TestMod", testDb + "Mod_TestMod.bas"},
      {"TestDB.mdb", "TestClass", testDb + "Mod_TestClass.bas"},
      {"Testing.accdb", "basUtility", testing + "modules/basUtility.bas"},
      {"Testing.accdb", "Module1", testing + "modules/Module1.bas"},
      {"Testing.accdb", "clsPerson", testing + "modules/clsPerson.bas"},
      {"Testing.accdb", "Form_frmMain", testing + "forms/frmMain.bas"},
      {"Testing.accdb", "Report_rptDefaultPrinter", testing + "reports/rptDefaultPrinter.bas"},
      {"Testing.accdb", "Report_rptNavigationPaneGroups",
       testing + "reports/rptNavigationPaneGroups.bas"},
      {"demo.accdb", "DemoModule",
       "msaccess-vcs-integration__msaccess-vcs-integration/demo/source/modules/DemoModule.bas"}};
  for (const Pair& pair : pairs) {
    const std::string exported =
        exportedText(exports / pair.file,
                     pair.module.starts_with("Form_") || pair.module.starts_with("Report_"));
    EXPECT_GT(exported.size(), 100u) << pair.file;
    EXPECT_EQ(asTheToolsLeaveIt(textsOf(pair.database)[pair.module]), exported) << pair.file;
  }
}

// Later editions add one line to the head of every class.
std::string withoutLine(std::string text, const std::string& line) {
  const std::size_t at = text.find(line);
  if (at != std::string::npos) text.erase(at, line.size());
  return text;
}

std::vector<std::string> editionsThatDiffer(const std::string& first, const std::string& second) {
  const Texts texts = textsOf(first);
  const Texts others = textsOf(second);
  std::vector<std::string> differing;
  EXPECT_EQ(texts.size(), others.size());
  for (const auto& [name, text] : texts) {
    EXPECT_TRUE(others.contains(name)) << name;
    if (withoutLine(others.at(name), "Attribute VB_GlobalNameSpace = False\r\n") != text) {
      differing.push_back(name);
    }
  }
  return differing;
}

TEST_F(SampleCode, MacroOnlyApplicationIn97And2003) {
  EXPECT_TRUE(editionsThatDiffer("MinimizaApp.mdb", "MinimizaApp_2003.mdb").empty());
}

TEST_F(SampleCode, BarCodeApplicationIn97And2003) {
  EXPECT_TRUE(
      editionsThatDiffer("CodBarra39Etiquetas.mdb", "CodBarra39Etiquetas_2003.mdb").empty());
}

// Two of its modules were edited on the way: the case of one word, and blank lines.
TEST_F(SampleCode, CalendarApplicationIn97And2000) {
  const std::vector<std::string> edited{"Form_frmAgendaStudio", "Form_subfrmMiniCalendario"};
  EXPECT_EQ(editionsThatDiffer("BalemAgenda97.mdb", "BalemAgenda2000.mdb"), edited);
  const auto plain = [](const std::string& text) {
    std::istringstream lines(text);
    std::string result;
    for (std::string line; std::getline(lines, line);) {
      if (line.find_first_not_of(" \r") == std::string::npos) continue;
      result += line + '\n';
    }
    std::transform(result.begin(), result.end(), result.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return result;
  };
  Texts old = textsOf("BalemAgenda97.mdb");
  Texts later = textsOf("BalemAgenda2000.mdb");
  for (const std::string& name : edited) {
    EXPECT_EQ(plain(old[name]),
              plain(withoutLine(later[name], "Attribute VB_GlobalNameSpace = False\r\n")));
  }
}

TEST_F(SampleCode, LettersBeyondAscii) {
  const Texts texts = textsOf("BalemAgenda97.mdb");
  std::string all;
  for (const auto& [name, text] : texts) all += text;
  EXPECT_NE(all.find("Sessões"), std::string::npos);
  EXPECT_NE(all.find("módulo"), std::string::npos);
}

}  // namespace
}  // namespace tarrowin::vba
