// tarrowin-cli: the conversion without a window.
#include <cerrno>
#include <csignal>
#include <string>
#include <vector>

#include <fcntl.h>
#include <unistd.h>

#include "cli/command_line.h"
#include "cli/console.h"

namespace {

// A standard stream that is closed would give its number to the next file that is opened, and what
// is meant for the stream would land there. A placeholder takes the number; writing to it fails.
void occupyStandardStreams() {
  for (const int descriptor : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
    if (::fcntl(descriptor, F_GETFD) != -1) continue;
    // The lowest free number is the closed one.
    if (::open("/dev/null", O_RDONLY) != descriptor) ::_exit(2);
  }
}

std::string workingDirectory() {
  std::string path(256, '\0');
  while (::getcwd(path.data(), path.size()) == nullptr) {
    // A directory that was deleted has no name; then relative paths lead nowhere.
    if (errno != ERANGE) return "/";
    path.resize(path.size() * 2);
  }
  path.resize(path.find('\0'));
  return path;
}

}  // namespace

int main(int argc, char** argv) {
  occupyStandardStreams();
  // A reader that goes away, as head does, must not end a conversion half way.
  std::signal(SIGPIPE, SIG_IGN);
  tarrowin::Console console(STDOUT_FILENO, STDERR_FILENO, ::isatty(STDERR_FILENO) == 1);
  const std::vector<std::string> arguments(argv + (argc > 0 ? 1 : 0), argv + argc);
  return tarrowin::runCommandLine(arguments, {console, workingDirectory()});
}
