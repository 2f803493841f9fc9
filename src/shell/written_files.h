// Which files a batch wrote: the disk's operations with a memory.
#pragma once

#include <string>
#include <vector>

#include "shared/file_system.h"

namespace tarrowin {

class WrittenFiles : public PosixFileSystem {
 public:
  // Forgets what was written so far.
  void begin() { paths_.clear(); }
  // The files opened for output since then and not deleted again, in the order of their first
  // opening; as the disk knows them.
  const std::vector<std::string>& paths() const { return paths_; }

  int open(const std::string& path, Access access, Handle& handle) override;
  int remove(const std::string& path) override;

 private:
  std::vector<std::string> paths_;
};

}  // namespace tarrowin
