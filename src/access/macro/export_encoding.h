// The text of files that Access exports, whatever encoding they are in.
#pragma once

#include <cstdint>
#include <span>
#include <string>

#include "shared/code_page.h"

namespace tarrowin {

// The bytes as text of the code page: UTF-16 or UTF-8 by their byte order mark, which falls away;
// without one UTF-8 when they are well-formed UTF-8, else the code page itself (the Western one
// when the texts asked for are UTF-8).
std::string exportText(std::span<const std::uint8_t> bytes, const CodePage& codePage);

}  // namespace tarrowin
