// The objects that stand between the main object and the model's.
#include "support/watched_access.h"

#include <string>

namespace tarrowin::test {

namespace {

std::string written(const Value& value) {
  if (value.isEmpty()) return "";
  if (value.isNull()) return "Null";
  if (value.isObject()) return "(object)";
  if (value.bytes()) return "(" + std::to_string(value.bytes()->size()) + " bytes)";
  if (value.text()) return '"' + *value.text() + '"';
  return toText(value);
}

std::string written(Arguments arguments) {
  std::string text;
  for (std::size_t i = 0; i < arguments.size(); ++i)
    text += (i == 0 ? "" : ", ") + written(arguments[i]);
  return text;
}

class WatchedObject : public AccessObject {
 public:
  WatchedObject(WatchedAccess& watch, ObjectRef object, std::string path)
      : watch_(watch), object_(std::move(object)), path_(std::move(path)) {}

  Value get(std::string_view name, Arguments arguments) override {
    std::string member = memberPath(name);
    if (!arguments.empty()) member += "(" + written(arguments) + ")";
    watch_.meet(watch_.reads, member);
    return watched(object_->get(name, arguments), member);
  }
  void put(std::string_view name, const Value& value) override {
    watch_.meet(watch_.log, memberPath(name) + " = " + written(value));
    object_->put(name, value);
  }
  Value call(std::string_view name, Arguments arguments) override {
    const std::string member = memberPath(name) + "(" + written(arguments) + ")";
    watch_.meet(watch_.log, member);
    return watched(object_->call(name, arguments), member);
  }

 private:
  std::string memberPath(std::string_view name) const {
    if (name.empty()) return path_;
    return path_.empty() ? std::string(name) : path_ + "." + std::string(name);
  }
  Value watched(Value value, const std::string& path) {
    const ObjectRef object = value.object();
    if (!object) return value;
    return Value(ObjectRef(std::make_shared<WatchedObject>(watch_, object, path)));
  }

  WatchedAccess& watch_;
  ObjectRef object_;
  std::string path_;
};

}  // namespace

WatchedAccess::WatchedAccess(MainObject& main) {
  const auto watched = [this](const ObjectRef& object) {
    return std::make_shared<WatchedObject>(*this, object, "");
  };
  main.host = AccessHost(watched(main.host.object()));
  if (main.state.gappAccess)
    main.state.gappAccess = Application(watched(main.state.gappAccess.object()));
}

std::vector<std::string> WatchedAccess::logged(std::string_view part) const {
  std::vector<std::string> found;
  for (const std::string& entry : log)
    if (entry.find(part) != std::string::npos) found.push_back(entry);
  return found;
}

std::vector<std::string> WatchedAccess::called(std::string_view part) const {
  std::vector<std::string> found;
  for (const std::string& entry : logged(part))
    if (entry.ends_with(')') && entry.find(").") == std::string::npos) found.push_back(entry);
  return found;
}

void WatchedAccess::meet(std::vector<std::string>& entries, const std::string& operation) {
  if (before) before(operation);
  entries.push_back(operation);
  for (const Fault& fault : faults)
    if (operation.find(fault.operation) != std::string::npos) throw fault.error;
}

}  // namespace tarrowin::test
