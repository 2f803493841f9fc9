// What can be told of a row of a macro's sheet.
// See macro_action.h.
#include "access/macro/macro_action.h"

namespace tarrowin {

bool isXmlCopy(const MacroAction& row) {
  return row.comment.starts_with("_AXL:") && row.macroName.empty() && row.condition.empty() &&
         row.action.empty() && row.arguments.empty();
}

}  // namespace tarrowin
