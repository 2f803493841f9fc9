// tarrowin-cli script: a recorded session, step by step, with a transcript of what the user would
// see.
#pragma once

#include <string>

#include "cli/environment.h"
#include "cli/exit_status.h"
#include "shared/code_page.h"

namespace tarrowin {

struct ScriptOptions {
  std::string file;
  std::string transcript;  // empty for standard output
  int codePage = CodePage::kWestern;
};

// The whole script is checked before its first step runs and before the transcript is made.
ExitStatus runScript(const Environment& environment, const ScriptOptions& options);

}  // namespace tarrowin
