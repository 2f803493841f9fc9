// Forms with more control names than Visual Basic takes, as the drivers note and tell them.
#pragma once

#include <string>
#include <string_view>

#include "core/conversion_state.h"

namespace tarrowin {

// Whether the form converted last has more than 254 control names.
bool hasTooManyControls(const ConversionState& state);

// Appends the form converted last to mstrBigForms when it has too many.
void noteTooManyControls(ConversionState& state, std::string_view name);

// The paragraphs about the noted forms; empty when there are none.
std::string largeFormsNote(const ConversionState& state);

// What follows the number of controls of a single form: the limit, and what comes of it.
inline constexpr std::string_view kControlLimit =
    "This exceeds the Visual Basic limit of 254 control names for a Form. ";
inline constexpr std::string_view kControlWarning =
    "Too many controls on a Form may cause Visual Basic to crash. Refer to the online Help for "
    "more information.";

}  // namespace tarrowin
