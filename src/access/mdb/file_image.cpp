// Opening, reading and mapping a file through the operating system.
// The file is only ever opened for reading.
#include "access/mdb/file_image.h"

#include <cerrno>
#include <system_error>
#include <utility>

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include "access/mdb/mdb_error.h"

namespace tarrowin::mdb {
namespace {

[[noreturn]] void raiseUnreadable(std::string message) {
  throw Error(ErrorKind::kUnreadable, std::move(message));
}

[[noreturn]] void raiseSystemError(const std::string& what, int number) {
  raiseUnreadable(what + ": " + std::generic_category().message(number));
}

// Closes the file unless it is handed on.
class Descriptor {
 public:
  explicit Descriptor(int number) : number_(number) {}
  ~Descriptor() {
    if (number_ >= 0) ::close(number_);
  }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  int get() const { return number_; }
  int release() { return std::exchange(number_, -1); }

 private:
  int number_;
};

// Not blocking: a named pipe without a writer would never open.
int openForReading(const std::string& path) {
  int number = ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
  if (number < 0) {
    if (errno == ENOENT || errno == ENOTDIR) raiseUnreadable("the file does not exist");
    if (errno == EACCES) raiseUnreadable("no permission to read the file");
    raiseSystemError("the file cannot be opened", errno);
  }
  return number;
}

std::size_t sizeOfRegularFile(int descriptor) {
  struct stat status {};
  if (::fstat(descriptor, &status) != 0) raiseSystemError("the file cannot be examined", errno);
  if (S_ISDIR(status.st_mode)) raiseUnreadable("it is a directory, not a file");
  if (!S_ISREG(status.st_mode)) raiseUnreadable("it is a device or pipe, not a file");
  return static_cast<std::size_t>(status.st_size);
}

Bytes readWhole(int descriptor, std::size_t size) {
  Bytes bytes(size);
  std::size_t done = 0;
  while (done < size) {
    ssize_t got = ::pread(descriptor, bytes.data() + done, size - done, static_cast<off_t>(done));
    if (got < 0 && errno == EINTR) continue;
    if (got < 0) raiseSystemError("the file cannot be read", errno);
    if (got == 0) raiseUnreadable("the file was cut short while it was read");
    done += static_cast<std::size_t>(got);
  }
  return bytes;
}

}  // namespace

FileImage FileImage::load(const std::string& path, std::size_t readWholeUpTo) {
  Descriptor descriptor(openForReading(path));
  std::size_t size = sizeOfRegularFile(descriptor.get());
  if (size == 0) throw Error(ErrorKind::kNotADatabase, "the file is empty");
  if (size <= readWholeUpTo) return FileImage(readWhole(descriptor.get(), size));
  void* mapping = ::mmap(nullptr, size, PROT_READ, MAP_SHARED, descriptor.get(), 0);
  if (mapping == MAP_FAILED) raiseSystemError("the file cannot be mapped into memory", errno);
  FileImage image;
  image.mapping_ = mapping;
  image.mappedSize_ = size;
  image.descriptor_ = descriptor.release();
  return image;
}

FileImage::FileImage(FileImage&& other) noexcept { *this = std::move(other); }

FileImage& FileImage::operator=(FileImage&& other) noexcept {
  if (this == &other) return *this;
  release();
  owned_ = std::move(other.owned_);
  mapping_ = std::exchange(other.mapping_, nullptr);
  mappedSize_ = std::exchange(other.mappedSize_, 0);
  descriptor_ = std::exchange(other.descriptor_, -1);
  return *this;
}

FileImage::~FileImage() { release(); }

void FileImage::release() {
  if (mapping_ != nullptr) ::munmap(mapping_, mappedSize_);
  if (descriptor_ >= 0) ::close(descriptor_);
}

std::span<const std::uint8_t> FileImage::bytes() const {
  if (mapping_ == nullptr) return owned_;
  return {static_cast<const std::uint8_t*>(mapping_), mappedSize_};
}

void FileImage::checkStillThere() const {
  if (mapping_ == nullptr) return;
  struct stat status {};
  if (::fstat(descriptor_, &status) != 0 ||
      static_cast<std::size_t>(status.st_size) < mappedSize_) {
    raiseUnreadable("the file was cut short by another program while it was open");
  }
}

}  // namespace tarrowin::mdb
