// The document of a macro.
#pragma once

#include <memory>

#include "access/model/model_object.h"

namespace tarrowin {

// Name, as every document; and what no Access tells of a macro, for recordings: RowCount, the rows
// of its sheet, and RowText(row, column), both counted from 0, the texts of one of them: macro
// name, condition, action, comment, then the arguments; Empty behind the last one. Both raise what
// reading the macro raises. The macro is at that position of the tree's list.
ObjectRef makeMacroDocument(std::shared_ptr<Session> session, std::size_t macro);

}  // namespace tarrowin
