// ConvertModules: the driver of the Modules list.
#pragma once

namespace tarrowin {

struct MainObject;

// Converts the selected modules, or all, each to one file. Modules that it opened stay open in
// Access, except that of the list's last item.
void ConvertModules(MainObject& main, bool blnAll);

}  // namespace tarrowin
