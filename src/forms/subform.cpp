// A subform control, by the view of its form.
#include <string>
#include <vector>

#include "core/statement.h"
#include "forms/containers.h"
#include "forms/control_dispatch.h"
#include "forms/control_printers.h"
#include "forms/control_types.h"
#include "forms/data_controls.h"
#include "forms/error_outcomes.h"
#include "forms/parent_chain.h"
#include "forms/section_heights.h"
#include "forms/subform_reach.h"
#include "shared/text_procedures.h"
#include "shared/value_tests.h"
#include "shared/vb_number.h"
#include "shared/vb_text.h"

namespace tarrowin {

namespace {

// What the height of a subform's control is larger than its sections, in twips.
constexpr std::int16_t kMargin = 120;

constexpr std::int32_t kSilent[] = {91, 92, 438, 2186, 2452, 2455, 2459, 2462, 2465, 7784};
constexpr std::int32_t kUnreachable[] = {2102, 2103, 2121, 2450, 2457, 2467, 2494};
constexpr ErrorTable kErrors = {kSilent, kUnreachable};

// Access's Form.DefaultView; what cannot be read shows as a sheet.
enum class View { kSingle, kContinuous, kSheet };
constexpr std::int32_t kSingleForm = 0, kContinuousForms = 1;

using namespace parent_link;

// Members of option groups and of tab pages are printed by these.
bool isPrintedByContainer(std::int32_t typeOfP, std::int32_t typeOfQ) {
  using namespace control_type;
  return typeOfP == kOptionGroup || typeOfP == kOptionButton || typeOfP == kTabControl ||
         typeOfP == kPage || typeOfQ == kOptionGroup || typeOfQ == kTabControl || typeOfQ == kPage;
}

// One subform control at work. The form is this call's own; all else is shared by the levels.
class SubForm {
 public:
  SubForm(MainObject& main, const LateBound& ctl)
      : main_(main),
        state_(main.state),
        ctl_(ctl),
        nested_(!main.state.openSubForms.empty()),
        procedure_([this](const VbError& error) { return onError(error); }) {}

  void run() {
    if (nested_) {
      state_.blnNestedSubForm = true;
      statement([this] { state_.intSubDepth = addInt16(state_.intSubDepth, 1); });
    }
    procedure_.run([this] { convert(); });
    if (nested_) state_.blnNestedSubForm = false;
  }

 private:
  void convert() {
    state_.blnUsesSubControl = true;
    readSize();
    statement([this] { reachName() = ctl_.text("Name"); });
    reach();
    if (form_ && isCutOff(state_, ctl_, form_)) return leaveEmptyFrame();
    readHeights();
    if (isBound()) GetSubFormDataCtlProps(main_);
    switch (readView()) {
      case View::kSingle:
        convertFrame();
        break;
      case View::kContinuous:
        if (!state_.mblnUserControl) convertSheet();
        break;
      case View::kSheet:
        convertSheet();
        break;
    }
    close("      End   ' ");
    statement([this] { closeLoadedForm(main_, state_.strSubFormName); });
    leaveFrame();
    statement([this] {
      const Collection<LateBound> controls(toObject(form_.get("Controls")));
      state_.intNumControls = addInt32(state_.intNumControls, controls.Count());
    });
  }

  // The name by which the form is reached. A nested subform leaves the outer one's in place.
  std::string& reachName() { return nested_ ? innerName_ : state_.strSubFormName; }

  Resume onError(const VbError& error) {
    ErrorOutcome outcome = kErrors.outcome(error);
    // A second name that leads nowhere leaves nothing that could be printed.
    const bool isSecondName = reaching_ && attempts_ > 0;
    if (isSecondName && outcome == ErrorOutcome::kSilent) outcome = ErrorOutcome::kUnreachable;
    switch (outcome) {
      case ErrorOutcome::kUnreachable:
        if (++attempts_ == 1) {
          // The name was the control's, which can differ from the form's.
          ignoringErrors([this] { reachName() = sourceFormName(ctl_); });
          return Resume::kRetry;
        }
        leaveEmptyFrame();
        return Resume::kLeave;
      case ErrorOutcome::kMessage:
        main_.controlErrorBox("GetSubFormProps", shownName(), error);
        break;
      case ErrorOutcome::kSilent:
        break;
    }
    return Resume::kNext;
  }

