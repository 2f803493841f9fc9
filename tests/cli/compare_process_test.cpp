// Comparing two databases, and how much of a design is understood, as a user sees it.
#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "cli/command_process.h"

namespace tarrowin::test {
namespace {

constexpr std::string_view kForm = R"({
  "name": "frmMain",
  "properties": {"Caption": "Orders", "Filter": "a", "Tag": {"error": 2186}},
  "sections": [{"number": 0, "properties": {"Name": "Detail", "Height": 3000}}],
  "controls": [{"name": "group", "type": 107, "properties": {"Left": 10}},
               {"name": "txtA", "type": 109, "parent": "group",
                "properties": {"Left": 120, "Bytes": {"bytes": "AAAA"}}}],
  "module": "Option Compare Database\r\nSub A()\r\nEnd Sub\r\n"})";

class CompareProcess : public CommandProcess {
 protected:
  CompareProcess() {
    first_ = emptyDatabase();
    first_["tables"] = Json::parse(
        R"([{"name": "Orders", "fields": [{"name": "ID", "type": 4, "size": 4}], "rows": []}])");
    first_["queries"] = {query("Big", "SELECT 1;"), query("~sq_f", "SELECT 2;")};
    first_["relations"] = Json::parse(
        R"([{"name": "r", "table": "A", "foreignTable": "B",
             "fields": [{"name": "x", "foreignName": "y"}]}])");
    first_["forms"] = Json::array({Json::parse(kForm)});
    first_["reports"] = Json::parse(R"([{"name": "rpt", "properties": {"Width": 5000},
        "sections": [], "controls": [], "groupLevels": [{"GroupOn": 0}]}])");
    first_["macros"] = Json::parse(
        R"([{"name": "mac", "actions": [{"action": "Beep"}, {"action": "Hourglass",
             "arguments": ["-1"]}]}])");
    first_["modules"] = Json::parse(R"([{"name": "mod", "type": 0, "text": "Dim a\r\n"}])");
    second_ = first_;
  }

  // What comparing the two says behind the names of the files.
  std::string compared(int status, const Names& options = {}) {
    write("a.access.json", first_.dump());
    write("b.access.json", second_.dump());
    Names arguments = {"compare", "a.access.json", "b.access.json"};
    arguments.insert(arguments.end(), options.begin(), options.end());
    const ProgramResult result = run(arguments);
    EXPECT_EQ(result.status, status) << result.err;
    EXPECT_EQ(result.err, "");
    const std::string head = "A: " + path("a.access.json") + "\nB: " + path("b.access.json") + "\n";
    EXPECT_TRUE(result.out.starts_with(head) || !options.empty()) << result.out;
    return result.out.starts_with(head) ? result.out.substr(head.size()) : result.out;
  }

  Json first_, second_;
};

TEST_F(CompareProcess, NothingDiffers) {
  EXPECT_EQ(compared(0), "\nObjects: 7 alike, 0 different, 0 only in A, 0 only in B\n");
}

TEST_F(CompareProcess, EachDifferingPropertyWithBothValues) {
  Json& form = second_["forms"][0];
  form["properties"]["Caption"] = "Lines";
  form["properties"].erase("Filter");
  form["properties"]["Tag"] = "x";
  form["sections"][0]["properties"]["Height"] = 2000;
  form["controls"][1]["properties"]["Left"] = true;
  form["controls"][1]["properties"]["Bytes"] = {{"bytes", "AAAAAAAA"}};
  form["controls"][1].erase("parent");
  form["controls"].push_back({{"name", "new"}, {"type", 100}, {"properties", Json::object()}});
  second_["reports"][0]["groupLevels"][0]["GroupOn"] = 1;
  EXPECT_EQ(compared(1),
            "\nform frmMain\n"
            "  Caption: \"Orders\" | \"Lines\"\n"
            "  Filter: \"a\" | (not there)\n"
            "  Tag: error 2186 \"This property isn't available in Design view.\" | \"x\"\n"
            "  section 0\n"
            "    Height: 3000 | 2000\n"
            "  control txtA\n"
            "    Left: 120 | True\n"
            "    Bytes: 3 bytes | 6 bytes\n"
            "    (parent): \"group\" | \"\"\n"
            "  control new: only in B\n"
            "\nreport rpt\n"
            "  group level 0\n"
            "    GroupOn: 0 | 1\n"
            "\nObjects: 5 alike, 2 different, 0 only in A, 0 only in B\n");
}

