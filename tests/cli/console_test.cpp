// The streams: order, remembered failures, the progress line.
#include "cli/console.h"

#include <cerrno>
#include <filesystem>
#include <string>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include "support/test_session.h"

namespace tarrowin {
namespace {

class ConsoleTest : public testing::Test {
 protected:
  ConsoleTest() : output(openFile("out")), error(openFile("err")) {}
  ~ConsoleTest() override {
    ::close(output);
    ::close(error);
  }
  int openFile(const char* name) const {
    return ::open((folder.path() / name).c_str(), O_CREAT | O_WRONLY, 0600);
  }
  std::string content(const char* name) const { return test::fileContent(folder.path() / name); }

  test::TemporaryFolder folder;
  int output;
  int error;
};

TEST_F(ConsoleTest, GathersOutputUntilFlushed) {
  Console console(output, error, false);
  console.print("a");
  EXPECT_EQ(content("out"), "");
  console.flush();
  EXPECT_EQ(content("out"), "a");
}

TEST_F(ConsoleTest, EveryLineOfAnOwnMessageStandsBehindTheName) {
  Console console(output, error, false);
  console.ownMessage("one\ntwo");
  EXPECT_EQ(content("err"), "tarrowin-cli: one\ntarrowin-cli: two\n");
}

TEST_F(ConsoleTest, RemembersTheFirstFailedWrite) {
  Console console(-1, error, false);
  console.print("lost");
  console.flush();
  EXPECT_EQ(console.outputError(), EBADF);
}

TEST_F(ConsoleTest, NoProgressWhereThereIsNoTerminal) {
  Console console(output, error, false);
  console.progress([]() -> std::string { throw std::logic_error("asked for"); });
  console.endProgress();
  EXPECT_EQ(content("err"), "");
}

TEST_F(ConsoleTest, ProgressIsThrottledAndGoesAwayBeforeAMessage) {
  Console console(output, error, true);
  int asked = 0;
  for (int i = 0; i < 1000; ++i) {
    console.progress([&] {
      ++asked;
      return std::string("P");
    });
  }
  console.message("M");
  // A thousand calls take far less than the second that ten lines stand for.
  EXPECT_GE(asked, 1);
  EXPECT_LT(asked, 10);
  EXPECT_TRUE(content("err").starts_with("\r\x1b[KP"));
  EXPECT_TRUE(content("err").ends_with("P\r\x1b[KM\n"));
}

}  // namespace
}  // namespace tarrowin
