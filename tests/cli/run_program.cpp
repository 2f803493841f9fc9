// fork, exec, and the streams in temporary files.
#include "cli/run_program.h"

#include <cstdio>
#include <cstdlib>
#include <stdexcept>

#include <sys/wait.h>
#include <unistd.h>

namespace tarrowin::test {

namespace {

// A file without a name, for one stream of the child.
class StreamFile {
 public:
  StreamFile() : file_(std::tmpfile()) {
    if (!file_) throw std::runtime_error("no temporary file");
  }
  ~StreamFile() { std::fclose(file_); }
  StreamFile(const StreamFile&) = delete;
  StreamFile& operator=(const StreamFile&) = delete;

  int descriptor() const { return fileno(file_); }
  std::string content() const {
    std::string text;
    std::rewind(file_);
    char buffer[4096];
    std::size_t count = 0;
    while ((count = std::fread(buffer, 1, sizeof buffer, file_)) > 0) text.append(buffer, count);
    return text;
  }

 private:
  std::FILE* file_;
};

constexpr int kCannotStart = 126;
constexpr int kSignalBase = 128;

}  // namespace

ProgramResult runProgram(const std::string& program, const std::vector<std::string>& arguments,
                         const ProgramSettings& settings) {
  StreamFile out;
  StreamFile err;
  std::vector<char*> argv = {const_cast<char*>(program.c_str())};
  for (const std::string& argument : arguments) argv.push_back(const_cast<char*>(argument.c_str()));
  argv.push_back(nullptr);
  const pid_t child = fork();
  if (child < 0) throw std::runtime_error("cannot fork");
  if (child == 0) {
    dup2(out.descriptor(), STDOUT_FILENO);
    dup2(err.descriptor(), STDERR_FILENO);
    if (chdir(settings.workingDirectory.c_str()) != 0) _exit(kCannotStart);
    settings.inChild();
    execvp(program.c_str(), argv.data());
    _exit(kCannotStart);
  }
  int status = 0;
  if (waitpid(child, &status, 0) != child) throw std::runtime_error("cannot wait");
  return {WIFSIGNALED(status) ? kSignalBase + WTERMSIG(status) : WEXITSTATUS(status), out.content(),
          err.content()};
}

ProgramResult runCli(const std::vector<std::string>& arguments, const ProgramSettings& settings) {
  return runProgram(TARROWIN_CLI, arguments, settings);
}

}  // namespace tarrowin::test
