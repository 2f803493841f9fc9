// The six lists, their totals, and the state of the buttons.
#include "core/object_lists.h"

#include <gtest/gtest.h>

#include "support/test_session.h"

namespace tarrowin::test {
namespace {

Json named(const std::vector<std::string>& names) {
  Json list = Json::array();
  for (const std::string& name : names) {
    list.push_back({{"name", name}, {"properties", Json::object()}, {"text", ""}});
  }
  return list;
}

std::vector<std::string> texts(const TestSession& session, ObjectList list) {
  std::vector<std::string> result;
  for (const ListItem& item : session.main.window.list(list)) result.push_back(item.text);
  return result;
}

const Label& total(const TestSession& session, ObjectList list) {
  return session.main.window.totals[indexOf(list)];
}

TEST(ObjectLists, AreFilledInTheDatabasesOrderWithIconsAndTotals) {
  Json database = emptyDatabase();
  database["queries"] = {query("Zebra", "SELECT 1"), query("Apple", "SELECT 1")};
  database["forms"] = named({"frmB", "frmA"});
  database["reports"] = named({"rptA"});
  database["macros"] = named({"AutoExec", "mcrB", "mcrC"});
  database["modules"] = named({"Utilities"});
  TestSession session;
  session.open(database);
  EXPECT_EQ(texts(session, ObjectList::kQueries), (std::vector<std::string>{"Zebra", "Apple"}));
  EXPECT_EQ(texts(session, ObjectList::kObjects),
            (std::vector<std::string>{"frmB", "frmA", "Utilities"}));
  const std::vector<std::pair<ObjectList, std::string>> totals = {
      {ObjectList::kQueries, "Total Queries: 2"},
      {ObjectList::kForms, "Total Forms: 2"},
      {ObjectList::kReports, "Total Reports: 1"},
      {ObjectList::kMacros, "Total Macros: 3"},
      {ObjectList::kModules, "Total Modules: 1"},
      {ObjectList::kObjects, "Total Forms and Modules: 3"}};
  const std::vector<std::string> icons = {"keyQuery", "keyForm",   "keyReport",
                                          "keyMacro", "keyModule", "keyForm"};
  for (const auto& [list, text] : totals) {
    EXPECT_EQ(total(session, list).caption, text);
    EXPECT_TRUE(total(session, list).visible);
    EXPECT_EQ(session.main.window.list(list).front().smallIcon, icons[indexOf(list)]);
  }
  EXPECT_EQ(session.main.window.list(ObjectList::kObjects).back().smallIcon, "keyModule");
  EXPECT_EQ(session.main.state.mstrFormNames[1], "frmB");
  EXPECT_EQ(session.main.state.mstrFormNames.upperBound(), 3);
}

TEST(ObjectLists, ADatabaseWithoutQueriesLeavesTheTotalAtZero) {
  TestSession session;
  session.open(emptyDatabase());
  EXPECT_EQ(total(session, ObjectList::kQueries).caption, "Total Queries: 0");
  EXPECT_FALSE(session.main.window.convertButtons[0].enabled);
  EXPECT_FALSE(session.main.window.cmdBrowse.enabled);
}

TEST(ObjectLists, ASingleQueryLeavesTheToolTipAsDesignedAndTheAllButtonDisabled) {
  Json database = emptyDatabase();
  database["queries"] = {query("A", "SELECT 1")};
  TestSession session;
  session.open(database);
  const MainWindow& window = session.main.window;
  EXPECT_TRUE(window.convertButtons[0].enabled);
  EXPECT_TRUE(window.cmdBrowse.enabled);
  EXPECT_FALSE(window.allButtons[0].enabled);
  EXPECT_EQ(window.convertButtons[0].toolTip, "Convert Selected Queries");
  EXPECT_EQ(window.headings[0].caption, "Select Query to Convert");
}

TEST(ObjectLists, SeveralQueriesPutTheirToolTipOnTheFormButton) {
  Json database = emptyDatabase();
  database["queries"] = {query("A", "SELECT 1"), query("B", "SELECT 1")};
  database["forms"] = named({"frmA"});
  TestSession session;
  session.open(database);
  const MainWindow& window = session.main.window;
  EXPECT_TRUE(window.allButtons[0].enabled);
  EXPECT_EQ(window.headings[0].caption, "Select Queries to Convert");
  EXPECT_EQ(window.convertButtons[indexOf(ObjectList::kForms)].toolTip, "Convert Selected Queries");
  EXPECT_TRUE(window.cmdObjProps.enabled);

  database["forms"] = named({"frmA", "frmB"});
  TestSession other;
  other.open(database);
  EXPECT_EQ(other.main.window.convertButtons[indexOf(ObjectList::kForms)].toolTip,
            "Convert Selected Forms");
}

TEST(ObjectLists, PluralTextsOfAllKinds) {
  Json database = emptyDatabase();
  for (const char* kind : {"forms", "reports", "macros", "modules"})
    database[kind] = named({"a", "b"});
  TestSession session;
  session.open(database);
  const MainWindow& window = session.main.window;
  const auto heading = [&](ObjectList list) { return window.headings[indexOf(list)].caption; };
  EXPECT_EQ(heading(ObjectList::kForms), "Select Forms to Convert");
  EXPECT_EQ(heading(ObjectList::kReports), "Select Reports to Convert");
  EXPECT_EQ(heading(ObjectList::kMacros), "Select Macros to Convert");
  EXPECT_EQ(heading(ObjectList::kModules), "Select Modules to Convert");
  EXPECT_EQ(heading(ObjectList::kObjects),
            "Select Forms or Modules to Convert to Visual Basic Project");
  EXPECT_EQ(window.convertButtons[indexOf(ObjectList::kObjects)].toolTip,
            "Convert Selected Objects");
  EXPECT_EQ(window.convertButtons[indexOf(ObjectList::kReports)].toolTip,
            "Convert Selected Reports");
  for (const Button& button : window.cmdFindPath) EXPECT_TRUE(button.enabled);
  for (const ObjectList list : kObjectLists) {
    EXPECT_EQ(window.allButtons[indexOf(list)].enabled, list != ObjectList::kQueries);
  }
}

TEST(ObjectLists, TheProgramsOwnObjectsAndHiddenQueriesAreLeftOut) {
  Json database = emptyDatabase();
  database["queries"] = {query("~sq_fMain", "SELECT 1"), query("a~b", "SELECT 1")};
  database["forms"] = named({"frmTarrowin", "frmTarrowinStartup", "frmMain", "frmtarrowin"});
  database["modules"] = named({"modTarrowin", "modMain", "modTarrowinHelp", "modTarrowinRefs"});
  database["reports"] = named({"frmTarrowin"});
  TestSession session;
  session.open(database);
  EXPECT_EQ(texts(session, ObjectList::kQueries), (std::vector<std::string>{"a~b"}));
  EXPECT_EQ(texts(session, ObjectList::kForms),
            (std::vector<std::string>{"frmMain", "frmtarrowin"}));
  EXPECT_EQ(texts(session, ObjectList::kModules), (std::vector<std::string>{"modMain"}));
  EXPECT_EQ(texts(session, ObjectList::kReports), (std::vector<std::string>{"frmTarrowin"}));
  EXPECT_EQ(total(session, ObjectList::kForms).caption, "Total Forms: 2");
  EXPECT_EQ(total(session, ObjectList::kObjects).caption, "Total Forms and Modules: 3");
}

TEST(ObjectLists, AnEmptyNameEndsTheWalk) {
  Json database = emptyDatabase();
  database["macros"] = named({"A", "", "B"});
  TestSession session;
  session.open(database);
  EXPECT_EQ(texts(session, ObjectList::kMacros), (std::vector<std::string>{"A"}));
}

TEST(ObjectLists, NamesThatDifferOnlyInCaseAreSeparateEntries) {
  Json database = emptyDatabase();
  database["forms"] = named({"Main", "MAIN", "main"});
  TestSession session;
  session.open(database);
  EXPECT_EQ(texts(session, ObjectList::kForms), (std::vector<std::string>{"Main", "MAIN", "main"}));
}

TEST(ObjectLists, TheObjectTotalCountsFormsAndModulesWhetherShownOrNot) {
  TestSession session;
  session.open(emptyDatabase());
  session.main.state.mstrFormNames.reset();
  for (const char* name : {"A", "B"}) session.main.state.mstrFormNames.append(name);
  session.main.state.mstrModuleNames.reset();
  for (const char* name : {"", "M"}) session.main.state.mstrModuleNames.append(name);
  GetObjectNames(session.main);
  EXPECT_EQ(texts(session, ObjectList::kObjects), (std::vector<std::string>{"A", "B"}));
  EXPECT_EQ(total(session, ObjectList::kObjects).caption, "Total Forms and Modules: 4");
}

TEST(ObjectLists, FillingAfterMacrosRepeatsTheNamesInTheStartFormBox) {
  Json database = emptyDatabase();
  database["forms"] = named({"frmA"});
  database["modules"] = named({"modA", "modB"});
  TestSession session;
  session.open(database);
  InsertObjectNames(session.main);
  EXPECT_EQ(texts(session, ObjectList::kForms), (std::vector<std::string>{"frmA"}));
  EXPECT_EQ(texts(session, ObjectList::kObjects),
            (std::vector<std::string>{"frmA", "modA", "modB"}));
  EXPECT_EQ(session.main.window.cboFormNamesItems, (std::vector<std::string>{"frmA", "frmA"}));
  EXPECT_EQ(session.user.fillings, 2);
}

TEST(ObjectLists, WithoutADatabaseEveryListButTheReportsSaysSo) {
  TestSession session;
  GetQueryNames(session.main);
  GetFormNames(session.main);
  GetMacroNames(session.main);
  GetModuleNames(session.main);
  GetReportNames(session.main);
  std::vector<std::string> firstWords;
  for (const Box& box : session.user.boxes)
    firstWords.push_back(box.text.substr(0, box.text.find(' ')));
  EXPECT_EQ(firstWords, (std::vector<std::string>{"GetQueryNames()", "GetFormNames()",
                                                  "GetMacroNames()", "GetModuleNames()"}));
}

}  // namespace
}  // namespace tarrowin::test
