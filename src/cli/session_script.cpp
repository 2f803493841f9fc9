// From JSON to steps, with everything checked that can be checked without a database.
#include "cli/session_script.h"

#include <array>
#include <cstdint>
#include <functional>
#include <limits>

#include "cli/exit_status.h"
#include "cli/json_text.h"
#include "core/window_events.h"
#include "shared/text_procedures.h"

namespace tarrowin {

namespace {

using namespace script_step;

// The buttons of the window, and how many elements a control array has.
struct ButtonName {
  std::string_view name;
  int elements = 1;
};
constexpr std::array<ButtonName, 18> kButtons = {{{"cmdOpen"},
                                                  {"cmdBrowse"},
                                                  {"cmdConvertQry"},
                                                  {"cmdAllQrys"},
                                                  {"cmdObjProps"},
                                                  {"cmdConvertFrm"},
                                                  {"cmdAllForms"},
                                                  {"cmdConvertRpt"},
                                                  {"cmdAllReports"},
                                                  {"cmdFindPath", 2},
                                                  {"cmdConvertMac"},
                                                  {"cmdAllMacros"},
                                                  {"cmdConvertMod"},
                                                  {"cmdAllMods"},
                                                  {"cmdConvertObj"},
                                                  {"cmdAllObjs"},
                                                  {"cmdNext"},
                                                  {"cmdPrev"}}};
constexpr int kLastOption = 1;  // optContinuous and optMultiPage have two elements
constexpr int kLastTab = 6;
// A script nested deeper than this is no script.
constexpr int kDeepest = 16;

[[noreturn]] void fail(const std::string& what) { throw CommandFailure(what); }

std::string textOf(const Json& value, std::string_view key) {
  if (!value.is_string()) fail(inQuotes(key) + " must be a text");
  return value.get<std::string>();
}

int numberOf(const Json& value, std::string_view key, int last) {
  // A number with a fraction or an exponent is no index.
  if (value.is_number_integer() && value >= 0 && value <= last) return value.get<int>();
  fail(inQuotes(key) + " must be a whole number from 0 to " + std::to_string(last));
}

std::vector<std::string> textsOf(const Json& value, std::string_view key) {
  if (!value.is_array()) fail(inQuotes(key) + " must be a list of texts");
  std::vector<std::string> texts;
  for (const Json& element : value) texts.push_back(textOf(element, key));
  return texts;
}

const Json& companion(const Json& step, const char* key, std::string_view stepName) {
  const auto found = step.find(key);
  if (found == step.end()) fail(inQuotes(stepName) + " needs " + inQuotes(key));
  return *found;
}

ObjectList listOf(const Json& value, std::string_view key) {
  const std::string name = textOf(value, key);
  const std::optional<ObjectList> list = listNamed(name);
  if (!list) fail("the window has no list " + inQuotes(name));
  return *list;
}

ScriptStep readOpen(const Json& step) { return Open{textOf(step["open"], "open")}; }

ScriptStep readSet(const Json& step) {
  const Json& controls = step["set"];
  if (!controls.is_object()) fail("\"set\" must be an object of controls");
  Set set;
  for (const auto& [name, value] : controls.items()) {
    if (name == "txtCurDir") {
      set.txtCurDir = textOf(value, name);
    } else if (name == "cboFormNames") {
      set.cboFormNames = textOf(value, name);
    } else if (name == "chkMultiSel") {
      set.chkMultiSel = numberOf(value, name, 1);
    } else if (name == "optContinuous") {
      set.optContinuous = numberOf(value, name, kLastOption);
    } else if (name == "optMultiPage") {
      set.optMultiPage = numberOf(value, name, kLastOption);
    } else if (name == "tabSelect") {
      set.tabSelect = numberOf(value, name, kLastTab);
    } else {
      fail("the window has no control " + inQuotes(name) + " to set");
    }
  }
  return set;
}

ScriptStep readSelect(const Json& step) {
  Select select{listOf(step["select"], "select"), std::nullopt};
  const Json& items = companion(step, "items", "select");
  if (items.is_string()) {
    if (items != "all") fail("\"items\" must be a list of texts or \"all\"");
  } else {
    select.items = textsOf(items, "items");
  }
  return select;
}

ScriptStep readClick(const Json& step) {
  const std::string name = textOf(step["click"], "click");
  for (const ButtonName& button : kButtons) {
    if (button.name != name) continue;
    const auto index = step.find("index");
    return Click{name, index == step.end() ? 0 : numberOf(*index, "index", button.elements - 1)};
  }
  fail("the window has no button " + inQuotes(name));
}

ScriptStep readDoubleClick(const Json& step) {
  return DoubleClick{listOf(step["doubleclick"], "doubleclick"),
                     textOf(companion(step, "item", "doubleclick"), "item")};
}

ScriptStep readAnswers(const Json& step) {
  const std::vector<std::string> texts = textsOf(step["answers"], "answers");
  return Answers{{texts.begin(), texts.end()}};
}

ScriptStep readConfig(const Json& step) {
  const Json& members = step["config"];
  if (!members.is_object()) fail("\"config\" must be an object");
  MachinePaths machine;
  for (const auto& [name, value] : members.items()) {
    if (name == "systemDir") {
      machine.systemDir = textOf(value, name);
    } else if (name == "msderunPath") {
      machine.msderunPath = textOf(value, name);
    } else if (name == "msadoPath") {
      machine.msadoPath = textOf(value, name);
    } else {
      fail("\"config\" has no member " + inQuotes(name));
    }
  }
  return Config{machine};
}

ScriptStep readReset(const Json& step) {
  if (step["reset"] != true) fail("\"reset\" must be true");
  return Reset{};
}

struct StepName {
  const char* name;
  ScriptStep (*read)(const Json& step);
};
constexpr std::array<StepName, 8> kSteps = {{{"open", readOpen},
                                             {"set", readSet},
                                             {"select", readSelect},
                                             {"click", readClick},
                                             {"doubleclick", readDoubleClick},
                                             {"answers", readAnswers},
                                             {"config", readConfig},
                                             {"reset", readReset}}};

ScriptStep readStep(const Json& step) {
  if (!step.is_object()) fail("is no object");
  const StepName* found = nullptr;
  for (const StepName& candidate : kSteps) {
    if (!step.contains(candidate.name)) continue;
    if (found) fail("is both " + inQuotes(found->name) + " and " + inQuotes(candidate.name));
    found = &candidate;
  }
  if (!found) fail("is no step that is known");
  return found->read(step);
}

Json parse(std::string_view utf8) {
  const auto limitDepth = [](int depth, Json::parse_event_t, Json&) {
    if (depth > kDeepest) fail("is nested too deep");
    return true;
  };
  try {
    return Json::parse(utf8, limitDepth);
  } catch (const Json::parse_error& error) {
    // The library's text begins with a code of its own in brackets.
    const std::string_view what = error.what();
    const std::size_t bracket = what.find("] ");
    fail("is not JSON: " +
         std::string(bracket == std::string_view::npos ? what : what.substr(bracket + 2)));
  }
}

}  // namespace

std::vector<ScriptStep> readSessionScript(std::string_view utf8) {
  const Json script = parse(utf8);
  if (!script.is_array()) fail("is no list of steps");
  std::vector<ScriptStep> steps;
  for (const Json& step : script) {
    try {
      steps.push_back(readStep(step));
    } catch (const CommandFailure& failure) {
      fail("step " + std::to_string(steps.size() + 1) + ": " + failure.what());
    }
  }
  return steps;
}

}  // namespace tarrowin
