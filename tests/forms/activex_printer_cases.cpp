// Blocks of the ActiveX controls that stand for themselves, without the Begin line.
#include "forms/control_printers.h"
#include "forms/printer_case.h"

namespace tarrowin::test {

namespace {

// clang-format off
PrinterCase calendar() {
  return {"Calendar", PrintCalendarProps, 119, Indent::kNone,
          R"({
      "Height": 1101, "Left": 2000, "TabIndex": 1102, "Tag": "Tag \"A\"\tB ", "Top": 1500,
      "Visible": true, "Width": 1103, "BackColor": 1104, "Year": 1105, "Month": 1106,
      "Day": 1107, "DayLength": 1108, "MonthLength": 1109, "DayFontColor": 1110,
      "FirstDay": 1111, "GridCellEffect": 1112, "GridFontColor": 1113, "GridLinesColor": 1114,
      "ShowDateSelectors": true, "ShowDays": true, "ShowTitle": true, "ShowVerticalGrid": true,
      "TitleFontColor": 1115, "ValueIsNull": true, "FontName": "Arial Narrow",
      "FontItalic": true, "FontSize": 9.25, "FontUnderline": true, "FontWeight": 700,
      "Strikethrough": true
      })",
          {
          {"      Height        = 1101"},
          {"      Left          = 2000"},
          {"      TabIndex          = 1102"},
          {"      Tag           = \"Tag 'A' B \"", "Tag"},
          {"      Top           = ", "", Mark::kTop},
          {"      Visible       = -1", "Visible"},
          {"      Width         = 1103"},
          {"      BackColor         = 1104"},
          {"      Year              = 1105"},
          {"      Month             = 1106"},
          {"      Day               = 1107"},
          {"      DayLength         = 1108"},
          {"      MonthLength       = 1109"},
          {"      DayFontColor      = 1110"},
          {"      FirstDay          = 1111"},
          {"      GridCellEffect    = 1112"},
          {"      GridFontColor     = 1113"},
          {"      GridLinesColor    = 1114"},
          {"      ShowDateSelectors = -1", "ShowDateSelectors"},
          {"      ShowDays          = -1", "ShowDays"},
          {"      ShowTitle = -1", "ShowTitle"},
          {"      ShowVerticalGrid  = -1", "ShowVerticalGrid"},
          {"      TitleFontColor    = 1115"},
          {"      ValueIsNull       = -1", "ValueIsNull"},
          {"         BeginProperty DayFont"},
          {"            Name       = \"Arial Narrow\""},
          {"            Italic     = -1", "FontItalic"},
          {"            Size       = 9.25"},
          {"            Strikethrough = -1", "Strikethrough"},
          {"            Underline  = -1", "FontUnderline"},
          {"            Weight     = 700"},
          {"         EndProperty"},
          {"         BeginProperty GridFont"},
          {"            Name       = \"Arial Narrow\""},
          {"            Italic     = -1", "FontItalic"},
          {"            Size       = 9.25"},
          {"            Strikethrough = -1", "Strikethrough"},
          {"            Underline  = -1", "FontUnderline"},
          {"            Weight     = 700"},
          {"         EndProperty"},
          {"         BeginProperty TitleFont"},
          {"            Name       = \"Arial Narrow\""},
          {"            Italic     = -1", "FontItalic"},
          {"            Size       = 9.25"},
          {"            Strikethrough = -1", "Strikethrough"},
          {"            Underline  = -1", "FontUnderline"},
          {"            Weight     = 700"},
          {"         EndProperty"},
          {"   End   'My_Control"},
          }};
}

