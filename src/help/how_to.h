// The How to tab: seven pages of numbered steps, one step a label.
#pragma once

namespace tarrowin {

struct MainWindow;

// The number of pages.
inline constexpr int kHowToPages = 7;

// Shows the page, 0 to 6: its title, its steps, the pager's numbers, and which of its buttons lead
// anywhere.
void showHowToPage(MainWindow& window, int page);
// The pager's buttons; from the last page, or the first one, they lead nowhere.
void cmdNext_Click(MainWindow& window);
void cmdPrev_Click(MainWindow& window);

// After each change of the tab. With the How to tab in front, its current page is shown anew, so
// that a pager that was set back in between and the page agree; the first page keeps the window's
// own title until the user turns one. With another tab in front, the steps from lblInfo(1) on are
// cleared.
void refreshHowTo(MainWindow& window, bool howToTabShown);

}  // namespace tarrowin
