// The preview as a command: its text, its JSON, its exit statuses.
#include <string>

#include <gtest/gtest.h>

#include "cli/command_process.h"

namespace tarrowin::test {
namespace {

class PreviewProcess : public CommandProcess {
 protected:
  PreviewProcess() {
    Json database = emptyDatabase();
    database["tables"] = Json::parse(
        R"([{"name": "Orders", "fields": [{"name": "Ship", "type": 10}], "rows": [["Möwe"]]}])");
    database["forms"] = Json::parse(R"([
      {"name": "Aufträge", "properties": {"Caption": "Bestellungen\r\nneu", "RecordSource": "Orders",
                                          "Width": 5000, "BorderStyle": 0, "Tag": ""},
       "sections": [{"number": 0, "properties": {"Height": 2000}},
                    {"number": 1, "properties": {"Height": 400}}],
       "controls": [
         {"name": "Ship Name", "type": 109,
          "properties": {"ControlSource": "Ship", "Left": 100, "Top": 200, "Section": 0,
                         "Visible": true}},
         {"name": "fraPay", "type": 107, "properties": {"Left": 50, "Top": 60, "Section": 0}},
         {"name": "optCash", "type": 105, "parent": "fraPay",
          "properties": {"Left": 70, "Top": 90, "Section": 0}},
         {"name": "tabs", "type": 123, "properties": {}},
         {"name": "p1", "type": 124, "parent": "tabs", "properties": {"Caption": "Eins"}},
         {"name": "lblA", "type": 100, "parent": "p1", "properties": {"Caption": "A"}}]},
      {"name": "frmLocked", "openError": 2601}])");
    write("ships.access.json", database.dump());
  }
};

TEST_F(PreviewProcess, ForAPerson) {
  const ProgramResult result = run({"preview", "ships.access.json", "Aufträge"});
  EXPECT_EQ(result.status, 0) << result.err;
  EXPECT_EQ(result.err, "");
  EXPECT_EQ(result.out, R"(Form1 shows Aufträge
  BorderStyle   1
  Caption       "Bestellungen\r\nneu"
  Height        3180
  Tag           ""
  Width         5120
  on pages      "0lblA"

VB.Data Data1
  Connect       "Access"
  DatabaseName  "C:\\Data\\Orders.mdb"
  Enabled       True
  Exclusive     False
  Height        276
  Top           2124
  Width         2880
  RecordsetType 0
  RecordSource  "Orders"
  Visible       False

VB.TextBox Ship_Name
  DataSource    "Data1"
  DataField     "Ship"
  Text          "Möwe"
  Left          100
  Top           600
  Visible       True

VB.Frame fraPay
  Left          50
  Top           460

VB.OptionButton optCash in fraPay
  Left          20
  Top           30

MSComctlLib.TabStrip tabs
  tabs          "Eins"

VB.Label lblA
  Caption       "A"
  Visible       True
)");
}

TEST_F(PreviewProcess, ForAProgram) {
  const ProgramResult result = run({"preview", "--json", "ships.access.json", "Aufträge"});
  EXPECT_EQ(result.status, 0) << result.err;
  const Json expected = Json::parse(R"({
    "form": "Aufträge",
    "sections": [{"number": 1, "height": 400}, {"number": 0, "height": 2000}],
    "totalHeight": 2400,
    "properties": {"BorderStyle": 1, "Caption": "Bestellungen\r\nneu", "Height": 3180, "Tag": "",
                   "Width": 5120},
    "controls": [
      {"class": "VB.Data", "name": "Data1",
       "properties": {"Connect": "Access", "DatabaseName": "C:\\Data\\Orders.mdb", "Enabled": true,
                      "Exclusive": false, "Height": 276, "Top": 2124, "Width": 2880,
                      "RecordsetType": 0, "RecordSource": "Orders", "Visible": false}},
      {"class": "VB.TextBox", "name": "Ship_Name",
       "properties": {"DataSource": "Data1", "DataField": "Ship", "Text": "Möwe", "Left": 100,
                      "Top": 600, "Visible": true}},
      {"class": "VB.Frame", "name": "fraPay", "properties": {"Left": 50, "Top": 460}},
      {"class": "VB.OptionButton", "name": "optCash", "container": "fraPay",
       "properties": {"Left": 20, "Top": 30}},
      {"class": "MSComctlLib.TabStrip", "name": "tabs", "properties": {}, "tabs": ["Eins"]},
      {"class": "VB.Label", "name": "lblA", "properties": {"Caption": "A", "Visible": true}}],
    "tabControls": ["0lblA"]})");
  // Equal to the order of the keys.
  EXPECT_EQ(Json::parse(result.out).dump(1), expected.dump(1));
}

TEST_F(PreviewProcess, FormThatTheSourceLacks) {
  const ProgramResult result = run({"preview", "ships.access.json", "frmNone"});
  EXPECT_EQ(result.status, 2);
  EXPECT_EQ(result.out, "");
  EXPECT_EQ(result.err, "tarrowin-cli: ships.access.json: there is no form named \"frmNone\"\n");
}

TEST_F(PreviewProcess, SourceThatCannotBeUsed) {
  EXPECT_EQ(run({"preview", "none.mdb", "frmMain"}).status, 2);
}

TEST_F(PreviewProcess, FormThatCannotBeShown) {
  for (const Names& arguments : {Names{"preview", "ships.access.json", "frmLocked"},
                                 Names{"preview", "--json", "ships.access.json", "frmLocked"}}) {
    const ProgramResult result = run(arguments);
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.out, "");
    EXPECT_TRUE(result.err.starts_with("PreviewForm() - Error #2601\n")) << result.err;
  }
}

TEST_F(PreviewProcess, LeavesTheSourceAsItIs) {
  const std::string before = fileContent(path("ships.access.json"));
  run({"preview", "ships.access.json", "Aufträge"});
  EXPECT_EQ(fileContent(path("ships.access.json")), before);
  EXPECT_EQ(fileNames(folder.path()), (Names{"orders.access.json", "ships.access.json"}));
}

}  // namespace
}  // namespace tarrowin::test
