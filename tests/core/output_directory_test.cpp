// GetOutputDir: every answer, every error of its table.
#include "core/output_directory.h"

#include <cerrno>

#include <gtest/gtest.h>

#include "support/test_session.h"

namespace tarrowin::test {
namespace {

constexpr std::string_view kSpecify = "Please specify an output directory for converted Forms.";

TEST(OutputDirectory, AnEmptyTextTakesTheCurrentDirectoryAndTheSecondTrySucceeds) {
  TestSession session;
  EXPECT_FALSE(GetOutputDir(session.main));
  EXPECT_EQ(session.onlyBox(), (Box{64, std::string(kSpecify), "Access to Visual Basic Tarrowin"}));
  EXPECT_EQ(session.main.window.txtCurDir, session.folder());
  EXPECT_TRUE(GetOutputDir(session.main));
  EXPECT_TRUE(session.user.boxes.empty());
  EXPECT_EQ(session.main.state.mstrOutputDir, session.folder() + "/");
}

TEST(OutputDirectory, ATrailingSeparatorStaysOne) {
  TestSession session;
  session.main.window.txtCurDir = session.out().string() + "/";
  EXPECT_TRUE(GetOutputDir(session.main));
  EXPECT_EQ(session.main.state.mstrOutputDir, session.out().string() + "/");
  EXPECT_EQ(session.main.window.txtCurDir, session.out().string() + "/");
}

TEST(OutputDirectory, AMissingDirectoryIsCreatedOnYes) {
  TestSession session;
  const std::string path = (session.out() / "new").string();
  session.main.window.txtCurDir = path;
  EXPECT_TRUE(GetOutputDir(session.main));
  EXPECT_EQ(session.onlyBox(),
            (Box{36, "Directory " + path + " does not exist.  Do you want to create it?",
                 "Access to Visual Basic Tarrowin"}));
  EXPECT_TRUE(std::filesystem::is_directory(path));
}

TEST(OutputDirectory, OnNoTheUserIsSentToTheText) {
  TestSession session;
  session.user.answers = {Answer::kNo};
  session.main.window.txtCurDir = (session.out() / "new").string();
  EXPECT_FALSE(GetOutputDir(session.main));
  ASSERT_EQ(session.user.boxes.size(), 2u);
  EXPECT_EQ(session.user.boxes[1].text, kSpecify);
  EXPECT_EQ(session.user.boxes[1].style, 64);
  EXPECT_EQ(session.main.window.focus, "txtCurDir");
  EXPECT_FALSE(std::filesystem::exists(session.out() / "new"));
}

TEST(OutputDirectory, SeveralMissingLevelsGetTheQuestionAndThenError76) {
  TestSession session;
  session.main.window.txtCurDir = (session.out() / "a" / "b").string();
  EXPECT_FALSE(GetOutputDir(session.main));
  ASSERT_EQ(session.user.boxes.size(), 2u);
  EXPECT_EQ(session.user.boxes[0].style, 36);
  EXPECT_EQ(session.user.boxes[1], (Box{16, "GetOutputDir() - Error #76\r\nPath not found",
                                        "Access to Visual Basic Tarrowin"}));
}

TEST(OutputDirectory, APathThatIsAFileGetsTheQuestionAndThenError75) {
  TestSession session;
  writeFile(session.out() / "file", "");
  session.main.window.txtCurDir = (session.out() / "file").string();
  EXPECT_FALSE(GetOutputDir(session.main));
  ASSERT_EQ(session.user.boxes.size(), 2u);
  EXPECT_EQ(session.user.boxes[1].text, "GetOutputDir() - Error #75\r\nPath/File access error");
}

// A disk that is not ready for its first tries.
class SlowDisk : public PosixFileSystem {
 public:
  explicit SlowDisk(int failures) : failures_(failures) {}
  int status(const std::string& path, Status& result) override {
    if (failures_-- > 0) return ENXIO;
    return PosixFileSystem::status(path, result);
  }

 private:
  int failures_;
};

TEST(OutputDirectory, ADiskThatIsNotReadyIsTriedAgainOnYes) {
  TestSession session(std::make_unique<SlowDisk>(2));
  session.main.window.txtCurDir = session.out().string();
  EXPECT_TRUE(GetOutputDir(session.main));
  ASSERT_EQ(session.user.boxes.size(), 2u);
  EXPECT_EQ(session.user.boxes[0],
            (Box{36, "Disk drive not ready.  Retry?", "Access to Visual Basic Tarrowin"}));
}

TEST(OutputDirectory, ADiskThatIsNotReadyEndsItOnNo) {
  TestSession session(std::make_unique<SlowDisk>(2));
  session.main.window.txtCurDir = session.out().string();
  session.user.answers = {Answer::kNo};
  EXPECT_FALSE(GetOutputDir(session.main));
  EXPECT_EQ(session.user.boxes.size(), 1u);
  EXPECT_EQ(session.main.window.focus, "txtCurDir");
}

}  // namespace
}  // namespace tarrowin::test
