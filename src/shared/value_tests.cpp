// Comparisons and sums of Variants.
#include "shared/value_tests.h"

#include <limits>

#include "shared/vb_error.h"

namespace tarrowin {

bool equals(const Value& value, std::int32_t number) {
  return !value.isNull() && toDouble(value) == number;
}

bool isAbove(const Value& value, std::int32_t number) {
  return !value.isNull() && toDouble(value) > number;
}

bool isAtLeast(const Value& value, std::int32_t number) {
  return !value.isNull() && toDouble(value) >= number;
}

bool isBelow(const Value& value, std::int32_t number) {
  return !value.isNull() && toDouble(value) < number;
}

bool isTrue(const Value& value) { return !value.isNull() && toBoolean(value); }

Value sum(const Value& value, std::int64_t number) {
  if (value.isNull()) raise(kErrInvalidNull);
  const double result = toDouble(value) + static_cast<double>(number);
  const bool wasWhole = !value.doubleNumber() && !value.text();
  constexpr double kLowest = std::numeric_limits<std::int32_t>::min();
  constexpr double kHighest = std::numeric_limits<std::int32_t>::max();
  if (wasWhole && result >= kLowest && result <= kHighest) return static_cast<std::int32_t>(result);
  return result;
}

}  // namespace tarrowin
