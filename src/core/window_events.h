// The events of the main window's controls, reached by the controls' own names, as the window, the
// session script and the command line raise them.
#pragma once

#include <optional>
#include <string_view>

#include "core/main_window.h"

namespace tarrowin {

struct MainObject;

// A click on the button; index is the element of a control array. False when the window has no
// button of that name.
bool clickButton(MainObject& main, std::string_view name, int index = 0);

// What a button or menu key of Toolbar1 asked of the window.
enum class ToolbarResult {
  kUnknown,  // the toolbar has no such key
  kDone,
  kUnload,  // the user wants to leave: the main window is to be unloaded
};
// A click on the toolbar's button or menu of that key: "keyMDBs", "keyHelp".
ToolbarResult clickToolbar(MainObject& main, std::string_view key);

// The user turns to a tab of tabSelect, 0 to 6.
void selectTab(MainObject& main, int tab);

// A double click on the list: its driver with the selection as it stands.
void doubleClickList(MainObject& main, ObjectList list);

// "lstQueries" and so on; nothing for another name.
std::optional<ObjectList> listNamed(std::string_view name);
// The list's control name.
std::string_view nameOfList(ObjectList list);

}  // namespace tarrowin
