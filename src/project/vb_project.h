// The project file (.vbp) of a batch, and for reports the viewer form that starts the project.
#pragma once

#include <string_view>

namespace tarrowin {

struct MainObject;

// Writes the project over an existing one into the output directory; strProjFile is its name with
// extension. It names what mstrVbForms, or in report mode mstrVbReports, and mstrVbModules and
// mstrVbClasses hold, and the libraries whose flags are set. Afterwards the lists of forms, modules
// and classes are empty. In report mode a form with a button per project follows. Every failure is
// told in a box, and the next statement runs.
void CreateVbProject(MainObject& main, std::string_view strProjFile);

}  // namespace tarrowin