TEST_F(CompareProcess, OtherKindsOfObjects) {
  second_["tables"][0]["fields"][0]["type"] = 10;
  second_["queries"][0] = query("BIG", "SELECT 3;");
  second_["queries"][1] = query("~sq_g", "SELECT 4;");
  second_["relations"][0]["fields"][0]["foreignName"] = "z";
  second_["macros"][0]["actions"][1]["arguments"][0] = "0";
  second_["modules"][0]["text"] = "Dim b\r\n";
  EXPECT_EQ(compared(1),
            "\ntable Orders\n"
            "  field ID\n"
            "    Type: 4 | 10\n"
            "\nrelation r\n"
            "  field x\n"
            "    ForeignName: \"y\" | \"z\"\n"
            "\nquery Big\n"
            "  SQL: \"SELECT 1;\" | \"SELECT 3;\"\n"
            "\nmacro mac\n"
            "  (text): line 12: \"    DoCmd.Hourglass True\" | \"    DoCmd.Hourglass False\"\n"
            "\nmodule mod\n"
            "  (text): line 1: \"Dim a\" | \"Dim b\"\n"
            "\nObjects: 2 alike, 5 different, 0 only in A, 0 only in B\n");
}

TEST_F(CompareProcess, ObjectsOnOneSideOnly) {
  second_["modules"][0]["name"] = "other";
  second_["forms"] = Json::array();
  EXPECT_EQ(compared(1),
            "\nform frmMain: only in A\n"
            "\nmodule mod: only in A\n"
            "\nmodule other: only in B\n"
            "\nObjects: 5 alike, 0 different, 2 only in A, 1 only in B\n");
}

TEST_F(CompareProcess, OfALongTextTheFirstLineThatDiffers) {
  second_["forms"][0]["module"] = "Option Compare Database\r\nSub B()\r\nEnd Sub\r\n";
  EXPECT_EQ(compared(1),
            "\nform frmMain\n"
            "  (module): line 2: \"Sub A()\" | \"Sub B()\"\n"
            "\nObjects: 6 alike, 1 different, 0 only in A, 0 only in B\n");
}

TEST_F(CompareProcess, TextsThatDifferInTheEndOfALine) {
  second_["modules"][0]["text"] = "Dim a\n";
  second_["forms"][0]["module"] = first_["forms"][0]["module"].get<std::string>() + "\r\n";
  EXPECT_EQ(compared(1),
            "\nform frmMain\n"
            "  (module): line 4 ends otherwise: \"\", 43 characters | 45 characters\n"
            "\nmodule mod\n"
            "  (text): line 1 ends otherwise: \"Dim a\", 7 characters | 6 characters\n"
            "\nObjects: 5 alike, 2 different, 0 only in A, 0 only in B\n");
}

TEST_F(CompareProcess, OfALongLineThePartThatDiffers) {
  const std::string head(200, 'x');
  first_["queries"][0] = query("Big", head + "1" + head);
  second_["queries"][0] = query("Big", head + "2" + head);
  const std::string shown(40, 'x'), rest(59, 'x');
  EXPECT_EQ(compared(1),
            "\nquery Big\n"
            "  SQL: line 1: \"" +
                shown + "1" + rest + "\"... (241 characters) | \"" + shown + "2" + rest +
                "\"... (241 characters)\n"
                "\nObjects: 6 alike, 1 different, 0 only in A, 0 only in B\n");
}

TEST_F(CompareProcess, ControlsThatChangedPlaces) {
  std::swap(second_["forms"][0]["controls"][0], second_["forms"][0]["controls"][1]);
  EXPECT_EQ(compared(1),
            "\nform frmMain\n"
            "  (order of controls): \"group\" | \"txtA\"\n"
            "\nObjects: 6 alike, 1 different, 0 only in A, 0 only in B\n");
}

TEST_F(CompareProcess, DuplicateControlNamesArePairedInTheirOrder) {
  for (Json* database : {&first_, &second_})
    (*database)["forms"][0]["controls"].push_back(
        {{"name", "txtA"}, {"type", 109}, {"properties", {{"Left", 1}}}});
  second_["forms"][0]["controls"][2]["properties"]["Left"] = 2;
  EXPECT_EQ(compared(1),
            "\nform frmMain\n"
            "  control txtA (2)\n"
            "    Left: 1 | 2\n"
            "\nObjects: 6 alike, 1 different, 0 only in A, 0 only in B\n");
}

TEST_F(CompareProcess, AnObjectThatCannotBeOpened) {
  second_["forms"][0] = {{"name", "frmMain"}, {"openError", 2601}};
  const std::string found = compared(1);
  EXPECT_NE(found.find("  (cannot be opened): (not there) | error 2601 "
                       "\"You don't have permission to read 'frmMain'.\"\n"),
            std::string::npos)
      << found;
}

