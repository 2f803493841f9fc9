// The control project (.vbp) of the user controls of continuous forms, and the project group (.vbg)
// that binds it to the project of the forms.
#pragma once

#include <string_view>

namespace tarrowin {

struct MainObject;

// strProjFile is the name that CreateVbProject was given. Writes "ctl" + strProjFile for the
// entries of mstrVbUserControls, and the group, both over existing files; the list is empty
// afterwards. Every failure is told in a box, and the next statement runs.
void CreateVbActiveXProject(MainObject& main, std::string_view strProjFile);

}  // namespace tarrowin
