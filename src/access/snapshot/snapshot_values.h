// The small pieces of a recording: texts, numbers, values and errors.
#pragma once

#include <optional>
#include <string>

#include "access/model/lazy.h"
#include "access/model/property_bag.h"
#include "access/model/recorded.h"
#include "access/snapshot/json_tree.h"
#include "shared/code_page.h"
#include "shared/value.h"

namespace tarrowin {

// Turns pieces of a recording into those of the tree; what is of the wrong kind raises
// SnapshotError with its place.
class SnapshotValues {
 public:
  SnapshotValues(const CodePage& codePage, NameTable& names) : codePage_(codePage), names_(names) {}

  std::string text(JsonValue value) const;
  std::int32_t number(JsonValue value) const;  // a whole number of 32 bits

  // Members of an object; a default stands for one that is absent or null.
  std::string textIn(JsonValue object, std::string_view key) const;
  std::optional<std::string> optionalTextIn(JsonValue object, std::string_view key) const;
  std::optional<std::int32_t> optionalNumberIn(JsonValue object, std::string_view key) const;
  // A number that may be recorded as the error that reading it raises.
  Lazy<std::optional<std::int32_t>> countIn(JsonValue object, std::string_view key) const;
  std::string requiredTextIn(JsonValue object, std::string_view key) const;
  std::optional<RecordedError> optionalErrorIn(JsonValue object, std::string_view key) const;

  // A bare number or {"error", "description"}.
  RecordedError error(JsonValue value) const;
  // A value by the format's rules, or an error.
  Recorded<Value> value(JsonValue value) const;
  // An object whose members are properties, in their order.
  PropertyBag properties(JsonValue object) const;

  static void requireObject(JsonValue value);
  static void requireList(JsonValue value);

 private:
  bool isErrorObject(JsonValue value) const;
  // Anything but a list or an object.
  Value plainValue(JsonValue value) const;
  Recorded<Value> objectValue(JsonValue value) const;

  const CodePage& codePage_;
  NameTable& names_;
};

}  // namespace tarrowin
