// Blocks of the ActiveX controls that hold items, without the Begin line.
#include "forms/control_printers.h"
#include "forms/printer_case.h"

namespace tarrowin::test {

namespace {

// clang-format off
PrinterCase imageCombo() {
  return {"ImageCombo", PrintImageComboProps, 119, Indent::kFontOnly,
          R"({
      "BackColor": 1101, "FontName": "Arial Narrow", "FontItalic": true, "FontSize": 9.25,
      "FontUnderline": true, "FontWeight": 700, "ForeColor": 1102, "Height": 1103, "Left": 2000,
      "TabIndex": 1104, "TabStop": true, "Text": "  Text text ",
      "ToolTipText": "ToolTipText \"A\"\tB ", "Top": 1500, "Width": 1105
      })",
          {
          {"      BackColor     = 1101"},
          {"      BeginProperty Font"},
          {"         Name       = \"Arial Narrow\"", "FontName"},
          {"         Italic     = -1  ' True", "FontName FontItalic"},
          {"         Size       = 9.25", "FontName FontItalic FontSize"},
          {"         Underline  = -1  'True", "FontName FontItalic FontSize FontUnderline"},
          {"         Weight     = 700", "FontName FontItalic FontSize FontUnderline FontWeight"},
          {"      EndProperty"},
          {"      ForeColor     = 1102"},
          {"      Height        = 1103"},
          {"      Left          = ", "", Mark::kLeft},
          {"      TabIndex      = 1104"},
          {"      TabStop       = True", "TabStop"},
          {"      Text          = \"Text text\"", "Text"},
          {"      TooltipText   = \"ToolTipText 'A' B \"", "ToolTipText"},
          {"      Top           = ", "", Mark::kTop},
          {"      Width         = 1105"},
          {"   End   'My_Control"},
          }};
}

PrinterCase imageList() {
  return {"ImageList", PrintImageListProps, 119, Indent::kFontOnly,
          R"({
      "BackColor": 1101, "ImageHeight": 1102, "ImageWidth": 1103, "Left": 2000,
      "MaskColor": 1104, "Top": 1500, "UseMaskColor": true
      })",
          {
          {"      BackColor     = 1101"},
          {"      ImageHeight   = 1102"},
          {"      ImageWidth    = 1103"},
          {"      Left          = ", "", Mark::kLeft},
          {"      MaskColor     = 1104"},
          {"      Top           = ", "", Mark::kTop},
          {"      UseMaskColor  = -1", "UseMaskColor"},
          {"   End   'My_Control"},
          }};
}

PrinterCase listView() {
  return {"ListView", PrintListViewProps, 119, Indent::kFontOnly,
          R"({
      "Appearance": 1101, "Arrange": 1102, "BackColor": 1103, "BorderStyle": 2, "Enabled": true,
      "ForeColor": 1104, "FontName": "Arial Narrow", "FontItalic": true, "FontSize": 9.25,
      "FontUnderline": true, "FontWeight": 700, "HideColumnHeaders": true,
      "HideSelection": true, "Height": 1105, "LabelEdit": 1106, "LabelWrap": true, "Left": 2000,
      "MousePointer": 1107, "MultiSelect": true, "OLEDragMode": 1108, "OLEDropMode": 1109,
      "Sorted": true, "SortKey": 1110, "SortOrder": 1111, "TabIndex": 1112, "TabStop": true,
      "Tag": "Tag \"A\"\tB ", "ToolTipText": "ToolTipText \"A\"\tB ", "Top": 1500, "View": 1113,
      "Visible": true, "Width": 1114
      })",
          {
          {"      Appearance    = 1101"},
          {"      Arrange       = 1102"},
          {"      BackColor     = -1103"},
          {"      BorderStyle   = 1", "BorderStyle"},
          {"      Enabled       = -1", "Enabled"},
          {"      ForeColor     = -1104"},
          {"      BeginProperty Font"},
          {"         Name       = \"Arial Narrow\"", "FontName"},
          {"         Italic     = -1  ' True", "FontName FontItalic"},
          {"         Size       = 9.25", "FontName FontItalic FontSize"},
          {"         Underline  = -1  'True", "FontName FontItalic FontSize FontUnderline"},
          {"         Weight     = 700", "FontName FontItalic FontSize FontUnderline FontWeight"},
          {"      EndProperty"},
          {"      HideColumnHeaders = -1", "HideColumnHeaders"},
          {"      HideSelection = -1", "HideSelection"},
          {"      Height        = 1105"},
          {"      LabelEdit     = 1106"},
          {"      LabelWrap     = -1", "LabelWrap"},
          {"      Left          = ", "", Mark::kLeft},
          {"      MousePointer  = 1107"},
          {"      MultiSelect   = -1", "MultiSelect"},
          {"      OLEDragMode   = 1108"},
          {"      OLEDropMode   = 1109"},
          {"      Sorted        = -1", "Sorted"},
          {"      SortKey       = 1110"},
          {"      SortOrder     = 1111"},
          {"      TabIndex      = 1112"},
          {"      TabStop       = -1", "TabStop"},
          {"      Tag           = \"Tag 'A' B \"", "Tag"},
          {"      ToolTipText   = \"ToolTipText 'A' B \"", "ToolTipText"},
          {"      Top           = ", "", Mark::kTop},
          {"      View          = 1113"},
          {"      Visible       = -1", "Visible"},
          {"      Width         = 1114"},
          {"   End   'My_Control"},
          }};
}

