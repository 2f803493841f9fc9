// The form or report that a subform control shows: how it is reached, and when it must not be
// entered.
#pragma once

#include <string>
#include <string_view>

#include "core/main_object.h"

namespace tarrowin {

// What differs between subforms and subreports.
struct EmbeddedKind {
  std::string_view member;                // of the control, that gives it
  std::string_view prefix;                // of its name in SourceObject
  LateBound ConversionState::*outermost;  // what holds those that stand in no other
  // Whether its controls are printed into a frame.
  bool (*isFramed)(const LateBound& form);
};
extern const EmbeddedKind kEmbeddedForm, kEmbeddedReport;

// The kind that the control in hand shows: a report while a report is being converted.
const EmbeddedKind& kindInHand(const ConversionState& state);

// Reaches the form by the control's name, or by one tried in its place: from what holds the
// control, the innermost open subform or else the outermost form; through the tab control and the
// page when blnSubInTab is on and the control stands on a page. Raises what Access raises.
LateBound reachEmbedded(const ConversionState& state, const LateBound& ctl, std::string_view name,
                        const EmbeddedKind& kind);

// SourceObject without the prefix in front. Raises what its reading raises.
std::string sourceName(const LateBound& ctl, const EmbeddedKind& kind);

// Whether the controls of this form, shown in a frame by this subform control, would be printed
// without end: it is the outermost form or stands inside itself, or it stands deeper than can be
// followed.
bool isCutOff(const ConversionState& state, const LateBound& ctl, const LateBound& form,
              const EmbeddedKind& kind);

// What is open for the time of printing a subform's controls.
class EmbeddedScope {
 public:
  EmbeddedScope(ConversionState& state, const LateBound& ctl, const LateBound& form,
                const EmbeddedKind& kind);
  ~EmbeddedScope();
  EmbeddedScope(const EmbeddedScope&) = delete;
  EmbeddedScope& operator=(const EmbeddedScope&) = delete;

 private:
  ConversionState& state_;
};

// Closes the form of that name without saving when the program itself has it loaded.
void closeLoadedForm(const MainObject& main, std::string_view name);

}  // namespace tarrowin
