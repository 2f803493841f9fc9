// Forms and modules as entries of a recording.
#pragma once

#include <string>

#include "access/model/database_model.h"

namespace tarrowin {

// One entry of "forms" or "modules": UTF-8 JSON, indented by two blanks.
std::string formEntry(const DesignModel& form, const DatabaseModel& database);
std::string moduleEntry(const ModuleModel& module, const CodePage& codePage);

}  // namespace tarrowin
