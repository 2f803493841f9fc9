// Format(x, "##"), Format(n, "00") and Format(time, "nn:ss").
#include "shared/vb_format.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdlib>

#include "shared/number_text.h"

namespace tarrowin {

namespace {

constexpr double kSecondsPerDay = 86400;

// Format sees 15 significant digits, so 57.49999999999999 from 23 / 40 * 100 counts as 57.5.
double toFifteenDigits(double value) {
  const std::string text = doubleText(value);
  double result = 0;
  std::from_chars(text.data(), text.data() + text.size(), result);
  return result;
}

std::string twoDigits(std::int64_t value) {
  std::string text = std::to_string(value);
  return text.size() < 2 ? "0" + text : text;
}

}  // namespace

std::string formatWhole(double value) {
  if (!std::isfinite(value)) return doubleText(value);
  const double whole = std::round(toFifteenDigits(value));  // halves away from zero
  if (whole == 0) return {};
  std::array<char, 400> buffer;  // the largest double has 309 digits
  const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), whole,
                                    std::chars_format::fixed, 0);
  return std::string(buffer.data(), result.ptr);
}

std::string formatTwoDigits(std::int32_t value) {
  const std::int64_t magnitude = std::abs(std::int64_t{value});
  return (value < 0 ? "-" : "") + twoDigits(magnitude);
}

std::string formatMinutesSeconds(Date value) {
  const double fraction = std::abs(value.days) - std::floor(std::abs(value.days));
  const auto seconds = static_cast<std::int64_t>(std::round(fraction * kSecondsPerDay));
  return twoDigits(seconds / 60 % 60) + ":" + twoDigits(seconds % 60);
}

}  // namespace tarrowin
