// The FileSystem by the system calls of POSIX, one call an operation where possible.
#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <system_error>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "shared/file_system.h"

namespace tarrowin {

namespace {

constexpr mode_t kNewFileMode = 0666;  // less the umask
constexpr mode_t kNewDirectoryMode = 0777;
constexpr mode_t kAnyWrite = S_IWUSR | S_IWGRP | S_IWOTH;

int openFlags(FileSystem::Access access) {
  switch (access) {
    case FileSystem::Access::kRead:
      return O_RDONLY | O_CLOEXEC;
    case FileSystem::Access::kWrite:
      return O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC;
    case FileSystem::Access::kAppend:
      return O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC;
  }
  return O_RDONLY | O_CLOEXEC;
}

}  // namespace

int PosixFileSystem::open(const std::string& path, Access access, Handle& handle) {
  int descriptor = -1;
  do {
    descriptor = ::open(path.c_str(), openFlags(access), kNewFileMode);
  } while (descriptor < 0 && errno == EINTR);
  if (descriptor < 0) return errno;
  if (access == Access::kRead) {
    // A directory opens for reading and fails only later.
    struct stat attributes {};
    const int error = ::fstat(descriptor, &attributes) != 0 ? errno
                      : S_ISDIR(attributes.st_mode)         ? EISDIR
                                                            : 0;
    if (error != 0) {
      ::close(descriptor);
      return error;
    }
  }
  handle = descriptor;
  return 0;
}

int PosixFileSystem::read(Handle handle, char* buffer, std::size_t capacity, std::size_t& count) {
  ssize_t result = -1;
  do {
    result = ::read(handle, buffer, capacity);
  } while (result < 0 && errno == EINTR);
  if (result < 0) return errno;
  count = static_cast<std::size_t>(result);
  return 0;
}

int PosixFileSystem::write(Handle handle, std::string_view bytes, std::size_t& written) {
  written = 0;
  while (written < bytes.size()) {
    const ssize_t result = ::write(handle, bytes.data() + written, bytes.size() - written);
    if (result < 0 && errno == EINTR) continue;
    if (result < 0) return errno;
    written += static_cast<std::size_t>(result);
  }
  return 0;
}

int PosixFileSystem::close(Handle handle) {
  // Linux frees the descriptor even when a signal interrupts, and nothing is lost by it.
  if (::close(handle) == 0 || errno == EINTR) return 0;
  return errno;
}

int PosixFileSystem::remove(const std::string& path) {
  return ::unlink(path.c_str()) == 0 ? 0 : errno;
}

int PosixFileSystem::makeDirectory(const std::string& path) {
  return ::mkdir(path.c_str(), kNewDirectoryMode) == 0 ? 0 : errno;
}

int PosixFileSystem::status(const std::string& path, Status& result) {
  struct stat attributes {};
  if (::stat(path.c_str(), &attributes) != 0) return errno;
  result.directory = S_ISDIR(attributes.st_mode);
  result.readOnly = (attributes.st_mode & kAnyWrite) == 0;
  return 0;
}

int PosixFileSystem::list(const std::string& path, std::vector<Entry>& entries) {
  std::error_code error;
  std::filesystem::directory_iterator next(path, error);
  entries.clear();
  while (!error && next != std::filesystem::directory_iterator()) {
    const bool directory = std::filesystem::is_directory(next->symlink_status(error));
    // One that went away meanwhile, or tells nothing of itself, is a file.
    entries.push_back({next->path().filename().string(), !error && directory});
    next.increment(error);
  }
  std::ranges::sort(entries, {}, &Entry::name);
  return error.value();
}

}  // namespace tarrowin
