// The numbered files and file statements: state of the slots, buffering, and errno to the numbers
// of Visual Basic.
#include "shared/vb_files.h"

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <optional>
#include <utility>

#include "shared/path_procedures.h"
#include "shared/vb_error.h"
#include "shared/vb_text.h"

namespace tarrowin {

namespace {

// The number for a failed operation on an open file or on a path whose parts exist; missing files
// and directories are told apart by the callers.
std::int32_t errorNumber(int error) {
  switch (error) {
    case EACCES:
    case EPERM:
    case EROFS:
    case EISDIR:
    case EEXIST:
    case ELOOP:
      return kErrPathAccess;
    case ENOENT:
    case ENOTDIR:
      return kErrPathNotFound;
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
      return kErrDiskFull;
    case EMFILE:
    case ENFILE:
      return kErrTooManyFiles;
    case EBUSY:
    case ETXTBSY:
    case EAGAIN:
      return kErrPermissionDenied;
    case ENXIO:
    case ENODEV:
    case ENOMEDIUM:
      return kErrDiskNotReady;
    case ENAMETOOLONG:
    case EINVAL:
    case EILSEQ:
      return kErrBadFileName;
    default:
      return kErrDeviceIo;
  }
}

bool isMissing(int error) { return error == ENOENT || error == ENOTDIR; }

FileSystem::Access accessOf(FileMode mode) {
  switch (mode) {
    case FileMode::kInput:
      return FileSystem::Access::kRead;
    case FileMode::kOutput:
      return FileSystem::Access::kWrite;
    case FileMode::kAppend:
      return FileSystem::Access::kAppend;
  }
  return FileSystem::Access::kRead;
}

// One spelling of a path for comparing: repeated separators and "." steps dropped. ".." stays,
// since what it means depends on links.
std::string withoutEmptySteps(std::string path) {
  if (path.find("//") == std::string::npos && path.find("/.") == std::string::npos) return path;
  std::string result;
  std::size_t start = 0;
  while (start < path.size()) {
    const std::size_t end = std::min(path.find('/', start), path.size());
    const std::string_view step = std::string_view(path).substr(start, end - start);
    const bool last = end == path.size();
    if (!step.empty() && step != ".") {
      result += step;
      if (!last) result += '/';
    } else if (start == 0 && step.empty()) {
      result += '/';
    }
    start = end + 1;
  }
  return result;
}

std::string withoutTrailingSeparator(std::string path) {
  while (path.size() > 1 && path.back() == kPathSeparator) path.pop_back();
  return path;
}

}  // namespace

FileSlots::FileSlots(FileSystem& fileSystem, CodePage codePage, std::string currentDirectory)
    : fileSystem_(fileSystem),
      codePage_(std::move(codePage)),
      currentDirectory_(withoutTrailingSeparator(std::move(currentDirectory))) {}

FileSlots::~FileSlots() {
  try {
    CloseAll();
  } catch (const VbError&) {  // nobody is left to be told
  }
}

std::string FileSlots::FullPath(std::string_view path) const {
  if (path.starts_with(kPathSeparator)) return std::string(path);
  return currentDirectory_ + kPathSeparator + std::string(path);
}

std::string FileSlots::diskPath(std::string_view path) const {
  if (path.find('\0') != std::string_view::npos) raise(kErrBadFileName);
  return withoutEmptySteps(codePage_.toUtf8(FullPath(path)));
}

FileSlots::Slot& FileSlots::openSlot(int number) {
  if (!IsOpen(number)) raise(kErrBadFileName);
  return slots_[static_cast<std::size_t>(number)];
}

FileSlots::Slot& FileSlots::slotForOutput(int number) {
  Slot& slot = openSlot(number);
  if (slot.mode == FileMode::kInput) raise(kErrBadFileMode);
  return slot;
}

bool FileSlots::IsOpen(int number) const {
  return number >= 1 && static_cast<std::size_t>(number) < slots_.size() &&
         slots_[static_cast<std::size_t>(number)].open;
}

void FileSlots::refuseIfOpen(const std::string& path, bool readOnlyIsFine) const {
  for (const Slot& slot : slots_) {
    if (!slot.open || slot.path != path) continue;
    if (!(readOnlyIsFine && slot.mode == FileMode::kInput)) raise(kErrFileAlreadyOpen);
  }
}

void FileSlots::Open(std::string_view path, FileMode mode, int number) {
  if (number < 1 || number > kLastNumber) raise(kErrBadFileName);
  if (IsOpen(number)) raise(kErrFileAlreadyOpen);
  std::string diskName = diskPath(path);
  refuseIfOpen(diskName, mode == FileMode::kInput);

  FileSystem::Handle handle = -1;
  const int error = fileSystem_.open(diskName, accessOf(mode), handle);
  if (error != 0) raiseOpenFailure(error, diskName, mode);

  const auto index = static_cast<std::size_t>(number);
  if (index >= slots_.size()) slots_.resize(index + 1);
  Slot& slot = slots_[index];
  slot.open = true;
  slot.atEnd = false;
  slot.mode = mode;
  slot.handle = handle;
  slot.position = 0;
  slot.path = std::move(diskName);
  slot.buffer.clear();
}

void FileSlots::raiseOpenFailure(int error, const std::string& path, FileMode mode) {
  if (error == ENOENT && mode == FileMode::kInput) {
    FileSystem::Status parent;
    const bool parentExists =
        fileSystem_.status(DirectoryOf(path), parent) == 0 && parent.directory;
    raise(parentExists ? kErrFileNotFound : kErrPathNotFound);
  }
  raise(errorNumber(error));
}

void FileSlots::flush(Slot& slot) {
  if (slot.buffer.empty()) return;
  std::size_t written = 0;
  const int error = fileSystem_.write(slot.handle, slot.buffer, written);
  slot.buffer.erase(0, error == 0 ? slot.buffer.size() : written);
  if (error != 0) raise(errorNumber(error));
}

void FileSlots::append(Slot& slot, std::string_view text, std::string_view lineEnd) {
  const std::size_t size = text.size() + lineEnd.size();
  if (slot.buffer.size() + size > kBufferSize) flush(slot);
  if (size <= kBufferSize) {
    slot.buffer += text;
    slot.buffer += lineEnd;
    return;
  }
  std::size_t written = 0;
  const int error = fileSystem_.write(slot.handle, text, written);
  if (error != 0) raise(errorNumber(error));
  slot.buffer += lineEnd;
}

void FileSlots::Print(int number, std::string_view text) {
  append(slotForOutput(number), text, kCrLf);
}

void FileSlots::PrintWithoutLineEnd(int number, std::string_view text) {
  append(slotForOutput(number), text, {});
}

// Reads on when the buffer is used up; false at the end of the file.
bool FileSlots::fill(Slot& slot) {
  if (slot.position < slot.buffer.size()) return true;
  if (slot.atEnd) return false;
  slot.buffer.resize(kBufferSize);
  slot.position = 0;
  std::size_t count = 0;
  const int error = fileSystem_.read(slot.handle, slot.buffer.data(), kBufferSize, count);
  slot.buffer.resize(error == 0 ? count : 0);
  if (error != 0) raise(errorNumber(error));
  slot.atEnd = count == 0;
  return count > 0;
}

std::string FileSlots::LineInput(int number) {
  Slot& slot = openSlot(number);
  if (slot.mode != FileMode::kInput) raise(kErrBadFileMode);
  if (!fill(slot)) raise(kErrPastEndOfFile);

  std::string line;
  do {
    const std::size_t end = slot.buffer.find('\n', slot.position);
    if (end == std::string::npos) {
      line.append(slot.buffer, slot.position);
      slot.position = slot.buffer.size();
      continue;
    }
    line.append(slot.buffer, slot.position, end - slot.position);
    slot.position = end + 1;
    // The carriage return of the pair may have come with the block before.
    if (line.ends_with('\r')) line.pop_back();
    return line;
  } while (fill(slot));
  return line;
}

bool FileSlots::Eof(int number) {
  Slot& slot = openSlot(number);
  return slot.mode != FileMode::kInput || !fill(slot);
}

void FileSlots::Close(int number) {
  if (!IsOpen(number)) return;
  Slot& slot = openSlot(number);
  slot.open = false;
  std::size_t written = 0;
  int error = 0;
  if (slot.mode != FileMode::kInput && !slot.buffer.empty()) {
    error = fileSystem_.write(slot.handle, slot.buffer, written);
  }
  const int closeError = fileSystem_.close(slot.handle);
  slot.buffer.clear();
  if (error == 0) error = closeError;
  if (error != 0) raise(errorNumber(error));
}

void FileSlots::CloseAll() {
  std::optional<VbError> firstFailure;
  for (std::size_t number = 1; number < slots_.size(); ++number) {
    try {
      Close(static_cast<int>(number));
    } catch (const VbError& failure) {
      if (!firstFailure) firstFailure = failure;
    }
  }
  if (firstFailure) throw VbError(*firstFailure);
}

std::string FileSlots::Dir(std::string_view path) {
  if (path.empty()) return {};
  FileSystem::Status status;
  const int error = fileSystem_.status(diskPath(path), status);
  if (isMissing(error) || error == EACCES || error == ELOOP) return {};
  if (error != 0) raise(errorNumber(error));
  return status.directory ? std::string() : FileNameOf(path);
}

void FileSlots::Kill(std::string_view path) {
  const std::string diskName = diskPath(path);
  refuseIfOpen(diskName, false);
  // POSIX would remove a read-only file without a word.
  FileSystem::Status status;
  int error = fileSystem_.status(diskName, status);
  if (error == 0 && status.directory) raise(kErrFileNotFound);
  if (error == 0 && status.readOnly) raise(kErrPathAccess);
  if (error == 0) error = fileSystem_.remove(diskName);
  if (error != 0) raise(isMissing(error) ? kErrFileNotFound : errorNumber(error));
}

void FileSlots::MkDir(std::string_view path) {
  const int error = fileSystem_.makeDirectory(diskPath(path));
  if (error != 0) raise(errorNumber(error));
}

std::int32_t FileSlots::GetAttr(std::string_view path) {
  if (path.empty()) raise(kErrFileNotFound);
  FileSystem::Status status;
  const int error = fileSystem_.status(diskPath(path), status);
  if (isMissing(error)) raise(kErrFileNotFound);
  if (error != 0) raise(errorNumber(error));
  return (status.directory ? kAttrDirectory : 0) | (status.readOnly ? kAttrReadOnly : 0);
}

std::vector<FileSystem::Entry> FileSlots::Entries(std::string_view path) {
  std::vector<FileSystem::Entry> entries;
  const int error = fileSystem_.list(diskPath(path), entries);
  if (isMissing(error)) return {};
  if (error != 0) raise(errorNumber(error));
  for (FileSystem::Entry& entry : entries) entry.name = codePage_.fromUtf8(entry.name);
  return entries;
}

void FileSlots::ChDir(std::string_view path) {
  FileSystem::Status status;
  const int error = fileSystem_.status(diskPath(path), status);
  if (error != 0) raise(errorNumber(error));
  if (!status.directory) raise(kErrPathNotFound);
  const auto full = std::filesystem::path(currentDirectory_) / std::filesystem::path(path);
  currentDirectory_ = withoutTrailingSeparator(full.lexically_normal().string());
}

}  // namespace tarrowin
