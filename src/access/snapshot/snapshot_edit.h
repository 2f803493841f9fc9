// Changes the text of a recording and leaves the rest of it as it stands, to the byte: a recording
// is somebody's file, often under version control.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace tarrowin {

// The texts of the elements of the list under that key of the document; none where there is no
// list. Throws SnapshotError for what is not JSON.
std::vector<std::string_view> snapshotEntries(std::string_view document, std::string_view list);

// The document with one more entry at the end of the list, or in place of the one at the position
// where that is not past the end. A list that is not there is made. The entry is JSON without
// line breaks in front of or behind it. Throws SnapshotError for what is not JSON or has something
// else under that key.
std::string withEntry(std::string_view document, std::string_view list, std::string_view entry,
                      std::size_t position);

}  // namespace tarrowin
