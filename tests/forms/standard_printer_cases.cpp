// Blocks of the intrinsic controls.
#include "forms/control_printers.h"
#include "forms/printer_case.h"

namespace tarrowin::test {

namespace {

// clang-format off
PrinterCase textBox() {
  return {"TextBox", PrintTextBoxProps, 109, Indent::kEveryLine,
          R"({
      "TextAlign": 3, "SpecialEffect": 2, "BackColor": 1101, "ControlSource": "Field One",
      "Enabled": true, "FontName": "Arial Narrow", "FontItalic": true, "FontSize": 9.25,
      "FontUnderline": true, "FontWeight": 700, "ForeColor": 1102, "Height": 1103,
      "HelpContextID": 1104, "Left": 2000, "Locked": true, "TabIndex": 1105, "TabStop": true,
      "Tag": "Tag \"A\"\tB ", "ToolTipText": "ToolTipText \"A\"\tB ", "Top": 1500,
      "Visible": true, "Width": 1106
      })",
          {
          {"   Begin VB.TextBox My_Control"},
          {"      Alignment     = 1", "TextAlign"},
          {"      Appearance    = 1", "SpecialEffect"},
          {"      BackColor     = 1101"},
          {"      BorderStyle   = 1", "SpecialEffect"},
          {"      DataField     = \"Field One\""},
          {"      DataSource    = \"Data1\""},
          {"      Enabled       = -1", "Enabled"},
          {"      BeginProperty Font"},
          {"         Name       = \"Arial Narrow\"", "FontName"},
          {"         Italic     = -1  ' True", "FontName FontItalic"},
          {"         Size       = 9.25", "FontName FontItalic FontSize"},
          {"         Underline  = -1  'True", "FontName FontItalic FontSize FontUnderline"},
          {"         Weight     = 700", "FontName FontItalic FontSize FontUnderline FontWeight"},
          {"      EndProperty"},
          {"      ForeColor     = 1102"},
          {"      Height        = 1103"},
          {"      HelpContextID = 1104"},
          {"      Left          = ", "", Mark::kLeft},
          {"      Locked        = -1", "Locked"},
          {"      TabIndex      = 1105"},
          {"      TabStop       = -1", "TabStop"},
          {"      Tag           = \"Tag 'A' B \"", "Tag"},
          {"      ToolTipText   = \"ToolTipText 'A' B \"", "ToolTipText"},
          {"      Top           = ", "", Mark::kTop},
          {"      Visible       = -1", "Visible"},
          {"      Width         = 1106"},
          {"   End   'My_Control"},
          }};
}

PrinterCase label() {
  return {"Label", PrintLabelProps, 100, Indent::kEveryLine,
          R"({
      "TextAlign": 3, "SpecialEffect": 2, "BackStyle": 1101, "BackColor": 1102,
      "Caption": "Caption \"A\"\tB ", "FontName": "Arial Narrow", "FontItalic": true,
      "FontSize": 9.25, "FontUnderline": true, "FontWeight": 700, "ForeColor": 1103,
      "Height": 1104, "Left": 2000, "Tag": "Tag \"A\"\tB ", "Top": 1500, "Visible": true,
      "Width": 1105
      })",
          {
          {"   Begin VB.Label My_Control"},
          {"      Alignment     = 1", "TextAlign"},
          {"      Appearance    = 1", "SpecialEffect"},
          {"      BackColor     = 1102", "BackStyle"},
          {"      BackStyle     = 1101"},
          {"      BorderStyle   = 1", "SpecialEffect"},
          {"      Caption       = \"Caption 'A' B \"", "Caption"},
          {"      Enabled       = -1"},
          {"      BeginProperty Font"},
          {"         Name       = \"Arial Narrow\"", "FontName"},
          {"         Italic     = -1  ' True", "FontName FontItalic"},
          {"         Size       = 9.25", "FontName FontItalic FontSize"},
          {"         Underline  = -1  'True", "FontName FontItalic FontSize FontUnderline"},
          {"         Weight     = 700", "FontName FontItalic FontSize FontUnderline FontWeight"},
          {"      EndProperty"},
          {"      ForeColor     = 1103"},
          {"      Height        = 1104"},
          {"      Left          = ", "", Mark::kLeft},
          {"      Tag           = \"Tag \"A\"\tB\"", "Tag"},
          {"      ToolTipText   = \"Tag 'A' B \"", "Tag"},
          {"      Top           = ", "", Mark::kTop},
          {"      Visible       = -1", "Visible"},
          {"      Width         = 1105"},
          {"   End   'My_Control"},
          }};
}

