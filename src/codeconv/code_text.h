// What the steps of the code conversion have in common: the two kinds of code, and where lines go.
#pragma once

#include <functional>
#include <string_view>

namespace tarrowin {

// Module code is that of standard and class modules, form code that behind a form.
enum class CodeKind { kModule, kForm };

// Takes one line of the converted code, without a line end.
using PrintLine = std::function<void(std::string_view)>;

}  // namespace tarrowin
