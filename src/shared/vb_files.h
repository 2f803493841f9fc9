// Visual Basic's sequential files by number, and its file statements, over a FileSystem. Failures
// are VbError with the number and text that Visual Basic gives.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "shared/code_page.h"
#include "shared/file_system.h"

namespace tarrowin {

enum class FileMode { kInput, kOutput, kAppend };

// Attribute bits of GetAttr.
inline constexpr std::int32_t kAttrReadOnly = 1;
inline constexpr std::int32_t kAttrDirectory = 16;

// Paths and texts are in the ANSI code page; paths become UTF-8 towards the disk. A relative path
// starts at the current directory kept here; the process's own is neither used nor changed. The
// separator in paths is this system's own, and wildcards have no meaning.
class FileSlots {
 public:
  static constexpr int kLastNumber = 511;
  static constexpr std::size_t kBufferSize = std::size_t{64} * 1024;

  // currentDirectory is an absolute path. The file system outlives the slots.
  FileSlots(FileSystem& fileSystem, CodePage codePage, std::string currentDirectory);
  // Closes what is open; failures of the last writes pass unseen, so close before.
  ~FileSlots();
  FileSlots(const FileSlots&) = delete;
  FileSlots& operator=(const FileSlots&) = delete;

  // Open path For mode As #number. Raises 52 for a number outside 1 to 511; 55 for a number in use,
  // and for a file open elsewhere unless both only read it; 53 for a file to read that is missing,
  // 76 for a missing directory, 75 for a directory or a path without permission, 67 for too many
  // files, 61 for a full disk, 57 and 71 for device failures, 70 for a file locked by others.
  void Open(std::string_view path, FileMode mode, int number);
  bool IsOpen(int number) const;

  // Print #number, text: the text and CR LF. PrintWithoutLineEnd is Print with a semicolon behind.
  // Text is buffered up to 64 KiB; a write that fails raises (61, 57 and so on), from Print or from
  // Close, and Print then has added nothing while what waited in the buffer goes on waiting.
  // Raises 52 for a number not open and 54 for a file open for input.
  void Print(int number, std::string_view text);
  void PrintWithoutLineEnd(int number, std::string_view text);

  // Line Input #number: the next line without its end, which is CR LF or LF; a CR alone is a
  // character of the line. The last line needs no end. Raises 62 at the end of the file, 52 for a
  // number not open, 54 for one not for input.
  std::string LineInput(int number);
  // EOF(number): nothing is left to read; always true for output and append. Raises 52.
  bool Eof(int number);

  // Writes what is buffered and frees the number, also when it then raises for a failed write. A
  // number that is not open passes silently.
  void Close(int number);
  // Closes all, then raises the first failure.
  void CloseAll();

  // The file's name without directory, empty for no such file; directories are no files here.
  std::string Dir(std::string_view path);
  // Raises 53 for a missing file or a directory, 55 for a file open here, 75 for a read-only file
  // or without permission.
  void Kill(std::string_view path);
  // One level only: 76 when the parent is missing, 75 when the path exists or without permission.
  void MkDir(std::string_view path);
  // 16 for a directory, 1 for read-only, or both; 0 otherwise. 53 when absent, at whatever level.
  std::int32_t GetAttr(std::string_view path);

  // What stands in a folder, by name, as Dir and the folder's collection of subfolders would tell
  // it; nothing when the folder is missing. Raises 75 without permission.
  std::vector<FileSystem::Entry> Entries(std::string_view path);

  // The current directory, without a separator behind it except for the root.
  const std::string& CurDir() const { return currentDirectory_; }
  // Raises 76 for what is no directory.
  void ChDir(std::string_view path);
  // The path from the root on, for those who write a file on the program's behalf.
  std::string FullPath(std::string_view path) const;

 private:
  struct Slot {
    bool open = false;
    bool atEnd = false;  // input: the file gave its last byte to the buffer
    FileMode mode = FileMode::kInput;
    FileSystem::Handle handle = -1;
    std::size_t position = 0;  // input: next byte of the buffer to give out
    std::string path;          // as on disk
    std::string buffer;        // input: read ahead; output: not yet written
  };

  std::string diskPath(std::string_view path) const;
  Slot& openSlot(int number);
  Slot& slotForOutput(int number);
  void append(Slot& slot, std::string_view text, std::string_view lineEnd);
  void flush(Slot& slot);
  bool fill(Slot& slot);
  void refuseIfOpen(const std::string& path, bool readOnlyIsFine) const;
  [[noreturn]] void raiseOpenFailure(int error, const std::string& path, FileMode mode);

  FileSystem& fileSystem_;
  CodePage codePage_;
  std::string currentDirectory_;
  std::vector<Slot> slots_;  // by number; element 0 is not used
};

}  // namespace tarrowin
