// Access's values of Control.ControlType, and the numbers of a form's sections.
#pragma once

#include <cstdint>

namespace tarrowin {

namespace control_type {
inline constexpr std::int32_t kLabel = 100, kRectangle = 101, kLine = 102, kImage = 103,
                              kCommandButton = 104, kOptionButton = 105, kCheckBox = 106,
                              kOptionGroup = 107, kBoundObjectFrame = 108, kTextBox = 109,
                              kListBox = 110, kComboBox = 111, kSubform = 112, kObjectFrame = 114,
                              kPageBreak = 118, kActiveX = 119, kToggleButton = 122,
                              kTabControl = 123, kPage = 124;
}  // namespace control_type

namespace section_number {
inline constexpr std::int32_t kDetail = 0, kFormHeader = 1, kFormFooter = 2, kPageHeader = 3,
                              kPageFooter = 4;
}  // namespace section_number

}  // namespace tarrowin
