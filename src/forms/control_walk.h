// The walk over the controls of a form or report, for its text and for a user control's code.
#pragma once

#include <cstdint>
#include <functional>
#include <string_view>

#include "core/main_object.h"
#include "core/statement.h"

namespace tarrowin {

// What differs between the walks.
struct WalkKind {
  std::string_view procedure;          // the name in its error box
  LateBound ConversionState::*design;  // whose controls these are
  // Whether a control with this Parent and this Parent's Parent, by ControlType, is left to its
  // container.
  bool (*isLeftToContainer)(std::int32_t P, std::int32_t Q);
  bool (*isIndented)(const ConversionState& state);
  void (*convert)(MainObject& main, const LateBound& ctl);
  // Whether a control is left out when neither its Parent nor that one's bears the design's name.
  bool asksForName = true;
};

// The conditions of the walks that print a form: members of option groups and of tab pages are
// printed by these, those of a subform by it.
bool isPrintedByContainer(std::int32_t P, std::int32_t Q);
bool isIndentedInContainer(const ConversionState& state);

class ControlWalk {
 public:
  ControlWalk(MainObject& main, const WalkKind& kind);

  // Resets what a form starts with, counts the controls and reads their names.
  void begin();
  // Converts the controls in the collection's order. The first one escapes the test of its
  // container, so that one inside a group is met twice.
  void convertControls();

  // A line of its own, and one with the name of the design behind it.
  void print(std::string_view line);
  void printWithName(std::string_view literal);

 private:
  template <class Statement>
  bool statement(Statement&& statement) {
    return procedure_.statement(std::forward<Statement>(statement));
  }
  const LateBound& design() const { return state_.*kind_.design; }
  bool standsOnDesign(const std::string& nameOfP, const std::string& nameOfQ);
  void convert(const LateBound& ctl);
  void onError(const VbError& error);

  MainObject& main_;
  ConversionState& state_;
  const WalkKind& kind_;
  Procedure procedure_;
};

// The walk of a whole form or report, which close ends with its lines: resets the lists that are
// filled on the way.
void convertWhole(MainObject& main, const WalkKind& kind,
                  const std::function<void(ControlWalk&)>& close);

}  // namespace tarrowin
