// New objects of a database are kept in it or beside it, and by one program at a time.
#include <csignal>

#include <nlohmann/json.hpp>
#include <sys/resource.h>
#include <sys/stat.h>

#include "access/access_fixture.h"
#include "access/child_process.h"
#include "access/recorder.h"
#include "access/snapshot/snapshot_keeper.h"
#include "mdb/file_builder.h"

namespace tarrowin {
namespace {

constexpr std::string_view kRecording =
    "{\"snapshot\":1, \"later key\":[1.50,  {\"x\":null}],\r\n"
    " \"forms\":[{\"name\":\"frmMain\",\"unknown\":true,\"properties\":{\"Caption\":\"c\"}}],\n"
    "\t\"macros\":[{\"name\":\"A\",\"module\":\"' A\"},{\"name\":\"B\",\"module\":\"' B\"}]}";

// Numbers of errors as exit status of a child process.
constexpr int kReadOnlyStatus = 27, kDiskFullStatus = 26;

class KeepingTest : public AccessTest {
 protected:
  KeepingTest() { writeFile(recording(), kRecording); }

  std::string recording() const { return pathOf("test.access.json"); }
  std::string besideRecording() const { return recording() + std::string(kNewObjectsSuffix); }
  void openIt() { openFile(recording()); }

  // Another program with the same source.
  struct Program {
    ObjectRef host, application, doCmd;
  };
  static Program otherProgram(const std::string& path) {
    Program other;
    other.host = createAccessHost();
    other.application = toObject(call(other.host, "CreateObject", {"Access.Application"}));
    call(other.application, "OpenCurrentDatabase", {path, true});
    other.doCmd = child(other.application, "DoCmd");
    return other;
  }
  static void convertIn(const Program& program, const std::string& macro) {
    call(program.doCmd, "SelectObject", {4, macro, true});
    call(program.doCmd, "RunCommand", {279});
  }

  std::string textOf(const std::string& module) {
    call(doCmd, "OutputTo", {5, module, "MS-DOS Text (*.txt)", pathOf("out.txt")});
    const std::string text = readFile(pathOf("out.txt"));
    std::filesystem::remove(pathOf("out.txt"));
    return text;
  }
};

TEST_F(KeepingTest, TheRestOfTheRecordingStaysToTheByte) {
  openIt();
  convertMacro("A");
  createForm("frmMain");
  closeAndSave("Form1");
  const std::string after = readFile(recording());
  EXPECT_TRUE(after.starts_with(kRecording.substr(0, kRecording.find("}],\n\t\"macros\"") + 1)));
  EXPECT_NE(after.find("\n\t\"macros\":[{\"name\":\"A\",\"module\":\"' A\"},{\"name\":\"B\","),
            std::string::npos);
  EXPECT_EQ(filesInDirectory(), 1u);
}

TEST_F(KeepingTest, EachNewObjectFollowsTheOneBefore) {
  openIt();
  convertMacro("A");
  convertMacro("B");
  convertMacro("A");
  createForm("frmMain");
  closeAndSave("Form1");
  createForm("frmMain");
  closeAndSave("Form2");
  openIt();
  EXPECT_EQ(documents("Modules"), "Converted Macro- A Converted Macro- B ");
  EXPECT_EQ(documents("Forms"), "frmMain Form1 Form2 ");
  EXPECT_EQ(text(openForm("Form2"), "Caption"), "c");
}

TEST_F(KeepingTest, RecordingOfTheDatabaseHasTheNewObjects) {
  openIt();
  convertMacro("A");
  const nlohmann::ordered_json document = recordSnapshot(application);
  EXPECT_EQ(document["modules"][0]["name"], "Converted Macro- A");
  EXPECT_EQ(document["forms"][0]["unknown"], true);
}

TEST_F(KeepingTest, LinkToARecordingStaysALink) {
  std::filesystem::create_symlink(recording(), pathOf("link.json"));
  openFile(pathOf("link.json"));
  convertMacro("A");
  convertMacro("B");
  EXPECT_TRUE(std::filesystem::is_symlink(pathOf("link.json")));
  openIt();
  EXPECT_EQ(documents("Modules"), "Converted Macro- A Converted Macro- B ");
}

TEST_F(KeepingTest, DatabaseFileKeepsItsNewObjectsBesideIt) {
  mdb::FileBuilder builder(false);
  builder.addObject(20, "Form1", -32768);
  const Bytes bytes = builder.build();
  const std::string content(bytes.begin(), bytes.end());
  writeFile(pathOf("test.mdb"), content);
  openFile(pathOf("test.mdb"));
  createForm("")->put("Caption", "First");
  closeAndSave("Form2");
  createForm("Form2")->put("Tag", "Second");
  closeAndSave("Form3");
  EXPECT_EQ(readFile(pathOf("test.mdb")), content);
  EXPECT_TRUE(std::filesystem::exists(pathOf("test.mdb.tarrowin.access.json")));
  openFile(pathOf("test.mdb"));
  EXPECT_EQ(documents("Forms"), "Form1 Form2 Form3 ");
  EXPECT_EQ(text(openForm("Form3"), "Caption"), "First");
  EXPECT_EQ(text(openForm("Form3"), "Tag"), "Second");
  const nlohmann::ordered_json document = recordSnapshot(application);
  EXPECT_EQ(document["forms"][2]["properties"]["Tag"], "Second");
}

TEST_F(KeepingTest, NewObjectBesideTheSourceReplacesOneOfItsName) {
  writeFile(recording(), R"({"snapshot":1,"modules":[{"name":"Converted Macro- A","text":"old"},
      {"name":"Z","text":"z"}],"macros":[{"name":"A","module":"' A"},{"name":"B","module":"' B"}]})");
  writeFile(besideRecording(), R"({"snapshot":1,"forms":[{"name":"Form1"}],"tables":[{"name":"T"}],
      "modules":[{"name":"converted macro- a","text":"new"}]})");
  const std::string before = readFile(recording());
  openIt();
  EXPECT_EQ(documents("Modules"), "converted macro- a Z ");
  EXPECT_EQ(textOf("Converted Macro- A"), "new");
  EXPECT_EQ(documents("Forms"), "Form1 ");
  EXPECT_EQ(number(child(database, "TableDefs"), "Count"), 0);
  // What is beside it stays beside it, so that the later object is the one that counts.
  convertMacro("A");
  convertMacro("B");
  EXPECT_EQ(readFile(recording()), before);
  const nlohmann::ordered_json document = recordSnapshot(application);
  ASSERT_EQ(document["modules"].size(), 3u);
  EXPECT_EQ(document["modules"][0]["text"], "' A");
  EXPECT_EQ(document["modules"][2]["text"], "' B");
  EXPECT_EQ(document["forms"][0]["name"], "Form1");
  openIt();
  EXPECT_EQ(documents("Modules"), "Converted Macro- A Z Converted Macro- B ");
  EXPECT_EQ(textOf("Converted Macro- A"), "' A");
}

