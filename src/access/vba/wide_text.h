// UTF-16 text, in which Access keeps the names of streams, objects and modules, as UTF-8.
#pragma once

#include <cstdint>
#include <span>
#include <string>

namespace tarrowin::vba {

// What is no UTF-16 becomes U+FFFD; an odd last byte is no character.
std::string wideText(std::span<const std::uint8_t> utf16);

}  // namespace tarrowin::vba
