// Modules: CountOfLines, Type, Name.
#pragma once

#include <memory>

#include "access/model/model_object.h"

namespace tarrowin {

// A module of the database. The model lives in the session's tree.
ObjectRef makeModule(std::shared_ptr<Session> session, const ModuleModel& module);

// The class module of an open form or report that has one.
ObjectRef makeClassModule(std::shared_ptr<Session> session, std::shared_ptr<OpenDesign> open);

// The text that DoCmd.OutputTo writes for a module of that name: a module of the database, or the
// class module "Form_" or "Report_" and the object's name. Raises its recorded export error, 2487
// for a name that does not exist.
const std::string& moduleText(const DatabaseModel& database, std::string_view name);

}  // namespace tarrowin
