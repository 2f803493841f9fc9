// The main object frmTarrowin: the state of the one open database, the window as data, and what
// it works with. Its procedures are free functions that take it, one family a file.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "core/access_objects.h"
#include "core/conversion_state.h"
#include "core/machine_paths.h"
#include "core/main_window.h"
#include "core/user.h"
#include "shared/vb_files.h"

namespace tarrowin {

// The number of the slot that holds the output file, and that of the exported text.
inline constexpr int kOutputFile = 1;
inline constexpr int kExportFile = 2;

// How the last batch ended, for a face that has to answer with a number.
struct BatchOutcome {
  int selected = 0;
  int converted = 0;
};

struct MainObject {
  MainObject(User& theUser, FileSlots& theFiles, AccessHost theHost,
             std::function<Date()> theClock);

  // Shows a box with the program's title.
  Answer messageBox(int style, std::string_view text);
  // The common error box: procedure + "() - Error #" + number + CR LF + description, style 16. What
  // the procedure names stands between the brackets.
  void errorBox(std::string_view procedure, const VbError& error, std::string_view named = {});
  // The box of a procedure that names the control in hand: procedure + "(" + name + ") - Error #" +
  // number + a blank + description, style 16.
  void controlErrorBox(std::string_view procedure, std::string_view name, const VbError& error);

  User& user;
  FileSlots& files;
  AccessHost host;
  // Visual Basic's Now: date and time in whole seconds.
  std::function<Date()> Now;
  // Visual Basic's Time: the time of day, as a fraction of a day.
  double Time() const;

  MachinePaths machine;
  MainWindow window;
  ConversionState state;
  BatchOutcome lastBatch;
};

// The computer's clock as MainObject takes it, in local time.
Date systemNow();

}  // namespace tarrowin
