// The drivers of the object kinds that this version cannot convert yet: selection, output
// directory and empty list are answered as in every driver, then the user is told.
#pragma once

namespace tarrowin {

struct MainObject;

void ConvertMacros(MainObject& main, bool blnAll);
void ConvertObjects(MainObject& main, bool blnAll);

}  // namespace tarrowin
