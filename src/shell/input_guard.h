// Keeps clicks and keys away from the main window while a conversion runs there: they are dropped,
// not kept for later. Message boxes and dialogs on top of it take input as always.
#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

namespace tarrowin {

class InputGuard : public QObject {
 public:
  explicit InputGuard(QWidget* window);

  void setActive(bool active) { active_ = active; }
  bool isActive() const { return active_; }

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QPointer<QWidget> window_;
  bool active_ = false;
};

}  // namespace tarrowin
