// The properties of what is shown, and the turning of its pages.
#include "preview/preview_surface.h"

#include <algorithm>
#include <optional>
#include <unordered_map>

#include "preview/page_entry.h"

namespace tarrowin {

const Value* PreviewProperties::find(std::string_view property) const {
  const auto found = std::ranges::find(properties, property, &std::pair<std::string, Value>::first);
  return found == properties.end() ? nullptr : &found->second;
}

void PreviewProperties::put(std::string_view property, Value value) {
  const auto found = std::ranges::find(properties, property, &std::pair<std::string, Value>::first);
  if (found == properties.end()) {
    properties.emplace_back(property, std::move(value));
  } else {
    found->second = std::move(value);
  }
}

std::int64_t PreviewSurface::totalHeight() const {
  std::int64_t total = 0;
  for (const PreviewSection& section : sections) total += section.height;
  return total;
}

void showTab(PreviewSurface& surface, int tab) {
  std::unordered_map<std::string, std::optional<int>> pageOf;
  for (const std::string& entry : surface.mstrTabControls) {
    pageOf.emplace(nameOfPageEntry(entry), pageOfEntry(entry));
  }
  for (PreviewControl& control : surface.controls) {
    const auto found = pageOf.find(control.name);
    if (found == pageOf.end() || !found->second) continue;
    control.put("Visible", *found->second == tab);
  }
}

}  // namespace tarrowin
