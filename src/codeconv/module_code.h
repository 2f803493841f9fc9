// One Access module, standard or class, as one Visual Basic source file.
#pragma once

namespace tarrowin {

struct MainObject;

// Writes the open module mstrModName, line by line through the rules, to the file mstrModFile of
// the output directory. Its text comes through the temporary file "Mod_" + mstrModFile there. A
// module without lines gives an empty file, which stays open. Errors go by a table of its own and
// never leave the procedure.
void GetAccModuleCode(MainObject& main);

}  // namespace tarrowin
