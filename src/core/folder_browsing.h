// cmdBrowse_Click: the output directory by a dialog for folders.
#pragma once

namespace tarrowin {

struct MainObject;

// Asks for a folder under a title that names the tab's kind of objects and tells one selected item
// from several. The chosen folder becomes txtCurDir, the current directory when its name is empty;
// a cancelled dialog changes nothing.
void cmdBrowse_Click(MainObject& main);

}  // namespace tarrowin
