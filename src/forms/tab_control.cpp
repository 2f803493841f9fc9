// The rows of a tab control, its list of pages, and the controls on them.
#include <string>
#include <vector>

#include "core/statement.h"
#include "forms/container_depth.h"
#include "forms/containers.h"
#include "forms/control_dispatch.h"
#include "forms/control_geometry.h"
#include "forms/control_printers.h"
#include "forms/control_types.h"
#include "forms/error_outcomes.h"
#include "forms/parent_chain.h"
#include "forms/printer_rows.h"
#include "forms/subform_reach.h"
#include "forms/value_rules.h"
#include "shared/text_procedures.h"
#include "shared/value_tests.h"
#include "shared/vb_number.h"
#include "shared/vb_text.h"

namespace tarrowin {

namespace {

using namespace value_rule;
using namespace control_type;
using row_block::font;

// What stands above the controls in the frame of a subform, in twips.
constexpr std::int64_t kRiseInSubForm = 240;

void topInFrame(const PrintedControl& control, std::string_view, std::string& line) {
  const std::int64_t top = topInHand(control.main, control.ctl);
  line += std::to_string(control.state().blnInSubForm ? top - kRiseInSubForm : top);
}

void savedWidth(const PrintedControl& control, std::string_view property, std::string& line) {
  std::int16_t& width = control.state().intTabWidth;
  width = toInteger(control.ctl.get(property));
  line += std::to_string(width);
}

// Access's styles are 0, 1 and 2: none has a widest tab.
void widestTab(const PrintedControl& control, std::string_view property, std::string& line) {
  line += isAtLeast(control.ctl.get("Style"), 0) ? "0" : joined(control.ctl.get(property));
}

void pageCount(const PrintedControl& control, std::string_view, std::string& line) {
  line += joined(LateBound(toObject(control.ctl.get("Pages"))).get("Count"));
}

// clang-format off
constexpr PrinterRow kTabControlRows[] = {
    {"   Begin TabDlg.SSTab ",   name},
    {"      Enabled       = ",   boolean,     "Enabled"},
    PrinterRow(font),
    {"      Height        = ",   raw,         "Height"},
    {"      HelpContextID = ",   raw,         "HelpContextID"},
    {"      Left          = ",   raw,         "Left"},
    {"      Style         = 1"},
    {"      TabIndex      = ",   raw,         "TabIndex"},
    {"      TabStop       = ",   boolean,     "TabStop"},
    {"      Tag           = ",   quotedClean, "Tag"},
    {"      Top           = ",   topInFrame},
    {"      Visible       = ",   boolean,     "Visible"},
    {"      Width         = ",   savedWidth,  "Width"},
    {"      TabHeight     = ",   raw,         "TabFixedHeight"},
    {"      TabMaxWidth   = ",   widestTab,   "TabFixedWidth"},
    {"      Tabs          = ",   pageCount},
    {"      TabsPerRow    = ",   pageCount},
};

constexpr std::int32_t kSilent[] = {91, 92, 424, 438, 484, 2186, 2452, 2455, 2459, 2462, 2465, 7784};
constexpr std::int32_t kUnreachable[] = {2102, 2121, 2450, 2457, 2467, 2494};
constexpr ErrorTable kErrors = {kSilent, kUnreachable};
// clang-format on

using namespace parent_link;

struct ParentTypes {
  std::int32_t P, Q;
  bool contains(std::int32_t type) const { return P == type || Q == type; }
};

bool isGroupMember(const ParentTypes& types) {
  return types.P == kOptionGroup || types.P == kOptionButton || types.Q == kOptionGroup;
}

class TabControl {
 public:
  explicit TabControl(MainObject& main)
      : main_(main),
        state_(main.state),
        procedure_([this](const VbError& error) { return onError(error); }) {}

  void convert(const LateBound& ctl) {
    PrintTabControlProps(main_, ctl);
    state_.blnInTab = true;
    state_.strIndent = "   ";
    if (!isTooDeepContainer(ctl)) {
      readPages(ctl);
      forEachPage([this](const Page& page) { list(page); });
      forEachPage([this](const Page& page) { convertControls(page); });
    }
    print("   End   ' Tab Control");
    if (!subFormName_.empty()) statement([this] { closeLoadedForm(main_, subFormName_); });
    state_.blnInTab = false;
  }

 private:
  struct Page {
    LateBound page;
    Collection<LateBound> controls;
    std::int32_t count = 0;
  };

  Resume onError(const VbError& error) {
    switch (kErrors.outcome(error)) {
      case ErrorOutcome::kUnreachable:
        return ++attempts_ == 1 ? Resume::kRetry : Resume::kNext;
      case ErrorOutcome::kMessage:
        main_.controlErrorBox("GetTabControlProps", state_.strCtlName, error);
        break;
      case ErrorOutcome::kSilent:
        break;
    }
    return Resume::kNext;
  }

  template <class Statement>
  bool statement(Statement&& statement) {
    return procedure_.statement(std::forward<Statement>(statement));
  }

  void print(std::string_view line) {
    statement([&] { main_.files.Print(kOutputFile, line); });
  }

  // The types of what holds a control. Errors that pass silently are common here: they are not
  // thrown.
  ParentTypes parentsOf(const LateBound& ctl) {
    const ParentChain chain(ctl, kParents);
    const auto note = [this](const VbError& error) {
      if (kErrors.outcome(error) != ErrorOutcome::kSilent) statement([&] { throw error; });
    };
    const std::int32_t typeOfP = chain.number(P, "ControlType", note);
    return {typeOfP, chain.number(Q, "ControlType", note)};
  }

