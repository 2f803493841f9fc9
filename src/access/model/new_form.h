// Application.CreateForm on the tree.
#pragma once

#include <memory>
#include <string>

#include "access/model/session.h"

namespace tarrowin {

// Opens a new form: the properties and sections of the form with the template's name, without its
// controls and its code; without a template Access's own defaults and a detail section. Its name is
// "Form" and the first number from 1 on that no form has, saved or open. Raises 2102 for a template
// that is not there, or the error that opening it raises.
std::shared_ptr<OpenDesign> createForm(Session& session, const std::string& templateName);

}  // namespace tarrowin
