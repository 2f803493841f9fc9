// Session scripts from the command line, with a clock that the test sets.
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "cli/in_process.h"
#include "support/test_session.h"

namespace tarrowin::test {
namespace {

constexpr double kSecond = 1.0 / 86400;

class ScriptCommand : public testing::Test {
 protected:
  ScriptCommand() {
    Json database = emptyDatabase();
    database["queries"] = {query("Alpha", "SELECT 1;"), query("Beta", "SELECT 2;")};
    write("orders.access.json", database.dump());
    std::filesystem::create_directory(folder.path() / "out");
  }

  void write(const char* name, std::string_view content) const {
    writeFile(folder.path() / name, content);
  }
  std::string path(const char* name) const { return (folder.path() / name).string(); }
  CommandResult run(std::string_view script) {
    write("script.json", script);
    return runCommand({"script", path("script.json")}, settings);
  }
  // The texts of the message events.
  static std::vector<std::string> messages(const std::string& transcript) {
    std::vector<std::string> texts;
    std::istringstream lines(transcript);
    for (std::string line; std::getline(lines, line);) {
      const Json event = Json::parse(line);
      if (event["event"] == "message") texts.push_back(event["text"]);
    }
    return texts;
  }

  TemporaryFolder folder;
  CommandSettings settings;
};

TEST_F(ScriptCommand, ElapsedTimeComesFromTheClock) {
  // Each reading of the clock is 61 seconds after the one before.
  double now = 46000.25;
  settings.clock = [&now] { return Date{now += 61 * kSecond}; };
  const CommandResult result = run(R"([
    {"open": "orders.access.json"}, {"set": {"txtCurDir": "out"}}, {"click": "cmdAllQrys"}])");
  EXPECT_EQ(result.status, 0) << result.err;
  EXPECT_EQ(messages(result.out),
            (std::vector<std::string>{
                "Successfully converted 2 Access Queries to Visual Basic Modules. \r\n\r\n"
                "Converted Queries are saved in directory: " +
                path("out/") + "\r\n\r\nConversion completed in: 01:01 second."}));
}

TEST_F(ScriptCommand, PathsAreResolvedByTheirTextAgainstTheScript) {
  const CommandResult result = run(R"([
    {"open": "./missing/../orders.access.json"}, {"open": "orders.access.json"},
    {"set": {"txtCurDir": "missing/../out"}}, {"click": "cmdAllQrys"}])");
  ASSERT_EQ(messages(result.out).size(), 2u) << result.out;
  EXPECT_EQ(messages(result.out)[0],
            "The database that you are attempting to open is already open.");
  EXPECT_EQ(fileNames(folder.path() / "out"), (std::vector<std::string>{"Alpha.bas", "Beta.bas"}));
}

TEST_F(ScriptCommand, ScriptNamedRelativeToTheWorkingDirectory) {
  write("script.json", R"([{"open": "orders.access.json"}])");
  settings.workingDirectory = folder.path().string();
  const CommandResult result = runCommand({"script", "script.json"}, settings);
  EXPECT_EQ(result.status, 0) << result.err;
  EXPECT_NE(result.out.find("[orders.access.json] Access v08.50"), std::string::npos) << result.out;
}

TEST_F(ScriptCommand, EmptyOutputDirectoryStaysEmpty) {
  const CommandResult result = run(R"([
    {"set": {"txtCurDir": ""}}, {"click": "cmdAllQrys"}])");
  EXPECT_EQ(messages(result.out),
            (std::vector<std::string>{"Please specify an output directory for converted Forms."}));
}

TEST_F(ScriptCommand, ClickOnOpenAsksTheQueue) {
  const CommandResult result = run(R"([
    {"answers": ["orders.access.json"]}, {"click": "cmdOpen"}, {"click": "cmdOpen"}])");
  EXPECT_EQ(result.status, 0);
  EXPECT_NE(result.out.find("\"caption\""), std::string::npos);
  EXPECT_TRUE(messages(result.out).empty());
}

TEST_F(ScriptCommand, SelectionReplacesTheOneBefore) {
  const CommandResult result = run(R"([
    {"open": "orders.access.json"}, {"set": {"txtCurDir": "out"}},
    {"select": "lstQueries", "items": "all"}, {"select": "lstQueries", "items": ["Beta"]},
    {"click": "cmdConvertQry"}])");
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(fileNames(folder.path() / "out"), (std::vector<std::string>{"Beta.bas"}));
}