PrinterCase commandButton() {
  return {"CommandButton", PrintCommandButtonProps, 104, Indent::kEveryLine,
          R"({
      "Cancel": true, "Caption": "Caption \"A\"\tB ", "Default": true, "Enabled": true,
      "FontName": "Arial Narrow", "FontItalic": true, "FontSize": 9.25, "FontUnderline": true,
      "FontWeight": 700, "Height": 1101, "Left": 2000, "TabStop": true, "Tag": "Tag \"A\"\tB ",
      "ToolTipText": "ToolTipText \"A\"\tB ", "Top": 1500, "Visible": true, "Width": 1102
      })",
          {
          {"   Begin VB.CommandButton My_Control"},
          {"      Cancel        = -1", "Cancel", Mark::kOutsideGroup},
          {"      Caption       = \"Caption 'A' B \"", "Caption"},
          {"      Default       = -1", "Default", Mark::kOutsideGroup},
          {"      Enabled       = -1", "Enabled"},
          {"      BeginProperty Font"},
          {"         Name       = \"Arial Narrow\"", "FontName"},
          {"         Italic     = -1  ' True", "FontName FontItalic"},
          {"         Size       = 9.25", "FontName FontItalic FontSize"},
          {"         Underline  = -1  'True", "FontName FontItalic FontSize FontUnderline"},
          {"         Weight     = 700", "FontName FontItalic FontSize FontUnderline FontWeight"},
          {"      EndProperty"},
          {"      Height        = 1101"},
          {"      Left          = ", "", Mark::kLeft},
          {"      TabStop       = -1", "TabStop", Mark::kOutsideGroup},
          {"      Style         = 0"},
          {"      Tag           = \"Tag 'A' B \"", "Tag"},
          {"      ToolTipText   = \"ToolTipText 'A' B \"", "ToolTipText"},
          {"      Top           = ", "", Mark::kTop},
          {"      Visible       = -1", "Visible"},
          {"      Width         = 1102"},
          {"   End   'My_Control"},
          }};
}

PrinterCase toggleButton() {
  PrinterCase button = commandButton();
  button.name = "ToggleButton";
  button.type = 122;
  return button;
}

PrinterCase checkBox() {
  return {"CheckBox", PrintCheckBoxProps, 106, Indent::kEveryLine,
          R"({
      "SpecialEffect": 2, "ControlSource": "Field One", "Enabled": true, "Height": 1101,
      "HelpContextID": 1102, "Left": 2000, "TabStop": true, "Tag": "Tag \"A\"\tB ",
      "ToolTipText": "ToolTipText \"A\"\tB ", "Top": 1500, "Visible": true, "Width": 1103
      })",
          {
          {"   Begin VB.CheckBox My_Control"},
          {"      Appearance    = 1", "SpecialEffect"},
          {"      DataField     = \"Field One\"", "", Mark::kOutsideGroup},
          {"      DataSource    = \"Data1\"", "", Mark::kOutsideGroup},
          {"      Enabled       = -1", "Enabled"},
          {"      Height        = 1101"},
          {"      HelpContextId = 1102"},
          {"      Left          = ", "", Mark::kLeft},
          {"      TabStop       = -1", "TabStop", Mark::kOutsideGroup},
          {"      Tag           = \"Tag 'A' B \"", "Tag"},
          {"      ToolTipText   = \"ToolTipText 'A' B \"", "ToolTipText"},
          {"      Top           = ", "", Mark::kTop},
          {"      Visible       = -1", "Visible"},
          {"      Width         = 1103"},
          {"   End   'My_Control"},
          }};
}

