// tarrowin-cli preview: what a form will look like in Visual Basic, as a list of its controls.
#pragma once

#include <string>

#include "cli/environment.h"
#include "cli/exit_status.h"

namespace tarrowin {

struct PreviewOptions {
  std::string source;
  std::string form;
  bool json = false;
};

// Texts are printed without loss, whatever the code page of a conversion would make of them. A form
// that cannot be shown gives kNotConverted; its box has told why. Throws CommandFailure for one
// that the source does not have.
ExitStatus previewForm(const Environment& environment, const PreviewOptions& options);

}  // namespace tarrowin
