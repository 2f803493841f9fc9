// The numbers of the objects that designs are made of.
#pragma once

#include <cstdint>
#include <string_view>

namespace tarrowin {

// Which numbers the properties of an object have in its records: kinds of objects that are much
// alike share one numbering. kNone is that of unknown objects.
enum class Numbering : std::uint8_t {
  kForm,  // and reports
  kSection,
  kBreakLevel,
  kLabel,
  kRectangle,
  kLine,
  kImage,
  kCommandButton,
  kOptionButton,  // and check boxes
  kOptionGroup,
  kBoundObjectFrame,
  kTextBox,
  kListBox,
  kComboBox,
  kSubform,
  kObjectFrame,  // unbound object frames and charts
  kPageBreak,
  kCustomControl,
  kToggleButton,
  kTab,
  kPage,
  kAttachment,
  kEmptyCell,
  kWebBrowser,
  kNavigationControl,
  kNavigationButton,
  kNone,
};

// Numbers that objects may have at all; anything else is no object.
inline constexpr std::uint16_t kFirstObjectType = 100, kLastObjectType = 200;
// Below it are controls: ControlType, but for charts, which have a number of their own.
inline constexpr std::uint16_t kFirstNoControl = 150;

struct ObjectType {
  std::string_view kind;  // as in a text export: "TextBox"; empty for an unknown number
  Numbering numbering = Numbering::kNone;
};

const ObjectType& objectType(std::uint16_t number);

}  // namespace tarrowin