  std::int32_t typeOf(const LateBound& ctl) {
    std::int32_t type = 0;
    statement([&] { type = ctl.number("ControlType"); });
    return type;
  }

  bool readName(const LateBound& ctl) {
    return statement([&] { state_.strCtlName = MakeVBName(ctl.text("Name")); });
  }

  void readPages(const LateBound& ctl) {
    Collection<LateBound> pages;
    std::int32_t count = 0;
    statement([&] {
      pages = Collection<LateBound>(toObject(ctl.get("Pages")));
      count = pages.Count();
    });
    readOffset(pages, ctl, "Top", state_.intPageTopOffset);
    readOffset(pages, ctl, "Left", state_.intPageLeftOffset);
    for (std::int32_t n = 0; n < count; ++n) {
      Page page;
      statement([&] {
        page.page = pages(n);
        page.controls = Collection<LateBound>(toObject(page.page.get("Controls")));
        page.count = page.controls.Count();
      });
      pages_.push_back(std::move(page));
    }
  }

  // Of the first page inside its tab control.
  void readOffset(const Collection<LateBound>& pages, const LateBound& ctl,
                  std::string_view property, std::int16_t& offset) {
    statement([&] {
      offset = toInt16(static_cast<double>(pages(0).number(property)) - ctl.number(property));
    });
  }

  // The number of the page is shared with a tab control in a subform on the page, which leaves its
  // own behind.
  template <class Action>
  void forEachPage(Action action) {
    state_.intTabPageNum = 0;
    for (const Page& page : pages_) {
      action(page);
      statement([this] { state_.intTabPageNum = addInt16(state_.intTabPageNum, 1); });
    }
  }

  void list(const Page& page) {
    const std::int32_t n = state_.intTabPageNum;
    const std::string tab = "      Tab(" + std::to_string(n) + ").";
    std::int32_t k = 0;
    if (page.count > 0) {
      listCaption(page.page, n);
      print(tab + (n == 0 ? "ControlEnabled= -1   'True" : "ControlEnabled= 0   'False"));
      k = listControls(page, tab);
    }
    print(tab + "ControlCount= " + std::to_string(k));
  }

  void listCaption(const LateBound& page, std::int32_t n) {
    statement([&] {
      std::string caption = page.text("Caption");
      if (caption.empty()) caption = page.text("Name");
      main_.files.Print(kOutputFile,
                        "      TabCaption(" + std::to_string(n) + ") = \"" + caption + '"');
    });
  }

  // Gives the count of listed controls.
  std::int32_t listControls(const Page& page, const std::string& tab) {
    const bool isSubFormPage = typeOf(page.page) == kSubform;
    std::int32_t k = 0;
    for (std::int32_t i = 0; i < page.count; ++i) {
      LateBound ctl;
      if (!statement([&] { ctl = page.controls(i); })) continue;
      const ParentTypes types = parentsOf(ctl);
      if (types.contains(kPage) && !isGroupMember(types)) {
        listControl(ctl, tab, k);
      } else if (k >= page.count) {
        break;
      }
      if (typeOf(ctl) == kSubform) k = listSubForm(ctl, tab, k);
      const bool counts = isSubFormPage || types.contains(kPage) || types.P == kSubform;
      if (counts && !isGroupMember(types)) ++k;
    }
    return k;
  }

  void listControl(const LateBound& ctl, const std::string& tab, std::int32_t k) {
    if (!readName(ctl)) return;
    const std::string entry = tab + "Control(" + std::to_string(k) + ")";
    print(entry + "= \"" + Trim(state_.strCtlName) + '"');
    print(entry + ".Enabled= 0");
  }

  // Lists the subforms inside a subform, and what is attached to them, from k on, which is the
  // subform's own number. Gives the number behind them.
  std::int32_t listSubForm(const LateBound& ctl, const std::string& tab, std::int32_t k) {
    state_.blnSubInTab = true;
    subFormName_.clear();
    LateBound form;
    statement([&] { subFormName_ = ctl.text("Name"); });
    const EmbeddedKind& kind = kindInHand(state_);
    statement([&] { form = reachEmbedded(state_, ctl, subFormName_, kind); });
    if (!form || isCutOff(state_, ctl, form, kind)) return k;
    Collection<LateBound> controls;
    std::int32_t count = 0;
    statement([&] {
      controls = Collection<LateBound>(toObject(form.get("Controls")));
      count = controls.Count();
    });
    for (std::int32_t i = 0; i < count; ++i) {
      LateBound inner;
      if (!statement([&] { inner = controls(i); })) continue;
      const ParentTypes types = parentsOf(inner);
      const bool isSubForm = types.contains(kSubform) || typeOf(inner) == kSubform;
      if (isSubForm && !types.contains(kOptionGroup)) listControl(inner, tab, k++);
    }
    return k;
  }

  void convertControls(const Page& page) {
    for (std::int32_t i = 0; i < page.count; ++i) {
      LateBound ctl;
      if (!statement([&] { ctl = page.controls(i); })) continue;
      readName(ctl);
      if (parentsOf(ctl).P == kOptionGroup) continue;
      state_.blnInTab = true;
      GetControlProps(main_, ctl);
    }
  }

  MainObject& main_;
  ConversionState& state_;
  Procedure procedure_;
  int attempts_ = 0;  // failures to reach a subform
  std::vector<Page> pages_;
  std::string subFormName_;  // of the last subform on a page
};

}  // namespace

void PrintTabControlProps(MainObject& main, const LateBound& ctl) {
  printRows({main, ctl}, kTabControlRows, "");
}

void GetTabControlProps(MainObject& main, const LateBound& ctl) { TabControl(main).convert(ctl); }

}  // namespace tarrowin
