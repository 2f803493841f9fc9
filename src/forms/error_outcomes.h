// The error tables of the procedures that open subforms, as data beside each.
#pragma once

#include <algorithm>
#include <cstdint>
#include <span>

#include "shared/vb_error.h"

namespace tarrowin {

enum class ErrorOutcome {
  kSilent,       // on with the next statement
  kUnreachable,  // the form of a subform control cannot be had
  kMessage,      // a box, then the next statement
};

struct ErrorTable {
  std::span<const std::int32_t> silent, unreachable;  // all others have a box

  ErrorOutcome outcome(const VbError& error) const {
    if (std::ranges::find(silent, error.number()) != silent.end()) return ErrorOutcome::kSilent;
    if (std::ranges::find(unreachable, error.number()) != unreachable.end())
      return ErrorOutcome::kUnreachable;
    return ErrorOutcome::kMessage;
  }
};

}  // namespace tarrowin
