// One run of the program without a face: the main object and what it works with.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <utility>

#include "access/access_host.h"
#include "core/main_object.h"
#include "shared/code_page.h"
#include "shared/file_system.h"
#include "shared/vb_files.h"

namespace tarrowin {

// What a run is given from outside.
struct RunEnvironment {
  std::function<Date()> clock = systemNow;
  std::function<ObjectRef(HostOptions)> createHost = createAccessHost;
  // Under the numbered files.
  std::shared_ptr<FileSystem> fileSystem = std::make_shared<PosixFileSystem>();
};

class ProgramRun {
 public:
  // The current directory is absolute, as the disk knows it; it is where Visual Basic's relative
  // paths start until a database is opened.
  ProgramRun(RunEnvironment environment, User& user, const CodePage& codePage,
             const std::string& currentDirectory)
      : fileSystem_(std::move(environment.fileSystem)),
        files_(*fileSystem_, codePage, codePage.fromUtf8(currentDirectory)),
        main_(user, files_, AccessHost(environment.createHost(HostOptions{codePage})),
              std::move(environment.clock)) {}
  ProgramRun(const ProgramRun&) = delete;
  ProgramRun& operator=(const ProgramRun&) = delete;

  MainObject& main() { return main_; }
  FileSlots& files() { return files_; }

 private:
  std::shared_ptr<FileSystem> fileSystem_;
  FileSlots files_;
  MainObject main_;
};

}  // namespace tarrowin
