// Opening the SOURCE of a command the way the window does.
#pragma once

#include <string>

#include "cli/command_user.h"
#include "cli/environment.h"
#include "program/program_run.h"
#include "shared/code_page.h"

namespace tarrowin {

// A run of the program with its source open.
class OpenedSource {
 public:
  // Opens the source, a path relative to the working directory, for the machine of those paths,
  // which are in the code page. Throws CommandFailure naming file
  // and reason when the program cannot use it; its boxes have been shown by then.
  OpenedSource(const Environment& environment, const CodePage& codePage, const std::string& source,
               MachinePaths machine = {});

  MainObject& main() { return run_.main(); }
  FileSlots& files() { return run_.files(); }
  CommandUser& user() { return user_; }
  // The source as the disk knows it.
  const std::string& path() const { return path_; }

 private:
  std::string path_;
  CommandUser user_;
  ProgramRun run_;
};

}  // namespace tarrowin
