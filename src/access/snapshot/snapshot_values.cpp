// The value rules of recordings.
#include "access/snapshot/snapshot_values.h"

#include "access/snapshot/base64.h"
#include "access/snapshot/iso_date.h"

namespace tarrowin {

namespace {

bool isLong(std::int64_t number) { return number >= INT32_MIN && number <= INT32_MAX; }

// Error numbers also come as unsigned HRESULTs.
std::optional<std::int32_t> errorNumber(JsonValue value) {
  if (value.kind() != JsonKind::kInteger) return std::nullopt;
  const std::int64_t number = value.integer();
  if (number < INT32_MIN || number > UINT32_MAX) return std::nullopt;
  return static_cast<std::int32_t>(static_cast<std::uint32_t>(number));
}

}  // namespace

void SnapshotValues::requireObject(JsonValue value) {
  if (value.kind() != JsonKind::kObject) value.failExpected("an object");
}

void SnapshotValues::requireList(JsonValue value) {
  if (value.kind() != JsonKind::kArray) value.failExpected("a list");
}

std::string SnapshotValues::text(JsonValue value) const {
  if (value.kind() != JsonKind::kText) value.failExpected("a text");
  return codePage_.fromUtf8(value.text());
}

std::int32_t SnapshotValues::number(JsonValue value) const {
  if (value.kind() != JsonKind::kInteger || !isLong(value.integer()))
    value.failExpected("a whole number");
  return static_cast<std::int32_t>(value.integer());
}

std::string SnapshotValues::textIn(JsonValue object, std::string_view key) const {
  const auto found = object.member(key);
  return found ? text(*found) : std::string();
}

std::optional<std::string> SnapshotValues::optionalTextIn(JsonValue object,
                                                          std::string_view key) const {
  const auto found = object.member(key);
  return found ? std::optional(text(*found)) : std::nullopt;
}

std::optional<std::int32_t> SnapshotValues::optionalNumberIn(JsonValue object,
                                                             std::string_view key) const {
  const auto found = object.member(key);
  return found ? std::optional(number(*found)) : std::nullopt;
}

Lazy<std::optional<std::int32_t>> SnapshotValues::countIn(JsonValue object,
                                                          std::string_view key) const {
  using Count = std::optional<std::int32_t>;
  const auto found = object.member(key);
  if (!found) return Count();
  if (!isErrorObject(*found)) return Count(number(*found));
  return Lazy<Count>(
      [error = error(*found), name = std::string(key)]() -> Count { error.raise(name); });
}

std::string SnapshotValues::requiredTextIn(JsonValue object, std::string_view key) const {
  const auto found = object.member(key);
  if (!found) object.failExpected("a text under \"" + std::string(key) + "\"");
  return text(*found);
}

std::optional<RecordedError> SnapshotValues::optionalErrorIn(JsonValue object,
                                                             std::string_view key) const {
  const auto found = object.member(key);
  return found ? std::optional(error(*found)) : std::nullopt;
}

bool SnapshotValues::isErrorObject(JsonValue value) const {
  return value.kind() == JsonKind::kObject && value.member("error").has_value();
}

RecordedError SnapshotValues::error(JsonValue value) const {
  const JsonValue number = isErrorObject(value) ? *value.member("error") : value;
  const auto found = errorNumber(number);
  if (!found) number.failExpected("an error number or an error");
  RecordedError result{*found, std::nullopt};
  if (isErrorObject(value)) result.description = optionalTextIn(value, "description");
  return result;
}

Value SnapshotValues::plainValue(JsonValue value) const {
  switch (value.kind()) {
    case JsonKind::kBoolean:
      return value.boolean();
    case JsonKind::kInteger:
      if (isLong(value.integer())) return static_cast<std::int32_t>(value.integer());
      return static_cast<double>(value.integer());
    case JsonKind::kDouble:
      return value.number();
    case JsonKind::kText:
      return codePage_.fromUtf8(value.text());
    default:
      return Value::Null{};
  }
}

Recorded<Value> SnapshotValues::value(JsonValue value) const {
  const bool isPlain = value.kind() != JsonKind::kArray && value.kind() != JsonKind::kObject;
  return isPlain ? Recorded<Value>(plainValue(value)) : objectValue(value);
}

Recorded<Value> SnapshotValues::objectValue(JsonValue value) const {
  if (isErrorObject(value)) return error(value);
  if (value.kind() == JsonKind::kObject) {
    if (const auto date = value.member("date")) {
      if (date->kind() == JsonKind::kText)
        if (const auto found = dateFromIso(date->text())) return Recorded<Value>(*found);
      date->failExpected("a date such as \"2026-11-21T10:00:00\"");
    }
    if (const auto bytes = value.member("bytes")) {
      if (bytes->kind() == JsonKind::kText)
        if (auto found = fromBase64(bytes->text())) return Recorded<Value>(std::move(*found));
      bytes->failExpected("a base64 text");
    }
  }
  value.failExpected("a value: null, true, false, a number, a text, a date, bytes or an error");
}

PropertyBag SnapshotValues::properties(JsonValue object) const {
  requireObject(object);
  PropertyBag result;
  for (const JsonValue member : object)
    result.set(names_, names_.intern(codePage_.fromUtf8(member.key())), value(member));
  return result;
}

}  // namespace tarrowin
