// The rows that a subform control prints beside its frame, with the size that was saved of it.
#include <string>

#include "forms/control_printers.h"
#include "forms/printer_rows.h"
#include "forms/value_rules.h"

namespace tarrowin {

namespace {

using namespace value_rule;

// Twips; a tab control keeps what it does not show this far to the left.
void savedLeft(const PrintedControl& control, std::string_view, std::string& line) {
  constexpr std::int32_t kOutOfSight = 75000, kMargin = 120;
  const ConversionState& state = control.state();
  const std::int32_t left = state.intSubLeft;
  line += std::to_string(state.blnInTab ? left : left - kOutOfSight + kMargin);
}

// A sheet is bound to the form's first data control, whichever is its own.
// clang-format off
constexpr PrinterRow kSheetRows[] = {
    {"   Begin MSDataGridLib.DataGrid ", name},
    {"      DataSource     = ",          quotedText,  "Adodc1"},
    {"      Enabled        = ",          boolean,     "Enabled"},
    {"      Height         = ",          subFormHeight},
    {"      Left           = ",          left},
    {"      Top            = ",          top},
    {"      Visible        = ",          boolean,     "Visible"},
    {"      Width          = ",          subFormWidth},
};

constexpr PrinterRow kPlaceholderRows[] = {
    {"   Begin VB.Shape ",      name},
    {"      Height         = ", subFormHeight},
    {"      Left           = ", savedLeft},
    {"      Tag            = ", quotedClean, "Tag"},
    {"      Top            = ", top},
    {"      Visible        = ", boolean,     "Visible"},
    {"      Width          = ", subFormWidth},
    {"   End   '",              name},
};
// clang-format on

}  // namespace

void PrintSubFormAsSheet(MainObject& main, const LateBound& ctl) {
  printRows({main, ctl}, kSheetRows);
}

void PrintSubFormProps(MainObject& main, const LateBound& ctl) {
  printRows({main, ctl}, kPlaceholderRows);
}

}  // namespace tarrowin
