// The surface in the order in which it was built.
#include "cli/preview_text.h"

#include <algorithm>
#include <string_view>

namespace tarrowin {

namespace {

// The preview writes no other kinds of value than these.
Json jsonOf(const Value& value, const CodePage& codePage) {
  if (const bool* boolean = value.boolean()) return *boolean;
  if (const std::int32_t* number = value.longInteger()) return *number;
  return codePage.toUtf8(toText(value));
}

Json propertiesJson(const PreviewProperties& object, const CodePage& codePage) {
  Json properties = Json::object();
  for (const auto& [name, value] : object.properties) properties[name] = jsonOf(value, codePage);
  return properties;
}

Json textsJson(const std::vector<std::string>& texts, const CodePage& codePage) {
  Json list = Json::array();
  for (const std::string& text : texts) list.push_back(codePage.toUtf8(text));
  return list;
}

// Without the element that is there from the start.
std::vector<std::string> pageEntries(const PreviewSurface& surface) {
  std::vector<std::string> entries = surface.mstrTabControls;
  std::erase(entries, "");
  return entries;
}

Json controlJson(const PreviewControl& control, const CodePage& codePage) {
  Json json = {{"class", codePage.toUtf8(control.className)},
               {"name", codePage.toUtf8(control.name)}};
  if (!control.container.empty()) json["container"] = codePage.toUtf8(control.container);
  json["properties"] = propertiesJson(control, codePage);
  if (!control.tabCaptions.empty()) json["tabs"] = textsJson(control.tabCaptions, codePage);
  return json;
}

// The values of all lines stand below each other.
std::string line(std::string name, std::string_view shown) {
  constexpr std::size_t kNameWidth = 14;  // of the longest, RecordsetType, and a blank
  name.resize(std::max(name.size() + 1, kNameWidth), ' ');
  return "  " + name + std::string(shown) + "\n";
}

// True and False as Visual Basic writes them, a text in quotes with its line ends as "\r\n".
std::string shown(const Json& value) {
  if (value.is_boolean()) return value.get<bool>() ? "True" : "False";
  return jsonText(value);
}

std::string lines(const PreviewProperties& object, const CodePage& codePage) {
  std::string text;
  for (const auto& [name, value] : object.properties)
    text += line(name, shown(jsonOf(value, codePage)));
  return text;
}

std::string listLine(const char* name, const std::vector<std::string>& texts,
                     const CodePage& codePage) {
  if (texts.empty()) return "";
  std::string list;
  for (const Json& text : textsJson(texts, codePage))
    list += (list.empty() ? "" : ", ") + jsonText(text);
  return line(name, list);
}

}  // namespace

Json previewJson(const PreviewSurface& surface, const CodePage& codePage) {
  Json sections = Json::array();
  for (const PreviewSection& section : surface.sections) {
    sections.push_back({{"number", section.number}, {"height", section.height}});
  }
  Json controls = Json::array();
  for (const PreviewControl& control : surface.controls) {
    controls.push_back(controlJson(control, codePage));
  }
  return {{"form", codePage.toUtf8(surface.accessName)},
          {"sections", std::move(sections)},
          {"totalHeight", surface.totalHeight()},
          {"properties", propertiesJson(surface, codePage)},
          {"controls", std::move(controls)},
          {"tabControls", textsJson(pageEntries(surface), codePage)}};
}

std::string previewText(const PreviewSurface& surface, const CodePage& codePage) {
  std::string text = "Form1 shows " + codePage.toUtf8(surface.accessName) + "\n";
  text += lines(surface, codePage);
  text += listLine("on pages", pageEntries(surface), codePage);
  for (const PreviewControl& control : surface.controls) {
    text += "\n" + codePage.toUtf8(control.className) + " " + codePage.toUtf8(control.name);
    if (!control.container.empty()) text += " in " + codePage.toUtf8(control.container);
    text += "\n" + lines(control, codePage);
    text += listLine("tabs", control.tabCaptions, codePage);
  }
  return text;
}

}  // namespace tarrowin
