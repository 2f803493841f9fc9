// Sums of places and sizes.
#pragma once

#include <cstdint>

#include "shared/value.h"

namespace tarrowin {

// A sum of twips as a property takes it; raises 6 beyond 32 bits.
inline Value twips(std::int64_t sum) { return toLong(Value(static_cast<double>(sum))); }

}  // namespace tarrowin
