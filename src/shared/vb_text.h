// Visual Basic's text functions under their own names. Text is in the ANSI code page, one byte one
// character; positions are 1-based, and 0 means "not found".
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tarrowin {

inline constexpr std::string_view kCrLf = "\r\n";

// Position of the first occurrence at or behind start; comparison is exact (case counts). Empty
// text gives 0, an empty find gives start, a start behind the text 0. Raises 5 for start < 1.
std::int32_t InStr(std::int32_t start, std::string_view text, std::string_view find);
std::int32_t InStr(std::string_view text, std::string_view find);
// Position of the last occurrence that ends at or before start; -1 is the text's end. A start
// behind the text gives 0. Raises 5 for start 0 or below -1.
std::int32_t InStrRev(std::string_view text, std::string_view find, std::int32_t start = -1);

// Up to length characters from position start on; empty when start is behind the text. Raises 5
// for start < 1 or length < 0.
std::string Mid(std::string_view text, std::int32_t start);
std::string Mid(std::string_view text, std::int32_t start, std::int32_t length);
// Up to length characters from the start or the end. Raises 5 for length < 0.
std::string Left(std::string_view text, std::int32_t length);
std::string Right(std::string_view text, std::int32_t length);

// Without the blanks (code 32 only) at both ends, at the start, at the end.
std::string Trim(std::string_view text);
std::string LTrim(std::string_view text);
std::string RTrim(std::string_view text);

// A number as text with room for its sign: a blank before a number that is not negative. Doubles
// have up to 15 digits and no zero before a leading point: Str(0.5) is " .5".
std::string Str(std::int32_t number);
std::string Str(double number);
// LTrim(Str(number)).
std::string LTrimStr(std::int32_t number);
std::string LTrimStr(double number);

// The number that a whole text states, rounded half to even. Raises 13 for a text that is no
// number, 6 beyond the range. See parseNumber for the forms.
std::int16_t CInt(std::string_view text);
std::int32_t CLng(std::string_view text);
double CDbl(std::string_view text);
// The number at the start of the text, 0 when there is none; blanks, tabs and line ends between its
// characters are passed over, "&H" and "&O" understood: Val(" 12 34th") is 1234.
double Val(std::string_view text);

// The character of a code; raises 5 outside 0 to 255. The code of the first character; raises 5
// for an empty text.
std::string Chr(std::int32_t code);
std::int32_t Asc(std::string_view text);

// Letters of code page 1252 in upper and lower case; all else stays.
std::string UCase(std::string_view text);
std::string LCase(std::string_view text);

}  // namespace tarrowin
