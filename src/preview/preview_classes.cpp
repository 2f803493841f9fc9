// The tables of classes.
#include "preview/preview_classes.h"

#include <algorithm>
#include <array>
#include <iterator>

#include "core/statement.h"
#include "forms/control_types.h"
#include "shared/value_tests.h"

namespace tarrowin {

namespace {

// A form shown as a list of records becomes a grid; one that cannot be reached, or shows a single
// record, an empty box.
std::string subformClass(const LateBound& ctl) {
  const bool asGrid =
      holds([&] { return isAbove(LateBound(toObject(ctl.get("Form"))).get("DefaultView"), 0); });
  return asGrid ? "MSDataGridLib.DataGrid" : "VB.PictureBox";
}

std::string activeXClass(const LateBound& ctl) { return ctl.text("Class"); }

struct TypeRow {
  std::int32_t type;
  std::string_view className;
  std::string (*asked)(const LateBound& ctl) =
      nullptr;  // what tells the class of that very control
};

// clang-format off
constexpr TypeRow kTypes[] = {
    {control_type::kLabel,            "VB.Label"},
    {control_type::kRectangle,        "VB.Shape"},
    {control_type::kLine,             "VB.Line"},
    {control_type::kPageBreak,        "VB.Line"},
    {control_type::kPage,             "VB.Line"},
    {control_type::kImage,            "VB.Image"},
    {control_type::kCommandButton,    "VB.CommandButton"},
    {control_type::kToggleButton,     "VB.CommandButton"},
    {control_type::kOptionButton,     "VB.OptionButton"},
    {control_type::kCheckBox,         "VB.CheckBox"},
    {control_type::kOptionGroup,      "VB.Frame"},
    {control_type::kBoundObjectFrame, "VB.PictureBox"},
    {control_type::kTextBox,          "VB.TextBox"},
    {control_type::kListBox,          "VB.ListBox"},
    {control_type::kComboBox,         "VB.ComboBox"},
    {control_type::kSubform,          "", subformClass},
    {control_type::kObjectFrame,      "VB.PictureBox"},
    {control_type::kTabControl,       kTabStripClass},
    {control_type::kActiveX,          "", activeXClass},
};

constexpr std::size_t kMostLacks = 13;

struct ClassRow {
  std::string_view className;
  std::array<std::string_view, kMostLacks> lacks;  // of the properties that are written
  std::int32_t highestBorderStyle = 1;
};

// A line has ends in place of a place and a size; the preview keeps these for it all the same.
constexpr ClassRow kClasses[] = {
    {"VB.Label",         {"Locked", "TabStop", "Text"}},
    {"VB.Shape",         {"Appearance", "Caption", "DataField", "DataSource", "Enabled", "ForeColor",
                          "Locked", "TabIndex", "TabStop", "Text", "ToolTipText"}, 6},
    {"VB.Line",          {"Appearance", "BackColor", "BackStyle", "Caption", "DataField",
                          "DataSource", "Enabled", "ForeColor", "Locked", "TabIndex", "TabStop",
                          "Text", "ToolTipText"}, 6},
    {"VB.Image",         {"BackColor", "BackStyle", "Caption", "ForeColor", "Locked", "TabIndex",
                          "TabStop", "Text"}},
    {"VB.CommandButton", {"BackStyle", "BorderStyle", "DataField", "DataSource", "ForeColor",
                          "Locked", "Text"}},
    {"VB.OptionButton",  {"BackStyle", "BorderStyle", "DataField", "DataSource", "Locked", "Text"}},
    {"VB.CheckBox",      {"BackStyle", "BorderStyle", "Locked", "Text"}},
    {"VB.Frame",         {"BackStyle", "DataField", "DataSource", "Locked", "TabStop", "Text"}},
    {"VB.PictureBox",    {"BackStyle", "Caption", "Locked", "Text"}},
    {"VB.TextBox",       {"BackStyle", "Caption"}},
    {"VB.ListBox",       {"BackStyle", "BorderStyle", "Caption", "Locked", "Text"}},
    {"VB.ComboBox",      {"BackStyle", "BorderStyle", "Caption"}},
    {"MSDataGridLib.DataGrid", {"BackStyle", "DataField", "Locked"}},
};
// clang-format on

const ClassRow* rowOf(std::string_view className) {
  const auto row = std::ranges::find(kClasses, className, &ClassRow::className);
  return row == std::end(kClasses) ? nullptr : row;
}

}  // namespace

std::string previewClass(const LateBound& ctl, std::int32_t controlType) {
  const auto row = std::ranges::find(kTypes, controlType, &TypeRow::type);
  if (row == std::end(kTypes)) return {};
  return row->asked ? row->asked(ctl) : std::string(row->className);
}

bool hasPreviewProperty(std::string_view className, std::string_view property) {
  const ClassRow* row = rowOf(className);
  return !row || std::ranges::find(row->lacks, property) == row->lacks.end();
}

bool takesPreviewNumber(std::string_view className, std::string_view property,
                        std::int32_t number) {
  const ClassRow* row = rowOf(className);
  if (!row) return true;
  if (property == "BorderStyle") return number >= 0 && number <= row->highestBorderStyle;
  if (property == "BackStyle") return number == 0 || number == 1;
  if (property == "Height" || property == "Width" || property == "TabIndex") return number >= 0;
  return true;
}

}  // namespace tarrowin
