// A filter over all events of the program.
#include "shell/input_guard.h"

#include <QApplication>
#include <QEvent>

namespace tarrowin {

namespace {

bool isInput(QEvent::Type type) {
  switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::Wheel:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Shortcut:
    case QEvent::ShortcutOverride:
    case QEvent::ContextMenu:
    case QEvent::DragEnter:
    case QEvent::Drop:
      return true;
    default:
      return false;
  }
}

}  // namespace

InputGuard::InputGuard(QWidget* window) : window_(window) { qApp->installEventFilter(this); }

bool InputGuard::eventFilter(QObject* watched, QEvent* event) {
  if (!active_ || window_.isNull() || !isInput(event->type())) return false;
  const auto* const widget = qobject_cast<QWidget*>(watched);
  return widget != nullptr && widget->window() == window_;
}

}  // namespace tarrowin
