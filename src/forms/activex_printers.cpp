// The printers of ActiveX controls that stand for themselves: calendar, dialog, text and gauges.
#include <span>

#include "forms/control_printers.h"
#include "forms/printer_rows.h"
#include "forms/value_rules.h"

namespace tarrowin {

namespace {

using namespace value_rule;
using row_block::font;

// These controls are printed at the top level, whatever holds them.
constexpr std::string_view kNoIndent;

// clang-format off
constexpr PrinterRow kCalendarRows[] = {
    {"      Height        = ",     raw,         "Height"},
    {"      Left          = ",     raw,         "Left"},
    {"      TabIndex          = ", raw,         "TabIndex"},
    {"      Tag           = ",     quotedClean, "Tag"},
    {"      Top           = ",     top},
    {"      Visible       = ",     boolean,     "Visible"},
    {"      Width         = ",     raw,         "Width"},
    {"      BackColor         = ", raw,         "BackColor"},
    {"      Year              = ", raw,         "Year"},
    {"      Month             = ", raw,         "Month"},
    {"      Day               = ", raw,         "Day"},
    {"      DayLength         = ", raw,         "DayLength"},
    {"      MonthLength       = ", raw,         "MonthLength"},
    {"      DayFontColor      = ", raw,         "DayFontColor"},
    {"      FirstDay          = ", raw,         "FirstDay"},
    {"      GridCellEffect    = ", raw,         "GridCellEffect"},
    {"      GridFontColor     = ", raw,         "GridFontColor"},
    {"      GridLinesColor    = ", raw,         "GridLinesColor"},
    {"      ShowDateSelectors = ", boolean,     "ShowDateSelectors"},
    {"      ShowDays          = ", boolean,     "ShowDays"},
    {"      ShowTitle = ",         boolean,     "ShowTitle"},
    {"      ShowVerticalGrid  = ", boolean,     "ShowVerticalGrid"},
    {"      TitleFontColor    = ", raw,         "TitleFontColor"},
    {"      ValueIsNull       = ", boolean,     "ValueIsNull"},
};

constexpr PrinterRow kCalendarFonts[] = {
    {"      BeginProperty DayFont"},
    {"      BeginProperty GridFont"},
    {"      BeginProperty TitleFont"},
};

// All three show the one font that the control has.
constexpr PrinterRow kCalendarFontRows[] = {
    {"         Name       = ",    quoted,  "FontName"},
    {"         Italic     = ",    boolean, "FontItalic"},
    {"         Size       = ",    raw,     "FontSize"},
    {"         Strikethrough = ", boolean, "Strikethrough"},
    {"         Underline  = ",    boolean, "FontUnderline"},
    {"         Weight     = ",    raw,     "FontWeight"},
    {"      EndProperty"},
};

constexpr PrinterRow kCalendarEnd[] = {
    {"   End   '", name},
};

constexpr PrinterRow kCommonDialogRows[] = {
    {"      CancelError   = ", boolean,     "CancelError"},
    {"      Color         = ", raw,         "Color"},
    {"      Copies        = ", raw,         "Copies"},
    {"      DefaultExt    = ", quoted,      "DefaultExt"},
    {"      DialogTitle   = ", quoted,      "DialogTitle"},
    {"      FileName      = ", quoted,      "FileName"},
    {"      Filter        = ", quoted,      "Filter"},
    {"      FilterIndex   = ", raw,         "FilterIndex"},
    {"      Flags         = ", raw,         "Flags"},
    {"      FontName      = ", quoted,      "FontName"},
    {"      FontBold      = ", boolean,     "FontBold"},
    {"      FontItalic    = ", boolean,     "FontItalic"},
    {"      FontSize      = ", raw,         "FontSize"},
    {"      FontStrikeThru= ", boolean,     "FontStrikethru"},
    {"      FontUnderLine = ", boolean,     "FontUnderline"},
    {"      FromPage      = ", raw,         "FromPage"},
    {"      HelpContext   = ", raw,         "HelpContext"},
    {"      HelpFile      = ", quoted,      "HelpFile"},
    {"      HelpKey       = ", quoted,      "HelpKey"},
    {"      Left          = ", raw,         "Left"},
    {"      ToPage        = ", raw,         "ToPage"},
    {"      HelpCommand   = ", raw,         "HelpCommand"},
    {"      HelpContext   = ", raw,         "HelpContextID"},
    {"      InitDir       = ", quoted,      "InitDir"},
    {"      Max           = ", raw,         "Max"},
    {"      MaxFileSize   = ", raw,         "MaxFileSize"},
    {"      Min           = ", raw,         "Min"},
    {"      PrinterDefault= ", boolean,     "PrinterDefault"},
    {"      Tag           = ", quotedClean, "Tag"},
    {"      ToolTipText   = ", quotedClean, "ToolTipText"},
    {"      Top           = ", formTop},
    {"   End   '",             name},
};

constexpr PrinterRow kProgressBarRows[] = {
    {"      Appearance    = ", raw,          "Appearance"},
    {"      BorderStyle   = ", cappedBorder},
    {"      Enabled       = ", boolean,      "Enabled"},
    {"      HelpContextID = ", raw,          "HelpContextID"},
    {"      Height        = ", raw,          "Height"},
    {"      Left          = ", left},
    {"      Max           = ", raw,          "Max"},
    {"      Min           = ", raw,          "Min"},
    {"      MousePointer  = ", raw,          "MousePointer"},
    {"      OLEDropMode   = ", raw,          "OLEDropMode"},
    {"      TabIndex      = ", raw,          "TabIndex"},
    {"      TabStop       = ", boolean,      "TabStop"},
    {"      ToolTipText   = ", quotedClean,  "ToolTipText"},
    {"      Top           = ", formTop},
    {"      Visible       = ", boolean,      "Visible"},
    {"      Width         = ", raw,          "Width"},
    {"   End   '",             name},
};

constexpr PrinterRow kRichTextRows[] = {
    {"      Appearance    = ",   raw,          "Appearance"},
    {"      AutoVerbMenu  = ",   boolean,      "AutoVerbMenu"},
    {"      BackColor     = ",   raw,          "BackColor"},
    {"      BorderStyle   = ",   cappedBorder},
    {"      BulletIndent  = ",   raw,          "BulletIndent"},
    {"      DisableNoScroll = ", boolean,      "DisableNoScroll"},
    {"      Enabled       = ",   boolean,      "Enabled"},
    {"      FileName      = ",   quoted,       "FileName"},
    PrinterRow(font),
    {"      HideSelection = ",   boolean,      "HideSelection"},
    {"      Height        = ",   raw,          "Height"},
    {"      HelpContextID = ",   raw,          "HelpContextID"},
    {"      Left          = ",   left},
    {"      MaxLength     = ",   raw,          "MaxLength"},
    {"      MousePointer  = ",   raw,          "MousePointer"},
    {"      MultiLine     = ",   boolean,      "MultiLine"},
    {"      OLEDragMode   = ",   raw,          "OLEDragMode"},
    {"      OLEDropMode   = ",   raw,          "OLEDropMode"},
    {"      RightMargin   = ",   raw,          "RightMargin"},
    {"      ScrollBars    = ",   raw,          "ScrollBars"},
    {"      TabIndex      = ",   raw,          "TabIndex"},
    {"      TabStop       = ",   boolean,      "TabStop"},
    {"      Tag           = ",   quotedClean,  "Tag"},
    {"      Text          = ",   quoted,       "Text"},
    {"      ToolTipText   = ",   quotedClean,  "ToolTipText"},
    {"      Top           = ",   formTop},
    {"      Visible       = ",   boolean,      "Visible"},
    {"      Width         = ",   raw,          "Width"},
    {"   End   '",               name},
};

constexpr PrinterRow kSliderRows[] = {
    {"      BorderStyle   = ", cappedBorder},
    {"      Enabled       = ", boolean,      "Enabled"},
    {"      Height        = ", raw,          "Height"},
    {"      HelpContextID = ", raw,          "HelpContextID"},
    {"      Left          = ", left},
    {"      LargeChange   = ", raw,          "LargeChange"},
    {"      Max           = ", raw,          "Max"},
    {"      Min           = ", raw,          "Min"},
    {"      MousePointer  = ", raw,          "MousePointer"},
    {"      OLEDropMode   = ", raw,          "OLEDropMode"},
    {"      Orientation   = ", raw,          "Orientation"},
    {"      SelectRange   = ", boolean,      "SelectRange"},
    {"      SelLength     = ", raw,          "SelLength"},
    {"      SelStart      = ", raw,          "SelStart"},
    {"      SmallChange   = ", raw,          "SmallChange"},
    {"      TabIndex      = ", raw,          "TabIndex"},
    {"      TabStop       = ", boolean,      "TabStop"},
    {"      Tag           = ", quotedClean,  "Tag"},
    {"      TickFrequency = ", raw,          "TickFrequency"},
    {"      TickStyle     = ", raw,          "TickStyle"},
    {"      ToolTipText   = ", quotedClean,  "ToolTipText"},
    {"      Top           = ", formTop},
    {"      Visible       = ", boolean,      "Visible"},
    {"      Width         = ", raw,          "Width"},
    {"   End   '",             name},
};
// clang-format on

}  // namespace

void PrintCalendarProps(MainObject& main, const LateBound& ctl) {
  const PrintedControl control{main, ctl};
  printRows(control, kCalendarRows, kNoIndent);
  main.state.strIndent = "   ";
  for (const PrinterRow& font : kCalendarFonts) {
    printRows(control, std::span(&font, 1));
    printRows(control, kCalendarFontRows);
  }
  printRows(control, kCalendarEnd, kNoIndent);
}

void PrintCommonDialogProps(MainObject& main, const LateBound& ctl) {
  printRows({main, ctl}, kCommonDialogRows, kNoIndent);
}

void PrintProgressBarProps(MainObject& main, const LateBound& ctl) {
  printRows({main, ctl}, kProgressBarRows, kNoIndent);
}

void PrintRichTextProps(MainObject& main, const LateBound& ctl) {
  printRows({main, ctl}, kRichTextRows, kNoIndent);
}

void PrintSliderProps(MainObject& main, const LateBound& ctl) {
  printRows({main, ctl}, kSliderRows, kNoIndent);
}

}  // namespace tarrowin
