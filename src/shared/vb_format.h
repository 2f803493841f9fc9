// The few formats of Visual Basic's Format function that the program uses.
#pragma once

#include <cstdint>
#include <string>

#include "shared/value.h"

namespace tarrowin {

// Format(value, "##"): rounded to a whole number, halves away from zero; 0 is the empty text.
std::string formatWhole(double value);

// Format(value, "00"): at least two digits, the sign in front: "05", "123", "-05".
std::string formatTwoDigits(std::int32_t value);

// Format(value, "nn:ss"): the minutes and seconds of the time of day, rounded to the second. The
// difference of two times of day is such a value as well; a negative one, across midnight, shows
// the time of its absolute fraction, so 5 seconds past less 10 before midnight is "59:45".
std::string formatMinutesSeconds(Date value);

}  // namespace tarrowin
