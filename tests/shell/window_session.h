// The window program in a folder of its own, for tests that use it like a person.
#pragma once

#include <memory>
#include <string>

#include "shared/temporary_directory.h"
#include "shell/dialog_driver.h"
#include "shell/shell.h"

namespace tarrowin::test {

// A snapshot with that many objects in one of its lists, "queries" or "modules".
std::string databaseOf(const std::string& list, int count);

class WindowSession {
 public:
  // Nothing is shown yet. The notice is not wanted unless it is asked for.
  explicit WindowSession(RunEnvironment environment = {});
  ~WindowSession();

  // Shows the main window; the Open dialog that comes with it is answered by the path, "" cancels.
  void openWith(const QString& path);
  // A copy of the sample database in this session's folder.
  QString sample();
  // A database written from that text into this session's folder.
  QString database(const std::string& name, const std::string& json);
  QString path(const std::string& name) const;

  Shell& shell() { return *shell_; }
  MainView& view() { return shell_->view(); }
  MainObject& main() { return shell_->main(); }
  DialogDriver& dialogs() { return dialogs_; }

  // The widget of that name; the test fails without one.
  template <class Widget>
  Widget* find(const char* name) {
    auto* const widget = view().findChild<Widget*>(QString::fromLatin1(name));
    if (widget == nullptr) qFatal("no widget %s", name);
    return widget;
  }
  // A click with the left button in the middle of the control.
  void click(const char* name);
  // A click with the right button, as the window system reports it.
  void rightClick(const char* name);
  void rightClickAt(QWidget* widget, const QPoint& position);
  // Turns to the tab by a click on it.
  void turnTo(int tab);
  // Selects the rows of a list by clicks, the first one plain, the others with Ctrl.
  void select(const char* list, std::initializer_list<int> rows);
  void doubleClick(const char* list, int row);

 private:
  TemporaryDirectory directory_;
  DialogDriver dialogs_;
  std::unique_ptr<Shell> shell_;
};

}  // namespace tarrowin::test
