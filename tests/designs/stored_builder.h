// Short ways to write down a stored design, and to ask a completed one.
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "access/designs/design_completion.h"

namespace tarrowin {

using Blocks = std::vector<StoredBlock>;

inline StoredProperty flag(std::string keyword) { return {std::move(keyword), TurnedOver{}}; }
inline StoredProperty kept(std::string keyword, Value value) {
  return {std::move(keyword), std::move(value)};
}
inline StoredBlock block(std::string kind, std::vector<StoredProperty> properties = {},
                         Blocks children = {}) {
  return {std::move(kind), std::move(properties), std::move(children)};
}
// A control with a name.
inline StoredBlock named(std::string kind, const char* name,
                         std::vector<StoredProperty> properties = {}, Blocks children = {}) {
  properties.push_back(kept("Name", name));
  return block(std::move(kind), std::move(properties), std::move(children));
}
// A form whose detail section holds the controls, with default styles before it.
inline StoredDesign formWith(Blocks controls, Blocks styles = {}) {
  StoredDesign design;
  design.root = block("Form", {}, std::move(styles));
  design.root.children.push_back(named("Section", "Detail", {}, std::move(controls)));
  return design;
}

// A completed design with the names of its properties.
class Completed {
 public:
  explicit Completed(const StoredDesign& stored, const std::string& name = "frmTest")
      : names_(CaseFolding(CodePage())), body(completeDesign(stored, name, names_)) {}

  // The value, Empty where the property is not there. No property may raise.
  Value value(const PropertyBag& properties, std::string_view name) const {
    const Recorded<Value>* recorded = properties.valueOf(names_.find(name));
    return recorded ? recorded->read(name) : Value();
  }
  bool has(const PropertyBag& properties, std::string_view name) const {
    return properties.valueOf(names_.find(name)) != nullptr;
  }
  Value ofDesign(std::string_view name) const { return value(body.properties, name); }
  const ControlModel& control(std::string_view name) const {
    for (const ControlModel& one : body.controls)
      if (one.name == name) return one;
    ADD_FAILURE() << "no control " << name;
    static const ControlModel none;
    return none;
  }
  Value of(std::string_view controlName, std::string_view property) const {
    return value(control(controlName).properties, property);
  }
  bool hasOf(std::string_view controlName, std::string_view property) const {
    return has(control(controlName).properties, property);
  }
  std::vector<std::string> propertyNames(const PropertyBag& properties) const {
    std::vector<std::string> result;
    for (std::size_t i = 0; i < properties.size(); ++i)
      result.push_back(names_.spelling(properties.nameAt(i)));
    return result;
  }
  std::vector<std::string> controlNames() const {
    std::vector<std::string> result;
    for (const ControlModel& one : body.controls) result.push_back(one.name);
    return result;
  }

 private:
  NameTable names_;

 public:
  const DesignBody body;
};

}  // namespace tarrowin
