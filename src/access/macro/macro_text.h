// Reads a macro out of the text that Access's SaveAsText writes of it.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "access/macro/export_lines.h"
#include "access/macro/macro_action.h"
#include "shared/code_page.h"

namespace tarrowin {

using MacroTextError = ExportTextError;

// The rows of the sheet, empty ones too, without those that repeat the macro as XML; their texts in
// the code page. The bytes are a whole file in any encoding of exports. Properties that a row may
// have in a version of Access not known here are passed over. Throws MacroTextError for a text that
// is not such an export, or is damaged.
std::vector<MacroAction> readMacroText(std::span<const std::uint8_t> bytes,
                                       const CodePage& codePage);

}  // namespace tarrowin
