// Replaces a file as a whole or not at all.
#pragma once

#include <exception>
#include <string>
#include <string_view>

namespace tarrowin {

// The file was not written; what stood there before still stands.
class AtomicWriteError : public std::exception {
 public:
  explicit AtomicWriteError(std::string message, int code = 0)
      : message_(std::move(message)), code_(code) {}
  // UTF-8: the path, what failed and why.
  const std::string& message() const { return message_; }
  // The errno value of what failed.
  int code() const { return code_; }
  const char* what() const noexcept override { return message_.c_str(); }

 private:
  std::string message_;
  int code_;
};

// The operations on the disk that a replacement takes, so that a test can let each of them fail.
// Each returns 0 or an errno value.
class ReplaceOperations {
 public:
  virtual ~ReplaceOperations() = default;
  // Makes a new file whose name starts with the prefix; gives its name and an open handle.
  virtual int createTemporary(const std::string& prefix, std::string& path, int& handle);
  virtual int write(int handle, std::string_view bytes);
  // Gives the new file the permissions of the old one, where there is one.
  virtual int copyPermissions(int handle, const std::string& from);
  virtual int flush(int handle);
  virtual int close(int handle);
  virtual int rename(const std::string& from, const std::string& to);
  virtual int remove(const std::string& path);
  virtual int flushDirectory(const std::string& directory);
};

// Writes the content to a temporary file in the same directory, flushes it to the disk and renames
// it to the path (the file that it leads to, for a symbolic link). Throws AtomicWriteError; the
// temporary file is then gone and the old one untouched.
void replaceFile(const std::string& path, std::string_view content, ReplaceOperations& operations);
void replaceFile(const std::string& path, std::string_view content);

}  // namespace tarrowin