PrinterCase commonDialog() {
  return {"CommonDialog", PrintCommonDialogProps, 119, Indent::kFontOnly,
          R"({
      "CancelError": true, "Color": 1101, "Copies": 1102, "DefaultExt": "DefaultExt text",
      "DialogTitle": "DialogTitle text", "FileName": "FileName text", "Filter": "Filter text",
      "FilterIndex": 1103, "Flags": 1104, "FontName": "Arial Narrow", "FontBold": true,
      "FontItalic": true, "FontSize": 9.25, "FontStrikethru": true, "FontUnderline": true,
      "FromPage": 1105, "HelpContext": 1106, "HelpFile": "HelpFile text",
      "HelpKey": "HelpKey text", "Left": 2000, "ToPage": 1107, "HelpCommand": 1108,
      "HelpContextID": 1109, "InitDir": "InitDir text", "Max": 1110, "MaxFileSize": 1111,
      "Min": 1112, "PrinterDefault": true, "Tag": "Tag \"A\"\tB ",
      "ToolTipText": "ToolTipText \"A\"\tB ", "Top": 1500
      })",
          {
          {"      CancelError   = -1", "CancelError"},
          {"      Color         = 1101"},
          {"      Copies        = 1102"},
          {"      DefaultExt    = \"DefaultExt text\""},
          {"      DialogTitle   = \"DialogTitle text\""},
          {"      FileName      = \"FileName text\""},
          {"      Filter        = \"Filter text\""},
          {"      FilterIndex   = 1103"},
          {"      Flags         = 1104"},
          {"      FontName      = \"Arial Narrow\""},
          {"      FontBold      = -1", "FontBold"},
          {"      FontItalic    = -1", "FontItalic"},
          {"      FontSize      = 9.25"},
          {"      FontStrikeThru= -1", "FontStrikethru"},
          {"      FontUnderLine = -1", "FontUnderline"},
          {"      FromPage      = 1105"},
          {"      HelpContext   = 1106"},
          {"      HelpFile      = \"HelpFile text\""},
          {"      HelpKey       = \"HelpKey text\""},
          {"      Left          = 2000"},
          {"      ToPage        = 1107"},
          {"      HelpCommand   = 1108"},
          {"      HelpContext   = 1109"},
          {"      InitDir       = \"InitDir text\""},
          {"      Max           = 1110"},
          {"      MaxFileSize   = 1111"},
          {"      Min           = 1112"},
          {"      PrinterDefault= -1", "PrinterDefault"},
          {"      Tag           = \"Tag 'A' B \"", "Tag"},
          {"      ToolTipText   = \"ToolTipText 'A' B \"", "ToolTipText"},
          {"      Top           = ", "", Mark::kTop},
          {"   End   'My_Control"},
          }};
}

PrinterCase progressBar() {
  return {"ProgressBar", PrintProgressBarProps, 119, Indent::kFontOnly,
          R"({
      "Appearance": 1101, "BorderStyle": 2, "Enabled": true, "HelpContextID": 1102,
      "Height": 1103, "Left": 2000, "Max": 1104, "Min": 1105, "MousePointer": 1106,
      "OLEDropMode": 1107, "TabIndex": 1108, "TabStop": true,
      "ToolTipText": "ToolTipText \"A\"\tB ", "Top": 1500, "Visible": true, "Width": 1109
      })",
          {
          {"      Appearance    = 1101"},
          {"      BorderStyle   = 1", "BorderStyle"},
          {"      Enabled       = -1", "Enabled"},
          {"      HelpContextID = 1102"},
          {"      Height        = 1103"},
          {"      Left          = ", "", Mark::kLeft},
          {"      Max           = 1104"},
          {"      Min           = 1105"},
          {"      MousePointer  = 1106"},
          {"      OLEDropMode   = 1107"},
          {"      TabIndex      = 1108"},
          {"      TabStop       = -1", "TabStop"},
          {"      ToolTipText   = \"ToolTipText 'A' B \"", "ToolTipText"},
          {"      Top           = ", "", Mark::kTop},
          {"      Visible       = -1", "Visible"},
          {"      Width         = 1109"},
          {"   End   'My_Control"},
          }};
}

