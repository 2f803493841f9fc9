// A preview as JSON for a program and as text for a person.
#pragma once

#include <string>

#include "cli/json_text.h"
#include "preview/preview_surface.h"
#include "shared/code_page.h"

namespace tarrowin {

// {"form", "sections": [{"number", "height"}], "totalHeight", "properties": {...}, "controls":
// [{"class", "name", "container", "properties": {...}, "tabs": [...]}], "tabControls": [...]}: all
// that the surface holds, whose texts are in the code page. "container" and "tabs" are there only
// where a control has them.
Json previewJson(const PreviewSurface& surface, const CodePage& codePage);

// The form, then a block for each control: its class and name, and its properties a line each.
// UTF-8.
std::string previewText(const PreviewSurface& surface, const CodePage& codePage);

}  // namespace tarrowin
