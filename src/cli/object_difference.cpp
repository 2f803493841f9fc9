// Properties and parts paired by name.
#include "cli/object_difference.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <unordered_map>
#include <utility>

namespace tarrowin {

namespace {

// What the conversions read of forms, reports, sections, group levels and controls.
// clang-format off
constexpr auto kGeneratorProperties = std::to_array<std::string_view>({
    "autoactivate", "backcolor", "backstyle", "bordercolor", "borderstyle", "borderwidth",
    "boundcolumn", "cancel", "caption", "class", "columncount", "controlbox", "controlsource",
    "controltiptext", "controltype", "default", "defaultview", "displaytype", "enabled",
    "fontitalic", "fontname", "fontsize", "fontunderline", "fontweight", "forcenewpage",
    "forecolor", "format", "gridx", "gridy", "groupfooter", "groupheader", "hasmodule", "height",
    "helpcontextid", "keeptogether", "keypreview", "left", "locked", "minmaxbuttons",
    "multiselect", "name", "oleclass", "oletypeallowed", "oldborderstyle", "optionvalue",
    "orderby", "picture", "recordsource", "rowsource", "rowsourcetype", "section", "sizemode",
    "sortorder", "sourcedoc", "sourceitem", "sourceobject", "specialeffect", "style",
    "tabfixedheight", "tabfixedwidth", "tabindex", "tabstop", "tag", "textalign", "top", "verb",
    "visible", "width",
});
// clang-format on

constexpr std::size_t kLongestShown = 100, kShownBefore = 40;
constexpr std::string_view kNotThere = "(not there)";
constexpr const char* kOrderOfControls = "(order of controls)";
constexpr std::string_view kControlLabel = "control ";

std::string lower(std::string_view text) {
  std::string result(text);
  for (char& c : result)
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c + 32);
  return result;
}

bool isCompared(const std::string& folded, ComparedProperties compared) {
  return compared == ComparedProperties::kAll || folded.starts_with('(') ||
         std::ranges::find(kGeneratorProperties, folded) != kGeneratorProperties.end();
}

// The description of an error may name the file.
bool isSameValue(const std::string& property, const Json& first, const Json& second) {
  const bool areErrors = first.is_object() && second.is_object() && first.contains("error") &&
                         second.contains("error") && !property.starts_with('(');
  return areErrors ? first["error"] == second["error"] : first == second;
}

void compareProperties(const std::string& part, const Json& first, const Json& second,
                       ComparedProperties compared, std::vector<Difference>& found) {
  std::unordered_map<std::string, const Json*> others;
  for (const auto& [name, value] : second.items()) others.emplace(lower(name), &value);
  for (const auto& [name, value] : first.items()) {
    const std::string folded = lower(name);
    const auto other = others.find(folded);
    const Json* otherValue = other == others.end() ? nullptr : other->second;
    if (otherValue) others.erase(other);
    if (!isCompared(folded, compared)) continue;
    if (!otherValue)
      found.push_back({part, name, value, std::nullopt});
    else if (!isSameValue(name, value, *otherValue))
      found.push_back({part, name, value, *otherValue});
  }
  for (const auto& [name, value] : second.items())
    if (others.contains(lower(name)) && isCompared(lower(name), compared))
      found.push_back({part, name, std::nullopt, value});
}

using PartsByLabel = std::unordered_map<std::string, const ObjectPart*>;

PartsByLabel byLabel(const ObjectFacts& facts) {
  PartsByLabel parts;
  for (const ObjectPart& part : facts.parts) parts.emplace(lower(part.label), &part);
  return parts;
}

// The first control on each side that is not at the same place among those that both have.
void compareOrder(const ObjectFacts& first, const PartsByLabel& inFirst, const ObjectFacts& second,
                  const PartsByLabel& inSecond, std::vector<Difference>& found) {
  const auto common = [](const ObjectFacts& facts, const PartsByLabel& other) {
    std::vector<std::string> labels;
    for (const ObjectPart& part : facts.parts)
      if (part.label.starts_with(kControlLabel) && other.contains(lower(part.label)))
        labels.push_back(part.label);
    return labels;
  };
  const auto left = common(first, inSecond), right = common(second, inFirst);
  for (std::size_t i = 0; i < std::min(left.size(), right.size()); ++i) {
    if (lower(left[i]) == lower(right[i])) continue;
    const auto name = [](const std::string& label) { return label.substr(kControlLabel.size()); };
    found.push_back({"", kOrderOfControls, Json(name(left[i])), Json(name(right[i]))});
    return;
  }
}

// The line around the position, from a little before it when it is long.
std::string lineAt(const std::string& text, std::size_t position) {
  std::size_t start = position == 0 ? std::string::npos : text.rfind('\n', position - 1);
  start = start == std::string::npos ? 0 : start + 1;
  const std::size_t end = std::min(text.find('\n', position), text.size());
  if (end - start > kLongestShown && position - start > kShownBefore)
    start = position - kShownBefore;
  std::string line = text.substr(start, end - start);
  if (!line.empty() && line.back() == '\r') line.pop_back();
  return line;
}

std::string sizeOf(const std::string& text) { return std::to_string(text.size()) + " characters"; }

std::string quoted(const std::string& text) {
  if (text.size() <= kLongestShown) return jsonText(text);
  return jsonText(text.substr(0, kLongestShown)) + "... (" + sizeOf(text) + ")";
}

std::string shown(const Json& value) {
  if (value.is_string()) return quoted(value.get_ref<const std::string&>());
  if (value.is_null()) return "Null";
  if (value.is_boolean()) return value.get<bool>() ? "True" : "False";
  if (!value.is_object()) return jsonText(value);
  if (const auto error = value.find("error"); error != value.end()) {
    std::string text = "error " + jsonText(*error);
    if (const auto description = value.find("description"); description != value.end())
      text += " " + jsonText(*description);
    return text;
  }
  if (const auto bytes = value.find("bytes"); bytes != value.end() && bytes->is_string())
    return std::to_string(bytes->get_ref<const std::string&>().size() / 4 * 3) + " bytes";
  return jsonText(value);
}

bool isLong(const std::string& text) {
  return text.size() > kLongestShown || text.find('\n') != std::string::npos;
}

}  // namespace

