// Rounding half to even and checked integer arithmetic.
#include "shared/vb_number.h"

#include <cmath>
#include <limits>

#include "shared/vb_error.h"

namespace tarrowin {

namespace {

template <typename Integer, typename Wide>
Integer narrowed(Wide value) {
  // Written so that NaN, which compares false with everything, fails too.
  if (!(value >= std::numeric_limits<Integer>::min() &&
        value <= std::numeric_limits<Integer>::max())) {
    raise(kErrOverflow);
  }
  return static_cast<Integer>(value);
}

}  // namespace

double roundHalfEven(double value) {
  const double below = std::floor(value);
  const double fraction = value - below;
  if (fraction < 0.5) return below;
  if (fraction > 0.5) return below + 1;
  return std::fmod(below, 2) == 0 ? below : below + 1;
}

std::int16_t toInt16(double value) { return narrowed<std::int16_t>(roundHalfEven(value)); }
std::int32_t toInt32(double value) { return narrowed<std::int32_t>(roundHalfEven(value)); }

std::int16_t addInt16(std::int16_t left, std::int16_t right) {
  return narrowed<std::int16_t>(std::int32_t{left} + right);
}
std::int16_t subtractInt16(std::int16_t left, std::int16_t right) {
  return narrowed<std::int16_t>(std::int32_t{left} - right);
}
std::int16_t multiplyInt16(std::int16_t left, std::int16_t right) {
  return narrowed<std::int16_t>(std::int32_t{left} * right);
}

std::int32_t addInt32(std::int32_t left, std::int32_t right) {
  return narrowed<std::int32_t>(std::int64_t{left} + right);
}
std::int32_t subtractInt32(std::int32_t left, std::int32_t right) {
  return narrowed<std::int32_t>(std::int64_t{left} - right);
}
std::int32_t multiplyInt32(std::int32_t left, std::int32_t right) {
  return narrowed<std::int32_t>(std::int64_t{left} * right);
}

}  // namespace tarrowin
