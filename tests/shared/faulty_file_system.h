// A file system that lets the n-th operation of a kind fail, once or from then on, and counts what
// it is asked; all else goes to the real one.
#pragma once

#include <map>
#include <string>
#include <utility>

#include "shared/file_system.h"

namespace tarrowin::test {

enum class Operation { kOpen, kRead, kWrite, kClose, kRemove, kMakeDirectory, kStatus, kList };

class FaultyFileSystem : public FileSystem {
 public:
  // The n-th operation (from 1) of the kind gives the errno value.
  void failOn(Operation operation, int n, int error, bool andAllLater = false) {
    fault_ = {operation, n, error, andAllLater};
  }
  void heal() { fault_.error = 0; }
  int count(Operation operation) { return counts_[operation]; }
  int total() const {
    int sum = 0;
    for (const auto& entry : counts_) sum += entry.second;
    return sum;
  }

  int open(const std::string& path, Access access, Handle& handle) override {
    const int error = step(Operation::kOpen);
    return error != 0 ? error : real_.open(path, access, handle);
  }
  int read(Handle handle, char* buffer, std::size_t capacity, std::size_t& count) override {
    const int error = step(Operation::kRead);
    return error != 0 ? error : real_.read(handle, buffer, capacity, count);
  }
  // A failing write writes half of the bytes first, as a disk does that fills up.
  int write(Handle handle, std::string_view bytes, std::size_t& written) override {
    const int error = step(Operation::kWrite);
    if (error == 0) return real_.write(handle, bytes, written);
    (void)real_.write(handle, bytes.substr(0, bytes.size() / 2), written);
    return error;
  }
  int close(Handle handle) override {
    const int error = step(Operation::kClose);
    const int realError = real_.close(handle);
    return error != 0 ? error : realError;
  }
  int remove(const std::string& path) override {
    const int error = step(Operation::kRemove);
    return error != 0 ? error : real_.remove(path);
  }
  int makeDirectory(const std::string& path) override {
    const int error = step(Operation::kMakeDirectory);
    return error != 0 ? error : real_.makeDirectory(path);
  }
  int status(const std::string& path, Status& result) override {
    const int error = step(Operation::kStatus);
    return error != 0 ? error : real_.status(path, result);
  }
  int list(const std::string& path, std::vector<Entry>& entries) override {
    const int error = step(Operation::kList);
    return error != 0 ? error : real_.list(path, entries);
  }

 private:
  struct Fault {
    Operation operation = Operation::kOpen;
    int n = 0;
    int error = 0;
    bool andAllLater = false;
  };

  int step(Operation operation) {
    const int now = ++counts_[operation];
    if (fault_.error == 0 || fault_.operation != operation) return 0;
    const bool fails = now == fault_.n || (fault_.andAllLater && now > fault_.n);
    return fails ? fault_.error : 0;
  }

  PosixFileSystem real_;
  Fault fault_;
  std::map<Operation, int> counts_;
};

}  // namespace tarrowin::test