PrinterCase statusBar() {
  return {"StatusBar", PrintStatusBarProps, 119, Indent::kFontOnly,
          R"({
      "Enabled": true, "FontName": "Arial Narrow", "FontItalic": true, "FontSize": 9.25,
      "FontUnderline": true, "FontWeight": 700, "Height": 1101, "HelpContextID": 1102,
      "Left": 2000, "MousePointer": 1103, "OLEDropMode": 1104, "ShowTips": true,
      "SimpleText": "SimpleText text", "Style": 1105, "TabIndex": 1106, "TabStop": true,
      "ToolTipText": "ToolTipText \"A\"\tB ", "Top": 1500, "Visible": true, "Width": 1107
      })",
          {
          {"      Enabled       = -1", "Enabled"},
          {"      BeginProperty Font"},
          {"         Name       = \"Arial Narrow\"", "FontName"},
          {"         Italic     = -1  ' True", "FontName FontItalic"},
          {"         Size       = 9.25", "FontName FontItalic FontSize"},
          {"         Underline  = -1  'True", "FontName FontItalic FontSize FontUnderline"},
          {"         Weight     = 700", "FontName FontItalic FontSize FontUnderline FontWeight"},
          {"      EndProperty"},
          {"      Height        = 1101"},
          {"      HelpContextID = 1102"},
          {"      Left          = ", "", Mark::kLeft},
          {"      MousePointer  = 1103"},
          {"      OLEDropMode   = 1104"},
          {"      ShowTips      = -1", "ShowTips"},
          {"      SimpleText    = \"SimpleText text\""},
          {"      Style         = 1105"},
          {"      TabIndex      = 1106"},
          {"      TabStop       = -1", "TabStop"},
          {"      ToolTipText   = \"ToolTipText 'A' B \"", "ToolTipText"},
          {"      Top           = ", "", Mark::kTop},
          {"      Visible       = -1", "Visible"},
          {"      Width         = 1107"},
          {"   End   'My_Control"},
          }};
}

PrinterCase tabStrip() {
  return {"TabStrip", PrintTabStripProps, 119, Indent::kFontOnly,
          R"({
      "Enabled": true, "FontName": "Arial Narrow", "FontItalic": true, "FontSize": 9.25,
      "FontUnderline": true, "FontWeight": 700, "HelpContextID": 1101, "Height": 1102,
      "Left": 2000, "MousePointer": 1103, "MultiRow": true, "OLEDropMode": 1104,
      "ShowTips": true, "Style": 1105, "TabFixedHeight": 1106, "TabFixedWidth": 1107,
      "TabIndex": 1108, "TabStop": true, "TabWidthStyle": 1109, "Tag": "Tag \"A\"\tB ",
      "ToolTipText": "ToolTipText \"A\"\tB ", "Top": 1500, "Visible": true, "Width": 1110
      })",
          {
          {"      Enabled        = -1", "Enabled"},
          {"      BeginProperty Font"},
          {"         Name       = \"Arial Narrow\"", "FontName"},
          {"         Italic     = -1  ' True", "FontName FontItalic"},
          {"         Size       = 9.25", "FontName FontItalic FontSize"},
          {"         Underline  = -1  'True", "FontName FontItalic FontSize FontUnderline"},
          {"         Weight     = 700", "FontName FontItalic FontSize FontUnderline FontWeight"},
          {"      EndProperty"},
          {"      HelpContextID  = 1101"},
          {"      Height         = 1102"},
          {"      Left           = ", "", Mark::kLeft},
          {"      MousePointer   = 1103"},
          {"      MultiRow       = -1", "MultiRow"},
          {"      OLEDropMode    = 1104"},
          {"      ShowTips       = -1", "ShowTips"},
          {"      Style          = 1105"},
          {"      TabFixedHeight = 1106"},
          {"      TabFixedWidth  = 1107"},
          {"      TabIndex       = 1108"},
          {"      TabStop        = -1", "TabStop"},
          {"      TabWidthStyle  = 1109"},
          {"      Tag           = \"Tag 'A' B \"", "Tag"},
          {"      ToolTipText    = \"ToolTipText 'A' B \"", "ToolTipText"},
          {"      Top            = ", "", Mark::kTop},
          {"      Visible        = -1", "Visible"},
          {"      Width          = 1110"},
          {"   End   'My_Control"},
          }};
}

