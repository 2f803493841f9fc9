// Filling the lists, and the state of their buttons.
#include "core/object_lists.h"

#include <algorithm>
#include <array>
#include <span>
#include <string>
#include <string_view>

#include "core/main_object.h"
#include "core/statement.h"
#include "shared/vb_text.h"

namespace tarrowin {

namespace {

constexpr std::string_view kQueryIcon = "keyQuery", kFormIcon = "keyForm", kMacroIcon = "keyMacro",
                           kModuleIcon = "keyModule", kReportIcon = "keyReport";

// The program's own objects, for a database into which they have been imported.
constexpr std::array<std::string_view, 2> kOwnForms = {"frmTarrowin", "frmTarrowinStartup"};
constexpr std::array<std::string_view, 3> kOwnModules = {"modTarrowin", "modTarrowinHelp",
                                                         "modTarrowinRefs"};

// Total labels by list: queries, forms, reports, macros, modules, objects.
constexpr std::array<std::string_view, kObjectListCount> kTotalTexts = {
    "Total Queries:", "Total Forms:",   "Total Reports:",
    "Total Macros:",  "Total Modules:", "Total Forms and Modules:"};

template <class Body>
void reported(MainObject& main, std::string_view procedure, Body&& body) {
  try {
    body();
  } catch (const VbError& error) {
    main.errorBox(procedure, error);
  }
}

// For that many items more: databases have thousands.
void makeRoom(MainObject& main, ObjectList list, std::int32_t more) {
  std::vector<ListItem>& items = main.window.list(list);
  items.reserve(items.size() + static_cast<std::size_t>(std::max(more, 0)));
}

void addItem(MainObject& main, ObjectList list, const std::string& name, std::string_view icon) {
  main.window.list(list).push_back({name, std::string(icon), false});
}

void showTotal(MainObject& main, ObjectList list, std::int32_t count) {
  Label& label = main.window.totals[indexOf(list)];
  label.caption = std::string(kTotalTexts[indexOf(list)]) + Str(count);
  label.visible = true;
}

// A list that shows the documents of a container.
struct ContainerRow {
  ObjectList list;
  std::string_view procedure;
  std::string_view container;
  std::string_view icon;
  GrowingList ConversionState::*names;
  std::int32_t ConversionState::*count;
  std::span<const std::string_view> skipped;
};

// clang-format off
constexpr ContainerRow kForms = {ObjectList::kForms, "GetFormNames", "Forms", kFormIcon,
                                 &ConversionState::mstrFormNames,
                                 &ConversionState::mintFormCount, kOwnForms};
constexpr ContainerRow kMacros = {ObjectList::kMacros, "GetMacroNames", "Scripts", kMacroIcon,
                                  &ConversionState::mstrMacroNames,
                                  &ConversionState::mintMacroCount, {}};
constexpr ContainerRow kModules = {ObjectList::kModules, "GetModuleNames", "Modules", kModuleIcon,
                                   &ConversionState::mstrModuleNames,
                                   &ConversionState::mintModuleCount, kOwnModules};
// clang-format on

// The documents up to the first without a name, less the program's own.
void getDocumentNames(MainObject& main, const ContainerRow& row) {
  reported(main, row.procedure, [&] {
    GrowingList& names = main.state.*row.names;
    names.reset();
    const Collection<Document> documents = main.state.mdbCurr.Containers(row.container).Documents();
    const std::int32_t count = documents.Count();
    makeRoom(main, row.list, count);
    for (std::int32_t i = 0; i < count; ++i) {
      const std::string name = documents(i).Name();
      if (name.empty()) break;
      if (std::find(row.skipped.begin(), row.skipped.end(), name) != row.skipped.end()) continue;
      addItem(main, row.list, name, row.icon);
      if (row.list == ObjectList::kForms) main.window.cboFormNamesItems.push_back(name);
      names.append(name);
    }
    main.state.*row.count = names.count();
    showTotal(main, row.list, names.count());
  });
}

// The names of an array up to its first empty element, into the list of objects.
void addObjects(MainObject& main, const GrowingList& names, std::string_view icon) {
  makeRoom(main, ObjectList::kObjects, names.count());
  for (const std::string& name : names) {
    if (name.empty()) return;
    addItem(main, ObjectList::kObjects, name, icon);
  }
}

struct EnableRow {
  ObjectList list;
  std::string_view pluralToolTip;
  ObjectList toolTipButton;  // whose convert button takes the tool tip
  std::string_view pluralHeading;
};

// clang-format off
constexpr EnableRow kQueryRow = {ObjectList::kQueries, "Convert Selected Queries",
                                 // the form button, and not the list's own
                                 ObjectList::kForms, "Select Queries to Convert"};
constexpr EnableRow kFormRow = {ObjectList::kForms, "Convert Selected Forms",
                                ObjectList::kForms, "Select Forms to Convert"};
constexpr EnableRow kMacroRow = {ObjectList::kMacros, "Convert Selected Macros",
                                 ObjectList::kMacros, "Select Macros to Convert"};
constexpr EnableRow kModuleRow = {ObjectList::kModules, "Convert Selected Modules",
                                  ObjectList::kModules, "Select Modules to Convert"};
constexpr EnableRow kReportRow = {ObjectList::kReports, "Convert Selected Reports",
                                  ObjectList::kReports, "Select Reports to Convert"};
constexpr EnableRow kObjectRow = {ObjectList::kObjects, "Convert Selected Objects",
                                  ObjectList::kObjects,
                                  "Select Forms or Modules to Convert to Visual Basic Project"};
// clang-format on

void enableButtons(MainObject& main, const EnableRow& row) {
  MainWindow& window = main.window;
  const std::size_t count = window.list(row.list).size();
  if (count == 0) return;
  window.convertButtons[indexOf(row.list)].enabled = true;
  window.cmdBrowse.enabled = true;
  if (row.list == ObjectList::kForms) window.cmdObjProps.enabled = true;
  if (count == 1) return;
  window.convertButtons[indexOf(row.toolTipButton)].toolTip = row.pluralToolTip;
  window.headings[indexOf(row.list)].caption = row.pluralHeading;
  window.allButtons[indexOf(row.list)].enabled = true;
}

}  // namespace

void GetQueryNames(MainObject& main) {
  ConversionState& state = main.state;
  reported(main, "GetQueryNames", [&] {
    state.mstrQueryNames.reset();
    const Collection<QueryDef> queryDefs = state.mdbCurr.QueryDefs();
    const std::int32_t count = queryDefs.Count();
    for (std::int32_t i = 0; i < count; ++i) {
      const std::string name = queryDefs(i).Name();
      // Hidden queries of forms and reports.
      if (name.starts_with('~')) continue;
      addItem(main, ObjectList::kQueries, name, kQueryIcon);
      state.mstrQueryNames.append(name);
    }
    state.mintQueryCount = state.mstrQueryNames.count();
    showTotal(main, ObjectList::kQueries, state.mintQueryCount);
  });
}

void GetFormNames(MainObject& main) { getDocumentNames(main, kForms); }
void GetMacroNames(MainObject& main) { getDocumentNames(main, kMacros); }
void GetModuleNames(MainObject& main) { getDocumentNames(main, kModules); }

void GetReportNames(MainObject& main) {
  ConversionState& state = main.state;
  state.mstrReportNames.reset();
  Collection<Document> documents;
  std::int32_t count = 0;
  ignoringErrors([&] {
    documents = state.mdbCurr.Containers("Reports").Documents();
    count = documents.Count();
  });
  for (std::int32_t i = 0; i < count; ++i) {
    std::string name;
    if (!ignoringErrors([&] { name = documents(i).Name(); })) continue;
    if (name.empty()) break;
    addItem(main, ObjectList::kReports, name, kReportIcon);
    state.mstrReportNames.append(name);
  }
  state.mintReportCount = state.mstrReportNames.count();
  if (state.mintReportCount > 0) {
    for (Button& button : main.window.cmdFindPath) button.enabled = true;
  }
  showTotal(main, ObjectList::kReports, state.mintReportCount);
}

void GetObjectNames(MainObject& main) {
  ConversionState& state = main.state;
  reported(main, "GetObjectNames", [&] {
    addObjects(main, state.mstrFormNames, kFormIcon);
    addObjects(main, state.mstrModuleNames, kModuleIcon);
    state.mintObjectCount =
        state.mstrFormNames.upperBound() + state.mstrModuleNames.upperBound() - 2;
    showTotal(main, ObjectList::kObjects, state.mintObjectCount);
  });
}

void EnableQryButtons(MainObject& main) { enableButtons(main, kQueryRow); }
void EnableFrmButtons(MainObject& main) { enableButtons(main, kFormRow); }
void EnableMacButtons(MainObject& main) { enableButtons(main, kMacroRow); }
void EnableModButtons(MainObject& main) { enableButtons(main, kModuleRow); }
void EnableRptButtons(MainObject& main) { enableButtons(main, kReportRow); }
void EnableObjButtons(MainObject& main) { enableButtons(main, kObjectRow); }

void ApplyButtonState(MainObject& main) {
  const MainWindow designed;
  for (const ObjectList list : kObjectLists) {
    if (main.window.list(list).size() <= 1)
      main.window.headings[indexOf(list)].caption = designed.headings[indexOf(list)].caption;
  }
  EnableQryButtons(main);
  EnableFrmButtons(main);
  EnableMacButtons(main);
  EnableModButtons(main);
  EnableRptButtons(main);
  EnableObjButtons(main);
}

void InsertObjectNames(MainObject& main) {
  reported(main, "InsertObjectNames", [&] {
    main.window.list(ObjectList::kForms).clear();
    GetFormNames(main);
    EnableFrmButtons(main);
    main.window.list(ObjectList::kModules).clear();
    GetModuleNames(main);
    EnableModButtons(main);
    main.window.list(ObjectList::kObjects).clear();
    GetObjectNames(main);
    EnableObjButtons(main);
    main.user.listsFilled(main.window);
  });
}

}  // namespace tarrowin
