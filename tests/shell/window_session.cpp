// Places, clicks and menus.
#include "shell/window_session.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QContextMenuEvent>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <algorithm>
#include <filesystem>

#include <nlohmann/json.hpp>

namespace tarrowin::test {

namespace {

ShellPlaces placesIn(const TemporaryDirectory& directory) {
  directory.write("tnmsg.srg", "0\r\n");
  ShellPlaces places;
  places.settingsFile = QString::fromStdString(directory / "tarrowin.ini");
  places.markerFile = QString::fromStdString(directory / "tnmsg.srg");
  places.openFolder = QString::fromStdString(directory.path()) + QLatin1Char('/');
  places.currentDirectory = QString::fromStdString(directory.path());
  return places;
}

}  // namespace

std::string databaseOf(const std::string& list, int count) {
  nlohmann::json database = {
      {"snapshot", 1},
      {"database",
       {{"name", "big.mdb"}, {"version", "4.0"}, {"properties", {{"AccessVersion", "08.50"}}}}}};
  for (int i = 0; i < count; ++i) {
    database[list].push_back({{"name", "Object " + std::to_string(i)},
                              {"sql", "SELECT 1;"},
                              {"type", 0},
                              {"text", "Sub S()\r\nEnd Sub\r\n"}});
  }
  return database.dump();
}

WindowSession::WindowSession(RunEnvironment environment)
    : shell_(std::make_unique<Shell>(placesIn(directory_), std::move(environment))) {}

WindowSession::~WindowSession() {
  view().close();
  QCoreApplication::processEvents();
}

void WindowSession::openWith(const QString& path) {
  dialogs_.answer(path);
  shell_->showMainWindow();
  QVERIFY(QTest::qWaitForWindowExposed(&view()));
  QTRY_VERIFY(!dialogs_.seen().empty());
  QTRY_VERIFY(QApplication::activeModalWidget() == nullptr);
  // There may be no window manager to do it.
  QApplication::setActiveWindow(&view());
  QCoreApplication::processEvents();
}

QString WindowSession::sample() {
  std::filesystem::copy_file(TARROWIN_SOURCE_DIR "/samples/northport.access.json",
                             directory_ / "northport.access.json",
                             std::filesystem::copy_options::overwrite_existing);
  return path("northport.access.json");
}

QString WindowSession::database(const std::string& name, const std::string& json) {
  directory_.write(name, json);
  return path(name);
}

QString WindowSession::path(const std::string& name) const {
  return QString::fromStdString(directory_ / name);
}

void WindowSession::click(const char* name) {
  auto* const widget = find<QWidget>(name);
  // Of a check box or option button only the mark and its text take a click.
  QTest::mouseClick(widget, Qt::LeftButton, {},
                    QPoint(std::min(10, widget->width() / 2), widget->height() / 2));
}

void WindowSession::rightClick(const char* name) {
  auto* const widget = find<QWidget>(name);
  rightClickAt(widget, widget->rect().center());
}

void WindowSession::rightClickAt(QWidget* widget, const QPoint& position) {
  QContextMenuEvent event(QContextMenuEvent::Mouse, position, widget->mapToGlobal(position));
  QApplication::sendEvent(widget, &event);
}

void WindowSession::turnTo(int tab) {
  const auto* const tabs = find<QTabWidget>("tabSelect");
  QTest::mouseClick(tabs->tabBar(), Qt::LeftButton, {}, tabs->tabBar()->tabRect(tab).center());
}

void WindowSession::select(const char* list, std::initializer_list<int> rows) {
  auto* const view = find<QAbstractItemView>(list);
  Qt::KeyboardModifiers modifiers;
  for (const int row : rows) {
    const QModelIndex index = view->model()->index(row, 0);
    view->scrollTo(index);
    QTest::mouseClick(view->viewport(), Qt::LeftButton, modifiers,
                      view->visualRect(index).center());
    modifiers = Qt::ControlModifier;
  }
}

void WindowSession::doubleClick(const char* list, int row) {
  auto* const view = find<QAbstractItemView>(list);
  const QModelIndex index = view->model()->index(row, 0);
  view->scrollTo(index);
  const QPoint position = view->visualRect(index).center();
  QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, position);
  QTest::mouseDClick(view->viewport(), Qt::LeftButton, {}, position);
}

}  // namespace tarrowin::test
