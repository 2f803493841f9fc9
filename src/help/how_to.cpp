// The pager of the How to tab.
#include "help/how_to.h"

#include <algorithm>
#include <cstddef>
#include <string>

#include "core/main_window.h"
#include "help/how_to_pages.h"
#include "shared/vb_text.h"

namespace tarrowin {

namespace {

constexpr int kLastPage = kHowToPages - 1;
// Over the first page until the user turns one.
constexpr std::string_view kStartTitle = "Using the Tarrowin";

// An empty label stands for the first page, which is the one before any paging.
int currentPage(const MainWindow& window) {
  return std::clamp(static_cast<int>(Val(window.lblCurrentPage.caption)), 0, kLastPage);
}

void setStep(Label& label, std::size_t number, std::string_view step) {
  label.visible = !step.empty();
  label.caption = step.empty() ? "" : std::to_string(number) + ". " + std::string(step);
}

}  // namespace

void showHowToPage(MainWindow& window, int page) {
  const HowToPage& shown = howToPages()[static_cast<std::size_t>(page)];
  window.lblTitle.caption = shown.title;
  for (std::size_t i = 0; i < shown.steps.size(); ++i) {
    setStep(window.lblInfo[i], i + 1, shown.steps[i]);
  }
  window.lblCurrentPage.caption = std::to_string(page);
  window.lblLastPage.caption = std::to_string(kLastPage);
  window.cmdPrev.enabled = page > 0;
  window.cmdNext.enabled = page < kLastPage;
}

void cmdNext_Click(MainWindow& window) {
  const int page = currentPage(window);
  if (page < kLastPage) showHowToPage(window, page + 1);
}

void cmdPrev_Click(MainWindow& window) {
  const int page = currentPage(window);
  if (page > 0) showHowToPage(window, page - 1);
}

void refreshHowTo(MainWindow& window, bool howToTabShown) {
  if (!howToTabShown) {
    for (std::size_t i = 1; i < window.lblInfo.size(); ++i) setStep(window.lblInfo[i], i + 1, {});
    return;
  }
  const bool pageWasTurned = window.lblTitle.caption != kStartTitle;
  showHowToPage(window, currentPage(window));
  if (!pageWasTurned) window.lblTitle.caption = kStartTitle;
}

}  // namespace tarrowin
