// Temporary file, flush, rename.
#include "access/snapshot/atomic_file.h"

#include <cerrno>
#include <cstring>
#include <filesystem>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tarrowin {

int ReplaceOperations::createTemporary(const std::string& prefix, std::string& path, int& handle) {
  path = prefix + "XXXXXX";
  handle = ::mkostemp(path.data(), O_CLOEXEC);
  return handle < 0 ? errno : 0;
}

int ReplaceOperations::write(int handle, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t written = ::write(handle, bytes.data(), bytes.size());
    if (written < 0 && errno == EINTR) continue;
    if (written < 0) return errno;
    bytes.remove_prefix(static_cast<std::size_t>(written));
  }
  return 0;
}

int ReplaceOperations::copyPermissions(int handle, const std::string& from) {
  struct stat status {};
  if (::stat(from.c_str(), &status) == 0)
    return ::fchmod(handle, status.st_mode & 07777) == 0 ? 0 : errno;
  // A new file gets what the user's mask leaves, not the private mode of temporary files.
  const mode_t mask = ::umask(0);
  ::umask(mask);
  return ::fchmod(handle, 0666 & ~mask) == 0 ? 0 : errno;
}

int ReplaceOperations::flush(int handle) { return ::fsync(handle) == 0 ? 0 : errno; }
int ReplaceOperations::close(int handle) { return ::close(handle) == 0 ? 0 : errno; }
int ReplaceOperations::remove(const std::string& path) {
  return ::unlink(path.c_str()) == 0 ? 0 : errno;
}
int ReplaceOperations::rename(const std::string& from, const std::string& to) {
  return ::rename(from.c_str(), to.c_str()) == 0 ? 0 : errno;
}

int ReplaceOperations::flushDirectory(const std::string& directory) {
  const int handle = ::open(directory.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (handle < 0) return errno;
  const int result = ::fsync(handle) == 0 ? 0 : errno;
  ::close(handle);
  return result;
}

namespace {

// The file that a symbolic link leads to; else the path itself.
std::string linkTarget(const std::string& path) {
  std::error_code error;
  if (!std::filesystem::is_symlink(path, error)) return path;
  const auto target = std::filesystem::weakly_canonical(path, error);
  return error ? path : target.string();
}

class Replacement {
 public:
  Replacement(const std::string& path, ReplaceOperations& operations)
      : path_(path), operations_(operations) {}
  ~Replacement() { discard(); }
  Replacement(const Replacement&) = delete;
  Replacement& operator=(const Replacement&) = delete;

  void run(std::string_view content) {
    const std::string target = linkTarget(path_);
    std::filesystem::path directory = std::filesystem::path(target).parent_path();
    if (directory.empty()) directory = ".";
    const std::string prefix =
        (directory / ("." + std::filesystem::path(target).filename().string() + ".")).string();
    check(operations_.createTemporary(prefix, temporary_, handle_), "creating a temporary file");
    created_ = true;
    check(operations_.write(handle_, content), "writing");
    check(operations_.copyPermissions(handle_, target), "setting the permissions");
    check(operations_.flush(handle_), "flushing");
    const int handle = handle_;
    handle_ = -1;
    check(operations_.close(handle), "closing");
    check(operations_.rename(temporary_, target), "renaming");
    created_ = false;
    // The new content is in place. That the directory could not be flushed changes nothing about
    // it.
    static_cast<void>(operations_.flushDirectory(directory.string()));
  }

 private:
  void check(int error, std::string_view step) const {
    if (error == 0) return;
    throw AtomicWriteError(path_ + ": " + std::string(step) + " failed: " + std::strerror(error),
                           error);
  }

  void discard() {
    if (handle_ >= 0) operations_.close(handle_);
    if (created_) operations_.remove(temporary_);
  }

  const std::string& path_;
  ReplaceOperations& operations_;
  std::string temporary_;
  int handle_ = -1;
  bool created_ = false;
};

}  // namespace

void replaceFile(const std::string& path, std::string_view content, ReplaceOperations& operations) {
  Replacement(path, operations).run(content);
}

void replaceFile(const std::string& path, std::string_view content) {
  ReplaceOperations operations;
  replaceFile(path, content, operations);
}

}  // namespace tarrowin
