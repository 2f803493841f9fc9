// The kinds and their numbers.
#include "access/designs/block_kinds.h"

#include <charconv>
#include <string_view>
#include <unordered_map>

namespace tarrowin {

namespace {

using enum BlockRole;

const std::unordered_map<std::string_view, BlockKind>& kindsByName() {
  static const std::unordered_map<std::string_view, BlockKind> kinds = {
      {"Form", {kForm, 0}},
      {"Report", {kReport, 0}},
      {"BreakLevel", {kGroupLevel, 0}},
      {"Section", {kSection, 0}},
      {"FormHeader", {kSection, 1}},
      {"FormFooter", {kSection, 2}},
      {"PageHeader", {kSection, 3}},
      {"PageFooter", {kSection, 4}},
      {"BreakHeader", {kSection, 5}},
      {"BreakFooter", {kSection, 6}},
      {"Label", {kControl, 100}},
      {"Rectangle", {kControl, 101}},
      {"Line", {kControl, 102}},
      {"Image", {kControl, 103}},
      {"CommandButton", {kControl, 104}},
      {"OptionButton", {kControl, 105}},
      {"CheckBox", {kControl, 106}},
      {"OptionGroup", {kControl, 107}},
      {"BoundObjectFrame", {kControl, 108}},
      {"TextBox", {kControl, 109}},
      {"ListBox", {kControl, 110}},
      {"ComboBox", {kControl, 111}},
      {"Subform", {kControl, 112}},
      {"UnboundObjectFrame", {kControl, 114}},
      {"Chart", {kControl, 114}},
      {"PageBreak", {kControl, 118}},
      {"CustomControl", {kControl, 119}},
      {"ToggleButton", {kControl, 122}},
      {"Tab", {kControl, 123}},
      {"Page", {kControl, 124}},
      // Of Access 2007 and later.
      {"Attachment", {kControl, 126}},
      {"EmptyCell", {kControl, 127}},
      {"WebBrowser", {kControl, 128}},
      {"NavigationControl", {kControl, 129}},
      {"NavigationButton", {kControl, 130}},
      {"ModernChart", {kControl, 133}},
  };
  return kinds;
}

bool isControlType(std::int32_t number) {
  for (const auto& [name, kind] : kindsByName())
    if (kind.role == kControl && kind.number == number) return true;
  return false;
}

}  // namespace

BlockKind blockKind(std::string_view kind) {
  if (const auto found = kindsByName().find(kind); found != kindsByName().end())
    return found->second;
  std::int32_t number = 0;
  if (kind.size() < 2 || kind.front() != '#') return {};
  const char* const end = kind.data() + kind.size();
  const auto [rest, error] = std::from_chars(kind.data() + 1, end, number);
  if (error != std::errc() || rest != end || !isControlType(number)) return {};
  return {kControl, number};
}

}  // namespace tarrowin
