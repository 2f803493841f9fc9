// The tables of items.
#include "reports/item_types.h"

#include "forms/control_types.h"
#include "shared/vb_text.h"

namespace tarrowin {

namespace {

struct ItemRow {
  std::int32_t controlType;
  ItemType item;
};
constexpr ItemRow kItems[] = {
    {control_type::kLabel, ItemType::kLabel},
    {control_type::kLine, ItemType::kLine},
    {control_type::kRectangle, ItemType::kShape},
    {control_type::kImage, ItemType::kImage},
};

constexpr PlaceholderRow kPlaceholders[] = {
    {"Date(", "%D"},
    {"Now", "%t"},
    {"Page", "%p"},
};

// Looked for in this order, capitals and small letters as they stand.
struct FunctionRow {
  std::string_view word;
  std::string_view number;
};
constexpr FunctionRow kFunctions[] = {
    {"Sum", "0"}, {"Ave", "1"}, {"Min", "2"}, {"Max", ""}, {"Count", "4"}, {"StDev", "6"},
};

// Sections that take bound texts, and those that take functions; both are taken from the first
// group footer on.
constexpr std::int32_t kDetail = 0, kReportFooter = 2, kFirstGroupHeader = 5, kFirstGroupFooter = 6;

}  // namespace

ItemType itemTypeOf(std::int32_t controlType, std::string_view source) {
  if (controlType == control_type::kTextBox)
    return source.starts_with('=') ? ItemType::kFunction : ItemType::kTextBox;
  for (const ItemRow& row : kItems) {
    if (row.controlType == controlType) return row.item;
  }
  return ItemType::kShape;
}

bool isAllowed(ItemType item, std::int32_t section) {
  if (item == ItemType::kTextBox)
    return section == kDetail || section == kFirstGroupHeader || section >= kFirstGroupFooter;
  if (item == ItemType::kFunction) return section == kReportFooter || section >= kFirstGroupFooter;
  return true;
}

bool hasFont(ItemType item) { return item == ItemType::kLabel || isBound(item); }

bool isBound(ItemType item) { return item == ItemType::kTextBox || item == ItemType::kFunction; }

const PlaceholderRow* placeholderFor(std::string_view source) {
  for (const PlaceholderRow& row : kPlaceholders) {
    if (source.find(row.word) != std::string_view::npos) return &row;
  }
  return nullptr;
}

std::int32_t functionTypeOf(std::string_view source) {
  for (const FunctionRow& row : kFunctions) {
    if (source.find(row.word) != std::string_view::npos) return CInt(row.number);
  }
  return kNoFunction;
}

}  // namespace tarrowin
