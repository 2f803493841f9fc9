// The table of the standard English error texts of Visual Basic, Access, DAO and automation.
// A "|" in a text stands where the name of the object in question goes.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace tarrowin {

struct ErrorText {
  std::int32_t number;
  std::string_view text;
};

// All entries, by ascending number (HRESULTs are negative and come first).
std::span<const ErrorText> errorTexts();

}  // namespace tarrowin
