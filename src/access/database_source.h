// Opens whatever holds a database and gives its tree. What a file is shows in its content, not in
// its name.
#pragma once

#include <cstdint>
#include <exception>
#include <memory>
#include <string>

#include "access/model/database_model.h"
#include "access/snapshot/atomic_file.h"

namespace tarrowin {

// Why a file could not be opened as a database.
class OpenFailure : public std::exception {
 public:
  OpenFailure(std::int32_t number, std::string reason)
      : number_(number), reason_(std::move(reason)) {}

  // What OpenCurrentDatabase raises: 0x80004005, 7866 for a newer format, 3031 for a password.
  std::int32_t number() const { return number_; }
  // In UTF-8, without a final stop and without the name of the file.
  const std::string& reason() const { return reason_; }
  const char* what() const noexcept override { return reason_.c_str(); }

 private:
  std::int32_t number_;
  std::string reason_;
};

inline constexpr std::int32_t kErrNewerFormat = 7866;
inline constexpr std::int32_t kErrPassword = 3031;

// The tree of the database at that path (as the disk knows it), with the new objects that are kept
// beside it and a keeper for more, which writes by these operations or by the disk's own. A
// recording keeps its new objects in itself, unless it is write-protected or has some beside it
// already. The path may also be that of a folder of exported objects, or of one exported object,
// which is opened as a database of its own (access/exports). When asked, the forms, reports and
// macros of an .mdb have the designs of the exports beside it, in NAME.mdb.src, NAME.src or source,
// which must be there then. Throws OpenFailure.
std::unique_ptr<DatabaseModel> openDatabaseFile(
    const std::string& path, const CodePage& codePage,
    std::shared_ptr<ReplaceOperations> operations = nullptr, bool designsFromExports = false);

// Whether the file is a recording: its first character, behind a byte order mark and blanks, is a
// "{". False for what cannot be read.
bool isRecording(const std::string& path);

}  // namespace tarrowin
