// The convert command as a process: what is selected, what is written, what is answered.
#include <csignal>
#include <vector>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <unistd.h>

#include "cli/command_process.h"

namespace tarrowin::test {
namespace {

class ConvertProcess : public CommandProcess {};

TEST_F(ConvertProcess, ConvertMakesTheDirectoryWithItsParents) {
  const ProgramResult result =
      run({"convert", "orders.access.json", "--to", "deep/er/out", "--queries"});
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.out, "");
  EXPECT_EQ(result.err.find("Successfully converted 2 Access Queries to Visual Basic Modules. \n\n"
                            "Converted Queries are saved in directory: " +
                            path("deep/er/out/") + "\n\nConversion completed in: 00:0"),
            0u)
      << result.err;
  EXPECT_EQ(fileNames(path("deep/er/out")), (Names{"Big_Orders.bas", "M\xc3\xa4rz.bas"}));
}

TEST_F(ConvertProcess, ConvertNamedObjects) {
  const ProgramResult result =
      run({"convert", "orders.access.json", "--to", "out", "--queries", "M\xc3\xa4rz"});
  EXPECT_EQ(result.status, 0) << result.err;
  EXPECT_EQ(fileNames(path("out")), (Names{"M\xc3\xa4rz.bas"}));
}

TEST_F(ConvertProcess, ConvertIntoASingleFile) {
  const ProgramResult result =
      run({"convert", "orders.access.json", "--to", "out", "--queries", "--single-file"});
  EXPECT_EQ(result.status, 0) << result.err;
  EXPECT_EQ(fileNames(path("out")), (Names{"OrdersQueries.bas"}));
}

TEST_F(ConvertProcess, ConvertNameThatIsNotInTheListWritesNothing) {
  const ProgramResult result = run({"convert", "orders.access.json", "--to", "out", "--queries",
                                    "Big Orders", "big orders", "", "--modules", "list"});
  EXPECT_EQ(result.status, 2);
  EXPECT_EQ(result.err,
            "tarrowin-cli: orders.access.json: there is no query named \"big orders\"\n"
            "tarrowin-cli: orders.access.json: there is no query named \"\"\n"
            "tarrowin-cli: orders.access.json: there is no module named \"list\"\n");
  EXPECT_FALSE(exists("out"));
}

TEST_F(ConvertProcess, ConvertAContinuousFormThroughADataRepeater) {
  Json database = emptyDatabase();
  const Json properties = {{"DefaultView", 1}, {"RecordSource", "Orders"}, {"OrderBy", ""}};
  database["forms"] = Json::array({{{"name", "List"}, {"properties", properties}}});
  writeFile(path("forms.access.json"), database.dump());
  run({"convert", "forms.access.json", "--to", "plain", "--forms"});
  EXPECT_EQ(fileNames(path("plain")), (Names{"List.frm"}));
  run({"convert", "forms.access.json", "--to", "repeated", "--forms", "--data-repeater"});
  EXPECT_EQ(fileNames(path("repeated")),
            (Names{"List.frm", "List.vbg", "List.vbp", "ctlList.ctl", "ctlList.vbp"}));
}

TEST_F(ConvertProcess, ConvertAFormOfSeveralPagesInsideItsDatabase) {
  const auto newForms = [this](const std::string& option) {
    Json database = emptyDatabase();
    const Json controls = Json::array(
        {{{"name", "txtA"}, {"type", 109}, {"properties", {{"Section", 0}, {"Top", 100}}}},
         {{"name", "brk"}, {"type", 118}, {"properties", {{"Section", 0}, {"Top", 500}}}}});
    database["forms"] = Json::array(
        {{{"name", "Wide"}, {"properties", {{"DefaultView", 0}}}, {"controls", controls}}});
    writeFile(path("forms.access.json"), database.dump());
    Names arguments = {"convert", "forms.access.json", "--to", "out", "--forms"};
    if (!option.empty()) arguments.push_back(option);
    const ProgramResult result = run(arguments);
    EXPECT_EQ(result.status, 1);
    EXPECT_NE(result.err.find("close and then re-open the database again."), std::string::npos)
        << result.err;
    const Json changed = Json::parse(fileContent(path("forms.access.json")));
    std::string names;
    for (const Json& form : changed["forms"]) names += form["name"].get<std::string>() + ";";
    return names;
  };
  EXPECT_EQ(newForms(""), "Wide;Form1;");
  EXPECT_EQ(newForms("--single-forms"), "Wide;Form1;Form2;");
}

TEST_F(ConvertProcess, ConvertWithAStartupForm) {
  Json database = emptyDatabase();
  for (const char* name : {"A", "B"}) {
    const Json properties = {{"DefaultView", 0}, {"RecordSource", ""}};
    database["forms"].push_back({{"name", name}, {"properties", properties}});
  }
  writeFile(path("forms.access.json"), database.dump());
  run({"convert", "forms.access.json", "--to", "out", "--forms", "--startup-form", "B"});
  EXPECT_NE(fileContent(path("out/Orders.vbp")).find("Startup=\"B\"\r\n"), std::string::npos);
  const ProgramResult wrong =
      run({"convert", "forms.access.json", "--to", "other", "--forms", "--startup-form", "C"});
  EXPECT_EQ(wrong.status, 2);
  EXPECT_EQ(wrong.err, "tarrowin-cli: forms.access.json: there is no form named \"C\"\n");
  EXPECT_FALSE(exists("other"));
}

TEST_F(ConvertProcess, ConvertForTheMachineThatLoadsTheProject) {
  Json database = emptyDatabase();
  for (const char* name : {"A", "B"}) {
    const Json properties = {{"DefaultView", 0}, {"RecordSource", ""}};
    database["forms"].push_back({{"name", name}, {"properties", properties}});
  }
  write("forms.access.json", database.dump());
  const ProgramResult result =
      run({"convert", "forms.access.json", "--to", "out", "--forms", "--system-dir",
           "D:\\M\xc3\xa4rz", "--msderun-path", "", "--msado-path", "D:\\ado\\"});
  EXPECT_EQ(result.status, 0) << result.err;
  const std::string project = fileContent(path("out/Orders.vbp"));
  EXPECT_NE(project.find("#2.0#0#D:\\M\xe4rz\\stdole2.tlb#OLE Automation\r\n"), std::string::npos)
      << project;
  // Unknown: nothing stands before the file.
  EXPECT_NE(project.find("#2.2#0#\\MSO.DLL#"), std::string::npos) << project;
}

TEST_F(ConvertProcess, ConvertForADirectoryOutsideTheCodePage) {
  const ProgramResult result = run({"convert", "orders.access.json", "--to", "out", "--queries",
                                    "--system-dir", "D:\\\xe6\x9c\x88"});
  EXPECT_EQ(result.status, 2);
  EXPECT_EQ(result.err,
            "tarrowin-cli: D:\\\xe6\x9c\x88: the path has a character that code page 1252 lacks; "
            "name another page with --code-page\n");
  EXPECT_FALSE(exists("out"));
}

TEST_F(ConvertProcess, ConvertDoesNotStopOverAFormThatAccessRefusesToOpen) {
  Json database = emptyDatabase();
  database["forms"].push_back(
      {{"name", "Locked"}, {"properties", Json::object()}, {"openError", 2046}});
  database["forms"].push_back({{"name", "Open"}, {"properties", Json::object()}});
  write("locked.access.json", database.dump());
  const ProgramResult result = run({"convert", "locked.access.json", "--to", "out", "--forms"});
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(result.err.find("Unable to open Form 'Locked'. This may be due to an AutoExec macro"),
            0u)
      << result.err;
  EXPECT_NE(result.err.find("Stop the program now? No\n"), std::string::npos) << result.err;
  EXPECT_TRUE(result.err.ends_with("1 of 2 forms converted, with the failure told above\n"))
      << result.err;
  EXPECT_EQ(fileNames(path("out")), Names{"Open.frm"});
}

TEST_F(ConvertProcess, ConvertSomethingNotConvertedIsStatusOne) {
  Json database = emptyDatabase();
  database["queries"] = {query("Good", "SELECT 1;"), query("Secret", {{"error", 2601}})};
  write("partly.access.json", database.dump());
  const ProgramResult result = run({"convert", "partly.access.json", "--to", "out", "--queries"});
  EXPECT_EQ(result.status, 1);
  EXPECT_TRUE(
      result.err.ends_with("\ntarrowin-cli: partly.access.json: 1 of 2 queries converted\n"))
      << result.err;
  EXPECT_EQ(fileNames(path("out")), (Names{"Good.bas"}));
}

TEST_F(ConvertProcess, ConvertAnswersQuestionsWithYesAndSaysSo) {
  Json database = emptyDatabase();
  for (int i = 0; i < 51; ++i) {
    database["queries"].push_back(query("Q" + std::to_string(i), "SELECT 1;"));
  }
  write("many.access.json", database.dump());
  const ProgramResult result = run({"convert", "many.access.json", "--to", "out", "--queries"});
  EXPECT_EQ(result.status, 0) << result.err;
  EXPECT_NE(result.err.find("Do you still want to convert the 51 selected Queries? Yes\n"),
            std::string::npos)
      << result.err;
  EXPECT_EQ(fileNames(path("out")).size(), 51u);
}

TEST_F(ConvertProcess, ConvertMoreQueriesThanOneBatchTakes) {
  Json database = emptyDatabase();
  constexpr int kQueries = 2821;
  for (int i = 0; i < kQueries; ++i) {
    database["queries"].push_back(query("Q" + std::to_string(i), "SELECT 1;"));
  }
  write("many.access.json", database.dump());
  const ProgramResult result =
      run({"convert", "many.access.json", "--to", "out", "--queries", "--json"});
  EXPECT_EQ(result.status, 0) << result.err;
  EXPECT_EQ(fileNames(path("out")).size(), std::size_t{kQueries});
  EXPECT_EQ(Json::parse(result.out)["batches"][0]["converted"], kQueries);
  // A single file cannot be worked off in parts: the batch ends with its error.
  const ProgramResult single =
      run({"convert", "many.access.json", "--to", "one", "--queries", "--single-file"});
  EXPECT_EQ(single.status, 1);
  EXPECT_NE(single.err.find("ConvertQueries() - Error #6\nOverflow\n"), std::string::npos)
      << single.err;
}

TEST_F(ConvertProcess, ConvertForAProgram) {
  const ProgramResult result =
      run({"convert", "--json", "orders.access.json", "--to", "out", "--queries", "Big Orders"});
  EXPECT_EQ(result.status, 0) << result.err;
  const Json answer = Json::parse(result.out);
  EXPECT_EQ(answer["database"], path("orders.access.json"));
  EXPECT_EQ(answer["directory"], path("out"));
  EXPECT_EQ(answer["complete"], true);
  ASSERT_EQ(answer["batches"].size(), 1u);
  const Json& batch = answer["batches"][0];
  EXPECT_EQ(batch["kind"], "queries");
  EXPECT_EQ(batch["selected"], 1);
  EXPECT_EQ(batch["converted"], 1);
  ASSERT_EQ(batch["messages"].size(), 1u);
  EXPECT_TRUE(batch["messages"][0].get<std::string>().starts_with(
      "Successfully converted Access Query: Big Orders to Visual Basic Module: Big_Orders.bas.\n"));
}

TEST_F(ConvertProcess, ConvertKindsInTheirOrderWhateverTheOrderOfTheOptions) {
  const ProgramResult result =
      run({"convert", "--json", "orders.access.json", "--to", "out", "--project", "--modules",
           "--macros", "--reports", "--forms", "--queries"});
  const Json answer = Json::parse(result.out);
  std::vector<std::string> kinds;
  for (const Json& batch : answer["batches"]) kinds.push_back(batch["kind"]);
  EXPECT_EQ(kinds, (Names{"queries", "forms", "reports", "macros", "modules", "project"}));
}

TEST_F(ConvertProcess, ConvertAllPassesEmptyKindsOver) {
  Json database = emptyDatabase();
  database["queries"] = {query("Only", "SELECT 1;")};
  write("one.access.json", database.dump());
  const ProgramResult result =
      run({"convert", "--json", "one.access.json", "--to", "out", "--all"});
  EXPECT_EQ(result.status, 0) << result.err;
  ASSERT_EQ(Json::parse(result.out)["batches"].size(), 1u);
  EXPECT_EQ(Json::parse(result.out)["batches"][0]["kind"], "queries");
}

TEST_F(ConvertProcess, ConvertNamedKindThatIsEmptySaysSo) {
  const ProgramResult result = run({"convert", "orders.access.json", "--to", "out", "--macros"});
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.err, "There are no Macros to convert.\n");
}

