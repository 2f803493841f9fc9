// tarrowin-cli record: a recording of whatever database can be opened.
#pragma once

#include <string>

#include "cli/environment.h"
#include "cli/exit_status.h"

namespace tarrowin {

struct RecordOptions {
  std::string source;
  std::string file;
};

// Texts are recorded without loss, whatever the code page of a conversion would make of them.
// Refuses to replace the source itself.
ExitStatus recordSource(const Environment& environment, const RecordOptions& options);

}  // namespace tarrowin
