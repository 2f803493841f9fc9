// The table of defaults and the look-up in it.
#include "access/model/control_defaults.h"

#include <algorithm>
#include <array>

namespace tarrowin {

namespace {

using enum PropertyType;
using enum Kept;

constexpr auto kNull = DefaultValue::Kind::kNull, kOwnName = DefaultValue::Kind::kOwnName,
               kEventPrefix = DefaultValue::Kind::kEventPrefix,
               kOwnType = DefaultValue::Kind::kOwnType,
               kSectionNumber = DefaultValue::Kind::kSectionNumber,
               kPagePosition = DefaultValue::Kind::kPagePosition;

// Objects: ControlType of the controls.
constexpr std::int32_t kForm = kFormObject, kSection = kSectionObject, kReport = kReportObject,
                       kGroupLevel = kGroupLevelObject, kLabel = 100, kRectangle = 101, kLine = 102,
                       kImage = 103, kCommandButton = 104, kOptionButton = 105, kCheckBox = 106,
                       kOptionGroup = 107, kBoundObjectFrame = 108, kTextBox = 109, kListBox = 110,
                       kComboBox = 111, kSubForm = 112, kObjectFrame = 114, kPageBreak = 118,
                       kCustomControl = 119, kToggleButton = 122, kTabControl = 123, kPage = 124;

constexpr auto kDefaults = std::to_array<PropertyDefault>({
#include "access/model/control_defaults.inc"
});

static_assert(std::ranges::is_sorted(kDefaults, {}, &PropertyDefault::object));

constexpr char lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; }

// Letters of the code page lie anywhere from here on, and under UTF-8 all bytes of one do.
constexpr unsigned char kFirstBeyondAscii = 0x80;

bool isLetterOrDigit(char c) {
  return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') ||
         static_cast<unsigned char>(c) >= kFirstBeyondAscii;
}

}  // namespace

std::span<const PropertyDefault> defaultsOf(std::int32_t object) {
  const auto first = std::ranges::lower_bound(kDefaults, object, {}, &PropertyDefault::object);
  const auto last = std::ranges::upper_bound(kDefaults, object, {}, &PropertyDefault::object);
  return {first, last};
}

const PropertyDefault* findDefault(std::int32_t object, std::string_view name) {
  for (const PropertyDefault& row : defaultsOf(object))
    if (std::ranges::equal(row.name, name, {}, lower, lower)) return &row;
  return nullptr;
}

Value initialValue(const PropertyDefault& property, const std::string& objectName) {
  switch (property.value.kind()) {
    case DefaultValue::Kind::kBoolean:
      return property.value.boolean();
    case DefaultValue::Kind::kText:
      return property.value.text();
    case DefaultValue::Kind::kNull:
      return Value::Null{};
    case DefaultValue::Kind::kOwnName:
      return objectName;
    case DefaultValue::Kind::kEventPrefix:
      return eventPrefixOf(objectName);
    case DefaultValue::Kind::kOwnType:
      return property.object;
    default:
      if (property.type == kSingle) return static_cast<double>(property.value.number());
      return property.value.number();
  }
}

std::string eventPrefixOf(std::string_view controlName) {
  std::string result(controlName);
  for (char& c : result)
    if (!isLetterOrDigit(c)) c = '_';
  if (!result.empty() && result[0] >= '0' && result[0] <= '9') result.insert(0, "Ctl");
  return result;
}

}  // namespace tarrowin
