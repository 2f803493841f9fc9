// The opening, and why it failed.
#include "cli/open_source.h"

#include <filesystem>
#include <system_error>
#include <utility>

#include "cli/exit_status.h"
#include "cli/paths.h"
#include "core/window_events.h"

namespace tarrowin {

namespace {

// Of a folder the path ends in its own name.
std::string sourcePath(const Environment& environment, const std::string& source) {
  const std::filesystem::path path = absolutePath(environment.workingDirectory, source);
  const std::filesystem::path name = path.filename();
  if (!name.empty() && name != "." && name != "..") return path.string();
  std::error_code error;
  if (!std::filesystem::is_directory(path, error)) return path.string();
  const std::filesystem::path clean = std::filesystem::canonical(path, error);
  return error ? path.string() : clean.string();
}

// What is wrong with a path before anything reads the file; empty when nothing is.
std::string reasonOfPath(const std::string& path) {
  std::error_code error;
  const std::filesystem::file_status status = std::filesystem::status(path, error);
  if (status.type() == std::filesystem::file_type::not_found) return "there is no such file";
  if (error) return error.message();
  if (std::filesystem::is_directory(status)) return "is a directory";
  // The Open dialog takes such a name for a filter.
  if (path.find('*') != std::string::npos) return "a file with \"*\" in its path cannot be opened";
  return "";
}

// The host's own reason, without the path that it puts before it.
std::string reasonOfHost(MainObject& main, const CodePage& codePage, const std::string& path) {
  std::string problem = codePage.toUtf8(main.host.openProblem());
  const std::string head = path + ": ";
  if (problem.starts_with(head)) problem.erase(0, head.size());
  return problem;
}

}  // namespace

OpenedSource::OpenedSource(const Environment& environment, const CodePage& codePage,
                           const std::string& source, MachinePaths machine)
    : path_(sourcePath(environment, source)),
      user_(environment.console, codePage),
      run_(environment.run, user_, codePage, environment.workingDirectory) {
  if (source.empty()) throw CommandFailure("the name of the source is empty");
  main().machine = std::move(machine);
  user_.choosePath(pathInCodePage(codePage, path_));
  clickButton(main(), "cmdOpen");
  const bool open = !main().state.mblnOpenFailed && !main().state.gstrDbPath.empty();
  if (open && !user_.sawFailure()) return;
  std::string reason = reasonOfHost(main(), codePage, path_);
  if (reason.empty()) reason = reasonOfPath(path_);
  if (reason.empty()) reason = "cannot be used, for the reason given above";
  throw CommandFailure(source + ": " + reason);
}

}  // namespace tarrowin