PrinterCase optionButton() {
  return {"OptionButton", PrintOptionButtonProps, 105, Indent::kEveryLine,
          R"({
      "SpecialEffect": 2, "Enabled": true, "Height": 1101, "HelpContextID": 1102, "Left": 2000,
      "Tag": "Tag \"A\"\tB ", "ToolTipText": "ToolTipText \"A\"\tB ", "TabStop": true,
      "Top": 1500, "OptionValue": 1103, "Visible": true, "Width": 1104
      })",
          {
          {"   Begin VB.OptionButton My_Control"},
          {"      Appearance    = 1", "SpecialEffect"},
          {"      Enabled       = -1", "Enabled"},
          {"      Height        = 1101"},
          {"      HelpContextId = 1102"},
          {"      Left          = ", "", Mark::kLeft},
          {"      Tag           = \"Tag 'A' B \"", "Tag"},
          {"      ToolTipText   = \"ToolTipText 'A' B \"", "ToolTipText"},
          {"      TabStop       = -1", "TabStop", Mark::kOutsideGroup},
          {"      Top           = ", "", Mark::kTop},
          {"      Value         = 1103"},
          {"      Visible       = -1", "Visible"},
          {"      Width         = 1104"},
          {"   End   'My_Control"},
          }};
}

PrinterCase rectangle() {
  return {"Rectangle", PrintRectangleProps, 101, Indent::kEveryLine,
          R"({
      "BackStyle": 1101, "BackColor": 1102, "BorderColor": 1103, "BorderStyle": 1104,
      "BorderWidth": 1105, "Height": 1106, "Left": 2000, "Tag": "Tag \"A\"\tB ", "Top": 1500,
      "Visible": true, "Width": 1107
      })",
          {
          {"   Begin VB.Shape My_Control"},
          {"      BackColor   = 1102", "BackStyle"},
          {"      BackStyle   = 1101"},
          {"      BorderColor = 1103"},
          {"      BorderStyle = 1104"},
          {"      BorderWidth = 1105"},
          {"      Height      = 1106"},
          {"      Left        = ", "", Mark::kLeft},
          {"      Tag         = \"Tag \"A\"\tB\"", "Tag"},
          {"      Top           = ", "", Mark::kTop},
          {"      Visible     = -1", "Visible"},
          {"      Width       = 1107"},
          {"   End   'My_Control"},
          }};
}

PrinterCase line() {
  return {"Line", PrintLineProps, 102, Indent::kEveryLine,
          R"({
      "BorderColor": 1101, "SpecialEffect": 2, "BorderWidth": 1102, "Left": 2000, "Top": 1500,
      "Width": 1103, "Visible": true
      })",
          {
          {"   Begin VB.Line My_Control"},
          {"      BorderColor = 1101"},
          {"      BorderStyle = 1", "SpecialEffect"},
          {"      BorderWidth = 1102"},
          {"      X1          = ", "", Mark::kLeft},
          {"      Y1          = ", "", Mark::kTop},
          {"      X2          = ", "Width", Mark::kRightEnd},
          {"      Y2          = ", "", Mark::kTop},
          {"      Visible     = -1", "Visible"},
          {"   End   'My_Control"},
          }};
}

PrinterCase image() {
  return {"Image", PrintImageProps, 103, Indent::kEveryLine,
          R"({
      "SpecialEffect": 2, "BorderStyle": 2, "Height": 1101, "Left": 2000,
      "Tag": "Tag \"A\"\tB ", "ToolTipText": "ToolTipText \"A\"\tB ", "Top": 1500,
      "Visible": true, "Width": 1102
      })",
          {
          {"   Begin VB.Image My_Control"},
          {"      Appearance    = 1", "SpecialEffect"},
          {"      BorderStyle   = 1", "BorderStyle"},
          {"      Enabled       = -1"},
          {"      Height        = 1101"},
          {"      Left          = ", "", Mark::kLeft},
          {"      Tag           = \"Tag 'A' B \"", "Tag"},
          {"      ToolTipText   = \"ToolTipText 'A' B \"", "ToolTipText"},
          {"      Top           = ", "", Mark::kTop},
          {"      Visible       = -1", "Visible"},
          {"      Width         = 1102"},
          {"   End   'My_Control"},
          }};
}

PrinterCase objectFrame() {
  return {"ObjectFrame", PrintObjectFrameProps, 108, Indent::kEveryLine,
          R"({
      "SpecialEffect": 2, "BackStyle": 1101, "BackColor": 1102, "ControlSource": "Field One",
      "Enabled": true, "Height": 1103, "Left": 2000, "Tag": "Tag \"A\"\tB ",
      "ToolTipText": "ToolTipText \"A\"\tB ", "Top": 1500, "Visible": true, "Width": 1104
      })",
          {
          {"   Begin VB.PictureBox My_Control"},
          {"      Appearance    = 1", "SpecialEffect"},
          {"      BackColor     = 1102", "BackStyle"},
          {"      DataField     = \"Field One\""},
          {"      DataSource    = \"Data1\""},
          {"      Enabled       = -1", "Enabled"},
          {"      Height        = 1103"},
          {"      Left          = ", "", Mark::kLeft},
          {"      Tag           = \"Tag 'A' B \"", "Tag"},
          {"      ToolTipText   = \"ToolTipText 'A' B \"", "ToolTipText"},
          {"      Top           = ", "", Mark::kTop},
          {"      Visible       = -1", "Visible"},
          {"      Width         = 1104"},
          {"   End   'My_Control"},
          }};
}

