// The inverse of the reader for what new objects consist of.
#include "access/snapshot/object_writer.h"

#include <nlohmann/json.hpp>

#include "access/recorded_object.h"

namespace tarrowin {

namespace {

using Json = nlohmann::ordered_json;

class ObjectWriter {
 public:
  explicit ObjectWriter(const DatabaseModel& database) : database_(database) {}

  Json form(const DesignModel& form) const {
    const auto held = form.body.get();
    const DesignBody& body = *held;
    Json entry;
    entry["name"] = utf8(form.name);
    entry["properties"] = properties(body.properties);
    entry["sections"] = Json::array();
    for (const SectionModel& section : body.sections)
      entry["sections"].push_back(
          {{"number", section.number}, {"properties", properties(section.properties)}});
    entry["controls"] = Json::array();
    for (const ControlModel& one : body.controls) entry["controls"].push_back(control(body, one));
    const std::optional<std::string>& module = form.module.get();
    entry["module"] = module ? Json(utf8(*module)) : Json();
    return entry;
  }

 private:
  Json control(const DesignBody& body, const ControlModel& control) const {
    Json entry;
    entry["name"] = utf8(control.name);
    entry["type"] = control.type;
    if (control.parent != ControlModel::kNoParent)
      entry["parent"] = utf8(body.controls[control.parent].name);
    entry["properties"] = properties(control.properties);
    return entry;
  }

  Json properties(const PropertyBag& bag) const {
    Json result = Json::object();
    auto& members = result.get_ref<Json::object_t&>();
    for (std::size_t i = 0; i < bag.size(); ++i) {
      const std::string& name = database_.names.spelling(bag.nameAt(i));
      // A bag has each name once, so nothing is to be looked for.
      members.push_back({utf8(name), recorded(bag.valueAt(i))});
    }
    return result;
  }

  Json recorded(const Recorded<Value>& value) const {
    if (const RecordedError* error = value.error()) {
      Json entry = {{"error", error->number}};
      if (error->description) entry["description"] = utf8(*error->description);
      return entry;
    }
    const std::string* text = value.ifRead()->text();
    return recordValue(text ? Value(utf8(*text)) : *value.ifRead());
  }

  std::string utf8(const std::string& text) const { return database_.codePage.toUtf8(text); }

  const DatabaseModel& database_;
};

std::string printed(const Json& entry) {
  return entry.dump(2, ' ', false, Json::error_handler_t::replace);
}

}  // namespace

std::string formEntry(const DesignModel& form, const DatabaseModel& database) {
  return printed(ObjectWriter(database).form(form));
}

std::string moduleEntry(const ModuleModel& module, const CodePage& codePage) {
  return printed({{"name", codePage.toUtf8(module.name)},
                  {"type", module.type.get()},
                  {"text", codePage.toUtf8(module.text.get())}});
}

}  // namespace tarrowin
