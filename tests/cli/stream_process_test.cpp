// Standard streams that are closed, full, left by their reader, or a terminal.
#include <cstdlib>
#include <string>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <unistd.h>

#include "cli/command_process.h"

namespace tarrowin::test {
namespace {

class StreamProcess : public CommandProcess {};

TEST_F(StreamProcess, ClosedStandardOutput) {
  const ProgramResult result = run({"list", "orders.access.json"}, [] { close(STDOUT_FILENO); });
  EXPECT_EQ(result.status, 2);
  EXPECT_EQ(result.err, "tarrowin-cli: standard output: Bad file descriptor\n");
}

TEST_F(StreamProcess, ClosedStreamsReceiveNoFile) {
  const ProgramResult result =
      run({"convert", "--json", "orders.access.json", "--to", "out", "--queries"}, [] {
        close(STDIN_FILENO);
        close(STDOUT_FILENO);
        close(STDERR_FILENO);
      });
  EXPECT_EQ(result.status, 2);
  // The files hold what they hold in any other run.
  EXPECT_EQ(run({"convert", "orders.access.json", "--to", "again", "--queries"}).status, 0);
  EXPECT_EQ(fileContent(path("out/Big_Orders.bas")), fileContent(path("again/Big_Orders.bas")));
}

TEST_F(StreamProcess, FullStandardOutput) {
  const ProgramResult result =
      run({"list", "orders.access.json"}, [] { dup2(open("/dev/full", O_WRONLY), STDOUT_FILENO); });
  EXPECT_EQ(result.status, 2);
  EXPECT_EQ(result.err, "tarrowin-cli: standard output: No space left on device\n");
}

TEST_F(StreamProcess, ReaderThatGoesAwayEndsNothingHalfWay) {
  const ProgramResult result =
      run({"convert", "--json", "orders.access.json", "--to", "out", "--queries"}, [] {
        int ends[2];
        if (pipe(ends) != 0) _exit(1);
        dup2(ends[1], STDOUT_FILENO);
        close(ends[0]);
        close(ends[1]);
      });
  EXPECT_EQ(result.status, 2);
  EXPECT_EQ(result.err.find("tarrowin-cli"), std::string::npos) << result.err;
  EXPECT_EQ(fileNames(path("out")).size(), 2u);
}

// What can be read up to that text, or until nothing more comes.
std::string readUntil(int descriptor, const std::string& text) {
  constexpr int kPatience = 5000;  // milliseconds
  std::string shown;
  pollfd waiting{descriptor, POLLIN, 0};
  while (shown.find(text) == std::string::npos && poll(&waiting, 1, kPatience) > 0) {
    char buffer[4096];
    const ssize_t count = read(descriptor, buffer, sizeof buffer);
    if (count <= 0) break;
    shown.append(buffer, static_cast<std::size_t>(count));
  }
  return shown;
}

TEST_F(StreamProcess, ProgressOnATerminalOnly) {
  const Names arguments = {"convert", "orders.access.json", "--to", "out", "--queries"};
  EXPECT_EQ(run(arguments).err.find('\x1b'), std::string::npos);

  const int terminal = posix_openpt(O_RDWR | O_NOCTTY);
  ASSERT_GE(terminal, 0);
  ASSERT_EQ(grantpt(terminal), 0);
  ASSERT_EQ(unlockpt(terminal), 0);
  // Held open here so that what the program wrote is still there when it has ended.
  const int held = open(ptsname(terminal), O_RDWR | O_NOCTTY);
  const ProgramResult result = run(arguments, [&] { dup2(held, STDERR_FILENO); });
  EXPECT_EQ(result.status, 0);
  // The system hands over what was written in pieces.
  const std::string last = "\r\x1b[KSuccessfully converted 2";
  const std::string shown = readUntil(terminal, last);
  EXPECT_TRUE(shown.starts_with("\r\x1b[KConverting queries: 1 of 2")) << shown;
  EXPECT_NE(shown.find(last), std::string::npos) << shown;
  close(held);
  close(terminal);
}

}  // namespace
}  // namespace tarrowin::test
