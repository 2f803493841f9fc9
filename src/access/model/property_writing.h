// What a property becomes when a value is assigned to it.
#pragma once

#include <cstdint>
#include <string_view>

#include "access/model/control_defaults.h"
#include "shared/value.h"

namespace tarrowin {

// The value converted to the type of the object's property (the object as in control_defaults.h).
// Raises 2113 for a value of another kind, 2101 or the property's own number for one outside its
// range, 2448 for an object. A property that the table does not know takes any value as it is.
Value writtenValue(std::int32_t object, std::string_view property, const Value& value);

}  // namespace tarrowin
