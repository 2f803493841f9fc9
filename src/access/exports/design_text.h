// Reads a form or report out of the text that Access exports of it.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "access/designs/lazy_design.h"
#include "access/designs/stored_design.h"
#include "access/exports/text_tree.h"
#include "shared/code_page.h"

namespace tarrowin::exports {

struct ExportedDesign {
  StoredDesign design;
  // The text behind the layout, as it stands in the file; it may only name the file of the code.
  std::optional<std::string> code;
};

// The text is in the code page. A file without any layout is a form or report without properties,
// of the kind that is expected. Two controls that share a block, because lines between them are
// lost, are parted again. An event with an embedded macro has the text "[Embedded Macro]" under the
// event's own name. Throws ExportTextError for a text that is no design or a damaged one.
ExportedDesign readDesignText(std::string_view text, DesignKind expected, const CodePage& codePage);

}  // namespace tarrowin::exports
