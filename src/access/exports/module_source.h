// The code in export files as the text of a module.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tarrowin::exports {

struct ModuleSource {
  std::string text;            // as Access exports it, lines ending in CR LF
  std::size_t shownLines = 0;  // that the code window shows
};

// Of a file of a module, or of the code behind a form: without "VERSION 1.0 CLASS" and its block
// and without hidden lines, save the four at the start of a class module.
ModuleSource moduleSource(std::string_view file, bool isClass);

// What stands behind the layout in the text of a form or report; none where it has no code.
std::optional<std::string_view> codeBehind(std::string_view file);

// Whether that code is one comment which names the file where the code is.
bool onlyNamesCodeFile(std::string_view code);

}  // namespace tarrowin::exports
