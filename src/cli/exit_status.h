// The exit statuses of the program, and the failure that ends a command with the last of them.
#pragma once

#include <stdexcept>

namespace tarrowin {

enum class ExitStatus : int {
  kDone = 0,          // all was converted, or the command did what it was asked for
  kNotConverted = 1,  // something selected was not converted
  kDiffers = 1,       // the two sources of a comparison differ
  kUnusable = 2,      // unusable arguments, source or script
};

// Ends a command with ExitStatus::kUnusable. The text, in UTF-8, tells a person what is wrong; each
// of its lines is printed behind the program's name.
class CommandFailure : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

}  // namespace tarrowin
