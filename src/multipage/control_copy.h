// A control of the source form, and its copy on a new one. Positions and sizes are twips.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "core/main_object.h"
#include "multipage/restructuring.h"

namespace tarrowin {

// A control as the source form has it. What cannot be read is 0 or empty.
struct SourceControl {
  LateBound control;
  std::string parentName;  // the form's own name for a control that stands on it
  std::string name;
  std::int32_t type = 0, section = 0;
  std::int32_t left = 0, width = 0, height = 0;
  std::optional<std::int32_t> top;                   // none when it cannot be read
  std::vector<std::string> astrPropNames;            // by position in Properties
  std::vector<std::optional<Value>> avarPropValues;  // none for one that cannot be read
};

SourceControl readSourceControl(Restructuring& procedure, const LateBound& control);

// Copies what the source control has onto the new one, property by property where both have the
// same name in the same place; of a custom control or object frame only its data. Top gets newTop
// where there is one.
void copyControl(Restructuring& procedure, const SourceControl& source, const LateBound& newForm,
                 const LateBound& newControl, std::int32_t placedTop,
                 std::optional<std::int32_t> newTop);

}  // namespace tarrowin
