// The host, the application's life, and everything that can go wrong with opening.
#include <fcntl.h>
#include <sys/stat.h>

#include "access/access_fixture.h"

namespace tarrowin {
namespace {

constexpr std::int32_t kFail = static_cast<std::int32_t>(0x80004005u);
constexpr std::string_view kEmptyRecording = R"({"snapshot": 1})";

using HostTest = AccessTest;

TEST_F(HostTest, GetObjectWithoutRunningApplicationRaises429) {
  host = createAccessHost();
  EXPECT_EQ(errorOf([&] { call(host, "GetObject", {"Access.Application"}); }), 429);
  EXPECT_EQ(errorOf([&] { call(host, "CreateObject", {"Excel.Application"}); }), 429);
  EXPECT_EQ(errorOf([&] { call(host, "CreateObject", {"Access.Applications"}); }), 429);
}

TEST_F(HostTest, GetObjectFindsTheRunningApplication) {
  startHost();
  EXPECT_EQ(toObject(call(host, "getobject", {"access.application"})), application);
  EXPECT_EQ(toObject(call(host, "GetObject", {"Access.Application.9"})), application);
}

TEST_F(HostTest, ApplicationEndsWithItsLastReference) {
  startHost();
  application.reset();
  EXPECT_EQ(errorOf([&] { call(host, "GetObject", {"Access.Application"}); }), 429);
}

TEST_F(HostTest, WindowCallsAreAnsweredWithoutEffect) {
  host = createAccessHost();
  EXPECT_EQ(toLong(call(host, "FindWindowA", {"OMain", Value::Null{}})), 0);
  application = toObject(call(host, "CreateObject", {"Access.Application"}));
  EXPECT_NE(toLong(call(host, "FindWindowA", {"OMain", Value::Null{}})), 0);
  EXPECT_EQ(toLong(call(host, "FindWindowA", {"XLMAIN", Value::Null{}})), 0);
  EXPECT_EQ(toLong(call(host, "SendMessageA", {1, 1042, 0, 0})), 0);
  call(host, "keybd_event", {160, 0, 0, 0});
  call(host, "SendKeys", {"{ENTER 2}", false});
  call(host, "DoEvents");
  call(application, "Quit", {1});
  EXPECT_EQ(toLong(call(host, "FindWindowA", {"OMain", Value::Null{}})), 0);
}

TEST_F(HostTest, UnknownMembersRaise438) {
  startHost();
  EXPECT_EQ(errorOf([&] { get(host, "Forms"); }), 438);
  EXPECT_EQ(errorOf([&] { host->put("OpenProblem", "x"); }), 438);
  EXPECT_EQ(errorOf([&] { get(application, "Nonsense"); }), 438);
  EXPECT_EQ(errorOf([&] { application->put("Nonsense", 1); }), 438);
}

TEST_F(HostTest, WithoutAnOpenDatabaseThereIsNoCurrentDb) {
  startHost();
  EXPECT_EQ(get(application, "CurrentDb").object(), nullptr);
  EXPECT_EQ(call(application, "CurrentDb").object(), nullptr);
  EXPECT_EQ(errorOf([&] { get(application, "Forms", {"f"}); }), 2450);
  EXPECT_EQ(errorOf([&] { get(application, "Reports", {"f"}); }), 2451);
  EXPECT_EQ(errorOf([&] { get(application, "Modules", {"f"}); }), 7961);
  EXPECT_EQ(number(child(application, "References"), "Count"), 0);
  EXPECT_EQ(errorOf([&] { call(child(application, "DoCmd"), "OpenForm", {"f"}); }), 91);
}

TEST_F(HostTest, VisibleIsKept) {
  startHost();
  application->put("Visible", true);
  EXPECT_TRUE(toBoolean(get(application, "VISIBLE")));
}

TEST_F(HostTest, OpeningGivesTheDatabase) {
  openRecording(
      R"({"snapshot": 1, "database": {"name": "C:\\Data\\Orders.mdb", "version": "4.0"}})");
  EXPECT_EQ(text(database, "Name"), "C:\\Data\\Orders.mdb");
  EXPECT_EQ(text(database, "Version"), "4.0");
  EXPECT_EQ(text(host, "OpenProblem"), "");
}

TEST_F(HostTest, DatabaseWithoutARecordedNameIsNamedByItsFile) {
  openRecording(kEmptyRecording);
  EXPECT_EQ(text(database, "Name"), pathOf("test.access.json"));
}

TEST_F(HostTest, SecondOpeningRaises7867AndKeepsTheFirst) {
  openRecording(kEmptyRecording);
  EXPECT_EQ(errorOf([&] {
              call(application, "OpenCurrentDatabase", {pathOf("other"), true});
            }),
            7867);
  EXPECT_EQ(text(database, "Name"), pathOf("test.access.json"));
}

TEST_F(HostTest, ClosingEndsFormsAndActionsWhileDaoObjectsAnswerOn) {
  openRecording(R"({"snapshot": 1, "queries": [{"name": "Q", "sql": "SELECT 1", "fields": []}],
                    "forms": [{"name": "F", "controls": [{"name": "c", "type": 109}]}]})");
  const ObjectRef queries = child(database, "QueryDefs");
  const ObjectRef query = item(queries, "Q");
  const ObjectRef form = openForm("F");
  const ObjectRef control = child(form, "Controls", {0});
  const ObjectRef forms = child(application, "Forms");
  const ObjectRef recordset = toObject(call(query, "OpenRecordset"));
  call(application, "CloseCurrentDatabase");
  for (const ObjectRef& object : {form, control})
    EXPECT_EQ(errorOf([&] { get(object, "Name"); }), 2467);
  EXPECT_EQ(toLong(get(forms, "Count")), 0);
  EXPECT_EQ(errorOf([&] { call(doCmd, "OpenForm", {"F"}); }), 91);
  EXPECT_EQ(text(query, "Name"), "Q");
  EXPECT_EQ(toLong(get(queries, "Count")), 1);
  EXPECT_EQ(toLong(get(child(recordset, "Fields"), "Count")), 0);
  EXPECT_EQ(get(application, "CurrentDb").object(), nullptr);
}

TEST_F(HostTest, QuitClosesTheDatabaseAndEndsTheApplication) {
  openRecording(kEmptyRecording);
  call(application, "Quit", {1});
  EXPECT_EQ(errorOf([&] { call(doCmd, "OpenForm", {"F"}); }), 91);
  EXPECT_EQ(errorOf([&] { get(application, "Visible"); }), 91);
  EXPECT_EQ(errorOf([&] { call(host, "GetObject", {"Access.Application"}); }), 429);
}

TEST_F(HostTest, ReleasingTheApplicationClosesItsForms) {
  openRecording(R"({"snapshot": 1, "forms": [{"name": "F"}]})");
  const ObjectRef form = openForm("F");
  doCmd.reset();
  application.reset();
  EXPECT_EQ(errorOf([&] { get(form, "Name"); }), 2467);
}

TEST_F(HostTest, ClosingWithoutAnOpenDatabasePasses) {
  startHost();
  call(application, "CloseCurrentDatabase");
}

TEST_F(HostTest, AnotherDatabaseOpensAfterClosing) {
  openRecording(kEmptyRecording);
  call(application, "CloseCurrentDatabase");
  writeFile(pathOf("second.json"), R"({"snapshot": 1, "database": {"name": "Second"}})");
  call(application, "OpenCurrentDatabase", {pathOf("second.json"), true});
  EXPECT_EQ(text(child(application, "CurrentDb"), "Name"), "Second");
}

class OpeningFailsTest : public AccessTest {
 protected:
  // Opens what has to fail; gives the number.
  std::int32_t openNumber(const std::string& path) {
    startHost();
    host->put("SelectedDatabase", path);
    application->put("Visible", false);
    std::int32_t result = 0;
    try {
      call(application, "OpenCurrentDatabase", {path, true});
    } catch (const VbError& error) {
      result = error.number();
      description = error.description();
    }
    problem = text(host, "OpenProblem");
    EXPECT_EQ(get(application, "CurrentDb").object(), nullptr);
    EXPECT_TRUE(problem.starts_with(path + ": ")) << problem;
    return result;
  }
  std::int32_t openNumberOf(std::string_view content) {
    writeFile(pathOf("bad.access.json"), content);
    return openNumber(pathOf("bad.access.json"));
  }
  std::string problem, description;
};

TEST_F(OpeningFailsTest, MissingFile) {
  EXPECT_EQ(openNumber(pathOf("none.mdb")), kFail);
  EXPECT_EQ(problem, pathOf("none.mdb") + ": the file does not exist");
  EXPECT_EQ(description, problem);
}

TEST_F(OpeningFailsTest, Directory) {
  EXPECT_EQ(openNumber(directory.string()), kFail);
  EXPECT_EQ(problem, directory.string() + ": is a directory");
}

TEST_F(OpeningFailsTest, PipeIsNotWaitedFor) {
  ASSERT_EQ(::mkfifo(pathOf("pipe").c_str(), 0600), 0);
  EXPECT_EQ(openNumber(pathOf("pipe")), kFail);
}

TEST_F(OpeningFailsTest, EmptyFile) { EXPECT_EQ(openNumberOf(""), kFail); }
TEST_F(OpeningFailsTest, TextFile) { EXPECT_EQ(openNumberOf("Dear reader,\n"), kFail); }

TEST_F(OpeningFailsTest, MalformedJsonNamesLineAndColumn) {
  EXPECT_EQ(openNumberOf("{\"snapshot\": 1,\n \"forms\": [}"), kFail);
  EXPECT_NE(problem.find("is not JSON: parse error at line 2, column 12"), std::string::npos)
      << problem;
}

TEST_F(OpeningFailsTest, NewerRecordingRaises7866) {
  EXPECT_EQ(openNumberOf(R"({"snapshot": 2})"), 7866);
  EXPECT_EQ(description, standardErrorText(7866));
  EXPECT_NE(problem.find("is a recording of format 2, newer than this program"), std::string::npos);
}

TEST_F(OpeningFailsTest, RecordedErrorLeavesNoDatabaseOpen) {
  EXPECT_EQ(openNumberOf(R"({"snapshot": 1, "application": {"errors": {"OpenCurrentDatabase":
                            {"error": 7866, "description": "Too new for me."}}}})"),
            7866);
  EXPECT_EQ(description, "Too new for me.");
  EXPECT_EQ(problem, pathOf("bad.access.json") + ": Too new for me.");
}

