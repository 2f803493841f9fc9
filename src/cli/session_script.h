// The session script: a JSON list of steps, checked as a whole before the first one runs.
#pragma once

#include <deque>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "core/machine_paths.h"
#include "core/main_window.h"

namespace tarrowin {

// Texts are UTF-8 and paths as written in the script. Those of another machine are never resolved.
namespace script_step {
struct Open {
  std::string path;  // empty for a cancelled dialog
};
struct Set {
  std::optional<std::string> txtCurDir;
  std::optional<int> chkMultiSel, optContinuous, optMultiPage, tabSelect;
  std::optional<std::string> cboFormNames;
};
struct Select {
  ObjectList list;
  std::optional<std::vector<std::string>> items;  // none for "all"
};
struct Click {
  std::string button;
  int index;
};
struct DoubleClick {
  ObjectList list;
  std::string item;
};
struct Answers {
  std::deque<std::string> answers;
};
struct Config {
  MachinePaths machine;  // what is not named stays as it is
};
struct Reset {};
}  // namespace script_step

using ScriptStep = std::variant<script_step::Open, script_step::Set, script_step::Select,
                                script_step::Click, script_step::DoubleClick, script_step::Answers,
                                script_step::Config, script_step::Reset>;

// Reads a script. Throws CommandFailure that tells the step, counted from 1, and what is wrong with
// it: an unknown step, control, list or button, a value of the wrong type or outside the control's
// range. Keys that a step does not know are passed over.
std::vector<ScriptStep> readSessionScript(std::string_view utf8);

}  // namespace tarrowin
