// The rows of an option group, and its members.
#include <algorithm>
#include <iterator>
#include <string>

#include "core/statement.h"
#include "forms/container_depth.h"
#include "forms/containers.h"
#include "forms/control_dispatch.h"
#include "forms/control_geometry.h"
#include "forms/control_printers.h"
#include "forms/control_types.h"
#include "forms/parent_chain.h"
#include "forms/printer_rows.h"
#include "forms/value_rules.h"
#include "shared/text_procedures.h"
#include "shared/value_tests.h"
#include "shared/vb_number.h"

namespace tarrowin {

namespace {

using namespace value_rule;
using control_type::kOptionGroup;

// What the caption of a frame takes above its members, in twips.
constexpr std::int16_t kCaption = 120;

void heightWithCaption(const PrintedControl& control, std::string_view property,
                       std::string& line) {
  line += joined(sum(control.ctl.get(property), kCaption));
}

void topAboveCaption(const PrintedControl& control, std::string_view, std::string& line) {
  std::int16_t& top = control.state().intGroupTop;
  top = toInt16(static_cast<double>(topInHand(control.main, control.ctl)));
  line += std::to_string(std::max<std::int16_t>(subtractInt16(top, kCaption), 0));
}

// clang-format off
constexpr PrinterRow kOptionGroupRows[] = {
    {"   Begin VB.Frame ",       name},
    {"      Appearance    = ",   appearance},
    {"      BackColor     = ",   backColor},
    {"      Enabled       = ",   boolean,           "Enabled"},
    {"      HelpContextID = ",   raw,               "HelpContextID"},
    {"      Height        = ",   heightWithCaption, "Height"},
    {"      Left          = ",   left},
    {"      TabIndex      = ",   raw,               "TabIndex"},
    {"      Tag           = ",   quotedTrim,        "Tag"},
    {"      ToolTipText   = ",   quotedTrim,        "ToolTipText"},
    {"      Top           = ",   topAboveCaption},
    {"      Visible       = ",   boolean,           "Visible"},
    {"      Width         = ",   raw,               "Width"},
};
// clang-format on

// What the end of a chain of Parents raises, and members that some parents lack.
constexpr std::int32_t kToleratedOfParents[] = {438, 2186, 2452, 2455, 2459, 2462, 2465};

using namespace parent_link;

class OptionGroup {
 public:
  explicit OptionGroup(MainObject& main)
      : main_(main), state_(main.state), procedure_([&main](const VbError& error) {
          main.errorBox("GetOptionGroupProps", error);
          return Resume::kNext;
        }) {}

  void convert(const LateBound& ctl) {
    state_.strFrameName = state_.strCtlName;
    PrintOptionGroupProps(main_, ctl);
    state_.strIndent = kIndent;
    bool empty = isTooDeepContainer(ctl);
    if (!empty) {
      statement([&] {
        controls_ = Collection<LateBound>(toObject(ctl.get("Controls")));
        count_ = controls_.Count();
        empty = count_ == 0;
      });
    }
    if (empty) {
      close("End   '");
    } else {
      state_.blnInOptionGroup = true;
      convertMembers();
      close("End   ' Frame ");
      state_.blnInOptionGroup = false;
    }
    state_.blnInFrame = false;
    state_.strIndent = kIndent;
  }

 private:
  static constexpr std::string_view kIndent = "   ";

  template <class Statement>
  bool statement(Statement&& statement) {
    return procedure_.statement(std::forward<Statement>(statement));
  }

  void convertMembers() {
    for (std::int32_t i = 0; i < count_; ++i) {
      LateBound ctl;
      if (statement([&] { ctl = controls_(i); })) convertMember(ctl);
    }
  }

  void convertMember(const LateBound& ctl) {
    statement([&] { state_.strCtlName = MakeVBName(ctl.text("Name")); });
    const ParentChain chain(ctl, kParents);
    const auto note = [this](const VbError& error) {
      if (std::ranges::find(kToleratedOfParents, error.number()) == std::end(kToleratedOfParents))
        main_.errorBox("GetOptionGroupProps", error);
    };
    const std::int32_t typeOfP = chain.number(P, "ControlType", note);
    const std::int32_t typeOfQ = chain.number(Q, "ControlType", note);
    if (typeOfP == kOptionGroup || typeOfQ == kOptionGroup) GetControlProps(main_, ctl);
  }

  void close(std::string_view literal) {
    statement([&] {
      main_.files.Print(kOutputFile, state_.strIndent + std::string(literal) + state_.strFrameName);
    });
  }

  MainObject& main_;
  ConversionState& state_;
  Procedure procedure_;
  Collection<LateBound> controls_;
  std::int32_t count_ = 0;
};

}  // namespace

void PrintOptionGroupProps(MainObject& main, const LateBound& ctl) {
  printRows({main, ctl}, kOptionGroupRows);
}

void GetOptionGroupProps(MainObject& main, const LateBound& ctl) { OptionGroup(main).convert(ctl); }

}  // namespace tarrowin
