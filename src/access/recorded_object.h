// What the recorder needs of late-bound objects, and how values and errors are written down.
#pragma once

#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>

#include <nlohmann/json_fwd.hpp>

#include "core/access_object.h"

namespace tarrowin {

// A late-bound object with the calls that the recorder makes. Raises 91 without an object.
class RecordedObject {
 public:
  explicit RecordedObject(ObjectRef object) : object_(std::move(object)) {}

  Value get(std::string_view name) const { return target().get(name); }
  RecordedObject object(std::string_view name) const { return RecordedObject(toObject(get(name))); }
  RecordedObject object(std::string_view name, const Value& argument) const {
    return RecordedObject(toObject(target().get(name, {&argument, 1})));
  }
  std::string text(std::string_view name) const { return toText(get(name)); }
  std::int32_t number(std::string_view name) const { return toLong(get(name)); }
  void put(std::string_view name, const Value& value) const { target().put(name, value); }
  Value call(std::string_view name, std::initializer_list<Value> arguments = {}) const {
    return target().call(name, {arguments.begin(), arguments.size()});
  }

  // Each element of a collection member, by index. An element that cannot be had is left out.
  void forEach(std::string_view collection,
               const std::function<void(const RecordedObject&)>& action) const;

 private:
  AccessObject& target() const {
    if (!object_) raise(kErrObjectNotSet);
    return *object_;
  }
  ObjectRef object_;
};

// A value by the format's rules; an object, which has no place in a recording, is null.
nlohmann::ordered_json recordValue(const Value& value);
// {"error": 2601, "description": "..."}
nlohmann::ordered_json recordError(const VbError& error);
// The value that the reading gives, or the error that it raises.
nlohmann::ordered_json recordReading(const std::function<Value()>& read);
// The members of the object's Properties collection, in its order.
nlohmann::ordered_json recordProperties(const RecordedObject& object);

}  // namespace tarrowin
