// The titles by tab, and the dialog.
#include "core/folder_browsing.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "core/main_object.h"

namespace tarrowin {

namespace {

// The word in the title, for one selected item and for several. The tabs stand in the order of the
// lists; the tab behind them has no list and no title.
struct TitleRow {
  std::string_view one;
  std::string_view several;
};
// clang-format off
constexpr std::array<TitleRow, kObjectListCount> kTitles = {{
    {"Save Query in Folder...",  "Save Queries in Folder..."},
    {"Save Form in Folder...",   "Save Forms in Folder..."},
    {"Save Report in Folder...", "Save Reports in Folder..."},
    {"Save Macro in Folder...",  "Save Macros in Folder..."},
    {"Save Module in Folder...", "Save Modules in Folder..."},
    {"Save Object in Folder...", "Save Objects in Folder..."},
}};
// clang-format on

std::string_view titleFor(const MainWindow& window) {
  const auto tab = static_cast<std::size_t>(window.tabSelect);
  if (tab >= kTitles.size()) return {};
  const auto selected = std::ranges::count_if(window.lists[tab], &ListItem::selected);
  return selected > 1 ? kTitles[tab].several : kTitles[tab].one;
}

}  // namespace

void cmdBrowse_Click(MainObject& main) {
  const std::optional<std::string> folder = main.user.browseForFolder(titleFor(main.window));
  if (!folder) return;
  main.window.txtCurDir = folder->empty() ? main.files.CurDir() : *folder;
}

}  // namespace tarrowin
