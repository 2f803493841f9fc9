// Operations of the disk of which one, or all from one on, go wrong.
#pragma once

#include <cerrno>
#include <functional>
#include <string>
#include <string_view>

#include "access/snapshot/atomic_file.h"

namespace tarrowin {

// The steps of a replacement, in their order.
inline constexpr const char* kReplaceSteps[] = {"creating a temporary file",
                                                "writing",
                                                "setting the permissions",
                                                "flushing",
                                                "closing",
                                                "renaming",
                                                "flushing the directory"};

// Lets the n-th operation, from 1, fail, and with `forGood` all behind it. A failing write has
// written half of its bytes.
class FailingOperations : public ReplaceOperations {
 public:
  explicit FailingOperations(int failing, bool forGood = false)
      : failing_(failing), forGood_(forGood) {}

  int createTemporary(const std::string& prefix, std::string& path, int& handle) override {
    return fails() ? EACCES : ReplaceOperations::createTemporary(prefix, path, handle);
  }
  int write(int handle, std::string_view bytes) override {
    if (!fails()) return ReplaceOperations::write(handle, bytes);
    ReplaceOperations::write(handle, bytes.substr(0, bytes.size() / 2));
    return ENOSPC;
  }
  int copyPermissions(int handle, const std::string& from) override {
    return fails() ? EPERM : ReplaceOperations::copyPermissions(handle, from);
  }
  int flush(int handle) override { return fails() ? EIO : ReplaceOperations::flush(handle); }
  int close(int handle) override {
    const bool failing = fails();
    const int result = ReplaceOperations::close(handle);
    return failing ? EIO : result;
  }
  int rename(const std::string& from, const std::string& to) override {
    return fails() ? EACCES : ReplaceOperations::rename(from, to);
  }
  int flushDirectory(const std::string& directory) override {
    return fails() ? EIO : ReplaceOperations::flushDirectory(directory);
  }
  int remove(const std::string& path) override {
    return forGood_ && operation_ >= failing_ ? EIO : ReplaceOperations::remove(path);
  }

 private:
  bool fails() {
    ++operation_;
    return operation_ == failing_ || (forGood_ && operation_ > failing_);
  }
  int failing_;
  bool forGood_;
  int operation_ = 0;
};

// Ends the process at the n-th operation, from 1: in front of it, or when it has been done. A write
// that the end comes in front of has written half.
class DyingOperations : public ReplaceOperations {
 public:
  DyingOperations(int last, bool isDone, std::function<void()> die)
      : last_(last), isDone_(isDone), die_(std::move(die)) {}

  int createTemporary(const std::string& prefix, std::string& path, int& handle) override {
    return run([&] { return ReplaceOperations::createTemporary(prefix, path, handle); });
  }
  int write(int handle, std::string_view bytes) override {
    if (operation_ + 1 == last_ && !isDone_)
      ReplaceOperations::write(handle, bytes.substr(0, bytes.size() / 2));
    return run([&] { return ReplaceOperations::write(handle, bytes); });
  }
  int copyPermissions(int handle, const std::string& from) override {
    return run([&] { return ReplaceOperations::copyPermissions(handle, from); });
  }
  int flush(int handle) override {
    return run([&] { return ReplaceOperations::flush(handle); });
  }
  int close(int handle) override {
    return run([&] { return ReplaceOperations::close(handle); });
  }
  int rename(const std::string& from, const std::string& to) override {
    return run([&] { return ReplaceOperations::rename(from, to); });
  }
  int flushDirectory(const std::string& directory) override {
    return run([&] { return ReplaceOperations::flushDirectory(directory); });
  }

 private:
  template <class Operation>
  int run(Operation operation) {
    ++operation_;
    if (operation_ == last_ && !isDone_) die_();
    const int result = operation();
    if (operation_ == last_) die_();
    return result;
  }
  int last_;
  bool isDone_;
  std::function<void()> die_;
  int operation_ = 0;
};

}  // namespace tarrowin
