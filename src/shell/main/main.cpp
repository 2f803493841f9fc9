// tarrowin: the desktop program. It reads no command line.
#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <cstdio>
#include <cstdlib>

#include "shell/icons.h"
#include "shell/shell.h"

namespace {

// Qt ends the program at once when it finds no display; a person gets one line instead of a dump.
void sayWhyItFails(QtMsgType type, const QMessageLogContext&, const QString& text) {
  if (type != QtFatalMsg) {
    if (type != QtDebugMsg && type != QtInfoMsg) std::fprintf(stderr, "%s\n", qPrintable(text));
    return;
  }
  if (!text.contains(QLatin1String("platform plugin"))) {
    std::fprintf(stderr, "tarrowin: %s\n", qPrintable(text));
    std::abort();
  }
  std::fprintf(stderr,
               "tarrowin: there is no display to open a window on. Start it on a desktop, or use "
               "tarrowin-cli, which needs none.\n");
  std::_Exit(EXIT_FAILURE);
}

// The folder in which the first Open dialog starts: that of the database opened last.
QString openFolder(const tarrowin::Settings& settings) {
  for (const QString& path : settings.recentFiles()) {
    const QFileInfo folder(QFileInfo(path).absolutePath());
    if (folder.isDir()) return folder.absoluteFilePath() + QLatin1Char('/');
  }
  return QDir::homePath() + QLatin1Char('/');
}

tarrowin::ShellPlaces usualPlaces() {
  const QDir folder(QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation));
  folder.mkpath(QStringLiteral("."));
  tarrowin::ShellPlaces places;
  places.settingsFile = folder.filePath(QStringLiteral("tarrowin.ini"));
  places.markerFile = folder.filePath(QString::fromLatin1(tarrowin::Marker::kFileName));
  places.openFolder = openFolder(tarrowin::Settings(places.settingsFile));
  places.currentDirectory = QDir::currentPath();
  return places;
}

}  // namespace

int main(int argc, char** argv) {
  qInstallMessageHandler(sayWhyItFails);
  QApplication application(argc, argv);
  QApplication::setApplicationName(QStringLiteral("tarrowin"));
  QApplication::setDesktopFileName(QStringLiteral("org.tarrowin.Tarrowin"));
  QApplication::setWindowIcon(tarrowin::iconNamed("app"));
  // The main window alone keeps the program alive; it says when it goes.
  QApplication::setQuitOnLastWindowClosed(false);
  tarrowin::Shell shell(usualPlaces());
  shell.start();
  return QApplication::exec();
}
