// Keeps the new objects of a database in a recording: in the database's own file where that is a
// recording, else in one beside it.
#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "access/model/object_keeper.h"
#include "access/snapshot/atomic_file.h"

namespace tarrowin {

// Behind the name of a source that cannot be written: the recording of its new objects.
inline constexpr std::string_view kNewObjectsSuffix = ".tarrowin.access.json";

// Where they are for the source of that path, which may be a directory.
std::string newObjectsPath(const std::string& sourcePath);

// The file in which new objects go.
struct KeptFile {
  std::string path;
  // Of the content that was read; none when there was no such file.
  std::optional<std::size_t> hash;
};

std::size_t contentHash(std::string_view content);

// A keeper for the database, which has to outlive it. The file is replaced as a whole at each
// object that is kept. Before the first one the source is locked against other programs that keep
// objects of it, and stays so until release(), unless that object cannot be kept; each time the
// file must still have the content that was read or written last. A source that is only read is
// never locked.
std::shared_ptr<ObjectKeeper> makeSnapshotKeeper(const DatabaseModel& database, KeptFile file,
                                                 std::shared_ptr<ReplaceOperations> operations);

}  // namespace tarrowin
