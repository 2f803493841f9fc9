// One run of the program without its window: the main object and what it works with.
#pragma once

#include <string>

#include "cli/environment.h"
#include "core/main_object.h"
#include "shared/code_page.h"
#include "shared/file_system.h"
#include "shared/vb_files.h"

namespace tarrowin {

class ProgramRun {
 public:
  // The current directory is absolute, as the disk knows it; it is where Visual Basic's relative
  // paths start until a database is opened.
  ProgramRun(const Environment& environment, User& user, const CodePage& codePage,
             const std::string& currentDirectory)
      : files_(fileSystem_, codePage, codePage.fromUtf8(currentDirectory)),
        main_(user, files_, AccessHost(environment.createHost(HostOptions{codePage})),
              environment.clock) {}
  ProgramRun(const ProgramRun&) = delete;
  ProgramRun& operator=(const ProgramRun&) = delete;

  MainObject& main() { return main_; }
  FileSlots& files() { return files_; }

 private:
  PosixFileSystem fileSystem_;
  FileSlots files_;
  MainObject main_;
};

}  // namespace tarrowin
