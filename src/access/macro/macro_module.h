// From a macro's rows to the text of the module that Access makes of it.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "access/macro/macro_action.h"

namespace tarrowin {

// The name of that module.
std::string macroModuleName(std::string_view macro);

// The text of the module, lines ended by CR LF, in the code page of the texts given. Each macro is
// a Function: the rows before the first macro name make one of the macro's own name, each macro
// name one called "Macro_Name". Names become identifiers; a name that is taken, or that the macro
// calls as a function, gets a number behind it. Takes linear time and never fails: what Visual
// Basic has nothing for is a comment.
//
// Example: macroModuleText("AutoExec", {{{}, {}, "Hourglass", {"-1"}, {}}}) has the line
// "    DoCmd.Hourglass True".
std::string macroModuleText(std::string_view macro, std::span<const MacroAction> rows);

}  // namespace tarrowin
