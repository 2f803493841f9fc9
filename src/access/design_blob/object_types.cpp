// The table of objects.
// See object_types.h.
#include "access/design_blob/object_types.h"

#include <array>
#include <cstddef>

namespace tarrowin {

namespace {

struct Row {
  std::uint16_t number;
  std::string_view kind;
  Numbering numbering;
};

using enum Numbering;

// Those from 126 to 130 came with Access 2007.
constexpr Row kRows[] = {
    {100, "Label", kLabel},
    {101, "Rectangle", kRectangle},
    {102, "Line", kLine},
    {103, "Image", kImage},
    {104, "CommandButton", kCommandButton},
    {105, "OptionButton", kOptionButton},
    {106, "CheckBox", kOptionButton},
    {107, "OptionGroup", kOptionGroup},
    {108, "BoundObjectFrame", kBoundObjectFrame},
    {109, "TextBox", kTextBox},
    {110, "ListBox", kListBox},
    {111, "ComboBox", kComboBox},
    {112, "Subform", kSubform},
    {113, "Chart", kObjectFrame},
    {114, "UnboundObjectFrame", kObjectFrame},
    {118, "PageBreak", kPageBreak},
    {119, "CustomControl", kCustomControl},
    {122, "ToggleButton", kToggleButton},
    {123, "Tab", kTab},
    {124, "Page", kPage},
    {126, "Attachment", kAttachment},
    {127, "EmptyCell", kEmptyCell},
    {128, "WebBrowser", kWebBrowser},
    {129, "NavigationControl", kNavigationControl},
    {130, "NavigationButton", kNavigationButton},
    {150, "Form", kForm},
    {151, "Report", kForm},
    {152, "Section", kSection},
    {153, "FormHeader", kSection},
    {154, "FormFooter", kSection},
    {155, "PageHeader", kSection},
    {156, "PageFooter", kSection},
    {157, "BreakHeader", kSection},
    {158, "BreakFooter", kSection},
    {159, "BreakLevel", kBreakLevel},
};

constexpr std::size_t kTypes = kLastObjectType - kFirstObjectType + 1;

constexpr auto kTypesByNumber = [] {
  std::array<ObjectType, kTypes> types;
  for (const Row& row : kRows) types[row.number - kFirstObjectType] = {row.kind, row.numbering};
  return types;
}();

constexpr ObjectType kUnknown;

}  // namespace

const ObjectType& objectType(std::uint16_t number) {
  if (number < kFirstObjectType || number > kLastObjectType) return kUnknown;
  return kTypesByNumber[number - kFirstObjectType];
}

}  // namespace tarrowin
