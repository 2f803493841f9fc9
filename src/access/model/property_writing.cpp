// Conversion to the types of the type library, and the ranges that Access documents.
#include "access/model/property_writing.h"

#include <string>

#include "shared/vb_error.h"

namespace tarrowin {

namespace {

constexpr std::int32_t kErrInvalidSetting = 2101, kErrInvalidValue = 2113;
constexpr std::int32_t kErrFontSize = 2125, kErrColumnCount = 2126, kErrGrid = 2130,
                       kErrFormWidth = 2134, kErrIsObject = 2448;

constexpr std::int32_t kAnyControl = -1;
constexpr std::int32_t kListBox = 110, kComboBox = 111;
constexpr std::int32_t kMostTwips = 31680;  // 22 inches

struct Range {
  std::int32_t object;
  std::string_view property;
  std::int32_t lowest, highest;
  std::int32_t error;
};

constexpr Range kRanges[] = {
    {kAnyControl, "FontSize", 1, 127, kErrFontSize},
    {kAnyControl, "Left", 0, kMostTwips, kErrInvalidSetting},
    {kAnyControl, "Top", 0, kMostTwips, kErrInvalidSetting},
    {kAnyControl, "Width", 0, kMostTwips, kErrInvalidSetting},
    {kAnyControl, "Height", 0, kMostTwips, kErrInvalidSetting},
    {kListBox, "ColumnCount", 1, 255, kErrColumnCount},
    {kComboBox, "ColumnCount", 1, 255, kErrColumnCount},
    {kSectionObject, "Height", 0, kMostTwips, kErrInvalidSetting},
    {kFormObject, "GridX", 1, 64, kErrGrid},
    {kFormObject, "GridY", 1, 64, kErrGrid},
    {kFormObject, "Width", 0, kMostTwips, kErrFormWidth},
};

bool concerns(const Range& range, const PropertyDefault& property) {
  if (range.property != property.name) return false;
  if (range.object != kAnyControl) return range.object == property.object;
  return isControlObject(property.object);
}

std::int32_t wholeNumber(const Value& value, std::int32_t lowest, std::int32_t highest) {
  std::int32_t number = 0;
  try {
    number = toLong(value);
  } catch (const VbError& error) {
    raise(error.number() == kErrOverflow ? kErrInvalidSetting : kErrInvalidValue);
  }
  if (number < lowest || number > highest) raise(kErrInvalidSetting);
  return number;
}

Value inRange(const PropertyDefault& property, std::int32_t number) {
  for (const Range& range : kRanges)
    if (concerns(range, property) && (number < range.lowest || number > range.highest))
      raise(range.error);
  return number;
}

// An assignment of another kind of value.
template <class Conversion>
Value converted(Conversion conversion) {
  try {
    return conversion();
  } catch (const VbError&) {
    raise(kErrInvalidValue);
  }
}

Value converted(const PropertyDefault& property, const Value& value) {
  switch (property.type) {
    case PropertyType::kBoolean:
      return converted([&] { return toBoolean(value); });
    case PropertyType::kByte:
      return inRange(property, wholeNumber(value, 0, UINT8_MAX));
    case PropertyType::kInteger:
      return inRange(property, wholeNumber(value, INT16_MIN, INT16_MAX));
    case PropertyType::kLong:
      return inRange(property, wholeNumber(value, INT32_MIN, INT32_MAX));
    case PropertyType::kSingle:
      return converted([&] { return toDouble(value); });
    case PropertyType::kText:
      return value.isNull() ? Value("") : converted([&] { return toText(value); });
    default:
      if (value.isNull() || value.isEmpty()) return Value::Null{};
      if (!value.bytes() && !value.text()) raise(kErrInvalidValue);
      return value;
  }
}

}  // namespace

Value writtenValue(std::int32_t object, std::string_view property, const Value& value) {
  if (value.isObject()) raise(kErrIsObject);
  const PropertyDefault* known = findDefault(object, property);
  return known ? converted(*known, value) : value;
}

}  // namespace tarrowin
