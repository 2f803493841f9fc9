// The exit question and the end of Access.
#include "core/program_exit.h"

#include "core/main_object.h"
#include "core/statement.h"

namespace tarrowin {

bool wantsToExit(MainObject& main) {
  return main.messageBox(message_style::kYesNoQuestion, "Exit Tarrowin?") == Answer::kYes;
}

void unloadProgram(MainObject& main) {
  ConversionState& state = main.state;
  if (state.gappAccess) {
    // Nothing is left that could tell of a failure.
    ignoringErrors([&] { state.gappAccess.CloseCurrentDatabase(); });
    ignoringErrors([&] { state.gappAccess.Quit(access_constants::acQuitSaveAll); });
  }
  state.mdbCurr = {};
  state.gappAccess = {};
}

}  // namespace tarrowin
