// Reading and copying.
#include "multipage/control_copy.h"

#include <algorithm>
#include <iterator>
#include <string_view>

namespace tarrowin {

namespace {

constexpr std::int32_t kCustomControl = 119, kObjectFrame = 114;

// Not to be copied: what Access makes itself, and what stands for the moment only. Capitals count.
constexpr std::string_view kExcluded[] = {
    "EventProcPrefix",  "ControlType", "Section",   "PictureData", "ObjectPalette", "LpOleObject",
    "ObjectVerbsCount", "Action",      "OLEType",   "Text",        "SelText",       "SelStart",
    "SelLength",        "InSelection", "ListCount", "Item",
};

bool isExcluded(std::string_view name) {
  return std::ranges::find(kExcluded, name) != std::end(kExcluded);
}

Collection<LateBound> propertiesOf(const LateBound& control) {
  return Collection<LateBound>(toObject(control.get("Properties")));
}

void copyProperties(Restructuring& procedure, const SourceControl& source,
                    const LateBound& newControl, std::optional<std::int32_t> newTop) {
  Collection<LateBound> properties;
  procedure.statement([&] { properties = propertiesOf(newControl); });
  for (std::size_t j = 0; j < source.avarPropValues.size(); ++j) {
    LateBound property;
    bool same = false;
    procedure.statement([&] {
      property = properties(static_cast<std::int32_t>(j));
      procedure.propertyName = property.text("Name");
      same = procedure.propertyName == source.astrPropNames[j];
    });
    if (!same || isExcluded(procedure.propertyName)) continue;
    std::optional<Value> value = source.avarPropValues[j];
    if (newTop && procedure.propertyName == "Top") value = Value(*newTop);
    if (value) procedure.statement([&] { property.put("Value", *value); });
  }
}

void copyOleControl(Restructuring& procedure, const SourceControl& source, const LateBound& newForm,
                    const LateBound& newControl, std::int32_t top) {
  LateBound created;
  procedure.statement([&] {
    created = Collection<LateBound>(toObject(newForm.get("Controls")))(newControl.text("Name"));
  });
  procedure.propertyName = "OleData";
  procedure.statement([&] { created.put("OleData", source.control.get("OleData")); });
  procedure.propertyName = "Top";
  procedure.statement([&] {
    const Collection<LateBound> properties = propertiesOf(created);
    properties("Top").put("Value", Value(top));
  });
}

}  // namespace

SourceControl readSourceControl(Restructuring& procedure, const LateBound& control) {
  SourceControl source;
  source.control = control;
  const auto number = [&](std::string_view property, std::int32_t& value) {
    procedure.propertyName = property;
    procedure.statement([&] { value = control.number(property); });
  };
  procedure.propertyName = "Name";
  procedure.statement(
      [&] { source.parentName = LateBound(toObject(control.get("Parent"))).text("Name"); });
  procedure.statement([&] { source.name = control.text("Name"); });
  number("ControlType", source.type);
  number("Section", source.section);
  number("Height", source.height);
  number("Left", source.left);
  procedure.propertyName = "Top";
  procedure.statement([&] { source.top = control.number("Top"); });
  number("Width", source.width);
  Collection<LateBound> properties;
  std::int32_t count = 0;
  procedure.statement([&] {
    properties = propertiesOf(control);
    count = properties.Count();
  });
  for (std::int32_t j = 0; j < count; ++j) {
    std::string& name = source.astrPropNames.emplace_back();
    std::optional<Value>& value = source.avarPropValues.emplace_back();
    procedure.statement([&] {
      const LateBound property = properties(j);
      name = property.text("Name");
      procedure.propertyName = name;
      value = property.get("Value");
    });
  }
  return source;
}

void copyControl(Restructuring& procedure, const SourceControl& source, const LateBound& newForm,
                 const LateBound& newControl, std::int32_t placedTop,
                 std::optional<std::int32_t> newTop) {
  if (source.type == kCustomControl || source.type == kObjectFrame) {
    copyOleControl(procedure, source, newForm, newControl, placedTop);
  } else {
    copyProperties(procedure, source, newControl, newTop);
  }
}

}  // namespace tarrowin
