// Saving new objects while the disk fails or the program dies: the old database or the new one
// opens afterwards, and nothing between them.
#include "access/access_fixture.h"
#include "access/child_process.h"
#include "access/failing_operations.h"
#include "mdb/file_builder.h"

namespace tarrowin {
namespace {

constexpr int kSteps = static_cast<int>(std::size(kReplaceSteps));
constexpr int kRename = 6;  // the step from which on the new file is there
constexpr int kDied = 77;

// A source with a form, and what a session adds to it.
struct Case {
  const char* name;
  bool isDatabaseFile;  // an .mdb, which has its new objects beside it
  bool addsForm;        // else a module, of a macro
  bool hasOlder;        // something was kept before
};

class KeepingFaultsTest : public AccessTest, public testing::WithParamInterface<Case> {
 protected:
  std::string source() const {
    return pathOf(GetParam().isDatabaseFile ? "test.mdb" : "test.access.json");
  }
  std::string keptFile() const {
    return GetParam().isDatabaseFile ? pathOf("test.mdb.tarrowin.access.json") : source();
  }

  // The source as it is before each attempt.
  void prepare() {
    for (const auto& entry : std::filesystem::directory_iterator(directory))
      std::filesystem::remove(entry.path());
    diskOperations = nullptr;
    if (GetParam().isDatabaseFile) {
      mdb::FileBuilder builder(false);
      builder.addObject(20, "frmOld", -32768);
      const Bytes bytes = builder.build();
      writeFile(source(), std::string(bytes.begin(), bytes.end()));
    } else {
      writeFile(source(), R"({"snapshot":1,"forms":[{"name":"frmOld"}],
          "macros":[{"name":"M","module":"' of M"}]})");
    }
    if (GetParam().hasOlder) {
      openFile(source());
      createForm("");
      closeAndSave("Form1");
      call(application, "CloseCurrentDatabase");
    }
    hadFile_ = std::filesystem::exists(keptFile());
    before_ = readFile(keptFile());
    oldForms_ = GetParam().hasOlder ? "frmOld Form1 " : "frmOld ";
  }

  // What is to be saved.
  void startChange() {
    if (GetParam().addsForm)
      newForm_ = text(createForm(""), "Name");
    else
      call(doCmd, "SelectObject", {4, "M", true});
  }
  void save() {
    if (GetParam().addsForm)
      closeAndSave(newForm_);
    else
      call(doCmd, "RunCommand", {279});
  }

  void expectOld(const std::string& step) {
    EXPECT_EQ(std::filesystem::exists(keptFile()), hadFile_) << step;
    EXPECT_EQ(readFile(keptFile()), before_) << step;
    diskOperations = nullptr;
    openFile(source());
    EXPECT_EQ(documents("Forms"), oldForms_) << step;
    EXPECT_EQ(documents("Modules"), "") << step;
  }
  void expectNew(const std::string& step) {
    diskOperations = nullptr;
    openFile(source());
    EXPECT_EQ(documents("Forms"), oldForms_ + (GetParam().addsForm ? newForm_ + " " : "")) << step;
    EXPECT_EQ(documents("Modules"), GetParam().addsForm ? "" : "Converted Macro- M ") << step;
  }
  static std::int32_t numberOfStep(int step) {
    constexpr std::int32_t kNumbers[] = {3027, 3026, 3027, 3043, 3043, 3027};
    return kNumbers[step - 1];
  }

  std::string newForm_ = "Form1";

 private:
  bool hadFile_ = false;
  std::string before_, oldForms_;
};

TEST_P(KeepingFaultsTest, EveryFailingOperationLeavesTheOldDatabase) {
  for (const bool forGood : {false, true}) {
    for (int step = 1; step <= kSteps + 1; ++step) {
      prepare();
      const std::size_t files = filesInDirectory();
      diskOperations = std::make_shared<FailingOperations>(step, forGood);
      openFile(source());
      startChange();
      const std::string name = step <= kSteps ? kReplaceSteps[step - 1] : "nothing";
      const std::int32_t error = errorOf([&] { save(); });
      if (step > kRename) {
        EXPECT_EQ(error, 0) << name;  // the new content is in place
        call(application, "CloseCurrentDatabase");
        expectNew(name);
        continue;
      }
      EXPECT_EQ(error, numberOfStep(step)) << name;
      if (forGood) {
        call(application, "CloseCurrentDatabase");
      } else {
        EXPECT_EQ(filesInDirectory(), files) << name;
        // The disk works again, and so does a second attempt.
        if (step % 2 == 0) {
          save();
          call(application, "CloseCurrentDatabase");
          expectNew(name);
          continue;
        }
        call(application, "CloseCurrentDatabase");
      }
      expectOld(name);
    }
  }
}

TEST_P(KeepingFaultsTest, DeathAtEveryStepLeavesTheOldOrTheNewDatabase) {
  for (const bool isDone : {false, true}) {
    for (int step = 1; step <= kSteps; ++step) {
      prepare();
      const std::string name =
          std::string(isDone ? "behind " : "before ") + kReplaceSteps[step - 1];
      if (GetParam().addsForm) newForm_ = GetParam().hasOlder ? "Form2" : "Form1";
      EXPECT_EQ(inChildProcess([&] {
                  diskOperations =
                      std::make_shared<DyingOperations>(step, isDone, [] { ::_exit(kDied); });
                  openFile(source());
                  startChange();
                  save();
                  return 0;
                }),
                kDied)
          << name;
      if (step > kRename || (step == kRename && isDone))
        expectNew(name);
      else
        expectOld(name);
      // Nothing stands in the way of the next one.
      startChange();
      EXPECT_EQ(errorOf([&] { save(); }), 0) << name;
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Sources, KeepingFaultsTest,
                         testing::Values(Case{"FormOfARecording", false, true, false},
                                         Case{"ModuleOfARecording", false, false, false},
                                         Case{"SecondFormOfARecording", false, true, true},
                                         Case{"FormOfADatabaseFile", true, true, false},
                                         Case{"SecondFormOfADatabaseFile", true, true, true}),
                         [](const auto& one) { return std::string(one.param.name); });

}  // namespace
}  // namespace tarrowin
