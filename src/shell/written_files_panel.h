// The list of the files that the last batch wrote.
#pragma once

#include <QDockWidget>
#include <QStringList>

class QLabel;
class QPushButton;
class QListView;
class QStringListModel;

namespace tarrowin {

class WrittenFilesPanel : public QDockWidget {
  Q_OBJECT

 public:
  WrittenFilesPanel();

  // Shows the paths and itself; with no path it hides.
  void showFiles(const QStringList& paths);
  QStringList files() const { return paths_; }

 signals:
  void folderAsked(const QString& folder);
  void fileAsked(const QString& path);

 private:
  QString currentFolder() const;
  void copyPaths() const;

  QStringList paths_;
  QLabel* summary_;
  QListView* list_;
  QStringListModel* model_;
};

}  // namespace tarrowin
