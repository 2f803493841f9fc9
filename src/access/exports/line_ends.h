// Line ends of exported texts, which repositories turn from CR LF into LF.
#pragma once

#include <string>
#include <string_view>

namespace tarrowin::exports {

// The text with CR LF at the end of each line, whatever of CR LF and LF stands there.
std::string withCrLf(std::string_view text);

}  // namespace tarrowin::exports
