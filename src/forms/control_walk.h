// The walk over the controls of frmCurr, for the form's text and for a user control's code.
#pragma once

#include <cstdint>
#include <string_view>

#include "core/main_object.h"
#include "core/statement.h"

namespace tarrowin {

// What differs between the walks.
struct WalkKind {
  std::string_view procedure;  // the name in its error box
  // Whether a control with this Parent and this Parent's Parent, by ControlType, is left to its
  // container.
  bool (*isLeftToContainer)(std::int32_t P, std::int32_t Q);
  bool (*isIndented)(const ConversionState& state);
  void (*convert)(MainObject& main, const LateBound& ctl);
};

class ControlWalk {
 public:
  ControlWalk(MainObject& main, const WalkKind& kind);

  // Resets what a form starts with, counts the controls and reads their names.
  void begin();
  // Converts the controls in the collection's order. The first one escapes the test of its
  // container, so that one inside a group is met twice.
  void convertControls();

  template <class Statement>
  bool statement(Statement&& statement) {
    return procedure_.statement(std::forward<Statement>(statement));
  }

 private:
  void convert(const LateBound& ctl);
  void onError(const VbError& error);

  MainObject& main_;
  ConversionState& state_;
  const WalkKind& kind_;
  Procedure procedure_;
};

}  // namespace tarrowin
