// Visual Basic's whole numbers: rounding half to even, and 16- and 32-bit arithmetic that raises
// error 6 (overflow) instead of wrapping around.
#pragma once

#include <cstdint>

namespace tarrowin {

// The nearest whole number, of two equally near ones the even one: 0.5 is 0, 1.5 and 2.5 are 2.
double roundHalfEven(double value);

// Rounded half to even; 6 beyond the range of the type (and for what is no number).
std::int16_t toInt16(double value);
std::int32_t toInt32(double value);

// 16-bit arithmetic (Visual Basic's Integer); 6 when the result leaves the range.
std::int16_t addInt16(std::int16_t left, std::int16_t right);
std::int16_t subtractInt16(std::int16_t left, std::int16_t right);
std::int16_t multiplyInt16(std::int16_t left, std::int16_t right);

// 32-bit arithmetic (Visual Basic's Long); 6 when the result leaves the range.
std::int32_t addInt32(std::int32_t left, std::int32_t right);
std::int32_t subtractInt32(std::int32_t left, std::int32_t right);
std::int32_t multiplyInt32(std::int32_t left, std::int32_t right);

}  // namespace tarrowin
