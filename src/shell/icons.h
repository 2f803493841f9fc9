// The program's pictures, by what they are for.
#pragma once

#include <QIcon>
#include <string_view>

namespace tarrowin {

// The picture of that name among the program's own: "convert", "folder".
QIcon iconNamed(std::string_view name);
// The picture behind a key of a list's items or of the toolbar: "keyQuery", "keyHelp".
QIcon iconOfKey(std::string_view key);

}  // namespace tarrowin
