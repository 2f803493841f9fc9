// How much of the designs of a database its reader understood.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "access/model/database_model.h"

namespace tarrowin {

// Texts are in the database's code page.
struct ObjectDetail {
  std::string name;
  std::string problem;  // why it cannot be opened; empty when it can be
  // Of a form or report; absent for one that is there as Access told it.
  std::optional<Understood> understood;
  std::size_t actions = 0;  // of a macro: its rows
};

// Reads each design; none is kept from the others by one that fails.
std::vector<ObjectDetail> designDetails(const NamedList<DesignModel>& designs);
std::vector<ObjectDetail> macroDetails(const NamedList<MacroModel>& macros);

// "12 of 12 controls, 340 of 352 properties", "complete", "3 actions" or the problem.
std::string describedDesign(const ObjectDetail& detail);
std::string describedMacro(const ObjectDetail& detail);

// Of all together; what cannot be opened does not count.
Understood sumOf(const std::vector<ObjectDetail>& details);

}  // namespace tarrowin
