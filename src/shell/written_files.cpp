// Openings for output and deletions.
#include "shell/written_files.h"

#include <algorithm>

namespace tarrowin {

int WrittenFiles::open(const std::string& path, Access access, Handle& handle) {
  const int error = PosixFileSystem::open(path, access, handle);
  const bool writes = access == Access::kWrite || access == Access::kAppend;
  if (error == 0 && writes && std::ranges::find(paths_, path) == paths_.end())
    paths_.push_back(path);
  return error;
}

int WrittenFiles::remove(const std::string& path) {
  const int error = PosixFileSystem::remove(path);
  if (error == 0) std::erase(paths_, path);
  return error;
}

}  // namespace tarrowin
