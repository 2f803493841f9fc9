// Tests of property values as Visual Basic makes them: a comparison with Null is not true, a text
// is compared as the number that it holds and raises 13 when it holds none.
#pragma once

#include <cstdint>

#include "shared/value.h"

namespace tarrowin {

bool equals(const Value& value, std::int32_t number);
bool isAbove(const Value& value, std::int32_t number);
bool isAtLeast(const Value& value, std::int32_t number);
bool isBelow(const Value& value, std::int32_t number);
// The condition of an If: Null is false.
bool isTrue(const Value& value);

// Value + number. Raises 94 for Null. The sum of whole numbers stays one while 32 bits hold it.
Value sum(const Value& value, std::int64_t number);

}  // namespace tarrowin
