// Dates of Visual Basic as ISO 8601 texts, "2026-11-21T10:00:00".
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "shared/value.h"

namespace tarrowin {

// Years 100 to 9999, as Visual Basic's dates reach; the time, and a fraction of a second behind it,
// may be missing. None for anything else.
std::optional<Date> dateFromIso(std::string_view text);

// With milliseconds only where there are any; none for a value outside of the years 100 to 9999.
std::optional<std::string> dateToIso(Date date);

}  // namespace tarrowin
