// Real .mdb files behind the interface, each compared with its own recording.
#include <chrono>

#include <nlohmann/json.hpp>

#include "access/access_fixture.h"
#include "access/mdb/mdb_database.h"
#include "access/recorder.h"
#include "access/snapshot/snapshot_document.h"
#include "access/vba/vba_project.h"

namespace tarrowin {
namespace {

using Json = nlohmann::ordered_json;

std::filesystem::path samples() {
  const char* const set = std::getenv("TARROWIN_SAMPLES");
  if (set) return set;
  return std::filesystem::path(TARROWIN_SOURCE_DIR) / ".." / "shared" / "samples";
}

std::vector<std::filesystem::path> filesWith(const std::string& extension) {
  std::vector<std::filesystem::path> result;
  std::error_code error;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(samples() / "mdb", error))
    if (entry.path().extension() == extension) result.push_back(entry.path());
  std::sort(result.begin(), result.end());
  return result;
}

class MdbModelTest : public AccessTest {
 protected:
  void SetUp() override {
    if (filesWith(".mdb").empty()) GTEST_SKIP() << "no sample databases";
  }
};

TEST_F(MdbModelTest, DatabaseTellsNameVersionAndProperties) {
  for (const auto& path : filesWith(".mdb")) {
    openFile(path.string());
    EXPECT_EQ(text(database, "Name"), std::filesystem::absolute(path).string());
    const std::string version = text(database, "Version");
    EXPECT_TRUE(version == "3.0" || version == "4.0") << version;
    EXPECT_FALSE(text(child(database, "Properties", {"AccessVersion"}), "Value").empty()) << path;
  }
}

TEST_F(MdbModelTest, FormsAndReportsOpen) {
  std::size_t forms = 0, reports = 0;
  for (const auto& path : filesWith(".mdb")) {
    openFile(path.string());
    const auto documents = [&](const char* name) {
      return child(child(database, "Containers", {name}), "Documents");
    };
    for (std::int32_t i = 0; i < number(documents("Forms"), "Count"); ++i, ++forms) {
      const std::string name = text(item(documents("Forms"), i), "Name");
      const ObjectRef form = openForm(name);
      EXPECT_EQ(text(form, "Name"), name);
      EXPECT_GT(number(form, "Width"), 0);
      EXPECT_GT(number(child(form, "Section", {0}), "Height"), 0);
    }
    for (std::int32_t i = 0; i < number(documents("Reports"), "Count"); ++i, ++reports) {
      const ObjectRef report = openReport(text(item(documents("Reports"), i), "Name"));
      EXPECT_GT(number(child(report, "Controls"), "Count"), 0);
    }
  }
  EXPECT_EQ(forms, 24u);
  EXPECT_EQ(reports, 18u);
}

TEST_F(MdbModelTest, ModulesOpenAndAreExportedAsTheProjectHoldsThem) {
  std::size_t standard = 0, classes = 0;
  for (const auto& path : filesWith(".mdb")) {
    openFile(path.string());
    const mdb::Database reader = mdb::Database::open(path.string());
    const vba::VbaProject project = vba::VbaProject::open(reader);
    const ObjectRef documents = child(child(database, "Containers", {"Modules"}), "Documents");
    for (std::int32_t i = 0; i < number(documents, "Count"); ++i) {
      const std::string name = text(item(documents, i), "Name");
      call(doCmd, "OpenModule", {name});
      const ObjectRef module = child(application, "Modules", {name});
      (number(module, "Type") == 0 ? standard : classes) += 1;
      EXPECT_GT(number(module, "CountOfLines"), 0) << name;
      const std::string file = pathOf("module.txt");
      call(doCmd, "OutputTo", {5, name, "MS-DOS Text (*.txt)", file});
      EXPECT_EQ(readFile(file), CodePage().fromUtf8(project.moduleText(CodePage().toUtf8(name))));
    }
  }
  EXPECT_GT(standard, 0u);
  EXPECT_GT(classes, 0u);
}

TEST_F(MdbModelTest, TablesAgreeWithTheReader) {
  for (const auto& path : filesWith(".mdb")) {
    openFile(path.string(), CodePage(CodePage::kUtf8));
    const mdb::Database reader = mdb::Database::open(path.string());
    ASSERT_EQ(number(child(database, "TableDefs"), "Count"),
              static_cast<std::int32_t>(reader.tables().size()));
    for (const auto& table : reader.tables()) {
      const ObjectRef fields = child(child(database, "TableDefs", {table.name}), "Fields");
      const auto& columns = reader.columns(table);
      ASSERT_EQ(number(fields, "Count"), static_cast<std::int32_t>(columns.size()));
      const ObjectRef rows = toObject(call(database, "OpenRecordset", {table.name, 2}));
      mdb::Rows expected = reader.rows(table);
      for (std::int32_t i = 0; expected.next(); ++i, call(rows, "MoveNext")) {
        ASSERT_FALSE(toBoolean(get(rows, "EOF"))) << table.name << " row " << i;
        for (std::int32_t c = 0; c < number(fields, "Count"); ++c)
          ASSERT_EQ(get(child(rows, "Fields", {c}), "Value"),
                    expected.value(static_cast<std::size_t>(c)));
      }
      EXPECT_TRUE(toBoolean(get(rows, "EOF"))) << table.name;
    }
  }
}

TEST_F(MdbModelTest, RecordingOfAnMdbReopensAndRecordsTheSame) {
  for (const auto& path : filesWith(".mdb")) {
    openFile(path.string(), CodePage(CodePage::kUtf8));
    const Json recorded = recordSnapshot(application);
    EXPECT_FALSE(recorded["queries"].empty() && recorded["tables"].empty()) << path;
    const std::string once = snapshotText(recorded);
    openRecording(once, CodePage(CodePage::kUtf8));
    EXPECT_EQ(snapshotText(recordSnapshot(application)), once) << path;
    const std::string walked = snapshotText(recordByWalking(application));
    EXPECT_TRUE(walked == once) << path;
  }
}

TEST_F(MdbModelTest, NewerFormatRaises7866) {
  for (const auto& path : filesWith(".accdb")) {
    startHost();
    EXPECT_EQ(errorOf([&] {
                call(application, "OpenCurrentDatabase", {path.string(), true});
              }),
              7866);
    EXPECT_TRUE(text(host, "OpenProblem").starts_with(path.string() + ": "));
  }
}

TEST_F(MdbModelTest, TruncatedFileIsRefusedOrFailsWhenRead) {
  const std::string whole = readFile(filesWith(".mdb").front());
  const std::string path = pathOf("cut.mdb");
  for (std::size_t part = 0; part < 50; ++part) {
    writeFile(path, std::string_view(whole).substr(0, whole.size() * part / 50));
    startHost(CodePage(CodePage::kUtf8));
    const std::int32_t error = errorOf([&] {
      call(application, "OpenCurrentDatabase", {path, true});
    });
    if (error == 0) {
      recordSnapshot(application);
      continue;
    }
    EXPECT_EQ(error, static_cast<std::int32_t>(0x80004005u));
    EXPECT_NE(text(host, "OpenProblem"), "");
  }
}

}  // namespace
}  // namespace tarrowin
