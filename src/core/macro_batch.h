// ConvertMacros: the driver of the Macros list.
#pragma once

namespace tarrowin {

struct MainObject;

// Has Access convert the selected macros, or all, to modules of the database, and fills the lists
// of modules and objects anew. Where none could be converted it ends without a word.
void ConvertMacros(MainObject& main, bool blnAll);

}  // namespace tarrowin
