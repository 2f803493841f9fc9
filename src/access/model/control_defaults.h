// What the properties of forms, reports and what stands on them are before anything is set, of
// which type they are, and how files keep them.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "shared/value.h"

namespace tarrowin {

// Types of Access's type library.
enum class PropertyType : std::uint8_t {
  kBoolean,
  kByte,
  kInteger,  // 16 bits
  kLong,
  kSingle,
  kText,
  kBytes,  // Null while there are none
};

class DefaultValue {
 public:
  enum class Kind : std::uint8_t {
    kBoolean,
    kNumber,
    kText,
    kNull,
    kOwnName,        // the name of the object
    kEventPrefix,    // the name as the start of the names of its event procedures
    kOwnType,        // ControlType
    kSectionNumber,  // of the section that holds the control
    kPagePosition,   // among the pages of the tab control, from 0
  };

  constexpr DefaultValue(bool value) : kind_(Kind::kBoolean), number_(value) {}
  constexpr DefaultValue(std::int32_t value) : kind_(Kind::kNumber), number_(value) {}
  constexpr DefaultValue(const char* value) : kind_(Kind::kText), text_(value) {}
  constexpr DefaultValue(Kind kind) : kind_(kind) {}

  Kind kind() const { return kind_; }
  bool boolean() const { return number_ != 0; }
  std::int32_t number() const { return number_; }
  std::string_view text() const { return text_; }

 private:
  Kind kind_;
  std::int32_t number_ = 0;
  std::string_view text_;
};

// Objects of the table that are no controls; a control's object is its ControlType.
inline constexpr std::int32_t kFormObject = 0, kSectionObject = 1, kReportObject = 2,
                              kGroupLevelObject = 3;
constexpr bool isControlObject(std::int32_t object) { return object > kGroupLevelObject; }

// How the design of a form or report in a file keeps a property that differs from its default.
enum class Kept : std::uint8_t {
  kByName,    // under its name; a Boolean mostly by the mere presence of the name
  kFromZero,  // the same, but the file counts from 0 what the property counts from 1
  kNotKept,   // not at all: it follows from other properties or from the object's place
};

struct PropertyDefault {
  std::int32_t object;
  std::string_view name;
  PropertyType type;
  DefaultValue value;
  Kept kept = Kept::kByName;
};

// The properties of the object in the order of its Properties collection; none for an object that
// Access 2003 does not know.
std::span<const PropertyDefault> defaultsOf(std::int32_t object);

// The property of that name, in any case, or nullptr.
const PropertyDefault* findDefault(std::int32_t object, std::string_view name);

// The value in a new object of that name; 0 for a number that depends on its place.
Value initialValue(const PropertyDefault& property, const std::string& objectName);

// A control name in the form that is part of its event procedures' names: each character but
// letters, digits and underscores an underscore, "Ctl" in front of a leading digit.
std::string eventPrefixOf(std::string_view controlName);

}  // namespace tarrowin
