// One action of a macro as statements of Visual Basic.
#pragma once

#include <string>
#include <vector>

#include "access/macro/macro_action.h"

namespace tarrowin {

struct ActionCode {
  std::vector<std::string> comments;    // before the statements
  std::vector<std::string> statements;  // none for what Visual Basic has nothing for
  bool usesContext = false;             // see VbExpression
  std::vector<std::string> called;      // likewise
};

// The statements of the row's action, which is not empty. An action that is not known, or that
// cannot be written with such arguments, is told in a comment, and so are arguments too many.
ActionCode actionCode(const MacroAction& row);

}  // namespace tarrowin
