// Reads a macro out of the binary design that a database file keeps of it.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "access/macro/macro_action.h"
#include "shared/code_page.h"

namespace tarrowin {

// The rows of the sheet, as readMacroText gives them for the export of the same macro; their texts
// in the code page. The bytes are the stream "Blob" of the macro's folder, or its column LvExtra in
// a file of Access 97; none at all are a macro that was never saved, without rows. The ANSI page is
// that of the file, for the macros of Access 97 that later files hold unchanged. Throws mdb::Error
// (kDamaged).
std::vector<MacroAction> readMacroBlob(std::span<const std::uint8_t> blob, const CodePage& ansi,
                                       const CodePage& codePage);

}  // namespace tarrowin
