// Byte arrays as base64 texts (RFC 4648, with padding).
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "shared/value.h"

namespace tarrowin {

std::string toBase64(const Bytes& bytes);
// None for what is not base64. Padding may be missing.
std::optional<Bytes> fromBase64(std::string_view text);

}  // namespace tarrowin
