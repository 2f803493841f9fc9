// bench_window SOURCE: processor time from the start of the process until the main window stands
// with the source open, beside a bare window of the same toolkit in a process of its own.
#include <QApplication>
#include <QDir>
#include <QMainWindow>
#include <QTemporaryDir>
#include <cstdio>
#include <cstring>

#include <sys/resource.h>

#include "shell/shell.h"

namespace {

double processorMilliseconds() {
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  const auto milliseconds = [](const timeval& time) {
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_usec) / 1e3;
  };
  return milliseconds(usage.ru_utime) + milliseconds(usage.ru_stime);
}

void bareWindow() {
  QMainWindow window;
  window.resize(960, 640);
  window.show();
  QCoreApplication::processEvents();
  std::printf("%.1f\n", processorMilliseconds());
}

void programWindow(const QString& source) {
  const QTemporaryDir folder;
  tarrowin::ShellPlaces places;
  places.settingsFile = folder.filePath(QStringLiteral("tarrowin.ini"));
  places.markerFile = folder.filePath(QStringLiteral("tnmsg.srg"));
  places.openFolder = folder.path() + QLatin1Char('/');
  places.currentDirectory = folder.path();
  tarrowin::Shell shell(places);
  shell.view().showWindow();
  shell.openSource(source);
  QCoreApplication::processEvents();
  std::printf("%.1f\n", processorMilliseconds());
}

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  if (argc != 2) {
    std::fprintf(stderr, "usage: bench_window SOURCE|bare\n");
    return 2;
  }
  if (std::strcmp(argv[1], "bare") == 0) {
    bareWindow();
  } else {
    programWindow(QString::fromLocal8Bit(argv[1]));
  }
}