PrinterCase toolBar() {
  return {"ToolBar", PrintToolBarProps, 119, Indent::kFontOnly,
          R"({
      "AllowCustomize": true, "Appearance": 1101, "BorderStyle": 2, "ButtonHeight": 1102,
      "ButtonWidth": 1103, "Enabled": true, "HelpContextID": 1104, "Height": 1105,
      "HelpFile": "HelpFile text", "Left": 2000, "MousePointer": 1106, "OLEDropMode": 1107,
      "ShowTips": true, "TabIndex": 1108, "Tag": "Tag \"A\"\tB ", "TabStop": true,
      "ToolTipText": "ToolTipText \"A\"\tB ", "Top": 1500, "Wrappable": true, "Visible": true,
      "Width": 1109
      })",
          {
          {"      AllowCustomize = -1", "AllowCustomize"},
          {"      Appearance     = 1101"},
          {"      BorderStyle    = 1", "BorderStyle"},
          {"      ButtonHeight   = 1102"},
          {"      ButtonWidth    = 1103"},
          {"      Enabled        = -1", "Enabled"},
          {"      HelpContextID  = 1104"},
          {"      Height         = 1105"},
          {"      HelpFile       = \"HelpFile text\""},
          {"      Left           = ", "", Mark::kLeft},
          {"      MousePointer   = 1106"},
          {"      OLEDropMode    = 1107"},
          {"      ShowTips       = -1", "ShowTips"},
          {"      TabIndex       = 1108"},
          {"      Tag            = \"Tag 'A' B \"", "Tag"},
          {"      TabStop        = -1", "TabStop"},
          {"      ToolTipText    = \"ToolTipText 'A' B \"", "ToolTipText"},
          {"      Top            = ", "", Mark::kTop},
          {"      Wrappable      = -1", "Wrappable"},
          {"      Visible       = -1", "Visible"},
          {"      Width         = 1109"},
          {"   End   'My_Control"},
          }};
}

PrinterCase treeView() {
  return {"TreeView", PrintTreeViewProps, 119, Indent::kFontOnly,
          R"({
      "Appearance": 1101, "Enabled": true, "FontName": "Arial Narrow", "FontItalic": true,
      "FontSize": 9.25, "FontUnderline": true, "FontWeight": 700, "Height": 1102,
      "HelpContextID": 1103, "HideSelection": true, "Indentation": 1104, "LabelEdit": 1105,
      "Left": 2000, "LineStyle": 1106, "MousePointer": 1107, "OLEDragMode": 1108,
      "OLEDropMode": 1109, "PathSeparator": "PathSeparator text", "Sorted": true, "Style": 1110,
      "TabIndex": 1111, "TabStop": true, "Tag": "Tag \"A\"\tB ",
      "ToolTipText": "ToolTipText \"A\"\tB ", "Top": 1500, "Visible": true, "Width": 1112
      })",
          {
          {"      Appearance     = 1101"},
          {"      Enabled        = -1", "Enabled"},
          {"      BeginProperty Font"},
          {"         Name       = \"Arial Narrow\"", "FontName"},
          {"         Italic     = -1  ' True", "FontName FontItalic"},
          {"         Size       = 9.25", "FontName FontItalic FontSize"},
          {"         Underline  = -1  'True", "FontName FontItalic FontSize FontUnderline"},
          {"         Weight     = 700", "FontName FontItalic FontSize FontUnderline FontWeight"},
          {"      EndProperty"},
          {"      Height         = 1102"},
          {"      HelpContextID  = 1103"},
          {"      HideSelection  = -1", "HideSelection"},
          {"      Indentation    = 1104"},
          {"      LabelEdit      = 1105"},
          {"      Left           = 2000"},
          {"      LineStyle      = 1106"},
          {"      MousePointer   = 1107"},
          {"      OLEDragMode    = 1108"},
          {"      OLEDropMode    = 1109"},
          {"      PathSeparator  = \"PathSeparator text\""},
          {"      Sorted         = -1", "Sorted"},
          {"      Style          = 1110"},
          {"      TabIndex       = 1111"},
          {"      TabStop        = -1", "TabStop"},
          {"      Tag            = \"Tag 'A' B \"", "Tag"},
          {"      ToolTipText    = \"ToolTipText 'A' B \"", "ToolTipText"},
          {"      Top            = ", "", Mark::kTop},
          {"      Visible        = -1", "Visible"},
          {"      Width          = 1112"},
          {"   End   'My_Control"},
          }};
}
// clang-format on

}  // namespace

std::vector<PrinterCase> activexItemPrinterCases() {
  return {imageCombo(), imageList(), listView(), statusBar(), tabStrip(), toolBar(), treeView()};
}

}  // namespace tarrowin::test