TEST_F(CompareProcess, OnlyWhatConversionsRead) {
  second_["forms"][0]["properties"]["Filter"] = "b";
  compared(1);
  EXPECT_EQ(compared(0, {"--generators-only"}),
            "\nObjects: 7 alike, 0 different, 0 only in A, 0 only in B\n");
  second_["forms"][0]["properties"]["Caption"] = "Lines";
  compared(1, {"--generators-only"});
  second_ = first_;
  second_["tables"][0]["fields"][0]["size"] = 8;
  compared(1, {"--generators-only"});
}

TEST_F(CompareProcess, ForAProgram) {
  second_["forms"][0]["controls"][0]["properties"]["Left"] = 11;
  second_["forms"][0]["controls"].erase(1);
  second_["modules"] = Json::array();
  const Json answer = Json::parse(compared(1, {"--json"}));
  EXPECT_EQ(answer["first"], path("a.access.json"));
  EXPECT_EQ(answer["second"], path("b.access.json"));
  EXPECT_EQ(answer["objects"], Json::parse(R"([{"kind": "form", "name": "frmMain", "differences": [
                              {"part": "control group", "property": "Left", "first": 10,
                               "second": 11},
                              {"part": "control txtA", "onlyIn": "first"}]},
                            {"kind": "module", "name": "mod", "onlyIn": "first"}])"));
  EXPECT_EQ(answer["alike"], 5);
  EXPECT_EQ(answer["different"], 1);
  EXPECT_EQ(answer["onlyInFirst"], 1);
  EXPECT_EQ(answer["onlyInSecond"], 0);
}

TEST_F(CompareProcess, UnusableSources) {
  for (const Names& arguments : {Names{"compare"}, Names{"compare", "orders.access.json"},
                                 Names{"compare", "orders.access.json", "none.access.json"},
                                 Names{"compare", "none.mdb", "orders.access.json"}}) {
    const ProgramResult result = run(arguments);
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.out, "");
    EXPECT_NE(result.err.find("tarrowin-cli: "), std::string::npos) << result.err;
  }
}

TEST_F(CompareProcess, ListTellsHowMuchOfEachDesignIsUnderstood) {
  first_["forms"].push_back({{"name", "frmLocked"}, {"openError", 2601}});
  write("a.access.json", first_.dump());
  const ProgramResult result = run({"list", "--detail", "a.access.json"});
  EXPECT_EQ(result.status, 0) << result.err;
  const std::string end =
      "\nUnderstood of the designs\n"
      "\nForms\n"
      "  frmMain: complete\n"
      "  frmLocked: You don't have permission to read 'frmLocked'.\n"
      "\nReports\n"
      "  rpt: complete\n"
      "\nMacros\n"
      "  mac: 2 actions\n";
  EXPECT_TRUE(result.out.ends_with(end)) << result.out;
  const Json answer = Json::parse(run({"list", "--detail", "--json", "a.access.json"}).out);
  EXPECT_EQ(answer["detail"], Json::parse(R"({"forms": [{"name": "frmMain", "complete": true},
                 {"name": "frmLocked",
                  "problem": "You don't have permission to read 'frmLocked'."}],
                "reports": [{"name": "rpt", "complete": true}],
                "macros": [{"name": "mac", "actions": 2}]})"));
}

// An export leaves nothing of a control out that is known, and has keywords that are no property.
TEST_F(CompareProcess, ListTellsTheSharesOfAnExport) {
  write("frmA.txt",
        "Version =20\r\nVersionRequired =20\r\nBegin Form\r\n    Width =5000\r\n    Begin\r\n"
        "        Begin Section\r\n            Height =500\r\n            Name =\"Detail\"\r\n"
        "            Begin\r\n                Begin Label\r\n"
        "                    Width =600\r\n                    Height =240\r\n"
        "                    Name =\"lbl\"\r\n                End\r\n            End\r\n"
        "        End\r\n    End\r\nEnd\r\n");
  const ProgramResult result = run({"list", "--detail", "--json", "frmA.txt"});
  ASSERT_EQ(result.status, 0) << result.err;
  const Json answer = Json::parse(result.out);
  const Json& understood = answer["detail"]["forms"][0]["understood"];
  EXPECT_EQ(understood["controls"], Json::parse(R"({"known": 1, "all": 1})"));
  EXPECT_EQ(understood["properties"]["known"], understood["properties"]["all"]);
  EXPECT_GE(understood["properties"]["all"], 6);
}

}  // namespace
}  // namespace tarrowin::test
