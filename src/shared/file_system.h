// The operations on the disk that the numbered files need, as an interface so that tests can let
// the n-th of them fail, and its implementation by POSIX.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace tarrowin {

// Paths are as the disk knows them, in UTF-8. Every operation returns 0 or an errno value.
class FileSystem {
 public:
  using Handle = int;
  enum class Access { kRead, kWrite, kAppend };
  struct Status {
    bool directory = false;
    bool readOnly = false;  // nobody may write
  };

  struct Entry {
    std::string name;
    bool directory = false;  // a link to one is none
  };

  virtual ~FileSystem() = default;

  // kWrite makes or empties the file, kAppend makes it or goes on at its end, kRead gives EISDIR
  // for a directory.
  virtual int open(const std::string& path, Access access, Handle& handle) = 0;
  // Reads up to capacity bytes; count 0 is the end of the file.
  virtual int read(Handle handle, char* buffer, std::size_t capacity, std::size_t& count) = 0;
  // Writes all bytes, or tells in written how many went before the failure.
  virtual int write(Handle handle, std::string_view bytes, std::size_t& written) = 0;
  // The handle is gone afterwards, whatever the result.
  virtual int close(Handle handle) = 0;
  virtual int remove(const std::string& path) = 0;
  virtual int makeDirectory(const std::string& path) = 0;
  virtual int status(const std::string& path, Status& result) = 0;
  // What stands in a directory, by name.
  virtual int list(const std::string& path, std::vector<Entry>& entries) = 0;
};

class PosixFileSystem : public FileSystem {
 public:
  int open(const std::string& path, Access access, Handle& handle) override;
  int read(Handle handle, char* buffer, std::size_t capacity, std::size_t& count) override;
  int write(Handle handle, std::string_view bytes, std::size_t& written) override;
  int close(Handle handle) override;
  int remove(const std::string& path) override;
  int makeDirectory(const std::string& path) override;
  int status(const std::string& path, Status& result) override;
  int list(const std::string& path, std::vector<Entry>& entries) override;
};

}  // namespace tarrowin
