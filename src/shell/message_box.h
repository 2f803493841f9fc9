// A message box by the numbers of its style.
#pragma once

#include <QString>

#include "core/user.h"

class QWidget;

namespace tarrowin {

// Shows the box and waits. A button beside its answers copies the text to the clipboard. Escape is
// No, or OK where nothing is asked.
Answer showMessageBox(QWidget* parent, int style, const QString& text, const QString& title);

}  // namespace tarrowin
