// The form that a subform control shows: how it is reached, and when it must not be entered.
#pragma once

#include <string>
#include <string_view>

#include "core/main_object.h"

namespace tarrowin {

// Reaches the form by the control's name, or by one tried in its place: from the form that holds
// the control, which is the innermost open subform or else frmCurr; through the tab control and the
// page when blnSubInTab is on and the control stands on a page. Raises what Access raises.
LateBound reachSubForm(const ConversionState& state, const LateBound& ctl, std::string_view name);

// SourceObject without "Form." in front. Raises what its reading raises.
std::string sourceFormName(const LateBound& ctl);

// Whether the controls of this form, shown by this subform control as a single form, would be
// printed without end: it is frmCurr or stands inside itself, or it stands deeper than can be
// followed.
bool isCutOff(const ConversionState& state, const LateBound& ctl, const LateBound& form);

// What is open for the time of printing a subform's controls.
class SubFormScope {
 public:
  SubFormScope(ConversionState& state, const LateBound& ctl, const LateBound& form);
  ~SubFormScope();
  SubFormScope(const SubFormScope&) = delete;
  SubFormScope& operator=(const SubFormScope&) = delete;

 private:
  ConversionState& state_;
};

// Closes the form of that name without saving when the program itself has it loaded.
void closeLoadedForm(const MainObject& main, std::string_view name);

}  // namespace tarrowin
