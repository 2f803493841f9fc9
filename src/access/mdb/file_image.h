// The bytes of a database file: read into memory when the file is small, else mapped.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

#include "shared/value.h"

namespace tarrowin::mdb {

class FileImage {
 public:
  // Throws Error: kUnreadable (missing, a directory, no permission...), kNotADatabase when empty.
  static FileImage load(const std::string& path, std::size_t readWholeUpTo);
  explicit FileImage(Bytes bytes) : owned_(std::move(bytes)) {}

  FileImage(FileImage&& other) noexcept;
  FileImage& operator=(FileImage&& other) noexcept;
  ~FileImage();

  std::span<const std::uint8_t> bytes() const;
  // Throws Error (kUnreadable) when a mapped file has become shorter than it was: touching the lost
  // part would end the program.
  void checkStillThere() const;

 private:
  FileImage() = default;
  void release();

  Bytes owned_;
  void* mapping_ = nullptr;
  std::size_t mappedSize_ = 0;
  int descriptor_ = -1;
};

}  // namespace tarrowin::mdb
