// The conversions of Visual Basic's Variant to the types of variables.
#include "shared/value.h"

#include <array>
#include <cmath>
#include <cstdio>

#include "shared/number_text.h"
#include "shared/vb_error.h"
#include "shared/vb_number.h"

namespace tarrowin {

namespace {

constexpr double kSecondsPerDay = 86400;
// 1 January 100 and 31 December 9999, the ends of Visual Basic's calendar, as days.
constexpr double kFirstDay = -657434;
constexpr double kLastDay = 2958465;

struct CalendarDate {
  std::int64_t year;
  std::int64_t month;
  std::int64_t day;
};

// Days since 1899-12-30 to the Gregorian calendar. Years are counted from March, so that the leap
// day is the last of its year, in eras of 400 years.
CalendarDate calendarDate(std::int64_t days) {
  constexpr std::int64_t kDaysFromYearZero = 693899;  // 0000-03-01 to 1899-12-30
  constexpr std::int64_t kDaysPerEra = 146097;
  const std::int64_t count = days + kDaysFromYearZero;
  const std::int64_t era = count / kDaysPerEra;  // count is positive in the years 100 to 9999
  const std::int64_t dayOfEra = count % kDaysPerEra;
  const std::int64_t yearOfEra =
      (dayOfEra - dayOfEra / 1460 + dayOfEra / 36524 - dayOfEra / 146096) / 365;
  const std::int64_t dayOfYear = dayOfEra - (365 * yearOfEra + yearOfEra / 4 - yearOfEra / 100);
  const std::int64_t monthFromMarch = (5 * dayOfYear + 2) / 153;
  const std::int64_t day = dayOfYear - (153 * monthFromMarch + 2) / 5 + 1;
  const std::int64_t month = monthFromMarch < 10 ? monthFromMarch + 3 : monthFromMarch - 9;
  return {yearOfEra + era * 400 + (month <= 2 ? 1 : 0), month, day};
}

std::string timeText(std::int64_t seconds) {
  const std::int64_t hour = seconds / 3600;
  const std::int64_t clockHour = hour % 12 == 0 ? 12 : hour % 12;
  std::array<char, 32> buffer;
  std::snprintf(buffer.data(), buffer.size(), "%d:%02d:%02d %s", static_cast<int>(clockHour),
                static_cast<int>(seconds / 60 % 60), static_cast<int>(seconds % 60),
                hour < 12 ? "AM" : "PM");
  return buffer.data();
}

// "m/d/yyyy h:mm:ss AM/PM"; midnight is left out, and so is the day 1899-12-30, unless both are.
std::string dateText(Date date) {
  if (!(date.days > kFirstDay - 1 && date.days < kLastDay + 1)) raise(kErrOverflow);
  // The time of a negative date is its absolute fraction: -1.25 is the day before, 6 in the
  // morning.
  double day = std::trunc(date.days);
  double seconds = std::round(std::abs(date.days - day) * kSecondsPerDay);
  if (seconds >= kSecondsPerDay) {
    seconds = 0;
    day += 1;
  }
  const auto wholeSeconds = static_cast<std::int64_t>(seconds);
  if (day == 0) return timeText(wholeSeconds);
  const CalendarDate calendar = calendarDate(static_cast<std::int64_t>(day));
  std::string text = std::to_string(calendar.month) + "/" + std::to_string(calendar.day) + "/" +
                     std::to_string(calendar.year);
  if (wholeSeconds != 0) text += " " + timeText(wholeSeconds);
  return text;
}

bool equalsIgnoringCase(std::string_view text, std::string_view lowerCase) {
  if (text.size() != lowerCase.size()) return false;
  for (std::size_t index = 0; index < text.size(); ++index) {
    const char character = text[index];
    const bool isUpper = character >= 'A' && character <= 'Z';
    if ((isUpper ? character - 'A' + 'a' : character) != lowerCase[index]) return false;
  }
  return true;
}

ParsedNumber parsed(const std::string& text) {
  const auto number = parseNumber(text);
  if (!number) raise(kErrTypeMismatch);
  return *number;
}

// The number of any value; text may hold bits whose meaning depends on the target's width.
ParsedNumber numberOf(const Value& value) {
  if (value.isEmpty()) return {};
  if (value.isNull()) raise(kErrInvalidNull);
  if (const auto* boolean = value.boolean()) return {*boolean ? -1.0 : 0.0, std::nullopt};
  if (const auto* whole = value.longInteger()) return {static_cast<double>(*whole), std::nullopt};
  if (const auto* number = value.doubleNumber()) return {*number, std::nullopt};
  if (const auto* date = value.date()) return {date->days, std::nullopt};
  if (const auto* text = value.text()) return parsed(*text);
  if (value.isObject() && !value.object()) raise(kErrObjectNotSet);
  raise(kErrTypeMismatch);
}

}  // namespace

const Bytes* Value::bytes() const {
  const auto* held = std::get_if<std::shared_ptr<const Bytes>>(&data_);
  return held == nullptr ? nullptr : held->get();
}

ObjectRef Value::object() const {
  const auto* held = std::get_if<ObjectRef>(&data_);
  return held == nullptr ? nullptr : *held;
}

bool operator==(const Value& left, const Value& right) {
  const Bytes* leftBytes = left.bytes();
  const Bytes* rightBytes = right.bytes();
  if (leftBytes != nullptr && rightBytes != nullptr) return *leftBytes == *rightBytes;
  return left.data_ == right.data_;
}

std::string toText(const Value& value) {
  if (const auto* text = value.text()) return *text;
  if (value.isEmpty()) return {};
  if (const auto* boolean = value.boolean()) return *boolean ? "True" : "False";
  if (const auto* whole = value.longInteger()) return std::to_string(*whole);
  if (const auto* date = value.date()) return dateText(*date);
  return doubleText(numberOf(value).value);
}

std::int32_t toLong(const Value& value) {
  if (const auto* whole = value.longInteger()) return *whole;
  return toInt32(numberOf(value));
}

std::int16_t toInteger(const Value& value) { return toInt16(numberOf(value)); }

double toDouble(const Value& value) { return numberOf(value).value; }

bool toBoolean(const Value& value) {
  if (const auto* text = value.text()) {
    if (equalsIgnoringCase(*text, "true")) return true;
    if (equalsIgnoringCase(*text, "false")) return false;
  }
  return numberOf(value).value != 0;
}

ObjectRef toObject(const Value& value) {
  if (!value.isObject()) raise(kErrObjectRequired);
  ObjectRef object = value.object();
  if (!object) raise(kErrObjectNotSet);
  return object;
}

std::string joined(const Value& value) { return value.isNull() ? std::string() : toText(value); }

}  // namespace tarrowin
