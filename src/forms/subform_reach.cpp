// Reaching subforms, and the limits of nesting.
#include "forms/subform_reach.h"

#include <algorithm>

#include "core/loaded_forms.h"
#include "core/statement.h"
#include "forms/control_types.h"
#include "forms/parent_chain.h"
#include "shared/value_tests.h"
#include "shared/vb_text.h"

namespace tarrowin {

namespace {

constexpr std::int32_t kSingleForm = 0;  // Access's Form.DefaultView

// Subforms inside each other that are followed, for the sake of the machine's stack; far more than
// Access allows.
constexpr std::size_t kDeepestSubForm = 1000;

LateBound memberOf(const LateBound& holder, std::string_view member, std::string_view name) {
  return LateBound(toObject(holder.get(member, {Value(name)})));
}

bool standsOnPage(const LateBound& ctl) {
  const auto ignored = [](const VbError&) {};
  return ParentChain(ctl, 1).number(0, "ControlType", ignored) == control_type::kPage;
}

// A form is told from others by its name; where that cannot be read, by the name that it is
// loaded by.
std::string nameOf(const LateBound& ctl, const LateBound& form, const EmbeddedKind& kind) {
  std::string name;
  if (ignoringErrors([&] { name = form.text("Name"); })) return name;
  ignoringErrors([&] { name = LCase(sourceName(ctl, kind)); });
  return name;
}

bool isSingleForm(const LateBound& form) {
  bool single = false;
  ignoringErrors([&] { single = equals(form.get("DefaultView"), kSingleForm); });
  return single;
}

bool always(const LateBound&) { return true; }

}  // namespace

constexpr EmbeddedKind kEmbeddedForm = {"Form", "Form.", &ConversionState::frmCurr, isSingleForm};
constexpr EmbeddedKind kEmbeddedReport = {"Report", "Report.", &ConversionState::mrptCurr, always};

const EmbeddedKind& kindInHand(const ConversionState& state) {
  return state.mblnReportMode ? kEmbeddedReport : kEmbeddedForm;
}

LateBound reachEmbedded(const ConversionState& state, const LateBound& ctl, std::string_view name,
                        const EmbeddedKind& kind) {
  const LateBound& holder =
      state.openSubForms.empty() ? state.*kind.outermost : state.openSubForms.back().form;
  LateBound control;
  if (state.blnSubInTab && standsOnPage(ctl)) {
    const LateBound page(toObject(ctl.get("Parent")));
    const LateBound tab(toObject(page.get("Parent")));
    control = memberOf(memberOf(memberOf(holder, "", tab.text("Name")), "Pages", page.text("Name")),
                       "Controls", name);
  } else {
    control = memberOf(holder, "", name);
  }
  return LateBound(toObject(control.get(kind.member)));
}

std::string sourceName(const LateBound& ctl, const EmbeddedKind& kind) {
  std::string source = ctl.text("SourceObject");
  if (source.starts_with(kind.prefix)) source.erase(0, kind.prefix.size());
  return source;
}

bool isCutOff(const ConversionState& state, const LateBound& ctl, const LateBound& form,
              const EmbeddedKind& kind) {
  const std::string name = nameOf(ctl, form, kind);
  std::string mainForm;
  const bool isMainForm =
      ignoringErrors([&] { mainForm = (state.*kind.outermost).text("Name"); }) && mainForm == name;
  const bool isInsideItself =
      std::ranges::find(state.openSubForms, name, &OpenSubForm::name) != state.openSubForms.end();
  const bool isTooDeep = state.openSubForms.size() >= kDeepestSubForm;
  return (isMainForm || isInsideItself || isTooDeep) && kind.isFramed(form);
}

EmbeddedScope::EmbeddedScope(ConversionState& state, const LateBound& ctl, const LateBound& form,
                             const EmbeddedKind& kind)
    : state_(state) {
  state.openSubForms.push_back({form, nameOf(ctl, form, kind)});
}

EmbeddedScope::~EmbeddedScope() { state_.openSubForms.pop_back(); }

void closeLoadedForm(const MainObject& main, std::string_view name) {
  using namespace access_constants;
  if (IsFormLoaded(name)) main.state.gappAccess.doCmd().Close(acForm, name, acSaveNo);
}

}  // namespace tarrowin
