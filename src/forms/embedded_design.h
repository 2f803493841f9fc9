// What a subform control shows, a form or a report, printed into the generated form: the steps that
// both share.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "core/main_object.h"
#include "core/statement.h"
#include "forms/subform_reach.h"

namespace tarrowin {

// One subform control at work. The form is this call's own; all else is shared by the levels.
class EmbeddedDesign {
 public:
  EmbeddedDesign(MainObject& main, const LateBound& ctl, const EmbeddedKind& kind);
  virtual ~EmbeddedDesign() = default;

  void run();

 protected:
  // Reads the heights of its sections.
  virtual void readHeights() = 0;
  // Prints it, from its data control to the closing line.
  virtual void print() = 0;
  // Gives strCtlName, whose name is known, an ending.
  virtual void renameDuplicate() = 0;
  virtual void errorBox(const std::string& name, const VbError& error) = 0;

  template <class Statement>
  bool statement(Statement&& statement) {
    return procedure_.statement(std::forward<Statement>(statement));
  }
  void printFrame();
  void close(std::string_view literal);

  MainObject& main_;
  ConversionState& state_;
  const LateBound& ctl_;
  LateBound form_;  // no object when it could not be had
  Procedure procedure_;

 private:
  void convert();
  Resume onError(const VbError& error);
  // The name by which the form is reached. A nested one leaves the outer one's in place.
  std::string& reachName() { return nested_ ? innerName_ : state_.strSubFormName; }
  std::string shownName();
  void readSize();
  void reach();
  void listNames();
  void convertControls();
  void nameControl(const LateBound& ctl);
  bool isKnown(const std::string& name) const;
  bool isLeftToContainer(const LateBound& ctl);
  void leaveEmptyFrame();
  void leaveFrame();

  const EmbeddedKind& kind_;
  const bool nested_;
  std::string innerName_;
  Collection<LateBound> controls_;
  std::int32_t count_ = 0;
  int attempts_ = 0;  // failures to reach the form
  bool reaching_ = false;
};

}  // namespace tarrowin
