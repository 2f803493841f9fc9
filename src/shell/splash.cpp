// Picture, name, and the timer that goes on.
#include "shell/splash.h"

#include <QGuiApplication>
#include <QLabel>
#include <QScreen>
#include <QVBoxLayout>

#include "core/main_window.h"
#include "shell/icons.h"
#include "shell/named_widgets.h"

namespace tarrowin {

namespace {

using namespace std::chrono_literals;
// Long enough to be read, short enough not to be waited for.
constexpr auto kShownFor = 600ms;
constexpr int kPictureSize = 96;

}  // namespace

Splash::Splash() : QWidget(nullptr, Qt::SplashScreen | Qt::FramelessWindowHint) {
  setObjectName(QStringLiteral("frmTarrowinStartup"));
  setWindowTitle(QString::fromStdString(MainWindow{}.caption));
  auto* const rows = new QVBoxLayout(this);
  rows->setContentsMargins(48, 32, 48, 32);
  rows->setSpacing(16);
  auto* const picture = new QLabel;
  picture->setPixmap(iconNamed("app").pixmap(kPictureSize));
  picture->setAlignment(Qt::AlignCenter);
  rows->addWidget(picture);
  auto* const name = new QLabel(windowTitle());
  makeHeading(name, 1.3);
  name->setAlignment(Qt::AlignCenter);
  rows->addWidget(name);
  adjustSize();
  if (const QScreen* const screen = QGuiApplication::primaryScreen())
    move(screen->availableGeometry().center() - rect().center());
  Timer1_.setSingleShot(true);
  connect(&Timer1_, &QTimer::timeout, this, &Splash::timeUp);
}

void Splash::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  Timer1_.start(kShownFor);
}

}  // namespace tarrowin
