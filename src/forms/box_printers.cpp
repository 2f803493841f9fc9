// The printers of combo and list boxes, which share their course.
#include <span>

#include "core/statement.h"
#include "forms/control_printers.h"
#include "forms/printer_rows.h"
#include "forms/row_source_fields.h"
#include "forms/value_rules.h"
#include "shared/value_tests.h"
#include "shared/vb_text.h"

namespace tarrowin {

namespace {

using namespace value_rule;
using namespace row_condition;
using row_block::font;

bool withAdo(const PrintedControl& control) { return control.state().mblnAdoDataCtl; }

// clang-format off
constexpr PrinterRow kBoundComboRows[] = {
    {"   Begin MSDBCtls.DBCombo ", name},
    {"      DataSource    = ", quotedText,  "Data1", withDataCtl},
    {"      RowSource     = ", quotedText,  "Data1", withDataCtl},
    {"      DataSource    = ", quotedAdodc, {},      withAdo},
};

constexpr PrinterRow kBoundListRows[] = {
    {"   Begin MSDBCtls.DBList ", name},
    {"      DataSource    = ", quotedText,  "Data1", withDataCtl},
    {"      RowSource     = ", quotedText,  "Data1", withDataCtl},
};

constexpr PrinterRow kComboRows[] = {
    {"   Begin VB.ComboBox ",  prefixedName, "cbo"},
    {"      DataField     = ", quotedField},
    {"      DataSource    = ", quotedText,   "Data1", withDataCtl},
};

constexpr PrinterRow kListRows[] = {
    {"   Begin VB.ListBox ",   prefixedName, "lst"},
    {"      DataField     = ", quotedField},
    {"      DataSource    = ", quotedText,   "Data1", withDataCtl},
};

constexpr PrinterRow kComboTail[] = {
    {"      Appearance    = ", appearance},
    {"      BackColor     = ", raw,         "BackColor"},
    {"      Enabled       = ", boolean,     "Enabled"},
    PrinterRow(font),
    {"      Height        = ", raw,         "Height"},
    {"      HelpContextID = ", raw,         "HelpContextID"},
    {"      Left          = ", left},
    {"      TabStop       = ", boolean,     "TabStop"},
    {"      Tag           = ", quotedClean, "Tag"},
    {"      ToolTipText   = ", quotedClean, "ToolTipText"},
    {"      Top           = ", top},
    {"      Visible       = ", boolean,     "Visible"},
    {"      Width         = ", raw,         "Width"},
    {"   End   '",             name},
};

constexpr PrinterRow kListTail[] = {
    {"      Appearance    = ", appearance},
    {"      BackColor     = ", raw,         "BackColor"},
    {"      Columns       = ", raw,         "ColumnCount"},
    {"      Enabled       = ", boolean,     "Enabled"},
    PrinterRow(font),
    {"      Height        = ", raw,         "Height"},
    {"      HelpContextID = ", raw,         "HelpContextID"},
    {"      Left          = ", left},
    {"      MultiSelect   = ", raw,         "MultiSelect"},
    {"      TabStop       = ", boolean,     "TabStop"},
    {"      Tag           = ", quotedClean, "Tag"},
    {"      ToolTipText   = ", quotedClean, "ToolTipText"},
    {"      Top           = ", top},
    {"      Visible       = ", boolean,     "Visible"},
    {"      Width         = ", raw,         "Width"},
    {"   End   '",             name},
};

// A box over an SQL text binds the field that it is bound to itself.
constexpr PrinterRow kSqlColumnRows[] = {
    {"      BoundColumn   = ", quoted, "ControlSource"},
};
// clang-format on

// The tables of a kind of box, and the prefix of its name in a DataRepeater conversion.
struct BoxTables {
  std::span<const PrinterRow> bound, intrinsic, tail;
  std::string_view prefix;
};
constexpr BoxTables kCombo = {kBoundComboRows, kComboRows, kComboTail, "cbo"};
constexpr BoxTables kList = {kBoundListRows, kListRows, kListTail, "lst"};

// Where a kind of box leaves its items for the code that fills it.
struct ItemSources {
  GrowingList& entries;
  bool& filled;
};

bool showsTable(const LateBound& ctl) {
  return holds([&] {
    const std::string type = ctl.text("RowSourceType");
    return type == "Table/Query" || type == "Field List";
  });
}

bool showsSql(const LateBound& ctl) {
  return holds([&] {
    const std::string keyword = UCase(Left(ctl.text("RowSource"), 6));
    return keyword == "SELECT" || keyword == "TRANSF";
  });
}

void printTableColumns(const PrintedControl& control) {
  std::string fields;
  ignoringErrors([&] {
    fields = GetRowSourceFields(control.main, control.ctl.text("RowSource"),
                                control.ctl.number("BoundColumn"));
  });
  const std::int32_t comma = InStr(fields, ",");
  const std::string shown = Mid(fields, comma + 1);
  const PrinterRow listField("      ListField     = ", quotedText, shown);
  printRows(control, std::span(&listField, 1));
  if (comma == 0) return;
  const std::string stored = Left(fields, comma - 1);
  const PrinterRow storedRows[] = {
      {"      DataField     = ", quotedText, stored},
      {"      BoundColumn   = ", quotedText, stored},
  };
  printRows(control, storedRows);
}

void printBound(const PrintedControl& control, const BoxTables& tables) {
  control.state().gblnProjectNeeded = true;
  control.state().blnUsesDbList = true;
  printRows(control, tables.bound);
  if (!holds([&] { return isAbove(control.ctl.get("BoundColumn"), 0); })) return;
  if (showsSql(control.ctl)) {
    printRows(control, kSqlColumnRows);
  } else {
    printTableColumns(control);
  }
}

void printIntrinsic(const PrintedControl& control, const BoxTables& tables,
                    const ItemSources& items) {
  printRows(control, tables.intrinsic);
  const ConversionState& state = control.state();
  if (state.mblnUserControl) return;
  items.filled = true;
  ignoringErrors([&] {
    items.entries.append(prefixedName(state, tables.prefix) + ";" + control.ctl.text("RowSource"));
  });
}

void printBox(const PrintedControl& control, const BoxTables& tables, const ItemSources& items) {
  if (showsTable(control.ctl)) {
    printBound(control, tables);
  } else {
    printIntrinsic(control, tables, items);
  }
  printRows(control, tables.tail);
}

}  // namespace

void PrintComboBoxProps(MainObject& main, const LateBound& ctl) {
  ConversionState& state = main.state;
  printBox({main, ctl}, kCombo, {state.astrComboSources, state.blnFillCombos});
}

void PrintListBoxProps(MainObject& main, const LateBound& ctl) {
  ConversionState& state = main.state;
  printBox({main, ctl}, kList, {state.astrListSources, state.blnFillLists});
}

}  // namespace tarrowin
