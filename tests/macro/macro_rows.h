// Rows of macros and expected modules, written down shortly.
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "access/macro/macro_action.h"

namespace tarrowin {

inline MacroAction row(std::string action, std::vector<std::string> arguments = {}) {
  return {.macroName = {},
          .condition = {},
          .action = std::move(action),
          .arguments = std::move(arguments),
          .comment = {}};
}

inline MacroAction named(std::string name, MacroAction row) {
  row.macroName = std::move(name);
  return row;
}

inline MacroAction when(std::string condition, MacroAction row) {
  row.condition = std::move(condition);
  return row;
}

inline MacroAction commented(std::string comment, MacroAction row = {}) {
  row.comment = std::move(comment);
  return row;
}

// The text with CR LF at the ends of its lines.
inline std::string lines(std::string_view text) {
  std::string result;
  for (const char character : text) {
    if (character == '\n') result += '\r';
    result += character;
  }
  return result;
}

}  // namespace tarrowin