TEST_F(OpeningFailsTest, RecordedNumberIsAnUnsignedHresult) {
  EXPECT_EQ(openNumberOf(R"({"snapshot": 1, "application": {"errors":
                            {"OpenCurrentDatabase": 2147500037}}})"),
            kFail);
}

TEST_F(HostTest, Recorded7867CountsAsOpen) {
  writeFile(pathOf("a.json"), R"({"snapshot": 1, "database": {"name": "A"},
      "application": {"errors": {"OpenCurrentDatabase": 7867}}})");
  startHost();
  EXPECT_EQ(errorOf([&] {
              call(application, "OpenCurrentDatabase", {pathOf("a.json"), true});
            }),
            7867);
  EXPECT_EQ(text(child(application, "CurrentDb"), "Name"), "A");
  EXPECT_EQ(text(host, "OpenProblem"), "");
}

TEST_F(HostTest, RecordedErrorsOfTheApplicationAreRaised) {
  writeFile(pathOf("a.json"), R"({"snapshot": 1, "application": {"errors": {"Visible": 2455,
      "CurrentDb": 2467, "CloseCurrentDatabase": 2486, "Quit": 2501}}})");
  startHost();
  host->put("SelectedDatabase", pathOf("a.json"));
  EXPECT_EQ(errorOf([&] { application->put("Visible", false); }), 2455);  // before it is open
  EXPECT_EQ(errorOf([&] { get(application, "Visible"); }), 2455);
  call(application, "OpenCurrentDatabase", {pathOf("a.json"), true});
  EXPECT_EQ(errorOf([&] { get(application, "CurrentDb"); }), 2467);
  EXPECT_EQ(errorOf([&] { call(application, "CloseCurrentDatabase"); }), 2486);
  EXPECT_EQ(errorOf([&] { call(application, "Quit", {1}); }), 2501);
}

