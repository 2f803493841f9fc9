// Finding the names, and where the properties start over between them.
#include "access/exports/shared_blocks.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <string_view>
#include <utility>

namespace tarrowin::exports {

namespace {

// Numbers that Access writes before the name of a control.
constexpr auto kBeforeName = std::to_array<std::string_view>({"BackStyle",
                                                              "BorderLineStyle",
                                                              "BorderWidth",
                                                              "BoundColumn",
                                                              "ColumnCount",
                                                              "DecimalPlaces",
                                                              "DisplayWhen",
                                                              "Height",
                                                              "IMESentenceMode",
                                                              "Left",
                                                              "ListRows",
                                                              "ListWidth",
                                                              "MultiSelect",
                                                              "NumeralShapes",
                                                              "OldBorderStyle",
                                                              "OverlapFlags",
                                                              "RowSourceTypeInt",
                                                              "RunningSum",
                                                              "ScrollBars",
                                                              "SizeMode",
                                                              "SpecialEffect",
                                                              "TabIndex",
                                                              "TextAlign",
                                                              "TextFontCharSet",
                                                              "TextFontFamily",
                                                              "Top",
                                                              "Width"});

// Keywords that only controls of some kinds have.
constexpr auto kOfLists = std::to_array<std::string_view>(
    {"BoundColumn", "ColumnCount", "ColumnHeads", "ColumnInfo", "ColumnWidths", "LimitToList",
     "ListRows", "ListWidth", "RowSource", "RowSourceType", "RowSourceTypeInt"});
constexpr auto kOfTextBoxes = std::to_array<std::string_view>(
    {"AsianLineBreak", "DecimalPlaces", "EnterKeyBehavior", "FELineBreak", "Format",
     "IMESentenceMode", "InputMask", "ScrollBars"});
constexpr auto kOfButtons = std::to_array<std::string_view>(
    {"AccessKey", "AutoRepeat", "Cancel", "Default", "ObjectPalette", "PictureData", "TabIndex",
     "TabStop", "Transparent", "WebImagePaddingLeft"});
constexpr auto kOfTexts = std::to_array<std::string_view>(
    {"FontItalic", "FontName", "FontSize", "FontUnderline", "FontWeight", "ForeColor", "TextAlign",
     "TextFontCharSet", "TextFontFamily"});
constexpr auto kOfDataAndOrder =
    std::to_array<std::string_view>({"ControlSource", "DefaultValue", "TabIndex", "TabStop"});

template <class List>
bool isIn(const List& list, std::string_view keyword) {
  return std::ranges::find(list, keyword) != list.end();
}

bool startsOver(const TextProperty& property, const TextProperty& name) {
  return property.childrenBefore > name.childrenBefore ||
         std::holds_alternative<TurnedOver>(property.content) ||
         (property.number() && isIn(kBeforeName, property.keyword));
}

// The positions at which controls start, 0 for the first.
std::vector<std::size_t> starts(const std::vector<TextProperty>& properties) {
  std::vector<std::size_t> found{0};
  const TextProperty* name = nullptr;
  std::size_t next = 0;  // where the next control would start, none yet: 0
  for (std::size_t i = 0; i < properties.size(); ++i) {
    const TextProperty& property = properties[i];
    if (name != nullptr && next == 0 && startsOver(property, *name)) next = i;
    if (property.keyword != "Name" || property.text() == nullptr) continue;
    if (name != nullptr && *name->text() == *property.text()) continue;
    if (name != nullptr) found.push_back(next == 0 ? i : next);
    name = &property;
    next = 0;
  }
  return found;
}

template <class List>
bool hasOne(const TextBlock& block, const List& list) {
  return std::ranges::any_of(
      block.properties, [&](const TextProperty& property) { return isIn(list, property.keyword); });
}

// By the properties that it has.
std::string kindOfRecovered(const TextBlock& block, const std::string& before) {
  if (hasOne(block, kOfLists)) return before;
  if (block.find("SourceObject")) return "Subform";
  if (block.find("Caption")) return hasOne(block, kOfButtons) ? "CommandButton" : "Label";
  if (hasOne(block, kOfTextBoxes)) return "TextBox";
  const bool hasSize = block.find("Width") || block.find("Height");
  if (hasOne(block, kOfDataAndOrder)) return hasSize ? before : "CheckBox";
  if (!hasSize) return before;
  return hasOne(block, kOfTexts) ? "Label" : "Rectangle";
}

}  // namespace

std::vector<SingleBlock> partSharedBlock(TextBlock&& block) {
  std::vector<SingleBlock> singles;
  const std::vector<std::size_t> from = starts(block.properties);
  if (from.size() == 1) {
    singles.push_back({std::move(block), false});
    return singles;
  }
  std::size_t child = 0;
  for (std::size_t i = 0; i < from.size(); ++i) {
    const bool isLast = i + 1 == from.size();
    const std::size_t end = isLast ? block.properties.size() : from[i + 1];
    const std::size_t childEnd =
        isLast ? block.children.size() : block.properties[end].childrenBefore;
    SingleBlock& single = singles.emplace_back();
    single.recovered = i > 0;
    single.block.kind = block.kind;
    single.block.line = i == 0 ? block.line : block.properties[from[i]].line;
    std::move(block.properties.begin() + static_cast<std::ptrdiff_t>(from[i]),
              block.properties.begin() + static_cast<std::ptrdiff_t>(end),
              std::back_inserter(single.block.properties));
    for (; child < childEnd; ++child)
      single.block.children.push_back(std::move(block.children[child]));
    if (single.recovered) single.block.kind = kindOfRecovered(single.block, block.kind);
  }
  return singles;
}

}  // namespace tarrowin::exports
