// The window with a small database open, for tests that click around in it.
#pragma once

#include <QStringList>

#include "shell/window_session.h"

namespace tarrowin::test {

// Two objects of each kind, "Q One" and "Q Two", "F One" and so on, and an output directory of its
// own.
class OpenedSession : public WindowSession {
 public:
  OpenedSession();

  // The names of the files in the output directory.
  QStringList written();
};

}  // namespace tarrowin::test
