// Reaching the form, naming its controls, printing them.
#include "forms/embedded_design.h"

#include <utility>
#include <vector>

#include "forms/control_dispatch.h"
#include "forms/control_printers.h"
#include "forms/control_types.h"
#include "forms/error_outcomes.h"
#include "forms/parent_chain.h"
#include "shared/text_procedures.h"
#include "shared/vb_number.h"

namespace tarrowin {

namespace {

constexpr std::int32_t kSilent[] = {91, 92, 438, 2186, 2452, 2455, 2459, 2462, 2465, 7784};
constexpr std::int32_t kUnreachable[] = {2102, 2103, 2121, 2450, 2457, 2467, 2494};
constexpr ErrorTable kErrors = {kSilent, kUnreachable};

using namespace parent_link;

// Members of option groups and of tab pages are printed by these.
bool isHeldByContainer(std::int32_t typeOfP, std::int32_t typeOfQ) {
  using namespace control_type;
  return typeOfP == kOptionGroup || typeOfP == kOptionButton || typeOfP == kTabControl ||
         typeOfP == kPage || typeOfQ == kOptionGroup || typeOfQ == kTabControl || typeOfQ == kPage;
}

}  // namespace

EmbeddedDesign::EmbeddedDesign(MainObject& main, const LateBound& ctl, const EmbeddedKind& kind)
    : main_(main),
      state_(main.state),
      ctl_(ctl),
      procedure_([this](const VbError& error) { return onError(error); }),
      kind_(kind),
      nested_(!main.state.openSubForms.empty()) {}

void EmbeddedDesign::run() {
  if (nested_) {
    state_.blnNestedSubForm = true;
    statement([this] { state_.intSubDepth = addInt16(state_.intSubDepth, 1); });
  }
  procedure_.run([this] { convert(); });
  if (nested_) state_.blnNestedSubForm = false;
}

void EmbeddedDesign::convert() {
  state_.blnUsesSubControl = true;
  readSize();
  statement([this] { reachName() = ctl_.text("Name"); });
  reach();
  if (form_ && isCutOff(state_, ctl_, form_, kind_)) return leaveEmptyFrame();
  readHeights();
  print();
  statement([this] { closeLoadedForm(main_, state_.strSubFormName); });
  leaveFrame();
  statement([this] {
    const Collection<LateBound> controls(toObject(form_.get("Controls")));
    state_.intNumControls = addInt32(state_.intNumControls, controls.Count());
  });
}

Resume EmbeddedDesign::onError(const VbError& error) {
  ErrorOutcome outcome = kErrors.outcome(error);
  // A second name that leads nowhere leaves nothing that could be printed.
  const bool isSecondName = reaching_ && attempts_ > 0;
  if (isSecondName && outcome == ErrorOutcome::kSilent) outcome = ErrorOutcome::kUnreachable;
  switch (outcome) {
    case ErrorOutcome::kUnreachable:
      if (++attempts_ == 1) {
        // The name was the control's, which can differ from the form's.
        ignoringErrors([this] { reachName() = sourceName(ctl_, kind_); });
        return Resume::kRetry;
      }
      leaveEmptyFrame();
      return Resume::kLeave;
    case ErrorOutcome::kMessage:
      errorBox(shownName(), error);
      break;
    case ErrorOutcome::kSilent:
      break;
  }
  return Resume::kNext;
}

std::string EmbeddedDesign::shownName() {
  std::string name = reachName();
  if (nested_) ignoringErrors([&] { name = sourceName(ctl_, kind_); });
  return name;
}

void EmbeddedDesign::readSize() {
  const auto read = [this](std::string_view property, std::int16_t& size) {
    statement([&] { size = toInteger(ctl_.get(property)); });
  };
  read("Left", state_.intSubLeft);
  read("Height", state_.intSubHeight);
  read("Width", state_.intSubWidth);
}

void EmbeddedDesign::reach() {
  reaching_ = true;
  statement([this] { form_ = reachEmbedded(state_, ctl_, reachName(), kind_); });
  reaching_ = false;
  state_.frmSubCurr = form_;
}

void EmbeddedDesign::printFrame() {
  state_.blnInFrame = true;
  state_.strFrameName = state_.strCtlName;
  PrintSubFormFrameProps(main_, ctl_);
  statement([this] {
    controls_ = Collection<LateBound>(toObject(form_.get("Controls")));
    count_ = controls_.Count();
  });
  if (count_ == 0) return;
  state_.strIndent = "      ";
  state_.blnInSubForm = true;
  listNames();
  convertControls();
  statement([this] { state_.intSubCount = addInt16(state_.intSubCount, 1); });
}

// Notes which names the form or an earlier subform has, then adds all to the list of names.
void EmbeddedDesign::listNames() {
  std::vector<std::string> names;
  names.reserve(static_cast<std::size_t>(count_));
  for (std::int32_t i = 0; i < count_; ++i) {
    statement([&] { names.push_back(controls_(i).text("Name")); });
  }
  for (const std::string& name : names) {
    if (!state_.astrCtlNames.contains(name)) continue;
    state_.blnDupFound = true;
    if (!state_.astrDupNames.contains(name)) state_.astrDupNames.append(name);
  }
  for (std::string& name : names) {
    if (name != state_.strFrameName) state_.astrCtlNames.append(std::move(name));
  }
}

void EmbeddedDesign::convertControls() {
  const EmbeddedScope scope(state_, ctl_, form_, kind_);
  for (std::int32_t i = 0; i < count_; ++i) {
    LateBound ctl;
    if (!statement([&] { ctl = controls_(i); })) continue;
    nameControl(ctl);
    if (isLeftToContainer(ctl)) continue;
    state_.blnInSubForm = true;
    GetControlProps(main_, ctl);
    state_.frmSubCurr = form_;
  }
}

void EmbeddedDesign::nameControl(const LateBound& ctl) {
  std::string name;
  if (!statement([&] { name = ctl.text("Name"); })) return;
  const bool isDuplicate = isKnown(name);
  state_.strCtlName = MakeVBName(std::move(name));
  if (!isDuplicate) return;
  statement([this] {
    renameDuplicate();
    state_.astrCtlNames.append(state_.strCtlName);
  });
}

// In a nested subform, and behind one, every name is known: the subform's own are listed by then.
bool EmbeddedDesign::isKnown(const std::string& name) const {
  if (state_.blnDupFound) return state_.astrDupNames.contains(name);
  return state_.intSubDepth >= 1 && state_.astrCtlNames.contains(name);
}

bool EmbeddedDesign::isLeftToContainer(const LateBound& ctl) {
  const ParentChain chain(ctl, kParents);
  const auto note = [this](const VbError& error) {
    if (kErrors.outcome(error) != ErrorOutcome::kSilent) statement([&] { throw error; });
  };
  const std::int32_t typeOfP = chain.number(P, "ControlType", note);
  const std::int32_t typeOfQ = chain.number(Q, "ControlType", note);
  return isHeldByContainer(typeOfP, typeOfQ);
}

// What a subform leaves whose form cannot be had.
void EmbeddedDesign::leaveEmptyFrame() {
  PrintSubFormFrameProps(main_, ctl_);
  ignoringErrors([this] { main_.files.Print(kOutputFile, "   End   ' " + state_.strSubFormName); });
  leaveFrame();
}

void EmbeddedDesign::close(std::string_view literal) {
  statement([&] { main_.files.Print(kOutputFile, std::string(literal) + state_.strSubFormName); });
}

void EmbeddedDesign::leaveFrame() {
  state_.blnInSubForm = false;
  state_.blnInFrame = false;
  state_.blnInOptionGroup = false;
}

}  // namespace tarrowin
