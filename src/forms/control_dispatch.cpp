// The tables of control types and of ActiveX classes.
#include "forms/control_dispatch.h"

#include <algorithm>
#include <iterator>

#include "core/statement.h"
#include "forms/activex_class.h"
#include "forms/containers.h"
#include "forms/control_printers.h"
#include "forms/control_types.h"
#include "forms/subreport.h"

namespace tarrowin {

namespace {

using Printer = void (*)(MainObject&, const LateBound&);

void convertActiveX(MainObject& main, const LateBound& ctl);

void convertOptionGroup(MainObject& main, const LateBound& ctl) {
  main.state.blnInFrame = true;
  GetOptionGroupProps(main, ctl);
}

void convertSubForm(MainObject& main, const LateBound& ctl) {
  (main.state.mblnReportMode ? GetSubReportProps : GetSubFormProps)(main, ctl);
  main.state.frmSubCurr = {};
}

void convertTabControl(MainObject& main, const LateBound& ctl) {
  main.state.blnUsesTabCtl = true;
  main.state.gblnProjectNeeded = true;
  GetTabControlProps(main, ctl);
}

struct TypeRow {
  std::int32_t type;
  Printer printer;
  bool inReports = false;  // GetReportControlProps knows it too
};

// All other types get PrintRectangleProps.
constexpr TypeRow kTypes[] = {
    {control_type::kBoundObjectFrame, PrintOLEProps, true},
    {control_type::kObjectFrame, PrintOLEProps, true},
    {control_type::kCheckBox, PrintCheckBoxProps},
    {control_type::kComboBox, PrintComboBoxProps},
    {control_type::kCommandButton, PrintCommandButtonProps},
    {control_type::kToggleButton, PrintCommandButtonProps},
    {control_type::kActiveX, convertActiveX},
    {control_type::kImage, PrintImageProps, true},
    {control_type::kLabel, PrintLabelProps, true},
    {control_type::kLine, PrintLineProps, true},
    {control_type::kListBox, PrintListBoxProps},
    {control_type::kOptionButton, PrintOptionButtonProps},
    {control_type::kOptionGroup, convertOptionGroup},
    {control_type::kRectangle, PrintRectangleProps, true},
    {control_type::kSubform, convertSubForm},
    {control_type::kTabControl, convertTabControl},
    {control_type::kTextBox, PrintTextBoxProps, true},
};

void convertByType(MainObject& main, const LateBound& ctl, bool asReport) {
  std::int32_t type = 0;
  ignoringErrors([&] { type = ctl.number("ControlType"); });
  const auto row = std::ranges::find(kTypes, type, &TypeRow::type);
  const bool known = row != std::end(kTypes) && (row->inReports || !asReport);
  (known ? row->printer : PrintRectangleProps)(main, ctl);
}

// The class of the Begin line: the prefix of the library and the short name, and what is put in
// their place.
enum class ClassLine {
  kPrefixAndName,  // with the text behind them
  kPrefixAndText,  // the text in place of the short name
  kText,           // the text alone
  kCutName,        // prefix and short name, less the last three characters
  kNone,           // the printer has a Begin line of its own
};

struct ClassRow {
  std::string_view shortName;
  ClassLine line;
  std::string_view text;
  Printer printer;
};

// clang-format off
constexpr ClassRow kClasses[] = {
    {"Adodc",         ClassLine::kNone,          "",                         PrintADODataCtlProps},
    {"Calendar",      ClassLine::kText,          "MSACAL.Calendar",          PrintCalendarProps},
    {"CommonDialog",  ClassLine::kText,          "MSComDlg.CommonDialog",    PrintCommonDialogProps},
    {"DataGrid",      ClassLine::kText,          "MSDataGridLib.DataGrid",   PrintGridControlProps},
    {"ImageList",     ClassLine::kPrefixAndName, "",                         PrintImageListProps},
    {"ImageComboCtl", ClassLine::kCutName,       "",                         PrintImageComboProps},
    {"ListView",      ClassLine::kPrefixAndName, "",                         PrintListViewProps},
    {"Slider",        ClassLine::kPrefixAndName, "",                         PrintSliderProps},
    {"TabStrip",      ClassLine::kPrefixAndName, "",                         PrintTabStripProps},
    {"ToolBar",       ClassLine::kPrefixAndName, "",                         PrintToolBarProps},
    {"Prog",          ClassLine::kPrefixAndName, "ressBar",                  PrintProgressBarProps},
    {"RichText",      ClassLine::kPrefixAndName, "Box",                      PrintRichTextProps},
    {"SBar",          ClassLine::kPrefixAndText, "StatusBar",                PrintStatusBarProps},
    {"Tree",          ClassLine::kPrefixAndText, "TreeView",                 PrintTreeViewProps},
};
// clang-format on

std::string classLine(const ClassRow& row, const ActiveXClass& activeX) {
  constexpr std::size_t kCutCharacters = 3;
  switch (row.line) {
    case ClassLine::kPrefixAndName:
      return activeX.prefix + activeX.shortName + std::string(row.text);
    case ClassLine::kPrefixAndText:
      return activeX.prefix + std::string(row.text);
    case ClassLine::kCutName: {
      std::string whole = activeX.prefix + activeX.shortName;
      whole.resize(whole.size() - kCutCharacters);
      return whole;
    }
    case ClassLine::kText:
    case ClassLine::kNone:
      break;
  }
  return std::string(row.text);
}

void convertActiveX(MainObject& main, const LateBound& ctl) {
  const ActiveXClass activeX = readActiveXClass(main.state, ctl);
  const auto row = std::ranges::find(kClasses, activeX.shortName, &ClassRow::shortName);
  if (row == std::end(kClasses)) return PrintRectangleProps(main, ctl);
  raiseLibraryFlag(main.state, row->shortName);
  if (row->line != ClassLine::kNone) {
    ignoringErrors([&] {
      main.files.Print(kOutputFile,
                       "   Begin " + classLine(*row, activeX) + " " + main.state.strCtlName);
    });
  }
  row->printer(main, ctl);
}

}  // namespace

void GetControlProps(MainObject& main, const LateBound& ctl) { convertByType(main, ctl, false); }

void GetReportControlProps(MainObject& main, const LateBound& ctl) {
  convertByType(main, ctl, true);
}

}  // namespace tarrowin
