// Texts to numbers and numbers to texts as Visual Basic converts them, free of any locale.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tarrowin {

// What a text says when it is a number: the value, and the bits when it was written in base 16 or
// 8, since those wrap into the sign of a 16- or 32-bit result ("&HFFFF" is -1 as Integer).
struct ParsedNumber {
  double value = 0;
  std::optional<std::uint64_t> bits;
};

// The number that the whole text states, with blanks and tabs around it: a sign before or behind,
// or parentheses for a negative number; a "$"; "," between the digits before the point; an exponent
// behind "E" or "D"; or base 16 and 8 behind "&H" and "&O" or "&". Nothing for any other text.
// Raises 6 when the number is beyond a double.
std::optional<ParsedNumber> parseNumber(std::string_view text);

// The number at the start of the text, 0 when there is none; blanks, tabs and line ends are passed
// over wherever they stand. "$" and "," end it. Raises 6 as above.
double leadingNumber(std::string_view text);

// The number as a 16- or 32-bit integer; raises 6 beyond the range.
std::int16_t toInt16(const ParsedNumber& number);
std::int32_t toInt32(const ParsedNumber& number);

// Up to 15 significant digits, with exponent from 1E+15 on and below 0.0001: "0.5", "1E+20".
std::string doubleText(double value);

}  // namespace tarrowin