TEST_F(KeepingTest, DamagedNewObjectsAreReportedAndNotPassedOver) {
  writeFile(besideRecording(), "{\"snapshot\":1,");
  EXPECT_EQ(errorOf([&] { openIt(); }), kErrAutomationFail);
  const std::string problem = text(host, "OpenProblem");
  EXPECT_TRUE(problem.starts_with(
      recording() +
      ": the new objects beside it, test.access.json.tarrowin.access.json: is not JSON"))
      << problem;
  writeFile(besideRecording(), "{\"snapshot\":2}");
  EXPECT_EQ(errorOf([&] { openIt(); }), 7866);
}

TEST_F(KeepingTest, NewObjectsOfADirectoryStandBesideIt) {
  EXPECT_EQ(newObjectsPath("a/b/"), "a/b.tarrowin.access.json");
  EXPECT_EQ(newObjectsPath("a/b.mdb"), "a/b.mdb.tarrowin.access.json");
  EXPECT_EQ(newObjectsPath("/"), "/.tarrowin.access.json");
}

TEST_F(KeepingTest, ProgramsThatOnlyReadDoNotMindEachOther) {
  openIt();
  const Program other = otherProgram(recording());
  EXPECT_EQ(documents("Forms"), "frmMain ");
  convertMacro("A");
  const Program third = otherProgram(recording());
  EXPECT_TRUE(get(third.application, "CurrentDb").object());
}

TEST_F(KeepingTest, SourceThatAnotherProgramIsChangingIsRefused) {
  openIt();
  const Program first = otherProgram(recording());
  convertIn(first, "A");
  const Program second = otherProgram(recording());
  const std::string before = readFile(recording());
  EXPECT_EQ(errorOf([&] { convertMacro("B"); }), 3045);
  EXPECT_EQ(descriptionOf([&] { convertIn(second, "B"); }),
            "The module 'Converted Macro- B' can't be saved. " + recording() +
                ": another program is changing it.");
  EXPECT_EQ(documents("Modules"), "");
  EXPECT_EQ(readFile(recording()), before);
  convertIn(first, "B");  // which goes on
  call(first.application, "CloseCurrentDatabase");
  EXPECT_EQ(errorOf([&] { convertMacro("B"); }), 3197);
  // Whose object was refused holds up nobody.
  EXPECT_EQ(errorOf([&] { convertIn(second, "B"); }), 3197);
  openIt();
  convertMacro("B");
  EXPECT_EQ(documents("Modules"), "Converted Macro- A Converted Macro- B ");
}

TEST_F(KeepingTest, LockEndsWithItsProgram) {
  for (const char* ending : {"CloseCurrentDatabase", "Quit", ""}) {
    Program other = otherProgram(recording());
    convertIn(other, "A");
    const ObjectRef documentOfIt = get(other.application, "CurrentDb").object();  // outlives it
    openIt();
    EXPECT_EQ(errorOf([&] { convertMacro("B"); }), 3045);
    if (*ending)
      call(other.application, ending, {1});
    else
      other = {};
    EXPECT_EQ(errorOf([&] { convertMacro("B"); }), 0) << ending;
    call(application, "CloseCurrentDatabase");
  }
}

