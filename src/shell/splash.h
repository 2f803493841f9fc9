// The start-up window frmTarrowinStartup.
#pragma once

#include <QTimer>
#include <QWidget>

namespace tarrowin {

class Splash : public QWidget {
  Q_OBJECT

 public:
  Splash();

 signals:
  // Its Timer1 ran out.
  void timeUp();

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  QTimer Timer1_;
};

}  // namespace tarrowin
