// Reads and writes ISO dates. A date before 1899-12-30 counts its days downwards while its time of
// day still counts upwards: -1.25 is 1899-12-29 06:00.
#include "access/snapshot/iso_date.h"

#include <chrono>
#include <cmath>
#include <cstdio>

namespace tarrowin {

namespace {

constexpr std::chrono::sys_days kDayZero{std::chrono::year{1899} / 12 / 30};
constexpr double kMillisecondsPerDay = 86'400'000.0;

// Takes digits off the front of the text.
std::optional<int> takeNumber(std::string_view& text, std::size_t digits) {
  if (text.size() < digits) return std::nullopt;
  int result = 0;
  for (const char c : text.substr(0, digits)) {
    if (c < '0' || c > '9') return std::nullopt;
    result = result * 10 + (c - '0');
  }
  text.remove_prefix(digits);
  return result;
}

bool take(std::string_view& text, char wanted) {
  if (text.empty() || text.front() != wanted) return false;
  text.remove_prefix(1);
  return true;
}

// The time behind the "T" as milliseconds.
std::optional<double> timeFromIso(std::string_view text) {
  const auto hour = takeNumber(text, 2);
  if (!hour || !take(text, ':')) return std::nullopt;
  const auto minute = takeNumber(text, 2);
  if (!minute || !take(text, ':')) return std::nullopt;
  const auto second = takeNumber(text, 2);
  if (!second || *hour > 23 || *minute > 59 || *second > 59) return std::nullopt;
  double milliseconds = ((*hour * 60.0 + *minute) * 60.0 + *second) * 1000.0;
  if (take(text, '.')) {
    if (text.empty()) return std::nullopt;
    for (double place = 100; !text.empty(); place /= 10) {
      const auto digit = takeNumber(text, 1);
      if (!digit) return std::nullopt;
      milliseconds += *digit * place;
    }
  }
  if (!text.empty()) return std::nullopt;
  return milliseconds;
}

}  // namespace

std::optional<Date> dateFromIso(std::string_view text) {
  const auto year = takeNumber(text, 4);
  if (!year || !take(text, '-')) return std::nullopt;
  const auto month = takeNumber(text, 2);
  if (!month || !take(text, '-')) return std::nullopt;
  const auto day = takeNumber(text, 2);
  if (!day || *year < 100) return std::nullopt;
  const std::chrono::year_month_day date{std::chrono::year{*year},
                                         std::chrono::month{static_cast<unsigned>(*month)},
                                         std::chrono::day{static_cast<unsigned>(*day)}};
  if (!date.ok()) return std::nullopt;
  const auto days = static_cast<double>((std::chrono::sys_days{date} - kDayZero).count());
  double fraction = 0;
  if (!text.empty()) {
    if (!take(text, 'T')) return std::nullopt;
    const auto time = timeFromIso(text);
    if (!time) return std::nullopt;
    fraction = *time / kMillisecondsPerDay;
  }
  return Date{days < 0 ? days - fraction : days + fraction};
}

std::optional<std::string> dateToIso(Date date) {
  if (!std::isfinite(date.days) || std::fabs(date.days) > 4e6) return std::nullopt;
  double days = std::trunc(date.days);
  auto milliseconds =
      static_cast<long long>(std::llround(std::fabs(date.days - days) * kMillisecondsPerDay));
  if (milliseconds >= static_cast<long long>(kMillisecondsPerDay)) {
    milliseconds = 0;
    days += 1;
  }
  const std::chrono::year_month_day day{kDayZero + std::chrono::days{static_cast<int>(days)}};
  const int year = static_cast<int>(day.year());
  if (year < 100 || year > 9999) return std::nullopt;
  char buffer[40];
  int length =
      std::snprintf(buffer, sizeof buffer, "%04d-%02u-%02uT%02lld:%02lld:%02lld", year,
                    static_cast<unsigned>(day.month()), static_cast<unsigned>(day.day()),
                    milliseconds / 3'600'000, milliseconds / 60'000 % 60, milliseconds / 1000 % 60);
  if (milliseconds % 1000 != 0)
    length += std::snprintf(buffer + length, sizeof buffer - static_cast<std::size_t>(length),
                            ".%03lld", milliseconds % 1000);
  return std::string(buffer, static_cast<std::size_t>(length));
}

}  // namespace tarrowin
