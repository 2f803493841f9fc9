// Values, errors and properties as they stand in a recording.
#include "access/recorded_object.h"

#include <cmath>

#include <nlohmann/json.hpp>

#include "access/snapshot/base64.h"
#include "access/snapshot/iso_date.h"

namespace tarrowin {

using Json = nlohmann::ordered_json;

void RecordedObject::forEach(std::string_view collection,
                             const std::function<void(const RecordedObject&)>& action) const {
  std::int32_t count = 0;
  ObjectRef items;
  try {
    items = toObject(get(collection));
    count = RecordedObject(items).number("Count");
  } catch (const VbError&) {
    return;
  }
  for (std::int32_t i = 0; i < count; ++i) {
    ObjectRef item;
    try {
      const Value index(i);
      item = toObject(items->get("", {&index, 1}));
    } catch (const VbError&) {
      continue;
    }
    action(RecordedObject(std::move(item)));
  }
}

Json recordValue(const Value& value) {
  if (const bool* boolean = value.boolean()) return *boolean;
  if (const std::int32_t* number = value.longInteger()) return *number;
  if (const std::string* text = value.text()) return *text;
  if (const double* number = value.doubleNumber())
    return std::isfinite(*number) ? Json(*number) : Json();
  if (const Bytes* bytes = value.bytes()) return {{"bytes", toBase64(*bytes)}};
  if (const Date* date = value.date()) {
    const auto text = dateToIso(*date);
    return text ? Json{{"date", *text}} : Json();
  }
  return nullptr;
}

Json recordError(const VbError& error) {
  return {{"error", error.number()}, {"description", error.description()}};
}

Json recordReading(const std::function<Value()>& read) {
  try {
    return recordValue(read());
  } catch (const VbError& error) {
    return recordError(error);
  }
}

Json recordProperties(const RecordedObject& object) {
  Json result = Json::object();
  object.forEach("Properties", [&result](const RecordedObject& property) {
    result[property.text("Name")] = recordReading([&property] { return property.get("Value"); });
  });
  return result;
}

}  // namespace tarrowin