PrinterCase richText() {
  return {"RichText", PrintRichTextProps, 119, Indent::kFontOnly,
          R"({
      "Appearance": 1101, "AutoVerbMenu": true, "BackColor": 1102, "BorderStyle": 2,
      "BulletIndent": 1103, "DisableNoScroll": true, "Enabled": true,
      "FileName": "FileName text", "FontName": "Arial Narrow", "FontItalic": true,
      "FontSize": 9.25, "FontUnderline": true, "FontWeight": 700, "HideSelection": true,
      "Height": 1104, "HelpContextID": 1105, "Left": 2000, "MaxLength": 1106,
      "MousePointer": 1107, "MultiLine": true, "OLEDragMode": 1108, "OLEDropMode": 1109,
      "RightMargin": 1110, "ScrollBars": 1111, "TabIndex": 1112, "TabStop": true,
      "Tag": "Tag \"A\"\tB ", "Text": "Text text", "ToolTipText": "ToolTipText \"A\"\tB ",
      "Top": 1500, "Visible": true, "Width": 1113
      })",
          {
          {"      Appearance    = 1101"},
          {"      AutoVerbMenu  = -1", "AutoVerbMenu"},
          {"      BackColor     = 1102"},
          {"      BorderStyle   = 1", "BorderStyle"},
          {"      BulletIndent  = 1103"},
          {"      DisableNoScroll = -1", "DisableNoScroll"},
          {"      Enabled       = -1", "Enabled"},
          {"      FileName      = \"FileName text\""},
          {"      BeginProperty Font"},
          {"         Name       = \"Arial Narrow\"", "FontName"},
          {"         Italic     = -1  ' True", "FontName FontItalic"},
          {"         Size       = 9.25", "FontName FontItalic FontSize"},
          {"         Underline  = -1  'True", "FontName FontItalic FontSize FontUnderline"},
          {"         Weight     = 700", "FontName FontItalic FontSize FontUnderline FontWeight"},
          {"      EndProperty"},
          {"      HideSelection = -1", "HideSelection"},
          {"      Height        = 1104"},
          {"      HelpContextID = 1105"},
          {"      Left          = ", "", Mark::kLeft},
          {"      MaxLength     = 1106"},
          {"      MousePointer  = 1107"},
          {"      MultiLine     = -1", "MultiLine"},
          {"      OLEDragMode   = 1108"},
          {"      OLEDropMode   = 1109"},
          {"      RightMargin   = 1110"},
          {"      ScrollBars    = 1111"},
          {"      TabIndex      = 1112"},
          {"      TabStop       = -1", "TabStop"},
          {"      Tag           = \"Tag 'A' B \"", "Tag"},
          {"      Text          = \"Text text\""},
          {"      ToolTipText   = \"ToolTipText 'A' B \"", "ToolTipText"},
          {"      Top           = ", "", Mark::kTop},
          {"      Visible       = -1", "Visible"},
          {"      Width         = 1113"},
          {"   End   'My_Control"},
          }};
}

PrinterCase slider() {
  return {"Slider", PrintSliderProps, 119, Indent::kFontOnly,
          R"({
      "BorderStyle": 2, "Enabled": true, "Height": 1101, "HelpContextID": 1102, "Left": 2000,
      "LargeChange": 1103, "Max": 1104, "Min": 1105, "MousePointer": 1106, "OLEDropMode": 1107,
      "Orientation": 1108, "SelectRange": true, "SelLength": 1109, "SelStart": 1110,
      "SmallChange": 1111, "TabIndex": 1112, "TabStop": true, "Tag": "Tag \"A\"\tB ",
      "TickFrequency": 1113, "TickStyle": 1114, "ToolTipText": "ToolTipText \"A\"\tB ",
      "Top": 1500, "Visible": true, "Width": 1115
      })",
          {
          {"      BorderStyle   = 1", "BorderStyle"},
          {"      Enabled       = -1", "Enabled"},
          {"      Height        = 1101"},
          {"      HelpContextID = 1102"},
          {"      Left          = ", "", Mark::kLeft},
          {"      LargeChange   = 1103"},
          {"      Max           = 1104"},
          {"      Min           = 1105"},
          {"      MousePointer  = 1106"},
          {"      OLEDropMode   = 1107"},
          {"      Orientation   = 1108"},
          {"      SelectRange   = -1", "SelectRange"},
          {"      SelLength     = 1109"},
          {"      SelStart      = 1110"},
          {"      SmallChange   = 1111"},
          {"      TabIndex      = 1112"},
          {"      TabStop       = -1", "TabStop"},
          {"      Tag           = \"Tag 'A' B \"", "Tag"},
          {"      TickFrequency = 1113"},
          {"      TickStyle     = 1114"},
          {"      ToolTipText   = \"ToolTipText 'A' B \"", "ToolTipText"},
          {"      Top           = ", "", Mark::kTop},
          {"      Visible       = -1", "Visible"},
          {"      Width         = 1115"},
          {"   End   'My_Control"},
          }};
}
// clang-format on

}  // namespace

std::vector<PrinterCase> activexPrinterCases() {
  return {calendar(), commonDialog(), progressBar(), richText(), slider()};
}

}  // namespace tarrowin::test
