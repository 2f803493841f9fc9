// tarrowin-cli convert: selected objects of a database into a directory, by the buttons of the
// window.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "cli/environment.h"
#include "cli/exit_status.h"
#include "core/machine_paths.h"
#include "core/main_window.h"
#include "shared/code_page.h"

namespace tarrowin {

// What is wanted of one kind of objects.
struct KindSelection {
  bool wanted = false;
  std::vector<std::string> names;  // UTF-8; none means the whole list
};

struct ConvertOptions {
  std::string source;
  std::string directory;
  std::array<KindSelection, kObjectListCount> kinds;  // by ObjectList
  bool all = false;                                   // every kind that has objects
  bool singleFile = false;                            // chkMultiSel
  bool dataRepeater = false;                          // the second choice of optContinuous
  bool singleForms = false;                           // the second choice of optMultiPage
  std::optional<std::string> startupForm;             // cboFormNames, UTF-8
  bool json = false;
  int codePage = CodePage::kWestern;
  MachinePaths machine;  // UTF-8
};

// Works through the kinds in the order of kObjectKinds. Nothing is written, and the directory is
// not made, unless the source opens and every name is in its list. The directory is made with its
// parents.
ExitStatus convertSource(const Environment& environment, const ConvertOptions& options);

}  // namespace tarrowin
