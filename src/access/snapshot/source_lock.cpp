// flock, and its move to the file that comes in the place of the locked one.
#include "access/snapshot/source_lock.h"

#include <cerrno>
#include <utility>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tarrowin {

namespace {

// How often a file may be replaced by another program between its opening and its locking.
constexpr int kMostAttempts = 8;

void closeIfOpen(int& handle) {
  if (handle >= 0) ::close(handle);
  handle = -1;
}

bool isStillAt(int handle, const std::string& path) {
  struct stat open {
  }, named{};
  return ::fstat(handle, &open) == 0 && ::stat(path.c_str(), &named) == 0 &&
         open.st_dev == named.st_dev && open.st_ino == named.st_ino;
}

}  // namespace

bool SourceLock::acquire(const std::string& path) {
  if (handle_ >= 0) return true;
  for (int attempt = 0; attempt < kMostAttempts; ++attempt) {
    handle_ = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (handle_ < 0) return true;
    if (::flock(handle_, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK) {
      closeIfOpen(handle_);
      return false;
    }
    if (isStillAt(handle_, path)) return true;
    closeIfOpen(handle_);
  }
  return false;
}

void SourceLock::release() { closeIfOpen(handle_); }

LockedReplacement::~LockedReplacement() { closeIfOpen(newHandle_); }

int LockedReplacement::createTemporary(const std::string& prefix, std::string& path, int& handle) {
  const int error = operations_.createTemporary(prefix, path, handle);
  if (error == 0) {
    newHandle_ = ::fcntl(handle, F_DUPFD_CLOEXEC, 0);
    // Nobody else knows the file yet; where it cannot be locked, there are no locks.
    if (newHandle_ >= 0) static_cast<void>(::flock(newHandle_, LOCK_EX | LOCK_NB));
  }
  return error;
}

int LockedReplacement::rename(const std::string& from, const std::string& to) {
  const int error = operations_.rename(from, to);
  if (error == 0 && newHandle_ >= 0) {
    std::swap(lock_.handle_, newHandle_);
    closeIfOpen(newHandle_);
  }
  return error;
}

}  // namespace tarrowin
