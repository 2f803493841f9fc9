// Searching a folder and all below it for a file.
#pragma once

#include <string>
#include <string_view>

namespace tarrowin {

struct MainObject;

// Sets foundPath to the directory, with a separator behind it, in which the file of exactly that
// name stands; it stays as it is when there is none. A find ends the search of its own folder, not
// that of the folders beside it, so the last of several finds counts. The window's events run after
// each file. Links to folders are not followed. Raises 75 for a folder without permission.
void SearchFolder(MainObject& main, const std::string& folder, std::string_view file,
                  std::string& foundPath);

}  // namespace tarrowin