TEST_F(HostTest, ErrorsOfTheOpenDatabaseStayWhenAnotherPathIsSelected) {
  writeFile(pathOf("a.json"), kEmptyRecording);
  writeFile(pathOf("b.json"), R"({"snapshot": 1, "application": {"errors": {"Quit": 2501}}})");
  openFile(pathOf("a.json"));
  host->put("SelectedDatabase", pathOf("b.json"));
  call(application, "CloseCurrentDatabase");
  EXPECT_EQ(errorOf([&] { call(application, "Quit", {1}); }), 0);
}

TEST_F(HostTest, FileChangedBetweenLookingAheadAndOpeningIsReadAgain) {
  writeFile(pathOf("a.json"), R"({"snapshot": 1, "database": {"name": "old"}})");
  startHost();
  host->put("SelectedDatabase", pathOf("a.json"));
  application->put("Visible", false);
  writeFile(pathOf("a.json"), R"({"snapshot": 1, "database": {"name": "newer"}})");
  call(application, "OpenCurrentDatabase", {pathOf("a.json"), true});
  EXPECT_EQ(text(child(application, "CurrentDb"), "Name"), "newer");
}

TEST_F(HostTest, PathInTheCodePageFindsTheFile) {
  writeFile(pathOf("Gr\xC3\xB6\xC3\x9F"
                   "e.json"),
            kEmptyRecording);
  openFile(
      pathOf("Gr\xF6\xDF"
             "e.json"));
  EXPECT_EQ(text(database, "Name"), pathOf("Gr\xF6\xDF"
                                           "e.json"));
}

TEST_F(HostTest, ContentNotExtensionTellsARecording) {
  writeFile(pathOf("orders.mdb"), "\xEF\xBB\xBF \r\n {\"snapshot\": 1}");
  openFile(pathOf("orders.mdb"));
  EXPECT_NE(database, nullptr);
}

TEST_F(HostTest, ReferencesAreRecorded) {
  openRecording(R"({"snapshot": 1, "application": {"references": [
      {"name": "Access", "fullPath": "C:\\Office\\MSACC9.OLB"},
      {"name": "Broken", "fullPath": {"error": 48}}]}})");
  const ObjectRef references = child(application, "References");
  EXPECT_EQ(number(references, "Count"), 2);
  EXPECT_EQ(text(item(references, "access"), "FullPath"), "C:\\Office\\MSACC9.OLB");
  EXPECT_EQ(number(child(child(application, "References", {"Access"}), "Collection"), "Count"), 2);
  EXPECT_EQ(errorOf([&] { get(item(references, 1), "FullPath"); }), 48);
  EXPECT_EQ(errorOf([&] { item(references, "None"); }), 9);
  EXPECT_EQ(errorOf([&] { item(references, 2); }), 9);
}

}  // namespace
}  // namespace tarrowin
