// screenshots FOLDER: pictures of the window program for people to look at: every tab, the dialogs
// and three previews, in a light and a dark palette.
#include <QApplication>
#include <QContextMenuEvent>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QStyleFactory>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <array>
#include <cstdio>

#include "shell/notice.h"
#include "shell/window_session.h"

namespace {

using tarrowin::test::WindowSession;

constexpr std::array<const char*, 7> kTabs = {"queries", "forms",   "reports", "macros",
                                              "modules", "project", "how-to"};

QPalette darkPalette() {
  QPalette dark(QColor(53, 53, 53));
  dark.setColor(QPalette::Base, QColor(35, 35, 35));
  dark.setColor(QPalette::Highlight, QColor(42, 130, 218));
  dark.setColor(QPalette::HighlightedText, Qt::white);
  dark.setColor(QPalette::Link, QColor(110, 170, 240));
  dark.setColor(QPalette::ToolTipBase, QColor(53, 53, 53));
  dark.setColor(QPalette::ToolTipText, Qt::white);
  return dark;
}

class Photographer {
 public:
  Photographer(const QString& folder, const QString& palette)
      : folder_(folder), palette_(palette) {}

  void take(QWidget& widget, const QString& name) {
    hidePaths(widget);
    QCoreApplication::processEvents();
    const QString file = QStringLiteral("%1/%2-%3.png").arg(folder_, name, palette_);
    if (!widget.grab().save(file)) {
      std::fprintf(stderr, "cannot write %s\n", qPrintable(file));
      std::exit(EXIT_FAILURE);
    }
    std::printf("%s\n", qPrintable(file));
  }

 private:
  // The folder of this run is of no interest in a picture.
  static void hidePaths(QWidget& widget) {
    if (auto* const database = widget.findChild<QLabel*>(QStringLiteral("lblCurDb")))
      database->setText(QStringLiteral("/home/user/northport/northport.access.json"));
    if (auto* const directory = widget.findChild<QLineEdit*>(QStringLiteral("txtCurDir")))
      directory->setText(QStringLiteral("/home/user/northport"));
    if (auto* const written = widget.findChild<QLabel*>(QStringLiteral("lblWritten")))
      written->setText(QStringLiteral("3 files in /home/user/northport"));
  }

  QString folder_;
  QString palette_;
};

void photographPreviews(WindowSession& session, Photographer& photographer) {
  session.turnTo(1);
  const std::array<int, 3> kForms = {0, 1, 6};
  for (const int row : kForms) {
    session.select("lstForms", {row});
    session.click("cmdObjProps");
    for (QWidget* const widget : QApplication::topLevelWidgets()) {
      if (widget->objectName() == QLatin1String("Form1") && widget->isVisible())
        photographer.take(*widget, QStringLiteral("preview-%1").arg(row));
    }
  }
}

void photographAll(Photographer photographer) {
  WindowSession session;
  session.dialogs().look = [&](QWidget& dialog) {
    photographer.take(dialog, QStringLiteral("open-dialog"));
  };
  session.openWith(session.sample());
  session.dialogs().look = nullptr;
  session.view().resize(1024, 700);
  for (std::size_t tab = 0; tab < kTabs.size(); ++tab) {
    session.turnTo(static_cast<int>(tab));
    photographer.take(session.view(), QStringLiteral("tab-%1").arg(QLatin1String(kTabs[tab])));
  }
  photographPreviews(session, photographer);

  session.dialogs().look = [&](QWidget& dialog) {
    photographer.take(dialog, QStringLiteral("help"));
  };
  session.rightClick("cmdConvertFrm");
  session.turnTo(0);
  session.dialogs().look = [&](QWidget& dialog) {
    photographer.take(dialog, QStringLiteral("main-topic"));
  };
  session.view().findChild<QAction*>(QStringLiteral("keyHelp"))->trigger();
  session.dialogs().look = [&](QWidget& dialog) {
    photographer.take(dialog, QStringLiteral("summary"));
  };
  session.find<QLineEdit>("txtCurDir")->setText(session.path(""));
  session.select("lstQueries", {0, 1, 2});
  session.click("cmdConvertQry");
  photographer.take(session.view(), QStringLiteral("written-files"));

  tarrowin::Notice notice;
  notice.show();
  photographer.take(notice, QStringLiteral("notice"));
}

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  if (argc != 2 || !QDir().mkpath(QString::fromLocal8Bit(argv[1]))) {
    std::fprintf(stderr, "usage: screenshots FOLDER\n");
    return 2;
  }
  const QString folder = QString::fromLocal8Bit(argv[1]);
  QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
  photographAll({folder, QStringLiteral("light")});
  QApplication::setPalette(darkPalette());
  photographAll({folder, QStringLiteral("dark")});
}
