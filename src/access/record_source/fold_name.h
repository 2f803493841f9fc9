// Names of tables, queries and fields without regard to case: a key under which all spellings of
// one name fall together.
#pragma once

#include <string>
#include <string_view>

namespace tarrowin {

// The name in UTF-8 with the capital letters of the Latin, Greek and Cyrillic alphabets made small:
// those that the Windows code pages of Access databases hold. Malformed bytes stay as they are.
std::string foldName(std::string_view name);

// Whether the two are the same word; for keywords, which are pure ASCII.
bool equalsWord(std::string_view text, std::string_view upperCaseWord);

// The text without blanks, tabs and line breaks at both ends.
std::string_view trimmed(std::string_view text);

}  // namespace tarrowin
