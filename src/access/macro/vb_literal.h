// Texts and names of Access as parts of a Visual Basic line.
#pragma once

#include <string>
#include <string_view>

namespace tarrowin {

// A text between quotes, those inside doubled; line ends and other control characters stand
// outside, joined by "&": "a" & vbCrLf & "b".
std::string vbLiteral(std::string_view text);

// Whether the text is a whole number or one with a fraction: digits, with a sign and a point.
bool isPlainNumber(std::string_view text);

}  // namespace tarrowin