TEST_F(ConvertProcess, ConvertWritesInTheCodePageAskedFor) {
  Json database = emptyDatabase();
  database["queries"] = {query("Q", "SELECT '\xd0\x96';")};
  write("c.access.json", database.dump());
  EXPECT_EQ(run({"convert", "c.access.json", "--to", "w", "--queries"}).status, 0);
  EXPECT_EQ(
      run({"convert", "c.access.json", "--to", "c", "--queries", "--code-page", "1251"}).status, 0);
  EXPECT_NE(fileContent(path("w/Q.bas")).find("'?'"), std::string::npos);
  EXPECT_NE(fileContent(path("c/Q.bas")).find("'\xc6'"), std::string::npos);
}

TEST_F(ConvertProcess, ConvertPathThatTheCodePageLacks) {
  write("\xe6\x9c\x88.access.json", emptyDatabase().dump());
  const ProgramResult result =
      run({"convert", "\xe6\x9c\x88.access.json", "--to", "out", "--queries"});
  EXPECT_EQ(result.status, 2);
  EXPECT_NE(result.err.find("has a character that code page 1252 lacks"), std::string::npos)
      << result.err;
  EXPECT_FALSE(exists("out"));
}

TEST_F(ConvertProcess, OutputDirectoryThatCannotBeMade) {
  write("file", "x");
  for (const char* directory : {"file", "file/below"}) {
    const ProgramResult result =
        run({"convert", "orders.access.json", "--to", directory, "--queries"});
    EXPECT_EQ(result.status, 2) << directory;
    EXPECT_EQ(result.err, "tarrowin-cli: " + std::string(directory) + ": Not a directory\n");
  }
  EXPECT_EQ(fileContent(path("file")), "x");
}

TEST_F(ConvertProcess, OutputDirectoryThatIsFull) {
  // No file may grow beyond nothing; the program is told by an error, not by a signal.
  const ProgramResult result =
      run({"convert", "orders.access.json", "--to", "out", "--queries", "Big Orders"}, [] {
        // The streams are files too.
        const int null = open("/dev/null", O_WRONLY);
        dup2(null, STDOUT_FILENO);
        dup2(null, STDERR_FILENO);
        std::signal(SIGXFSZ, SIG_IGN);
        const rlimit nothing{0, 0};
        setrlimit(RLIMIT_FSIZE, &nothing);
      });
  EXPECT_EQ(result.status, 1);
}

}  // namespace
}  // namespace tarrowin::test