std::vector<Difference> differencesBetween(const ObjectFacts& first, const ObjectFacts& second,
                                           ComparedProperties compared) {
  std::vector<Difference> found;
  compareProperties("", first.properties, second.properties, compared, found);
  const PartsByLabel inFirst = byLabel(first), inSecond = byLabel(second);
  compareOrder(first, inFirst, second, inSecond, found);
  for (const ObjectPart& part : first.parts) {
    const auto other = inSecond.find(lower(part.label));
    if (other == inSecond.end())
      found.push_back({part.label, "", Json(true), std::nullopt});
    else
      compareProperties(part.label, part.properties, other->second->properties, compared, found);
  }
  for (const ObjectPart& part : second.parts)
    if (!inFirst.contains(lower(part.label)))
      found.push_back({part.label, "", std::nullopt, Json(true)});
  return found;
}

std::pair<std::string, std::string> shownValues(const Difference& difference) {
  const auto& [part, property, first, second] = difference;
  if (first && second && first->is_string() && second->is_string()) {
    const auto& left = first->get_ref<const std::string&>();
    const auto& right = second->get_ref<const std::string&>();
    if (isLong(left) || isLong(right)) {
      const auto [where, unused] =
          std::mismatch(left.begin(), left.end(), right.begin(), right.end());
      const auto position = static_cast<std::size_t>(where - left.begin());
      const auto line = "line " + std::to_string(std::count(left.begin(), where, '\n') + 1);
      const std::string leftLine = quoted(lineAt(left, position)),
                        rightLine = quoted(lineAt(right, position));
      // Line ends, or nothing but the end of one text.
      if (leftLine == rightLine)
        return {line + " ends otherwise: " + leftLine + ", " + sizeOf(left), sizeOf(right)};
      return {line + ": " + leftLine, rightLine};
    }
  }
  const auto show = [](const std::optional<Json>& value) {
    return value ? shown(*value) : std::string(kNotThere);
  };
  return {show(first), show(second)};
}

}  // namespace tarrowin