PrinterCase boundOle() {
  return {"OLE", PrintOLEProps, 108, Indent::kEveryLine,
          R"({
      "SpecialEffect": 2, "AutoActivate": 1101, "BackStyle": 1102, "BackColor": 1103,
      "BorderStyle": 2, "Class": "  Class text ", "ControlSource": "Field One",
      "DisplayType": true, "Enabled": true, "Height": 1104, "HelpContextID": 1105, "Left": 2000,
      "OLETypeAllowed": 1106, "SizeMode": 3, "SourceDoc": "  SourceDoc text ",
      "SourceItem": "  SourceItem text ", "TabIndex": 1107, "TabStop": true,
      "Tag": "Tag \"A\"\tB ", "ToolTipText": "ToolTipText \"A\"\tB ", "Top": 1500, "Verb": 1108,
      "Visible": true, "Width": 1109
      })",
          {
          {"   Begin VB.OLE My_Control"},
          {"      Appearance    = 1", "SpecialEffect"},
          {"      AutoActivate  = 1101"},
          {"      BackColor     = 1103", "BackStyle"},
          {"      BorderStyle   = 1", "BorderStyle"},
          {"      Class         = \"Class text\"", "Class"},
          {"      DataField     = \"Field One\""},
          {"      DataSource    = \"Data1\""},
          {"      DisplayType   = 1", "DisplayType"},
          {"      Enabled       = -1", "Enabled"},
          {"      Height        = 1104"},
          {"      HelpContextId = 1105"},
          {"      Left          = ", "", Mark::kLeft},
          {"      OLETypeAllowed= 1106"},
          {"      SizeMode      = 3", "SizeMode"},
          {"      SourceDoc     = \"SourceDoc text\"", "SourceDoc"},
          {"      SourceItem    = \"SourceItem text\"", "SourceItem"},
          {"      TabIndex      = 1107"},
          {"      TabStop       = -1", "TabStop"},
          {"      Tag           = \"Tag 'A' B \"", "Tag"},
          {"      ToolTipText   = \"ToolTipText 'A' B \"", "ToolTipText"},
          {"      Top           = ", "", Mark::kTop},
          {"      Verb          = 1108"},
          {"      Visible       = -1", "Visible"},
          {"      Width         = 1109"},
          {"   End   'My_Control"},
          }};
}

PrinterCase subFormFrame() {
  return {"SubFormFrame", PrintSubFormFrameProps, 112, Indent::kEveryLine,
          R"({
      "SpecialEffect": 2, "BackStyle": 1101, "BackColor": 1102, "Enabled": true, "Height": 1103,
      "Left": 2000, "Tag": "Tag \"A\"\tB ", "ToolTipText": "ToolTipText \"A\"\tB ", "Top": 1500,
      "Visible": true, "Width": 1104
      })",
          {
          {"   Begin VB.PictureBox My_Control"},
          {"      Appearance    = 1", "SpecialEffect"},
          {"      BackColor     = 1102", "BackStyle"},
          {"      Enabled       = -1", "Enabled"},
          {"      Height        = 1103"},
          {"      Left          = ", "", Mark::kLeft},
          {"      Tag           = \"Tag 'A' B \"", "Tag"},
          {"      ToolTipText   = \"ToolTipText 'A' B \"", "ToolTipText"},
          {"      Top           = ", "", Mark::kTop},
          {"      Visible       = -1", "Visible"},
          {"      Width         = 1104"},
          }};
}
// clang-format on

}  // namespace

std::vector<PrinterCase> standardPrinterCases() {
  return {textBox(),   label(), commandButton(), toggleButton(), checkBox(), optionButton(),
          rectangle(), line(),  image(),         objectFrame(),  boundOle(), subFormFrame()};
}

}  // namespace tarrowin::test
