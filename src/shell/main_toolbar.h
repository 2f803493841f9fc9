// Toolbar1: opening and the tabs, help, leaving.
#pragma once

#include <QStringList>
#include <QToolBar>

class QActionGroup;
class QMenu;

namespace tarrowin {

class MainToolbar : public QToolBar {
  Q_OBJECT

 public:
  MainToolbar();

  // The databases opened last, offered below the menu keys of the Open button.
  void showRecentFiles(const QStringList& paths);
  // Which of the code pages in the menu is the chosen one.
  void showCodePage(int number);

 signals:
  // A button or menu key: "keyHelp".
  void clicked(const QString& key);
  void recentFileChosen(const QString& path);
  // For the next start of the program.
  void codePageChosen(int number);

 private:
  void addOpenButton();
  void addButton(const char* key, const QString& caption, const QString& toolTip);

  void addCodePages(QMenu* menu);

  QMenu* recentFiles_;
  QActionGroup* codePages_;
};

}  // namespace tarrowin
