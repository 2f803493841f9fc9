// The main window frmTarrowin: it shows the window's data and tells what the user did. It converts
// nothing itself.
#pragma once

#include <QMainWindow>
#include <array>
#include <optional>
#include <string>
#include <vector>

#include "core/main_window.h"
#include "shell/object_page.h"
#include "shell/page_text.h"

class QLabel;
class QLineEdit;
class QPushButton;
class QTabWidget;

namespace tarrowin {

class HowToPage;
class MainToolbar;
class WrittenFilesPanel;

// A control by the name that events and help know it by, and its index in a control array; of
// tabSelect the index is that of the tab under the pointer, -1 when there is none.
struct ControlName {
  QString name;
  int index = 0;
};

class MainView : public QMainWindow {
  Q_OBJECT

 public:
  explicit MainView(const PageText& text);

  // Everything that the window's data says, but for the items of the lists.
  void show(const MainWindow& window);
  // The items of the six lists, where they are new.
  void showItems(const MainWindow& window);
  // Gives the focus to the control of that name; the window's own name and an empty one leave it.
  void giveFocus(const std::string& control);
  // What the user set: text boxes, options, selections.
  void read(MainWindow& window) const;

  void showWindow() { QMainWindow::show(); }
  MainToolbar& toolbar() { return *toolbar_; }
  WrittenFilesPanel& writtenFiles() { return *writtenFiles_; }
  // The directories that the text box of the output directory offers.
  void offerDirectories(const QStringList& directories);

 signals:
  void buttonClicked(const QString& name, int index = 0);
  void toolbarClicked(const QString& key);
  void tabChosen(int tab);
  void listDoubleClicked(tarrowin::ObjectList list);
  // Help on the innermost of these controls that has any.
  void helpAsked(const std::vector<tarrowin::ControlName>& controls);
  void sourceDropped(const QString& path);
  // The window wants to close; it does when nothing refuses it.
  void closing(bool& refused);

 protected:
  // Disabled controls swallow right clicks; here they are answered all the same.
  bool eventFilter(QObject* watched, QEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  QWidget* makeHead();
  QWidget* makeOutputRow();
  QWidget* makeProgressRow();
  void addPages();
  // The position is that of the mouse on the screen; without one the keyboard asks.
  std::vector<ControlName> controlsAround(const QWidget* widget,
                                          const std::optional<QPoint>& position) const;
  void askForHelp(const QWidget* widget, const std::optional<QPoint>& position);

  PageText text_;
  MainToolbar* toolbar_;
  WrittenFilesPanel* writtenFiles_;
  QTabWidget* tabSelect_;
  std::array<ObjectPage*, kObjectListCount> pages_{};
  HowToPage* howTo_;
  QLineEdit* txtCurDir_;
  QPushButton* cmdBrowse_;
  QLabel* lblCurDb_;
  QLabel* lblConverting_;
  QLabel* lblPct_;
  QLabel* lblPercent_;
};

}  // namespace tarrowin
