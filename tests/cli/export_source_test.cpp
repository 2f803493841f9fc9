// Folders and files of exported objects as sources of the commands.
#include <filesystem>

#include <gtest/gtest.h>

#include "cli/command_process.h"

namespace tarrowin::test {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kForm =
    "Version =20\nVersionRequired =20\nBegin Form\n    Width =7021\n    Caption =\"Orders\"\n"
    "    Begin\n        Begin Section\n            Height =2955\n            Name =\"Detail\"\n"
    "            Begin\n                Begin Label\n                    Left =100\n"
    "                    Width =900\n                    Height =240\n"
    "                    Name =\"lblId\"\n                    Caption =\"Id\"\n"
    "                End\n            End\n        End\n    End\nEnd\n";

class ExportSource : public CommandProcess {
 protected:
  void writeIn(const std::string& name, std::string_view content) {
    fs::create_directories(fs::path(path(name)).parent_path());
    write(name.c_str(), content);
  }
  void writeFolder() {
    writeIn("Orders.mdb.src/forms/frmOrders.bas", kForm);
    writeIn("Orders.mdb.src/queries/q.bas", "dbMemo \"SQL\" =\"SELECT 1 AS a;\\015\\012\"\n");
    writeIn("Orders.mdb.src/macros/m.bas",
            "Version =196611\nColumnsShown =0\nBegin\n    Action =\"Beep\"\nEnd\n");
    writeIn("Orders.mdb.src/modules/x.bas", "Option Compare Database\nSub a()\nEnd Sub\n");
  }
};

TEST_F(ExportSource, FolderIsListed) {
  writeFolder();
  for (const char* name : {"Orders.mdb.src", "Orders.mdb.src/", "./Orders.mdb.src/."}) {
    const ProgramResult result = run({"list", name});
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_TRUE(
        result.out.ends_with("Orders.mdb.src (Access 09.50)\n\nQueries: 1\n  q\n\nForms: 1\n"
                             "  frmOrders\n\nReports: 0\n\nMacros: 1\n  m\n\nModules: 1\n  x\n"
                             "\nTables: 0\n") ||
        result.out.find("\nForms: 1\n  frmOrders\n") != std::string::npos)
        << result.out;
  }
}

TEST_F(ExportSource, FolderIsConverted) {
  writeFolder();
  const ProgramResult result = run({"convert", "Orders.mdb.src", "--to", "out", "--all"});
  EXPECT_EQ(result.status, 0) << result.err;
  const std::string form = fileContent(path("out/frmOrders.frm"));
  EXPECT_NE(form.find("Begin VB.Label lblId"), std::string::npos) << form;
  // The macro has become a module, which lies beside the folder and never inside.
  EXPECT_TRUE(exists("Orders.mdb.src.tarrowin.access.json"));
  std::size_t files = 0;
  for (const auto& entry : fs::recursive_directory_iterator(path("Orders.mdb.src")))
    if (entry.is_regular_file()) ++files;
  EXPECT_EQ(files, 4u);
}

TEST_F(ExportSource, FolderIsRecordedAndTheRecordingConvertsAlike) {
  writeFolder();
  ASSERT_EQ(run({"record", "Orders.mdb.src", "r.access.json"}).status, 0);
  ASSERT_EQ(run({"convert", "Orders.mdb.src", "--to", "a", "--forms", "--queries"}).status, 0);
  ASSERT_EQ(run({"convert", "r.access.json", "--to", "b", "--forms", "--queries"}).status, 0);
  EXPECT_EQ(fileContent(path("a/frmOrders.frm")), fileContent(path("b/frmOrders.frm")));
}

TEST_F(ExportSource, DamagedFormCostsNoOtherObject) {
  writeFolder();
  writeIn("Orders.mdb.src/forms/bad.bas", "Version =20\nBegin Form\n");
  const ProgramResult result = run({"convert", "Orders.mdb.src", "--to", "out", "--forms"});
  EXPECT_EQ(result.status, 1) << result.err;
  EXPECT_TRUE(exists("out/frmOrders.frm"));
}

TEST_F(ExportSource, SingleFile) {
  writeIn("frmOrders.form", kForm);
  const ProgramResult result = run({"convert", "frmOrders.form", "--to", "out", "--forms"});
  EXPECT_EQ(result.status, 0) << result.err;
  EXPECT_TRUE(exists("out/frmOrders.frm"));
}

TEST_F(ExportSource, ScriptOpensAFolder) {
  writeFolder();
  writeIn(
      "s.json",
      "[{\"open\": \"Orders.mdb.src/\"}, {\"select\": \"lstForms\", \"items\": [\"frmOrders\"]}]");
  const ProgramResult result = run({"script", "s.json"});
  EXPECT_EQ(result.status, 0) << result.err;
  EXPECT_EQ(result.out.find("Unable to open"), std::string::npos) << result.out;
  EXPECT_EQ(result.out.find("no item"), std::string::npos) << result.out;
}

TEST_F(ExportSource, DesignsOptionTakesTwoValues) {
  writeFolder();
  EXPECT_EQ(run({"list", "Orders.mdb.src", "--designs", "export"}).status, 0);
  EXPECT_EQ(run({"list", "Orders.mdb.src", "--designs", "file"}).status, 0);
  EXPECT_EQ(run({"list", "Orders.mdb.src", "--designs", "elsewhere"}).status, 2);
}

}  // namespace
}  // namespace tarrowin::test
