// Finding samples and running programs.
// See sample_files.h.
#include "mdb/sample_files.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <fstream>
#include <iterator>

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace tarrowin::mdb {
namespace fs = std::filesystem;
namespace {

fs::path samplesFolder() {
  const char* folder = std::getenv("TARROWIN_SAMPLES");
  if (folder != nullptr) return folder;
  return fs::path(TARROWIN_SOURCE_DIR) / ".." / "shared" / "samples";
}

}  // namespace

std::vector<fs::path> sampleDatabases(bool withNewer) {
  std::vector<fs::path> found;
  fs::path folder = samplesFolder() / "mdb";
  if (!fs::is_directory(folder)) return found;
  for (const auto& entry : fs::recursive_directory_iterator(folder)) {
    fs::path extension = entry.path().extension();
    if (extension == ".mdb" || (withNewer && extension == ".accdb")) found.push_back(entry.path());
  }
  std::sort(found.begin(), found.end());
  return found;
}

fs::path sampleDatabase(const std::string& name) {
  for (const fs::path& path : sampleDatabases(true)) {
    if (path.filename() == name) return path;
  }
  return {};
}

Bytes fileBytes(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  return Bytes(std::istreambuf_iterator<char>(file), {});
}

ProgramResult runProgram(const std::vector<std::string>& arguments) {
  std::array<int, 2> pipe{};
  if (::pipe(pipe.data()) != 0) return {};
  std::vector<char*> words;
  for (const std::string& argument : arguments)
    words.push_back(const_cast<char*>(argument.c_str()));
  words.push_back(nullptr);
  pid_t child = ::fork();
  if (child == 0) {
    ::dup2(pipe[1], STDOUT_FILENO);
    ::dup2(::open("/dev/null", O_WRONLY), STDERR_FILENO);
    ::close(pipe[0]);
    ::close(pipe[1]);
    ::setenv("LC_ALL", "C.UTF-8", 1);
    ::execvp(words[0], words.data());
    ::_exit(127);
  }
  ::close(pipe[1]);
  ProgramResult result;
  std::array<char, 65536> buffer;
  ssize_t got = 0;
  while ((got = ::read(pipe[0], buffer.data(), buffer.size())) > 0) {
    result.output.append(buffer.data(), static_cast<std::size_t>(got));
  }
  ::close(pipe[0]);
  int status = 0;
  if (child > 0 && ::waitpid(child, &status, 0) == child && WIFEXITED(status)) {
    result.status = WEXITSTATUS(status);
  }
  return result;
}

bool haveMdbTools() { return runProgram({"mdb-export", "--version"}).status == 0; }

}  // namespace tarrowin::mdb
