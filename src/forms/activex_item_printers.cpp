// The printers of ActiveX controls that hold items: lists, trees, bars and tabs.
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
constexpr PrinterRow kImageComboRows[] = {
    {"      BackColor     = ", raw,         "BackColor"},
    PrinterRow(font),
    {"      ForeColor     = ", raw,         "ForeColor"},
    {"      Height        = ", raw,         "Height"},
    {"      Left          = ", left},
    {"      TabIndex      = ", raw,         "TabIndex"},
    {"      TabStop       = ", raw,         "TabStop"},
    {"      Text          = ", quotedTrim,  "Text"},
    {"      TooltipText   = ", quotedClean, "ToolTipText"},
    {"      Top           = ", formTop},
    {"      Width         = ", raw,         "Width"},
    {"   End   '",             name},
};

constexpr PrinterRow kImageListRows[] = {
    {"      BackColor     = ", raw,     "BackColor"},
    {"      ImageHeight   = ", raw,     "ImageHeight"},
    {"      ImageWidth    = ", raw,     "ImageWidth"},
    {"      Left          = ", left},
    {"      MaskColor     = ", raw,     "MaskColor"},
    {"      Top           = ", formTop},
    {"      UseMaskColor  = ", boolean, "UseMaskColor"},
    {"   End   '",             name},
};

// A minus stands in front of whatever the colours are.
constexpr PrinterRow kListViewRows[] = {
    {"      Appearance    = ",     raw,          "Appearance"},
    {"      Arrange       = ",     raw,          "Arrange"},
    {"      BackColor     = -",    raw,          "BackColor"},
    {"      BorderStyle   = ",     cappedBorder},
    {"      Enabled       = ",     boolean,      "Enabled"},
    {"      ForeColor     = -",    raw,          "ForeColor"},
    PrinterRow(font),
    {"      HideColumnHeaders = ", boolean,      "HideColumnHeaders"},
    {"      HideSelection = ",     boolean,      "HideSelection"},
    {"      Height        = ",     raw,          "Height"},
    {"      LabelEdit     = ",     raw,          "LabelEdit"},
    {"      LabelWrap     = ",     boolean,      "LabelWrap"},
    {"      Left          = ",     left},
    {"      MousePointer  = ",     raw,          "MousePointer"},
    {"      MultiSelect   = ",     boolean,      "MultiSelect"},
    {"      OLEDragMode   = ",     raw,          "OLEDragMode"},
    {"      OLEDropMode   = ",     raw,          "OLEDropMode"},
    {"      Sorted        = ",     boolean,      "Sorted"},
    {"      SortKey       = ",     raw,          "SortKey"},
    {"      SortOrder     = ",     raw,          "SortOrder"},
    {"      TabIndex      = ",     raw,          "TabIndex"},
    {"      TabStop       = ",     boolean,      "TabStop"},
    {"      Tag           = ",     quotedClean,  "Tag"},
    {"      ToolTipText   = ",     quotedClean,  "ToolTipText"},
    {"      Top           = ",     formTop},
    {"      View          = ",     raw,          "View"},
    {"      Visible       = ",     boolean,      "Visible"},
    {"      Width         = ",     raw,          "Width"},
    {"   End   '",                 name},
};

constexpr PrinterRow kStatusBarRows[] = {
    {"      Enabled       = ", boolean,     "Enabled"},
    PrinterRow(font),
    {"      Height        = ", raw,         "Height"},
    {"      HelpContextID = ", raw,         "HelpContextID"},
    {"      Left          = ", left},
    {"      MousePointer  = ", raw,         "MousePointer"},
    {"      OLEDropMode   = ", raw,         "OLEDropMode"},
    {"      ShowTips      = ", boolean,     "ShowTips"},
    {"      SimpleText    = ", quoted,      "SimpleText"},
    {"      Style         = ", raw,         "Style"},
    {"      TabIndex      = ", raw,         "TabIndex"},
    {"      TabStop       = ", boolean,     "TabStop"},
    {"      ToolTipText   = ", quotedClean, "ToolTipText"},
    {"      Top           = ", formTop},
    {"      Visible       = ", boolean,     "Visible"},
    {"      Width         = ", raw,         "Width"},
    {"   End   '",             name},
};

