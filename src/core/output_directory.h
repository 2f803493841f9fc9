// GetOutputDir: the text of txtCurDir becomes the output directory, or the user is told why not.
#pragma once

namespace tarrowin {

struct MainObject;

// True when mstrOutputDir is valid and ends in a path separator. A directory that does not exist
// is created when the user agrees, one level only.
bool GetOutputDir(MainObject& main);

}  // namespace tarrowin
