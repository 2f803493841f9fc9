// How an Access form will look in Visual Basic: its controls mapped and copied at run time.
#pragma once

#include <string_view>

namespace tarrowin {

struct MainObject;

// Opens the form hidden in design view, builds the surface of it, closes it, and lets the user's
// face show the surface.
void PreviewForm(MainObject& main, std::string_view name);
// The button Preview Form: the first selected form of lstForms.
void cmdObjProps_Click(MainObject& main);

}  // namespace tarrowin
