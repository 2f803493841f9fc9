// Holds a source while this program changes what belongs to it.
#pragma once

#include <string>

#include "access/snapshot/atomic_file.h"

namespace tarrowin {

// An advisory lock (flock) on the file itself, so that nothing is left behind by a program that
// dies. It follows the file when that is replaced under its name.
class SourceLock {
 public:
  SourceLock() = default;
  ~SourceLock() { release(); }
  SourceLock(const SourceLock&) = delete;
  SourceLock& operator=(const SourceLock&) = delete;

  // Takes the lock on the file or directory, unless it is held already; false while another
  // program holds it. Does not wait. A file system without locks counts as one where nobody else
  // is. A file that cannot be opened is not locked either: its writing will tell why.
  bool acquire(const std::string& path);
  void release();

 private:
  friend class LockedReplacement;
  int handle_ = -1;
};

// The operations of a replacement of the locked file: the new file is locked before it has its
// name, so there is no moment at which another program could take the source over.
class LockedReplacement : public ReplaceOperations {
 public:
  LockedReplacement(ReplaceOperations& operations, SourceLock& lock)
      : operations_(operations), lock_(lock) {}
  ~LockedReplacement() override;
  LockedReplacement(const LockedReplacement&) = delete;
  LockedReplacement& operator=(const LockedReplacement&) = delete;

  int createTemporary(const std::string& prefix, std::string& path, int& handle) override;
  int write(int handle, std::string_view bytes) override {
    return operations_.write(handle, bytes);
  }
  int copyPermissions(int handle, const std::string& from) override {
    return operations_.copyPermissions(handle, from);
  }
  int flush(int handle) override { return operations_.flush(handle); }
  int close(int handle) override { return operations_.close(handle); }
  int rename(const std::string& from, const std::string& to) override;
  int remove(const std::string& path) override { return operations_.remove(path); }
  int flushDirectory(const std::string& directory) override {
    return operations_.flushDirectory(directory);
  }

 private:
  ReplaceOperations& operations_;
  SourceLock& lock_;
  int newHandle_ = -1;
};

}  // namespace tarrowin
