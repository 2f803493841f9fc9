// What the code window and the text export leave of the stored source text of a module.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tarrowin::vba {

// The text export: without the hidden lines, except that a class module keeps four of those at its
// start.
std::string exportedText(std::string_view source, bool isClass);

// The number of lines that the code window shows.
std::size_t shownLines(std::string_view source);

}  // namespace tarrowin::vba
