// Leaving the program.
#pragma once

namespace tarrowin {

struct MainObject;

// The question of the Exit button; true when the main window is to be unloaded.
bool wantsToExit(MainObject& main);

// The main window is unloaded: closes the database and quits Access, unless none was started, and
// releases both.
void unloadProgram(MainObject& main);

}  // namespace tarrowin
