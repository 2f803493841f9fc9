// How the program comes up: the notice with its marker file, the main window, the first opening.
#pragma once

#include <string>

#include "shared/vb_files.h"

namespace tarrowin {

struct MainObject;

// The windows of the start, each in its own call so that one that fails does not cost the others.
class StartUpWindows {
 public:
  virtual ~StartUpWindows() = default;
  virtual void unloadSplash() = 0;
  // Shows the notice and waits for it. It shows the main window itself when it goes.
  virtual void showNotice() = 0;
  virtual void showMainWindow() = 0;
};

// The marker file, which stands where settings stand: a text file of one line with an integer. 0
// means that the notice is not to be shown.
struct Marker {
  static constexpr const char* kFileName = "tnmsg.srg";

  FileSlots& files;  // the user's own files, whose names need not be of the database's code page
  std::string path;  // in the code page of those
};

// The splash's timer: reads the marker, a text file of one line with an integer, and shows the
// notice or the main window. 0 means no notice; a marker that is not there is made with a 1. The
// error numbers that point to a missing library lead to CheckAccessRefs, all others to a box;
// either way the start goes on.
void TarrowinOpen(MainObject& main, const Marker& marker, StartUpWindows& windows);

// Remembers in the marker that the notice is not wanted any more.
void forgetNotice(const Marker& marker);

// The main window is loaded: the Open dialog comes up at once, in the given directory, which has a
// separator at its end.
void Form_Load(MainObject& main, const std::string& openDirectory);

}  // namespace tarrowin
