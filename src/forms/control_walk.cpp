// The walk and its error table.
#include "forms/control_walk.h"

#include <algorithm>
#include <iterator>
#include <string>

#include "forms/control_types.h"
#include "forms/parent_chain.h"
#include "shared/text_procedures.h"

namespace tarrowin {

namespace {

// What the end of a chain of Parents raises, and members that some objects lack.
constexpr std::int32_t kTolerated[] = {438, 2186, 2452, 2455, 2459, 2462, 2465};

using namespace parent_link;

Collection<LateBound> controlsOf(const LateBound& form) {
  return Collection<LateBound>(toObject(form.get("Controls")));
}

}  // namespace

bool isPrintedByContainer(std::int32_t P, std::int32_t Q) {
  using namespace control_type;
  return P == kOptionGroup || Q == kOptionGroup || (Q == kSubform && P != kSubform) ||
         P == kTabControl || Q == kTabControl;
}

bool isIndentedInContainer(const ConversionState& state) {
  return state.blnInOptionGroup || state.blnInTab;
}

ControlWalk::ControlWalk(MainObject& main, const WalkKind& kind)
    : main_(main), state_(main.state), kind_(kind), procedure_([this](const VbError& error) {
        onError(error);
        return Resume::kNext;
      }) {}

void ControlWalk::onError(const VbError& error) {
  if (std::ranges::find(kTolerated, error.number()) == std::end(kTolerated))
    main_.controlErrorBox(kind_.procedure, state_.strCtlName, error);
}

void ControlWalk::begin() {
  state_.astrCtlNames.reset();
  state_.blnFirstControl = true;
  state_.blnInSubForm = false;
  state_.blnInFrame = false;
  state_.blnInOptionGroup = false;
  state_.blnInTab = false;
  state_.blnDupFound = false;
  state_.intPageTopOffset = 0;
  state_.intSubDepth = 0;
  state_.intSubCount = 0;
  Collection<LateBound> controls;
  statement([&] {
    controls = controlsOf(design());
    state_.intNumControls = controls.Count() - 1;
  });
  // The number of the form before stands where the controls could not be counted.
  for (std::int32_t i = 0; i <= state_.intNumControls; ++i) {
    statement([&] {
      if (!controls) controls = controlsOf(design());
      state_.astrCtlNames.append(controls(i).text("Name"));
    });
  }
}

void ControlWalk::convertControls() {
  Collection<LateBound> controls;
  std::int32_t count = 0;
  statement([&] {
    controls = controlsOf(design());
    count = controls.Count();
  });
  for (std::int32_t i = 0; i < count; ++i) {
    LateBound ctl;
    if (statement([&] { ctl = controls(i); })) convert(ctl);
  }
}

void ControlWalk::convert(const LateBound& ctl) {
  const bool first = state_.blnFirstControl;
  state_.blnFirstControl = false;
  const ParentChain chain(ctl, kParents);
  const auto note = [this](const VbError& error) { onError(error); };
  std::string nameOfP, nameOfQ;
  if (kind_.asksForName) {
    nameOfP = chain.text(P, "Name", note);
    nameOfQ = chain.text(Q, "Name", note);
  }
  if (!first) {
    const std::int32_t typeOfP = chain.number(P, "ControlType", note);
    const std::int32_t typeOfQ = chain.number(Q, "ControlType", note);
    if (kind_.isLeftToContainer(typeOfP, typeOfQ)) return;
  }
  if (kind_.asksForName && !standsOnDesign(nameOfP, nameOfQ)) return;
  state_.strIndent = !first && kind_.isIndented(state_) ? "   " : "";
  statement([&] { state_.strCtlName = MakeVBName(ctl.text("Name")); });
  kind_.convert(main_, ctl);
}

bool ControlWalk::standsOnDesign(const std::string& nameOfP, const std::string& nameOfQ) {
  bool stands = false;
  statement([&] {
    const std::string name = design().text("Name");
    stands = nameOfP == name || nameOfQ == name;
  });
  return stands;
}

void ControlWalk::print(std::string_view line) {
  statement([&] { main_.files.Print(kOutputFile, line); });
}

void ControlWalk::printWithName(std::string_view literal) {
  statement([&] { main_.files.Print(kOutputFile, std::string(literal) + design().text("Name")); });
}

void convertWhole(MainObject& main, const WalkKind& kind,
                  const std::function<void(ControlWalk&)>& close) {
  ConversionState& state = main.state;
  state.astrDupNames.reset();
  state.astrPictureCode.reset();
  state.blnSubInTab = false;
  ControlWalk walk(main, kind);
  walk.begin();
  walk.convertControls();
  close(walk);
  state.astrCtlNames.reset();
  state.astrDupNames.reset();
}

}  // namespace tarrowin
