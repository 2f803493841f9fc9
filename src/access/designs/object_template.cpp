// Keywords found among the rows of an object, and their values turned into those of properties.
#include "access/designs/object_template.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <unordered_map>
#include <utility>

namespace tarrowin {

namespace {

constexpr std::size_t kNoRow = SIZE_MAX;
// A macro inside the design stands under the event's name with this behind it; the event's own
// property then has a text of Access's.
constexpr std::string_view kMacroSuffix = "EmMacro";
constexpr const char* kEmbeddedMacro = "[Embedded Macro]";

using RowsByKeyword = std::unordered_map<std::string_view, std::size_t>;

const RowsByKeyword& rowsByKeyword(std::int32_t object) {
  static const auto all = [] {
    std::map<std::int32_t, RowsByKeyword> maps;
    for (std::int32_t one = 0; one <= UINT8_MAX; ++one) {
      const auto rows = defaultsOf(one);
      RowsByKeyword& map = maps[one];
      for (std::size_t row = 0; row < rows.size(); ++row)
        if (rows[row].kept != Kept::kNotKept) map.emplace(rows[row].name, row);
    }
    return maps;
  }();
  static const RowsByKeyword none;
  const auto found = all.find(object);
  return found == all.end() ? none : found->second;
}

std::size_t rowOf(std::int32_t object, std::string_view keyword) {
  const RowsByKeyword& rows = rowsByKeyword(object);
  const auto found = rows.find(keyword);
  return found == rows.end() ? kNoRow : found->second;
}

std::optional<std::int32_t> wholeNumber(const Value& value) {
  if (const std::int32_t* number = value.longInteger()) return *number;
  if (const bool* boolean = value.boolean()) return *boolean ? -1 : 0;
  const double* number = value.doubleNumber();
  if (number && *number >= std::numeric_limits<std::int32_t>::min() &&
      *number <= std::numeric_limits<std::int32_t>::max())
    return static_cast<std::int32_t>(std::nearbyint(*number));
  return std::nullopt;
}

std::optional<Value> numberFor(const PropertyDefault& row, const Value& kept) {
  const auto number = wholeNumber(kept);
  if (!number) return std::nullopt;
  if (row.kept != Kept::kFromZero) return Value(*number);
  if (*number == std::numeric_limits<std::int32_t>::max()) return std::nullopt;
  return Value(*number + 1);
}

// The kept value as one of the property's type; none where that cannot hold it.
std::optional<Value> converted(const PropertyDefault& row, const Value& kept) {
  switch (row.type) {
    case PropertyType::kBoolean:
      if (const auto number = wholeNumber(kept)) return Value(*number != 0);
      return std::nullopt;
    case PropertyType::kByte:
    case PropertyType::kInteger:
    case PropertyType::kLong:
      return numberFor(row, kept);
    case PropertyType::kSingle:
      if (const double* number = kept.doubleNumber()) return Value(*number);
      if (const auto number = wholeNumber(kept)) return Value(static_cast<double>(*number));
      return std::nullopt;
    case PropertyType::kText:
      if (kept.text()) return kept;
      if (kept.longInteger() || kept.doubleNumber()) return Value(toText(kept));
      return std::nullopt;
    case PropertyType::kBytes:
      if (kept.bytes()) return kept.bytes()->empty() ? Value(Value::Null{}) : kept;
      return std::nullopt;
  }
  return std::nullopt;
}

// The row of the event whose macro the keyword holds.
std::size_t rowOfEmbeddedMacro(std::int32_t object, std::string_view keyword,
                               const StoredBlock& block) {
  if (!keyword.ends_with(kMacroSuffix)) return kNoRow;
  keyword.remove_suffix(kMacroSuffix.size());
  const bool hasOwnText = std::ranges::any_of(
      block.properties, [&](const StoredProperty& one) { return one.keyword == keyword; });
  return hasOwnText ? kNoRow : rowOf(object, keyword);
}

}  // namespace

ObjectTemplate::ObjectTemplate(std::int32_t object, NameTable& names, std::string_view without)
    : object_(object), names_(names) {
  for (const PropertyDefault& row : defaultsOf(object)) {
    const bool isThere = row.name != without;
    ids_.push_back(isThere ? names.intern(row.name) : kNoName);
    if (isThere) bag_.set(names, ids_.back(), initialValue(row, {}));
  }
}

template <class Action>
void ObjectTemplate::forEachKept(const StoredBlock& block, Action action) const {
  const auto rows = defaultsOf(object_);
  for (const StoredProperty& property : block.properties) {
    std::size_t row = rowOf(object_, property.keyword);
    std::optional<Value> value;
    if (row == kNoRow) {
      row = rowOfEmbeddedMacro(object_, property.keyword, block);
      value = kEmbeddedMacro;
    } else if (const Value* kept = std::get_if<Value>(&property.value)) {
      value = converted(rows[row], *kept);
    } else if (rows[row].type == PropertyType::kBoolean && ids_[row] != kNoName) {
      const Value* base = bag_.valueOf(names_.keyOf(ids_[row]))->ifRead();
      value = !(base && base->boolean() && *base->boolean());
    }
    if (row != kNoRow && ids_[row] != kNoName && value) action(ids_[row], *std::move(value));
  }
}

PropertyBag ObjectTemplate::filled(const StoredBlock& block) const {
  PropertyBag result = bag_;
  forEachKept(block, [&](NameId id, Value value) { result.set(names_, id, std::move(value)); });
  return result;
}

PropertyBag ObjectTemplate::keptOnly(const StoredBlock& block) const {
  PropertyBag result;
  forEachKept(block, [&](NameId id, Value value) { result.set(names_, id, std::move(value)); });
  return result;
}

}  // namespace tarrowin
