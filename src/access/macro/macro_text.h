// Reads a macro out of the text that Access's SaveAsText writes of it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <stdexcept>
#include <string>
#include <vector>

#include "access/macro/macro_action.h"
#include "shared/code_page.h"

namespace tarrowin {

class MacroTextError : public std::runtime_error {
 public:
  MacroTextError(std::size_t line, const std::string& problem)
      : std::runtime_error("line " + std::to_string(line) + ": " + problem), line_(line) {}

  std::size_t line() const { return line_; }  // from 1

 private:
  std::size_t line_;
};

// The rows of the sheet, empty ones too, without those that repeat the macro as XML; their texts in
// the code page. The bytes are a whole file in any encoding of exports. Properties that a row may
// have in a version of Access not known here are passed over. Throws MacroTextError for a text that
// is not such an export, or is damaged.
std::vector<MacroAction> readMacroText(std::span<const std::uint8_t> bytes,
                                       const CodePage& codePage);

}  // namespace tarrowin