TEST_F(KeepingTest, ProcessThatIsKilledLeavesNoLock) {
  openIt();
  EXPECT_EQ(inChildProcess([&]() -> int {
              openIt();
              convertMacro("A");
              ::kill(::getpid(), SIGKILL);
              return 0;
            }),
            -1);
  openIt();
  EXPECT_EQ(documents("Modules"), "Converted Macro- A ");
  convertMacro("B");
  EXPECT_EQ(inChildProcess([&] {
              const Program other = otherProgram(recording());
              return errorOf([&] { convertIn(other, "A"); }) == 3045 ? 0 : 1;
            }),
            0);
}

TEST_F(KeepingTest, FileThatWasChangedMeanwhileIsLeftAlone) {
  openIt();
  const std::string changed = R"({"snapshot":1,"forms":[]})";
  writeFile(recording(), changed);
  createForm("frmMain");
  EXPECT_EQ(errorOf([&] { closeAndSave("Form1"); }), 3197);
  EXPECT_EQ(readFile(recording()), changed);
  // The form is still open.
  EXPECT_EQ(text(child(application, "Forms", {"Form1"}), "Caption"), "c");
  // With its content back it may even have another date.
  writeFile(recording(), kRecording);
  closeAndSave("Form1");
  EXPECT_EQ(documents("Forms"), "frmMain Form1 ");
}

TEST_F(KeepingTest, FileThatIsGoneIsNotMadeAnew) {
  openIt();
  std::filesystem::remove(recording());
  EXPECT_EQ(errorOf([&] { convertMacro("A"); }), 3043);
  EXPECT_EQ(filesInDirectory(), 0u);
}

TEST_F(KeepingTest, NewObjectsThatAnotherProgramMadeMeanwhileAreLeftAlone) {
  const Bytes bytes = mdb::FileBuilder(false).build();
  writeFile(pathOf("test.mdb"), std::string(bytes.begin(), bytes.end()));
  openFile(pathOf("test.mdb"));
  const Program other = otherProgram(pathOf("test.mdb"));
  call(other.application, "CreateForm");
  createForm("");
  call(other.doCmd, "Close", {2, "Form1", 1});
  EXPECT_EQ(errorOf([&] { closeAndSave("Form1"); }), 3045);
  call(other.application, "CloseCurrentDatabase");
  EXPECT_EQ(errorOf([&] { closeAndSave("Form1"); }), 3197);
}

TEST_F(KeepingTest, ReadOnlyDirectoryIsToldAndNothingChanges) {
  ASSERT_EQ(::chmod(recording().c_str(), 0666), 0);
  ASSERT_EQ(::chmod(directory.c_str(), 0555), 0);
  const std::string reason = "The module 'Converted Macro- A' can't be saved. " + recording() +
                             ": creating a temporary file failed: Permission denied.";
  EXPECT_EQ(inChildProcess([&] {
              becomeOrdinaryUser();
              openIt();
              if (errorOf([&] { convertMacro("A"); }) != 3027) return 1;
              return descriptionOf([&] { convertMacro("A"); }) == reason ? kReadOnlyStatus : 2;
            }),
            kReadOnlyStatus);
  ASSERT_EQ(::chmod(directory.c_str(), 0755), 0);
  EXPECT_EQ(readFile(recording()), kRecording);
  EXPECT_EQ(filesInDirectory(), 1u);
}

TEST_F(KeepingTest, WriteProtectedRecordingKeepsItsNewObjectsBesideIt) {
  ASSERT_EQ(::chmod(recording().c_str(), 0444), 0);
  ASSERT_EQ(::chmod(directory.c_str(), 0777), 0);
  EXPECT_EQ(inChildProcess([&] {
              becomeOrdinaryUser();
              openIt();
              convertMacro("A");
              return 0;
            }),
            0);
  EXPECT_EQ(readFile(recording()), kRecording);
  openIt();
  EXPECT_EQ(documents("Modules"), "Converted Macro- A ");
}

TEST_F(KeepingTest, FullDiskIsToldAndNothingChanges) {
  EXPECT_EQ(inChildProcess([&] {
              openIt();
              // No file may grow to the size of the new one.
              ::signal(SIGXFSZ, SIG_IGN);
              const rlimit limit{kRecording.size(), kRecording.size()};
              if (::setrlimit(RLIMIT_FSIZE, &limit) != 0) return 1;
              return errorOf([&] { convertMacro("A"); }) == 3026 ? kDiskFullStatus : 2;
            }),
            kDiskFullStatus);
  EXPECT_EQ(readFile(recording()), kRecording);
  EXPECT_EQ(filesInDirectory(), 1u);
}

}  // namespace
}  // namespace tarrowin
