// The streams of the command as temporary files.
#include "cli/in_process.h"

#include <filesystem>

#include <fcntl.h>
#include <unistd.h>

#include "cli/command_line.h"
#include "cli/console.h"
#include "support/test_session.h"

namespace tarrowin::test {

CommandResult runCommand(const std::vector<std::string>& arguments,
                         const CommandSettings& settings) {
  const TemporaryFolder folder;
  const std::filesystem::path outPath = folder.path() / "out";
  const std::filesystem::path errPath = folder.path() / "err";
  const int out = ::open(outPath.c_str(), O_CREAT | O_WRONLY, 0600);
  const int err = ::open(errPath.c_str(), O_CREAT | O_WRONLY, 0600);
  CommandResult result;
  {
    Console console(out, err, settings.showsProgress);
    result.status = runCommandLine(
        arguments, {console, settings.workingDirectory, settings.clock, settings.createHost});
  }
  ::close(out);
  ::close(err);
  result.out = fileContent(outPath);
  result.err = fileContent(errPath);
  return result;
}

}  // namespace tarrowin::test