  std::string shownName() {
    std::string name = reachName();
    if (nested_) ignoringErrors([&] { name = sourceFormName(ctl_); });
    return name;
  }

  template <class Statement>
  bool statement(Statement&& statement) {
    return procedure_.statement(std::forward<Statement>(statement));
  }

  void readSize() {
    const auto read = [this](std::string_view property, std::int16_t& size) {
      statement([&] { size = toInteger(ctl_.get(property)); });
    };
    read("Left", state_.intSubLeft);
    read("Height", state_.intSubHeight);
    read("Width", state_.intSubWidth);
  }

  void reach() {
    reaching_ = true;
    statement([this] { form_ = reachSubForm(state_, ctl_, reachName()); });
    reaching_ = false;
    state_.frmSubCurr = form_;
  }

  void readHeights() {
    const SectionHeights heights = subFormHeights(state_);
    readSectionHeights(procedure_, form_, heights);
    statement([&] { state_.intSubTotalHeight = sumOfHeights(heights, kMargin); });
  }

  bool isBound() {
    bool bound = false;
    statement([&] { bound = !form_.text("RecordSource").empty(); });
    return bound;
  }

  View readView() {
    View view = View::kSheet;
    statement([&] {
      const Value number = form_.get("DefaultView");
      if (equals(number, kSingleForm)) view = View::kSingle;
      if (equals(number, kContinuousForms)) view = View::kContinuous;
    });
    return view;
  }

  void convertSheet() {
    state_.mblnAdoDataCtl = true;
    state_.gblnProjectNeeded = true;
    state_.blnUsesDataGrid = true;
    CreateAdoDataCtl(main_, form_);
    PrintSubFormAsSheet(main_, ctl_);
  }

  void convertFrame() {
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
  void listNames() {
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

  void convertControls() {
    const SubFormScope scope(state_, ctl_, form_);
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

  void nameControl(const LateBound& ctl) {
    std::string name;
    if (!statement([&] { name = ctl.text("Name"); })) return;
    const bool isDuplicate = isKnown(name);
    state_.strCtlName = MakeVBName(std::move(name));
    if (!isDuplicate) return;
    statement([this] {
      const std::int32_t number = addInt16(state_.intSubDepth, state_.intSubCount);
      state_.strCtlName += "_Dup" + LTrimStr(number);
      state_.astrCtlNames.append(state_.strCtlName);
    });
  }

  // In a nested subform, and behind one, every name is known: the subform's own are listed by then.
  bool isKnown(const std::string& name) const {
    if (state_.blnDupFound) return state_.astrDupNames.contains(name);
    return state_.intSubDepth >= 1 && state_.astrCtlNames.contains(name);
  }

  bool isLeftToContainer(const LateBound& ctl) {
    const ParentChain chain(ctl, kParents);
    const auto note = [this](const VbError& error) {
      if (kErrors.outcome(error) != ErrorOutcome::kSilent) statement([&] { throw error; });
    };
    const std::int32_t typeOfP = chain.number(P, "ControlType", note);
    const std::int32_t typeOfQ = chain.number(Q, "ControlType", note);
    return isPrintedByContainer(typeOfP, typeOfQ);
  }

  // What a subform leaves whose form cannot be had.
  void leaveEmptyFrame() {
    PrintSubFormFrameProps(main_, ctl_);
    ignoringErrors(
        [this] { main_.files.Print(kOutputFile, "   End   ' " + state_.strSubFormName); });
    leaveFrame();
  }

  void close(std::string_view literal) {
    statement(
        [&] { main_.files.Print(kOutputFile, std::string(literal) + state_.strSubFormName); });
  }

  void leaveFrame() {
    state_.blnInSubForm = false;
    state_.blnInFrame = false;
    state_.blnInOptionGroup = false;
  }

  MainObject& main_;
  ConversionState& state_;
  const LateBound& ctl_;
  const bool nested_;
  Procedure procedure_;
  std::string innerName_;
  LateBound form_;
  Collection<LateBound> controls_;
  std::int32_t count_ = 0;
  int attempts_ = 0;  // failures to reach the form
  bool reaching_ = false;
};

}  // namespace

void GetSubFormProps(MainObject& main, const LateBound& ctl) { SubForm(main, ctl).run(); }

}  // namespace tarrowin
