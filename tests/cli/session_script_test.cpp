// What is a script and what is not.
#include "cli/session_script.h"

#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "cli/exit_status.h"

namespace tarrowin {
namespace {

using namespace script_step;

// The message of a script that must be refused.
std::string refusal(std::string_view script) {
  try {
    readSessionScript(script);
  } catch (const CommandFailure& failure) {
    return failure.what();
  }
  return "(accepted)";
}

TEST(SessionScript, ReadsEveryStep) {
  const std::vector<ScriptStep> steps = readSessionScript(R"([
    {"open": "orders.access.json"},
    {"set": {"txtCurDir": "out", "chkMultiSel": 1, "optContinuous": 1, "optMultiPage": 0,
             "cboFormNames": "frmMain", "tabSelect": 6}},
    {"select": "lstForms", "items": ["Orders", "Sales"]},
    {"select": "lstQueries", "items": "all"},
    {"click": "cmdConvertFrm"},
    {"click": "cmdFindPath", "index": 1},
    {"doubleclick": "lstForms", "item": "Orders"},
    {"answers": ["yes", "no", "ok", "C:\\dll\\msderun.dll"]},
    {"config": {"systemDir": "s", "msderunPath": "r", "msadoPath": "a"}},
    {"reset": true}
  ])");
  ASSERT_EQ(steps.size(), 10u);
  EXPECT_EQ(std::get<Open>(steps[0]).path, "orders.access.json");
  const Set& set = std::get<Set>(steps[1]);
  EXPECT_EQ(set.txtCurDir, "out");
  EXPECT_EQ(set.chkMultiSel, 1);
  EXPECT_EQ(set.optContinuous, 1);
  EXPECT_EQ(set.optMultiPage, 0);
  EXPECT_EQ(set.cboFormNames, "frmMain");
  EXPECT_EQ(set.tabSelect, 6);
  EXPECT_EQ(std::get<Select>(steps[2]).list, ObjectList::kForms);
  EXPECT_EQ(std::get<Select>(steps[2]).items, (std::vector<std::string>{"Orders", "Sales"}));
  EXPECT_EQ(std::get<Select>(steps[3]).items, std::nullopt);
  EXPECT_EQ(std::get<Click>(steps[4]).button, "cmdConvertFrm");
  EXPECT_EQ(std::get<Click>(steps[4]).index, 0);
  EXPECT_EQ(std::get<Click>(steps[5]).index, 1);
  EXPECT_EQ(std::get<DoubleClick>(steps[6]).item, "Orders");
  EXPECT_EQ(std::get<Answers>(steps[7]).answers,
            (std::deque<std::string>{"yes", "no", "ok", "C:\\dll\\msderun.dll"}));
  EXPECT_EQ(std::get<Config>(steps[8]).machine.msderunPath, "r");
  EXPECT_TRUE(std::holds_alternative<Reset>(steps[9]));
}

TEST(SessionScript, EmptyListIsAScript) { EXPECT_TRUE(readSessionScript("[]").empty()); }

TEST(SessionScript, KeysBesideAStepArePassedOver) {
  EXPECT_EQ(readSessionScript(R"([{"open": "", "why": "cancelled"}])").size(), 1u);
}

TEST(SessionScript, EveryButtonOfTheWindowIsKnown) {
  for (const char* button : {"cmdOpen", "cmdBrowse", "cmdConvertQry", "cmdAllQrys", "cmdObjProps",
                             "cmdConvertFrm", "cmdAllForms", "cmdConvertRpt", "cmdAllReports",
                             "cmdFindPath", "cmdConvertMac", "cmdAllMacros", "cmdConvertMod",
                             "cmdAllMods", "cmdConvertObj", "cmdAllObjs", "cmdNext", "cmdPrev"}) {
    EXPECT_EQ(refusal("[{\"click\": \"" + std::string(button) + "\"}]"), "(accepted)");
  }
}

TEST(SessionScript, RefusesWhatIsNoScript) {
  EXPECT_EQ(refusal("{}"), "is no list of steps");
  EXPECT_EQ(refusal("").substr(0, 11), "is not JSON");
  EXPECT_EQ(refusal("[{\"open\": \"a\"}").substr(0, 11), "is not JSON");
  EXPECT_EQ(refusal("[\"\xff\"]").substr(0, 11), "is not JSON");
  EXPECT_EQ(refusal(std::string(200000, '[')), "is nested too deep");
}

TEST(SessionScript, RefusesAStepAndTellsWhich) {
  const std::vector<std::pair<std::string, std::string>> refused = {
      {R"(7)", "is no object"},
      {R"({})", "is no step that is known"},
      {R"({"opne": "a"})", "is no step that is known"},
      {R"({"open": "a", "click": "cmdOpen"})", R"(is both "open" and "click")"},
      {R"({"open": null})", R"("open" must be a text)"},
      {R"({"set": []})", R"("set" must be an object of controls)"},
      {R"({"set": {"txtCurDir": 1}})", R"("txtCurDir" must be a text)"},
      {R"({"set": {"chkMultiSel": true}})", R"("chkMultiSel" must be a whole number from 0 to 1)"},
      {R"({"set": {"chkMultiSel": 2}})", R"("chkMultiSel" must be a whole number from 0 to 1)"},
      {R"({"set": {"optContinuous": -1}})",
       R"("optContinuous" must be a whole number from 0 to 1)"},
      {R"({"set": {"optMultiPage": 0.5}})", R"("optMultiPage" must be a whole number from 0 to 1)"},
      {R"({"set": {"tabSelect": 7}})", R"("tabSelect" must be a whole number from 0 to 6)"},
      {R"({"set": {"tabSelect": 18446744073709551616}})",
       R"("tabSelect" must be a whole number from 0 to 6)"},
      {R"({"set": {"lblCurDb": "x"}})", R"(the window has no control "lblCurDb" to set)"},
      {R"({"select": "lstTables", "items": "all"})", R"(the window has no list "lstTables")"},
      {R"({"select": "lstForms"})", R"("select" needs "items")"},
      {R"({"select": "lstForms", "items": "some"})", R"("items" must be a list of texts or "all")"},
      {R"({"select": "lstForms", "items": [1]})", R"("items" must be a text)"},
      {R"({"click": "cmdCovnert"})", R"(the window has no button "cmdCovnert")"},
      {R"({"click": "cmdFindPath", "index": 2})", R"("index" must be a whole number from 0 to 1)"},
      {R"({"doubleclick": "lstForms"})", R"("doubleclick" needs "item")"},
      {R"({"doubleclick": "cmdOpen", "item": "a"})", R"(the window has no list "cmdOpen")"},
      {R"({"answers": "yes"})", R"("answers" must be a list of texts)"},
      {R"({"answers": [true]})", R"("answers" must be a text)"},
      {R"({"config": {"systemdir": "x"}})", R"("config" has no member "systemdir")"},
      {R"({"config": "x"})", R"("config" must be an object)"},
      {R"({"reset": false})", R"("reset" must be true)"},
  };
  for (const auto& [step, message] : refused) {
    EXPECT_EQ(refusal("[{\"reset\": true}, " + step + "]"), "step 2: " + message) << step;
  }
}

}  // namespace
}  // namespace tarrowin
