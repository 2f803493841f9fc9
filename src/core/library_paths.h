// The directories of system files that projects name: the Windows system directory, and those of
// the two libraries that reports need, with the part of the Reports tab that shows and asks them.
#pragma once

#include <string>

namespace tarrowin {

struct Label;
struct MainObject;
struct MainWindow;

// Indices of the libraries, of cmdFindPath and of the first labels of lblFindPath.
inline constexpr int kMsderun = 0, kMsado = 1;

// The system directory with a trailing backslash.
std::string GetWindowsSysDir(const MainObject& main);

// The label that shows the library's path.
Label& libraryPathLabel(MainWindow& window, int index);

// Sets the library's path, and the label that shows it, to what the machine supplies, else to the
// usual directory. Nothing looks whether the file is there.
void FindDLLPath(MainObject& main, int index);

// Searches the disk for the library when its path is unknown. A machine without the common
// directory of programs has nothing to find.
void FindDLLPaths(MainObject& main, int index);

// Lets the user pick the library's file, whose directory becomes the path.
void cmdFindPath_Click(MainObject& main, int index);

}  // namespace tarrowin
