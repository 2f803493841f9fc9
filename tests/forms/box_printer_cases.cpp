// Blocks of the boxes with a list of items.
#include "forms/control_printers.h"
#include "forms/printer_case.h"

namespace tarrowin::test {

namespace {

// clang-format off
PrinterCase comboBox() {
  return {"ComboBox", PrintComboBoxProps, 111, Indent::kEveryLine,
          R"({
      "ControlSource": "Field One", "SpecialEffect": 2, "BackColor": 1101, "Enabled": true,
      "FontName": "Arial Narrow", "FontItalic": true, "FontSize": 9.25, "FontUnderline": true,
      "FontWeight": 700, "Height": 1102, "HelpContextID": 1103, "Left": 2000, "TabStop": true,
      "Tag": "Tag \"A\"\tB ", "ToolTipText": "ToolTipText \"A\"\tB ", "Top": 1500,
      "Visible": true, "Width": 1104
      })",
          {
          {"   Begin VB.ComboBox My_Control"},
          {"      DataField     = \"Field One\""},
          {"      DataSource    = \"Data1\""},
          {"      Appearance    = 1", "SpecialEffect"},
          {"      BackColor     = 1101"},
          {"      Enabled       = -1", "Enabled"},
          {"      BeginProperty Font"},
          {"         Name       = \"Arial Narrow\"", "FontName"},
          {"         Italic     = -1  ' True", "FontName FontItalic"},
          {"         Size       = 9.25", "FontName FontItalic FontSize"},
          {"         Underline  = -1  'True", "FontName FontItalic FontSize FontUnderline"},
          {"         Weight     = 700", "FontName FontItalic FontSize FontUnderline FontWeight"},
          {"      EndProperty"},
          {"      Height        = 1102"},
          {"      HelpContextID = 1103"},
          {"      Left          = ", "", Mark::kLeft},
          {"      TabStop       = -1", "TabStop"},
          {"      Tag           = \"Tag 'A' B \"", "Tag"},
          {"      ToolTipText   = \"ToolTipText 'A' B \"", "ToolTipText"},
          {"      Top           = ", "", Mark::kTop},
          {"      Visible       = -1", "Visible"},
          {"      Width         = 1104"},
          {"   End   'My_Control"},
          }};
}

PrinterCase listBox() {
  return {"ListBox", PrintListBoxProps, 110, Indent::kEveryLine,
          R"({
      "ControlSource": "Field One", "SpecialEffect": 2, "BackColor": 1101, "ColumnCount": 1102,
      "Enabled": true, "FontName": "Arial Narrow", "FontItalic": true, "FontSize": 9.25,
      "FontUnderline": true, "FontWeight": 700, "Height": 1103, "HelpContextID": 1104,
      "Left": 2000, "MultiSelect": 1105, "TabStop": true, "Tag": "Tag \"A\"\tB ",
      "ToolTipText": "ToolTipText \"A\"\tB ", "Top": 1500, "Visible": true, "Width": 1106
      })",
          {
          {"   Begin VB.ListBox My_Control"},
          {"      DataField     = \"Field One\""},
          {"      DataSource    = \"Data1\""},
          {"      Appearance    = 1", "SpecialEffect"},
          {"      BackColor     = 1101"},
          {"      Columns       = 1102"},
          {"      Enabled       = -1", "Enabled"},
          {"      BeginProperty Font"},
          {"         Name       = \"Arial Narrow\"", "FontName"},
          {"         Italic     = -1  ' True", "FontName FontItalic"},
          {"         Size       = 9.25", "FontName FontItalic FontSize"},
          {"         Underline  = -1  'True", "FontName FontItalic FontSize FontUnderline"},
          {"         Weight     = 700", "FontName FontItalic FontSize FontUnderline FontWeight"},
          {"      EndProperty"},
          {"      Height        = 1103"},
          {"      HelpContextID = 1104"},
          {"      Left          = ", "", Mark::kLeft},
          {"      MultiSelect   = 1105"},
          {"      TabStop       = -1", "TabStop"},
          {"      Tag           = \"Tag 'A' B \"", "Tag"},
          {"      ToolTipText   = \"ToolTipText 'A' B \"", "ToolTipText"},
          {"      Top           = ", "", Mark::kTop},
          {"      Visible       = -1", "Visible"},
          {"      Width         = 1106"},
          {"   End   'My_Control"},
          }};
}
// clang-format on

}  // namespace

std::vector<PrinterCase> boxPrinterCases() { return {comboBox(), listBox()}; }

}  // namespace tarrowin::test
