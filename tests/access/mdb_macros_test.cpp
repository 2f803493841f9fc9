// The macros of real databases: their rows equal those of the text exports that were made of the
// same databases, and each becomes a module.
#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "access/macro/macro_module.h"
#include "access/macro/macro_text.h"
#include "access/mdb/mdb_database.h"
#include "access/model/mdb_model.h"
#include "shared/value.h"

namespace tarrowin {
namespace {

namespace fs = std::filesystem;

fs::path samples() {
  const char* const set = std::getenv("TARROWIN_SAMPLES");
  return set ? fs::path(set) : fs::path(TARROWIN_SOURCE_DIR) / ".." / "shared" / "samples";
}

std::unique_ptr<DatabaseModel> openSample(const fs::path& path) {
  mdb::Options options;
  options.allowNewerFormat = true;
  return makeMdbModel(mdb::Database::open(path.string(), options), CodePage());
}

const std::vector<MacroAction>& rowsOf(const DatabaseModel& model, std::string_view macro) {
  const MacroModel* const found = model.macros.find(macro, model.folding);
  if (found == nullptr) throw std::runtime_error("no macro " + std::string(macro));
  return found->actions.get();
}

class MdbMacrosTest : public testing::Test {
 protected:
  void SetUp() override {
    if (!fs::is_directory(samples() / "mdb")) GTEST_SKIP() << "no sample databases";
  }
};

TEST_F(MdbMacrosTest, RowsEqualThoseOfTheExports) {
  const struct {
    const char* database;
    const char* macro;
    const char* text;
  } pairs[] = {
      {"joyfullservice__msaccess-vcs-addin/Testing.accdb", "AutoExec",
       "joyfullservice__msaccess-vcs-addin/Testing.accdb.src/macros/AutoExec.bas"},
      {"MattFisher__AccessVCS/TestDB.mdb", "ExportDatabaseMac",
       "MattFisher__AccessVCS/TestDB/src/Mac_ExportDatabaseMac.mac"},
      {"MattFisher__AccessVCS/TestDB.mdb", "ImportDatabaseMac",
       "MattFisher__AccessVCS/TestDB/src/Mac_ImportDatabaseMac.mac"},
      {"msaccess-vcs-integration__msaccess-vcs-integration/demo.accdb", "demo_macro",
       "msaccess-vcs-integration__msaccess-vcs-integration/demo/source/macros/demo_macro.bas"},
  };
  for (const auto& [database, macro, text] : pairs) {
    SCOPED_TRACE(macro);
    const auto model = openSample(samples() / "mdb" / database);
    std::ifstream file(samples() / "exports" / text, std::ios::binary);
    ASSERT_TRUE(file);
    const Bytes bytes((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
    const auto exported = readMacroText(bytes, CodePage());
    EXPECT_FALSE(exported.empty());
    EXPECT_EQ(rowsOf(*model, macro), exported);
  }
}

// The same application in the files of two ages: its macro is Access 97's in both.
TEST_F(MdbMacrosTest, MacroOfAccess97ReadsTheSameInALaterFile) {
  const std::vector<MacroAction> expected{
      {{}, {}, "RunApp", {"\"C:\\WINDOWS\\system\\Mostrar.scf\""}, {}}};
  for (const char* name : {"MinimizaApp.mdb", "MinimizaApp_2003.mdb"}) {
    const auto model = openSample(samples() / "mdb" / "ailtonz__MSACCESS" / name);
    EXPECT_EQ(rowsOf(*model, "mcrMinimizaApp"), expected) << name;
  }
}

TEST_F(MdbMacrosTest, EveryMacroBecomesAModuleWithoutUnknownActions) {
  std::size_t macros = 0;
  for (const auto& entry : fs::recursive_directory_iterator(samples() / "mdb")) {
    if (!entry.is_regular_file()) continue;
    const auto model = openSample(entry.path());
    for (const MacroModel& macro : model->macros) {
      SCOPED_TRACE(entry.path().string() + " " + macro.name);
      ++macros;
      EXPECT_FALSE(macro.actions.get().empty());
      const std::string text = macroModuleText(macro.name, macro.actions.get());
      EXPECT_NE(text.find("\r\nFunction " + macro.name + "()\r\n"), std::string::npos);
      for (const MacroAction& row : macro.actions.get())
        EXPECT_EQ(text.find("' " + row.action + " \""), std::string::npos) << row.action;
    }
  }
  EXPECT_EQ(macros, 7u);
}

// Every exported macro can be read, whatever database it is from.
TEST_F(MdbMacrosTest, EveryExportIsRead) {
  std::size_t macros = 0, rows = 0;
  for (const auto& entry : fs::recursive_directory_iterator(samples() / "exports")) {
    const bool inFolder = entry.path().parent_path().filename() == "macros";
    if (!inFolder && entry.path().extension() != ".mac") continue;
    SCOPED_TRACE(entry.path());
    std::ifstream file(entry.path(), std::ios::binary);
    const Bytes bytes((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
    ++macros;
    rows += readMacroText(bytes, CodePage()).size();
  }
  EXPECT_EQ(macros, 11u);
  EXPECT_EQ(rows, 32u);
}

TEST_F(MdbMacrosTest, DamagedMacroFailsWhenItIsReadAndNotBefore) {
  const fs::path path = samples() / "mdb" / "ailtonz__MSACCESS" / "MinimizaApp.mdb";
  std::ifstream file(path, std::ios::binary);
  Bytes bytes((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
  // The file name in the macro's only argument, with the zero and the word behind it.
  const std::string_view found = "Mostrar.scf\"";
  const auto at = std::search(bytes.begin(), bytes.end(), found.begin(), found.end());
  ASSERT_NE(at, bytes.end());
  at[static_cast<std::ptrdiff_t>(found.size())] = 'x';
  const auto model = makeMdbModel(mdb::Database::fromBytes(bytes, "damaged.mdb"), CodePage());
  try {
    rowsOf(*model, "mcrMinimizaApp");
    FAIL() << "was read";
  } catch (const VbError& error) {
    EXPECT_EQ(error.number(), 3049);
    EXPECT_TRUE(error.description().starts_with("damaged.mdb: macro \"mcrMinimizaApp\": "))
        << error.description();
  }
}

}  // namespace
}  // namespace tarrowin