TEST_F(ScriptCommand, DoubleClickMakesTheItemTheWholeSelection) {
  const CommandResult result = run(R"([
    {"open": "orders.access.json"}, {"set": {"txtCurDir": "out"}},
    {"select": "lstQueries", "items": "all"}, {"doubleclick": "lstQueries", "item": "Alpha"}])");
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(fileNames(folder.path() / "out"), (std::vector<std::string>{"Alpha.bas"}));
}

TEST_F(ScriptCommand, ButtonThatNothingAnswersYetIsPassedOver) {
  const CommandResult result =
      run(R"([{"click": "cmdBrowse"}, {"click": "cmdNext"}, {"open": ""}])");
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.out, "");
}

TEST_F(ScriptCommand, ResetIsAFreshRun) {
  const CommandResult result = run(R"([
    {"open": "orders.access.json"}, {"answers": ["no"]}, {"reset": true},
    {"open": "orders.access.json"}, {"set": {"txtCurDir": "new"}}, {"click": "cmdAllQrys"}])");
  EXPECT_EQ(result.status, 0);
  // Opened again instead of being "already open", and the answer is forgotten with the rest.
  ASSERT_EQ(messages(result.out).size(), 2u) << result.out;
  EXPECT_EQ(fileNames(folder.path() / "new"), (std::vector<std::string>{"Alpha.bas", "Beta.bas"}));
}

TEST_F(ScriptCommand, ConfigNamesTheMachineInTheProjectsThatFollow) {
  Json database = emptyDatabase();
  for (const char* name : {"A", "B"}) {
    database["forms"].push_back({{"name", name}, {"properties", Json::object()}});
  }
  write("forms.access.json", database.dump());
  const CommandResult result = run(R"([
    {"config": {"systemDir": "D:\\NT", "msderunPath": "D:\\dll\\"}},
    {"open": "forms.access.json"}, {"set": {"txtCurDir": "out"}}, {"click": "cmdAllForms"}])");
  EXPECT_EQ(result.status, 0) << result.err;
  const std::string project = fileContent(folder.path() / "out" / "Orders.vbp");
  EXPECT_NE(project.find("#2.0#0#D:\\NT\\stdole2.tlb#OLE Automation\r\n"), std::string::npos);
  EXPECT_NE(project.find("#2.2#0#D:\\dll\\MSO.DLL#"), std::string::npos);
}

TEST_F(ScriptCommand, StoppingTheProgramEndsTheStepsUntilAReset) {
  Json database = emptyDatabase();
  database["forms"].push_back(
      {{"name", "Locked"}, {"properties", Json::object()}, {"openError", 2046}});
  write("locked.access.json", database.dump());
  const CommandResult result = run(R"([
    {"open": "locked.access.json"}, {"set": {"txtCurDir": "out"}}, {"answers": ["yes"]},
    {"click": "cmdAllForms"}, {"click": "cmdAllQrys"},
    {"reset": true}, {"open": "orders.access.json"}, {"click": "cmdConvertQry"}])");
  EXPECT_EQ(result.status, 0) << result.err;
  const std::vector<std::string> shown = messages(result.out);
  ASSERT_EQ(shown.size(), 2u) << result.out;
  EXPECT_TRUE(shown[0].ends_with("Stop the program now?"));
  EXPECT_EQ(shown[1], "Please select a Query to convert from the displayed list first.");
}

TEST_F(ScriptCommand, UnknownItemsArePassedOverWithAWarning) {
  const CommandResult result = run(R"([
    {"open": "orders.access.json"}, {"set": {"txtCurDir": "out"}},
    {"select": "lstQueries", "items": ["Alpha", "alpha"]}, {"click": "cmdConvertQry"}])");
  EXPECT_EQ(result.status, 0);
  EXPECT_NE(result.out.find(R"({"event":"warning","text":"lstQueries has no item \"alpha\""})"),
            std::string::npos)
      << result.out;
  EXPECT_EQ(fileNames(folder.path() / "out"), (std::vector<std::string>{"Alpha.bas"}));
}

TEST_F(ScriptCommand, AnswerThatFitsNoQuestionLeavesTheDefaultButton) {
  const CommandResult result = run(R"([
    {"open": "orders.access.json"}, {"set": {"txtCurDir": "new"}}, {"answers": ["maybe"]},
    {"click": "cmdAllQrys"}, {"open": "orders.access.json"}])");
  EXPECT_EQ(result.status, 0);
  EXPECT_NE(result.out.find("the answer \\\"maybe\\\" met the question \\\"Directory "),
            std::string::npos)
      << result.out;
  EXPECT_FALSE(fileNames(folder.path() / "new").empty());
}

