// Forms of several pages, told by their page breaks.
#pragma once

#include <string_view>

#include "core/access_objects.h"

namespace tarrowin {

// True when the open form holds a page break; reading stops at the first one.
bool IsMultiPageForm(const Application& application, std::string_view name);

}  // namespace tarrowin
