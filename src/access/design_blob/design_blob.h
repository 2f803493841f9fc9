// Reads the design of a form or report that a database file keeps in its own binary form.
#pragma once

#include <cstdint>
#include <span>

#include "access/designs/stored_design.h"
#include "shared/code_page.h"

namespace tarrowin {

// Whether the texts of the design are in an ANSI code page (Access 97), else in UTF-16. What is no
// design gives false.
bool hasAnsiTexts(std::span<const std::uint8_t> design);

// The whole design, all its texts in the code page; hasModule and laterFormat stay unset, which the
// bytes do not tell. The ANSI page is that of the file. What is stored under a number without a
// known meaning is left out and counted in `understood`. Throws mdb::Error (kDamaged) unless the
// design can be read to its last byte.
StoredDesign readDesignBlob(std::span<const std::uint8_t> design, const CodePage& ansi,
                            const CodePage& codePage);

}  // namespace tarrowin