TEST_F(ScriptCommand, NothingRunsWhenALaterStepIsMalformed) {
  const CommandResult result = run(R"([
    {"open": "orders.access.json"}, {"set": {"txtCurDir": "out"}}, {"click": "cmdAllQrys"},
    {"click": "cmdNothing"}])");
  EXPECT_EQ(result.status, 2);
  EXPECT_EQ(result.out, "");
  EXPECT_EQ(result.err, "tarrowin-cli: " + path("script.json") +
                            ": step 4: the window has no button \"cmdNothing\"\n");
  EXPECT_TRUE(fileNames(folder.path() / "out").empty());
}

TEST_F(ScriptCommand, TranscriptFileTakesTheEvents) {
  write("script.json", R"([{"open": "orders.access.json"}])");
  settings.workingDirectory = folder.path().string();
  const CommandResult result =
      runCommand({"script", "script.json", "--transcript", "t.jsonl"}, settings);
  EXPECT_EQ(result.status, 0) << result.err;
  EXPECT_EQ(result.out, "");
  EXPECT_EQ(fileContent(folder.path() / "t.jsonl"),
            "{\"event\":\"caption\",\"text\":\"Access to Visual Basic Tarrowin - "
            "[orders.access.json] Access v08.50\"}\n"
            "{\"event\":\"lists\",\"lstQueries\":[\"Alpha\",\"Beta\"],\"lstForms\":[],"
            "\"lstReports\":[],\"lstMacros\":[],\"lstModules\":[],\"lstObjects\":[]}\n");
}

TEST_F(ScriptCommand, TranscriptThatCannotBeMadeRunsNothing) {
  write("script.json", R"([{"open": "orders.access.json"}, {"set": {"txtCurDir": "out"}},
                           {"click": "cmdAllQrys"}])");
  const CommandResult result =
      runCommand({"script", path("script.json"), "--transcript", path("missing/t")}, settings);
  EXPECT_EQ(result.status, 2);
  EXPECT_EQ(result.err, "tarrowin-cli: " + path("missing/t") + ": No such file or directory\n");
  EXPECT_TRUE(fileNames(folder.path() / "out").empty());
}

TEST_F(ScriptCommand, MalformedScriptLeavesAnOlderTranscriptAlone) {
  write("script.json", "[");
  write("t.jsonl", "old");
  const CommandResult result =
      runCommand({"script", path("script.json"), "--transcript", path("t.jsonl")}, settings);
  EXPECT_EQ(result.status, 2);
  EXPECT_EQ(fileContent(folder.path() / "t.jsonl"), "old");
}

TEST_F(ScriptCommand, TranscriptOnAFullDisk) {
  write("script.json", R"([{"open": "orders.access.json"}])");
  const CommandResult result =
      runCommand({"script", path("script.json"), "--transcript", "/dev/full"}, settings);
  EXPECT_EQ(result.status, 2);
  EXPECT_EQ(result.err, "tarrowin-cli: /dev/full: the transcript could not be written\n");
}

TEST_F(ScriptCommand, ScriptThatCannotBeRead) {
  EXPECT_EQ(runCommand({"script", path("none.json")}, settings).err,
            "tarrowin-cli: " + path("none.json") + ": No such file or directory\n");
  EXPECT_EQ(runCommand({"script", folder.path().string()}, settings).err,
            "tarrowin-cli: " + folder.path().string() + ": Is a directory\n");
}

TEST_F(ScriptCommand, NamesPassTheCodePageThatIsAskedFor) {
  Json database = emptyDatabase();
  database["queries"] = {query("\xd0\x96", "SELECT 1;")};  // a Cyrillic letter
  write("cyrillic.access.json", database.dump());
  write("script.json", R"([{"open": "cyrillic.access.json"}])");
  const std::string western = runCommand({"script", path("script.json")}, settings).out;
  const std::string cyrillic =
      runCommand({"script", path("script.json"), "--code-page", "1251"}, settings).out;
  EXPECT_NE(western.find("\"lstQueries\":[\"?\"]"), std::string::npos) << western;
  EXPECT_NE(cyrillic.find("\"lstQueries\":[\"\xd0\x96\"]"), std::string::npos) << cyrillic;
}

}  // namespace
}  // namespace tarrowin::test
