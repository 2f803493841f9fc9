// ConvertObjects: the driver of the list of forms and modules.
#pragma once

namespace tarrowin {

struct MainObject;

// Converts the selected forms and modules, or all, and writes one project around them. A multi-page
// form is converted as it stands, a continuous one as any form.
void ConvertObjects(MainObject& main, bool blnAll);

}  // namespace tarrowin
