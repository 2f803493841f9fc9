// The printers of the intrinsic controls without items: text, buttons, shapes and pictures.
#include <algorithm>
#include <iterator>
#include <span>

#include "core/statement.h"
#include "forms/control_geometry.h"
#include "forms/control_printers.h"
#include "forms/control_types.h"
#include "forms/picture_code.h"
#include "forms/printer_rows.h"
#include "forms/value_rules.h"
#include "shared/value_tests.h"

namespace tarrowin {

namespace {

using namespace value_rule;
using namespace row_condition;
using row_block::font;

bool outsideWithDataCtl(const PrintedControl& control) {
  return outsideOptionGroup(control) && withDataCtl(control);
}

bool outsideWithAdoAlone(const PrintedControl& control) {
  return outsideOptionGroup(control) && withAdoAlone(control);
}

bool isRectangle(const PrintedControl& control) {
  return equals(control.ctl.get("ControlType"), control_type::kRectangle);
}

bool isBoundFrame(const PrintedControl& control) {
  return equals(control.ctl.get("ControlType"), control_type::kBoundObjectFrame) &&
         withDataCtl(control);
}

bool isFrameWithRowSource(const PrintedControl& control) {
  return !holds([&] { return isBoundFrame(control); }) &&
         !joined(control.ctl.get("RowSource")).empty();
}

bool withBorderWidth(const PrintedControl& control) {
  return isAbove(control.ctl.get("BorderWidth"), 0);
}

// A shape with Access's transparent border has a solid one.
void shapeBorder(const PrintedControl& control, std::string_view, std::string& line) {
  const Value style = control.ctl.get("BorderStyle");
  line += equals(style, 0) ? "1" : joined(style);
}

void imageBorder(const PrintedControl& control, std::string_view, std::string& line) {
  const Value style = control.ctl.get("BorderStyle");
  line += isAbove(style, 0) ? "1" : joined(style);
}

void rightEnd(const PrintedControl& control, std::string_view, std::string& line) {
  const std::int64_t start = GetControlLeft(control.main, control.ctl);
  line += joined(sum(control.ctl.get("Width"), start));
}

void displayType(const PrintedControl& control, std::string_view, std::string& line) {
  line += isTrue(control.ctl.get("DisplayType")) ? '1' : '0';
}

// Access's Clip, Stretch and Zoom are those of Visual Basic; all else sizes itself.
void sizeMode(const PrintedControl& control, std::string_view, std::string& line) {
  constexpr std::int32_t kKept[] = {0, 1, 3};
  constexpr std::int32_t kAutosize = 2;
  const Value mode = control.ctl.get("SizeMode");
  const auto* kept =
      std::ranges::find_if(kKept, [&](std::int32_t number) { return equals(mode, number); });
  line += std::to_string(kept == std::end(kKept) ? kAutosize : *kept);
}

// A button with a picture file is a graphical one. An embedded picture leaves no row.
void buttonPicture(const PrintedControl& control) {
  constexpr PrinterRow kStandard("      Style         = 0");
  constexpr PrinterRow kGraphical("      Style         = 1");
  const Picture picture = storePicture(control, "Picture");
  if (picture == Picture::kEmbedded) return;
  printRow(control, picture == Picture::kFile ? kGraphical : kStandard, control.state().strIndent);
}

void imagePicture(const PrintedControl& control) { storePicture(control, "Picture"); }

void framePicture(const PrintedControl& control) { storePicture(control, "SourceDoc"); }

// clang-format off
constexpr PrinterRow kTextBoxRows[] = {
    {"   Begin VB.TextBox ",   prefixedName, "txt"},
    {"      Alignment     = ", alignment},
    {"      Appearance    = ", appearance},
    {"      BackColor     = ", raw,          "BackColor"},
    {"      BorderStyle   = ", effectBorder},
    {"      DataField     = ", quotedField},
    {"      DataSource    = ", quotedText,   "Data1", withDataCtl},
    {"      DataSource    = ", quotedAdodc,  {},      withAdoAlone},
    {"      Enabled       = ", boolean,      "Enabled"},
    PrinterRow(font),
    {"      ForeColor     = ", raw,          "ForeColor"},
    {"      Height        = ", raw,          "Height"},
    {"      HelpContextID = ", raw,          "HelpContextID"},
    {"      Left          = ", left},
    {"      Locked        = ", boolean,      "Locked"},
    {"      TabIndex      = ", raw,          "TabIndex"},
    {"      TabStop       = ", boolean,      "TabStop"},
    {"      Tag           = ", quotedClean,  "Tag"},
    {"      ToolTipText   = ", quotedClean,  "ToolTipText"},
    {"      Top           = ", top},
    {"      Visible       = ", boolean,      "Visible"},
    {"      Width         = ", raw,          "Width"},
    {"   End   '",             name},
};

// The tool tip of a label is its tag.
constexpr PrinterRow kLabelRows[] = {
    {"   Begin VB.Label ",       name},
    {"      Alignment     = ",   alignment},
    {"      Appearance    = ",   appearance},
    {"      BackColor     = ",   backColor},
    {"      BackStyle     = ",   raw,          "BackStyle"},
    {"      BorderStyle   = ",   effectBorder},
    {"      Caption       = ",   quotedClean,  "Caption"},
    {"      Enabled       = -1"},
    PrinterRow(font),
    {"      ForeColor     = ",   raw,          "ForeColor"},
    {"      Height        = ",   raw,          "Height"},
    {"      Left          = ",   left},
    {"      Tag           = ",   quotedTrim,   "Tag"},
    {"      ToolTipText   = ",   quotedClean,  "Tag"},
    {"      Top           = ",   top},
    {"      Visible       = ",   boolean,      "Visible"},
    {"      Width         = ",   raw,          "Width"},
    {"   End   '",               name},
};

constexpr PrinterRow kCommandButtonRows[] = {
    {"   Begin VB.CommandButton ", name},
    {"      Cancel        = ", boolean,     "Cancel",  outsideOptionGroup},
    {"      Caption       = ", quotedClean, "Caption"},
    {"      Default       = ", boolean,     "Default", outsideOptionGroup},
    {"      Enabled       = ", boolean,     "Enabled"},
    PrinterRow(font),
    {"      Height        = ", raw,         "Height"},
    {"      Left          = ", left},
    {"      TabStop       = ", boolean,     "TabStop", outsideOptionGroup},
    PrinterRow(buttonPicture),
    {"      Tag           = ", quotedClean, "Tag"},
    {"      ToolTipText   = ", quotedClean, "ToolTipText"},
    {"      Top           = ", top},
    {"      Visible       = ", boolean,     "Visible"},
    {"      Width         = ", raw,         "Width"},
    {"   End   '",             name},
};

constexpr PrinterRow kCheckBoxRows[] = {
    {"   Begin VB.CheckBox ",  prefixedName, "chk"},
    {"      Appearance    = ", appearance},
    {"      DataField     = ", quotedField,  {},        outsideWithDataCtl},
    {"      DataSource    = ", quotedText,   "Data1",   outsideWithDataCtl},
    {"      DataSource    = ", quotedAdodc,  {},        outsideWithAdoAlone},
    {"      Enabled       = ", boolean,      "Enabled"},
    {"      Height        = ", raw,          "Height"},
    {"      HelpContextId = ", raw,          "HelpContextID"},
    {"      Left          = ", left},
    {"      TabStop       = ", boolean,      "TabStop", outsideOptionGroup},
    {"      Tag           = ", quotedClean,  "Tag"},
    {"      ToolTipText   = ", quotedClean,  "ToolTipText"},
    {"      Top           = ", top},
    {"      Visible       = ", boolean,      "Visible"},
    {"      Width         = ", raw,          "Width"},
    {"   End   '",             name},
};

constexpr PrinterRow kOptionButtonRows[] = {
    {"   Begin VB.OptionButton ", name},
    {"      Appearance    = ", appearance},
    {"      Enabled       = ", boolean,     "Enabled"},
    {"      Height        = ", raw,         "Height"},
    {"      HelpContextId = ", raw,         "HelpContextID"},
    {"      Left          = ", left},
    {"      Tag           = ", quotedClean, "Tag"},
    {"      ToolTipText   = ", quotedClean, "ToolTipText"},
    {"      TabStop       = ", boolean,     "TabStop", outsideOptionGroup},
    {"      Top           = ", top},
    {"      Value         = ", raw,         "OptionValue"},
    {"      Visible       = ", boolean,     "Visible"},
    {"      Width         = ", raw,         "Width"},
    {"   End   '",             name},
};

// The key of Top is as wide as elsewhere.
constexpr PrinterRow kRectangleRows[] = {
    {"   Begin VB.Shape ",     name},
    {"      BackColor   = ",   backColor,   {},            isRectangle},
    {"      BackStyle   = ",   raw,         "BackStyle",   isRectangle},
    {"      BorderColor = ",   raw,         "BorderColor"},
    {"      BorderStyle = ",   shapeBorder},
    {"      BorderWidth = ",   raw,         "BorderWidth", withBorderWidth},
    {"      Height      = ",   raw,         "Height"},
    {"      Left        = ",   left},
    {"      Tag         = ",   quotedTrim,  "Tag"},
    {"      Top           = ", top},
    {"      Visible     = ",   boolean,     "Visible"},
    {"      Width       = ",   raw,         "Width"},
    {"   End   '",             name},
};

// From the upper left to the right; a line keeps the Y of its start.
constexpr PrinterRow kLineRows[] = {
    {"   Begin VB.Line ",    name},
    {"      BorderColor = ", raw,          "BorderColor"},
    {"      BorderStyle = ", effectBorder},
    {"      BorderWidth = ", raw,          "BorderWidth", withBorderWidth},
    {"      X1          = ", left},
    {"      Y1          = ", top},
    {"      X2          = ", rightEnd},
    {"      Y2          = ", top},
    {"      Visible     = ", boolean,      "Visible"},
    {"   End   '",           name},
};

constexpr PrinterRow kImageRows[] = {
    {"   Begin VB.Image ",       name},
    {"      Appearance    = ",   appearance},
    {"      BorderStyle   = ",   imageBorder},
    {"      Enabled       = -1"},
    {"      Height        = ",   raw,         "Height"},
    {"      Left          = ",   left},
    PrinterRow(imagePicture),
    {"      Tag           = ",   quotedClean, "Tag"},
    {"      ToolTipText   = ",   quotedClean, "ToolTipText"},
    {"      Top           = ",   top},
    {"      Visible       = ",   boolean,     "Visible"},
    {"      Width         = ",   raw,         "Width"},
    {"   End   '",               name},
};

constexpr PrinterRow kObjectFrameRows[] = {
    {"   Begin VB.PictureBox ", name},
    {"      Appearance    = ", appearance},
    {"      BackColor     = ", backColor},
    {"      DataField     = ", quotedField, {},      isBoundFrame},
    {"      DataSource    = ", quotedText,  "Data1", isBoundFrame},
    {"      DataSource    = ", quotedText,  "Data1", isFrameWithRowSource},
    {"      Enabled       = ", boolean,     "Enabled"},
    {"      Height        = ", raw,         "Height"},
    {"      Left          = ", left},
    PrinterRow(framePicture),
    {"      Tag           = ", quotedClean, "Tag"},
    {"      ToolTipText   = ", quotedClean, "ToolTipText"},
    {"      Top           = ", top},
    {"      Visible       = ", boolean,     "Visible"},
    {"      Width         = ", raw,         "Width"},
    {"   End   '",             name},
};

constexpr PrinterRow kOLERows[] = {
    {"   Begin VB.OLE ",       name},
    {"      Appearance    = ", appearance},
    {"      AutoActivate  = ", raw,          "AutoActivate"},
    {"      BackColor     = ", backColor},
    {"      BorderStyle   = ", cappedBorder},
    {"      Class         = ", quotedTrim,   "Class"},
    {"      DataField     = ", quotedField,  {},      isBoundFrame},
    {"      DataSource    = ", quotedText,   "Data1", isBoundFrame},
    {"      DisplayType   = ", displayType},
    {"      Enabled       = ", boolean,      "Enabled"},
    {"      Height        = ", raw,          "Height"},
    {"      HelpContextId = ", raw,          "HelpContextID"},
    {"      Left          = ", left},
    {"      OLETypeAllowed= ", raw,          "OLETypeAllowed"},
    {"      SizeMode      = ", sizeMode},
    {"      SourceDoc     = ", quotedTrim,   "SourceDoc"},
    {"      SourceItem    = ", quotedTrim,   "SourceItem"},
    {"      TabIndex      = ", raw,          "TabIndex"},
    {"      TabStop       = ", boolean,      "TabStop"},
    {"      Tag           = ", quotedClean,  "Tag"},
    {"      ToolTipText   = ", quotedClean,  "ToolTipText"},
    {"      Top           = ", top},
    {"      Verb          = ", raw,          "Verb"},
    {"      Visible       = ", boolean,      "Visible"},
    {"      Width         = ", raw,          "Width"},
    {"   End   '",             name},
};
// clang-format on

}  // namespace

void PrintTextBoxProps(MainObject& main, const LateBound& ctl) {
  printRows({main, ctl}, kTextBoxRows);
}

void PrintLabelProps(MainObject& main, const LateBound& ctl) { printRows({main, ctl}, kLabelRows); }

void PrintCommandButtonProps(MainObject& main, const LateBound& ctl) {
  printRows({main, ctl}, kCommandButtonRows);
}

void PrintCheckBoxProps(MainObject& main, const LateBound& ctl) {
  printRows({main, ctl}, kCheckBoxRows);
}

void PrintOptionButtonProps(MainObject& main, const LateBound& ctl) {
  printRows({main, ctl}, kOptionButtonRows);
}

void PrintRectangleProps(MainObject& main, const LateBound& ctl) {
  printRows({main, ctl}, kRectangleRows);
}

void PrintLineProps(MainObject& main, const LateBound& ctl) { printRows({main, ctl}, kLineRows); }

void PrintImageProps(MainObject& main, const LateBound& ctl) { printRows({main, ctl}, kImageRows); }

void PrintObjectFrameProps(MainObject& main, const LateBound& ctl) {
  printRows({main, ctl}, kObjectFrameRows);
}

void PrintOLEProps(MainObject& main, const LateBound& ctl) { printRows({main, ctl}, kOLERows); }

void PrintSubFormFrameProps(MainObject& main, const LateBound& ctl) {
  printRows({main, ctl}, std::span(kObjectFrameRows).first(std::size(kObjectFrameRows) - 1));
}

}  // namespace tarrowin
