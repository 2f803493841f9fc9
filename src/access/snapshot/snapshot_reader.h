// Reads a recording of a database.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "access/model/database_model.h"
#include "access/snapshot/json_tree.h"

namespace tarrowin {

// The recording was written for a later version of this program.
class NewerSnapshot : public SnapshotError {
 public:
  using SnapshotError::SnapshotError;
};

// The tree of the recording in that UTF-8 text, its texts in the code page. Throws SnapshotError
// with the place of what is wrong; unknown keys are ignored.
std::unique_ptr<DatabaseModel> readSnapshot(std::string_view utf8, const CodePage& codePage);

// Puts the forms and modules of that recording into the tree, in place of those of the same name.
// Throws SnapshotError likewise.
void readNewObjects(std::string_view utf8, DatabaseModel& database);

}  // namespace tarrowin
