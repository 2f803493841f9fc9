// The entry table: control, event, procedure.
#include "core/window_events.h"

#include <array>

#include "core/database_opening.h"
#include "core/folder_browsing.h"
#include "core/form_batch.h"
#include "core/library_paths.h"
#include "core/macro_batch.h"
#include "core/main_object.h"
#include "core/module_batch.h"
#include "core/object_batch.h"
#include "core/object_lists.h"
#include "core/program_exit.h"
#include "core/query_batch.h"
#include "core/report_batch.h"
#include "help/help_topics.h"
#include "help/how_to.h"
#include "preview/preview_form.h"

namespace tarrowin {

namespace {

using Driver = void (*)(MainObject&, bool blnAll);

struct ListRow {
  ObjectList list;
  std::string_view name;
  std::string_view convertButton;
  std::string_view allButton;
  Driver driver;
};

// clang-format off
constexpr std::array<ListRow, kObjectListCount> kListRows = {{
    {ObjectList::kQueries, "lstQueries", "cmdConvertQry", "cmdAllQrys",    ConvertQueries},
    {ObjectList::kForms,   "lstForms",   "cmdConvertFrm", "cmdAllForms",   ConvertForms},
    {ObjectList::kReports, "lstReports", "cmdConvertRpt", "cmdAllReports", ConvertReports},
    {ObjectList::kMacros,  "lstMacros",  "cmdConvertMac", "cmdAllMacros",  ConvertMacros},
    {ObjectList::kModules, "lstModules", "cmdConvertMod", "cmdAllMods",    ConvertModules},
    {ObjectList::kObjects, "lstObjects", "cmdConvertObj", "cmdAllObjs",    ConvertObjects},
}};
// clang-format on

struct ButtonRow {
  std::string_view name;
  void (*procedure)(MainObject&);
};

// clang-format off
constexpr std::array kButtonRows = {
    ButtonRow{"cmdOpen",     cmdOpen_Click},
    ButtonRow{"cmdBrowse",   cmdBrowse_Click},
    ButtonRow{"cmdObjProps", cmdObjProps_Click},
    ButtonRow{"cmdNext",     [](MainObject& main) { cmdNext_Click(main.window); }},
    ButtonRow{"cmdPrev",     [](MainObject& main) { cmdPrev_Click(main.window); }},
};

struct ToolbarTabRow {
  std::string_view key;
  int tab;
};
constexpr std::array<ToolbarTabRow, 6> kToolbarTabs = {{
    {"keyQueries",   0},
    {"keyForms",     1},
    {"keyReports",   2},
    {"keyMacros",    3},
    {"keyModules",   4},
    {"keyVBProject", 5},
}};

constexpr std::array kToolbarRows = {
    ButtonRow{"keyMDBs",    cmdOpen_Click},
    ButtonRow{"keySupport", showSupportTopic},
    ButtonRow{"keyHelp",    showMainTopic},
};
// clang-format on

constexpr int kReportsTab = 2;
constexpr int kHowToTab = 6;

// The pager of the How to tab goes back to its start after Convert All Reports, and only then.
void resetHowToPager(MainWindow& window) {
  window.lblCurrentPage.caption = "0";
  window.lblLastPage.caption = "6";
  window.cmdPrev.enabled = false;
}

}  // namespace

bool clickButton(MainObject& main, std::string_view name, int index) {
  if (name == "cmdFindPath") {
    cmdFindPath_Click(main, index);
    return true;
  }
  for (const ButtonRow& row : kButtonRows) {
    if (name != row.name) continue;
    row.procedure(main);
    return true;
  }
  for (const ListRow& row : kListRows) {
    if (name != row.convertButton && name != row.allButton) continue;
    const bool all = name == row.allButton;
    row.driver(main, all);
    if (all && row.list == ObjectList::kReports) resetHowToPager(main.window);
    return true;
  }
  return false;
}

ToolbarResult clickToolbar(MainObject& main, std::string_view key) {
  if (key == "keyExit") return wantsToExit(main) ? ToolbarResult::kUnload : ToolbarResult::kDone;
  for (const ToolbarTabRow& row : kToolbarTabs) {
    if (key != row.key) continue;
    selectTab(main, row.tab);
    return ToolbarResult::kDone;
  }
  for (const ButtonRow& row : kToolbarRows) {
    if (key != row.name) continue;
    row.procedure(main);
    return ToolbarResult::kDone;
  }
  return ToolbarResult::kUnknown;
}

void selectTab(MainObject& main, int tab) {
  MainWindow& window = main.window;
  if (tab == window.tabSelect) return;
  window.tabSelect = tab;
  if (tab == kReportsTab && !window.list(ObjectList::kReports).empty()) {
    for (const int index : {kMsderun, kMsado}) {
      if (libraryPathLabel(window, index).caption.empty()) cmdFindPath_Click(main, index);
    }
  }
  refreshHowTo(window, tab == kHowToTab);
  ApplyButtonState(main);
}

void doubleClickList(MainObject& main, ObjectList list) {
  constexpr int kHourglassPointer = 11;
  const bool forms = list == ObjectList::kForms;
  if (forms) main.window.mousePointer = kHourglassPointer;
  kListRows[indexOf(list)].driver(main, false);
  if (forms) main.window.mousePointer = 0;
}

std::optional<ObjectList> listNamed(std::string_view name) {
  for (const ListRow& row : kListRows) {
    if (row.name == name) return row.list;
  }
  return std::nullopt;
}

std::string_view nameOfList(ObjectList list) { return kListRows[indexOf(list)].name; }

}  // namespace tarrowin
