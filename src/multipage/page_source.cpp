// Opening, page bounds, finishing and saving.
#include "multipage/page_source.h"

#include <algorithm>
#include <limits>

#include "core/design_sections.h"
#include "core/loaded_forms.h"
#include "shared/vb_text.h"

namespace tarrowin {

namespace {

// CurrentDb.Version of Access 97, whose forms take no module before they have code.
constexpr double kAccess97Version = 3.0;
// The most that Visual Basic shows of a form, eight inches.
constexpr std::int32_t kHighestForm = 11520;
constexpr std::int32_t kDetail = 0;
// Form header, page header, Detail, page footer, form footer.
constexpr std::int32_t kSections[] = {1, 3, kDetail, 4, 2};

}  // namespace

void PageSource::open(Procedure& procedure) {
  using namespace access_constants;
  procedure.statement([&] { main_.state.gappAccess.doCmd().Close(acForm, name_, acSavePrompt); });
  procedure.statement([&] { main_.state.gappAccess.doCmd().OpenForm(name_, acFormDS); });
  procedure.statement([&] { main_.host.SendKeys("{F5}"); });
  procedure.statement([&] { form_ = main_.state.gappAccess.Forms(name_); });
  readPageTops(procedure);
}

void PageSource::reopen(Procedure& procedure) {
  if (IsFormLoaded(name_)) return;
  procedure.statement(
      [&] { main_.state.gappAccess.doCmd().OpenForm(name_, access_constants::acFormDS); });
  procedure.statement([&] { form_ = main_.state.gappAccess.Forms(name_); });
}

void PageSource::readPageTops(Procedure& procedure) {
  aintPageTops_.assign(1, 0);
  walk(procedure, true, [&](const LateBound& pageBreak) {
    procedure.statement([&] { aintPageTops_.back() = toInteger(pageBreak.get("Top")); });
    aintPageTops_.push_back(0);
  });
}

bool PageSource::isOnPage(std::size_t page, std::int32_t top) const {
  if (page == 0) return top < aintPageTops_[0];
  if (top < aintPageTops_[page - 1]) return false;
  return isLastPage(page) || top < aintPageTops_[page];
}

std::int32_t PageSource::topOnPage(std::size_t page, std::int32_t top) const {
  const std::int32_t bound = aintPageTops_[page == 0 ? 0 : page - 1];
  if (top < bound) return top;
  constexpr std::int64_t kMost = std::numeric_limits<std::int32_t>::max();
  return static_cast<std::int32_t>(std::min(std::int64_t{top} - bound, kMost));
}

void finishNewForm(MainObject& main, Procedure& procedure, const LateBound& newForm) {
  bool takesModule = false;
  procedure.statement([&] {
    takesModule = Val(main.state.gappAccess.CurrentDb().text("Version")) > kAccess97Version;
  });
  if (takesModule) procedure.statement([&] { newForm.put("HasModule", Value(true)); });
  std::int64_t all = 0, others = 0;
  for (const std::int32_t number : kSections) {
    procedure.statement([&] {
      const std::int32_t height = sectionOf(newForm, number).number("Height");
      all += height;
      if (number != kDetail) others += height;
    });
  }
  if (all <= kHighestForm) return;
  procedure.statement([&] {
    const auto height = static_cast<std::int32_t>(kHighestForm - others);
    sectionOf(newForm, kDetail).put("Height", Value(height));
  });
}

void saveNewForm(MainObject& main, Procedure& procedure, std::string_view newName) {
  using namespace access_constants;
  procedure.statement([&] { main.state.gappAccess.doCmd().Close(acForm, newName, acSaveYes); });
  procedure.statement([&] { main.state.gappAccess.RefreshDatabaseWindow(); });
}

}  // namespace tarrowin
