// The entry table: control, event, procedure.
#include "core/window_events.h"

#include <array>

#include "core/database_opening.h"
#include "core/form_batch.h"
#include "core/library_paths.h"
#include "core/macro_batch.h"
#include "core/main_object.h"
#include "core/module_batch.h"
#include "core/object_batch.h"
#include "core/query_batch.h"
#include "core/report_batch.h"

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

// The pager of the How to tab goes back to its start after Convert All Reports, and only then.
void resetHowToPager(MainWindow& window) {
  window.lblCurrentPage.caption = "0";
  window.lblLastPage.caption = "6";
  window.cmdPrev.enabled = false;
}

}  // namespace

bool clickButton(MainObject& main, std::string_view name, int index) {
  if (name == "cmdOpen") {
    cmdOpen_Click(main);
    return true;
  }
  if (name == "cmdFindPath") {
    cmdFindPath_Click(main, index);
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

void selectTab(MainObject& main, int tab) {
  constexpr int kReportsTab = 2;
  MainWindow& window = main.window;
  if (tab == window.tabSelect) return;
  window.tabSelect = tab;
  if (tab != kReportsTab || window.list(ObjectList::kReports).empty()) return;
  for (const int index : {kMsderun, kMsado}) {
    if (libraryPathLabel(window, index).caption.empty()) cmdFindPath_Click(main, index);
  }
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
