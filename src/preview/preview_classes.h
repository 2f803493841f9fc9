// The Visual Basic classes of the preview: which one an Access control becomes, and what each has.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "core/access_objects.h"

namespace tarrowin {

inline constexpr std::string_view kTabStripClass = "MSComctlLib.TabStrip";

// The class of a control of that ControlType. Empty for a type that has none. Raises what reading
// the Class of an ActiveX control raises.
std::string previewClass(const LateBound& ctl, std::int32_t controlType);

// Whether the class has the property, of those that the preview writes. A class of a control
// library that the preview itself does not use is taken to have all of them.
bool hasPreviewProperty(std::string_view className, std::string_view property);
// Whether the property, which the class has, takes the number.
bool takesPreviewNumber(std::string_view className, std::string_view property, std::int32_t number);

}  // namespace tarrowin