constexpr PrinterRow kTabStripRows[] = {
    {"      Enabled        = ", boolean,     "Enabled"},
    PrinterRow(font),
    {"      HelpContextID  = ", raw,         "HelpContextID"},
    {"      Height         = ", raw,         "Height"},
    {"      Left           = ", left},
    {"      MousePointer   = ", raw,         "MousePointer"},
    {"      MultiRow       = ", boolean,     "MultiRow"},
    {"      OLEDropMode    = ", raw,         "OLEDropMode"},
    {"      ShowTips       = ", boolean,     "ShowTips"},
    {"      Style          = ", raw,         "Style"},
    {"      TabFixedHeight = ", raw,         "TabFixedHeight"},
    {"      TabFixedWidth  = ", raw,         "TabFixedWidth"},
    {"      TabIndex       = ", raw,         "TabIndex"},
    {"      TabStop        = ", boolean,     "TabStop"},
    {"      TabWidthStyle  = ", raw,         "TabWidthStyle"},
    {"      Tag           = ",  quotedClean, "Tag"},
    {"      ToolTipText    = ", quotedClean, "ToolTipText"},
    {"      Top            = ", formTop},
    {"      Visible        = ", boolean,     "Visible"},
    {"      Width          = ", raw,         "Width"},
    {"   End   '",              name},
};

constexpr PrinterRow kToolBarRows[] = {
    {"      AllowCustomize = ", boolean,      "AllowCustomize"},
    {"      Appearance     = ", raw,          "Appearance"},
    {"      BorderStyle    = ", cappedBorder},
    {"      ButtonHeight   = ", raw,          "ButtonHeight"},
    {"      ButtonWidth    = ", raw,          "ButtonWidth"},
    {"      Enabled        = ", boolean,      "Enabled"},
    {"      HelpContextID  = ", raw,          "HelpContextID"},
    {"      Height         = ", raw,          "Height"},
    {"      HelpFile       = ", quoted,       "HelpFile"},
    {"      Left           = ", left},
    {"      MousePointer   = ", raw,          "MousePointer"},
    {"      OLEDropMode    = ", raw,          "OLEDropMode"},
    {"      ShowTips       = ", boolean,      "ShowTips"},
    {"      TabIndex       = ", raw,          "TabIndex"},
    {"      Tag            = ", quotedClean,  "Tag"},
    {"      TabStop        = ", boolean,      "TabStop"},
    {"      ToolTipText    = ", quotedClean,  "ToolTipText"},
    {"      Top            = ", formTop},
    {"      Wrappable      = ", boolean,      "Wrappable"},
    {"      Visible       = ",  boolean,      "Visible"},
    {"      Width         = ",  raw,          "Width"},
    {"   End   '",              name},
};

constexpr PrinterRow kTreeViewRows[] = {
    {"      Appearance     = ", raw,         "Appearance"},
    {"      Enabled        = ", boolean,     "Enabled"},
    PrinterRow(font),
    {"      Height         = ", raw,         "Height"},
    {"      HelpContextID  = ", raw,         "HelpContextID"},
    {"      HideSelection  = ", boolean,     "HideSelection"},
    {"      Indentation    = ", raw,         "Indentation"},
    {"      LabelEdit      = ", raw,         "LabelEdit"},
    {"      Left           = ", raw,         "Left"},
    {"      LineStyle      = ", raw,         "LineStyle"},
    {"      MousePointer   = ", raw,         "MousePointer"},
    {"      OLEDragMode    = ", raw,         "OLEDragMode"},
    {"      OLEDropMode    = ", raw,         "OLEDropMode"},
    {"      PathSeparator  = ", quoted,      "PathSeparator"},
    {"      Sorted         = ", boolean,     "Sorted"},
    {"      Style          = ", raw,         "Style"},
    {"      TabIndex       = ", raw,         "TabIndex"},
    {"      TabStop        = ", boolean,     "TabStop"},
    {"      Tag            = ", quotedClean, "Tag"},
    {"      ToolTipText    = ", quotedClean, "ToolTipText"},
    {"      Top            = ", formTop},
    {"      Visible        = ", boolean,     "Visible"},
    {"      Width          = ", raw,         "Width"},
    {"   End   '",              name},
};
// clang-format on

}  // namespace

void PrintImageComboProps(MainObject& main, const LateBound& ctl) {
  printRows({main, ctl}, kImageComboRows, kNoIndent);
}

void PrintImageListProps(MainObject& main, const LateBound& ctl) {
  printRows({main, ctl}, kImageListRows, kNoIndent);
}

void PrintListViewProps(MainObject& main, const LateBound& ctl) {
  printRows({main, ctl}, kListViewRows, kNoIndent);
}

void PrintStatusBarProps(MainObject& main, const LateBound& ctl) {
  printRows({main, ctl}, kStatusBarRows, kNoIndent);
}

void PrintTabStripProps(MainObject& main, const LateBound& ctl) {
  printRows({main, ctl}, kTabStripRows, kNoIndent);
}

void PrintToolBarProps(MainObject& main, const LateBound& ctl) {
  printRows({main, ctl}, kToolBarRows, kNoIndent);
}

void PrintTreeViewProps(MainObject& main, const LateBound& ctl) {
  printRows({main, ctl}, kTreeViewRows, kNoIndent);
}

}  // namespace tarrowin
