// A tab with a list of objects and what converts them.
#pragma once

#include <QItemSelection>
#include <QWidget>
#include <array>

#include "core/main_window.h"
#include "shell/object_list_model.h"
#include "shell/page_grid.h"
#include "shell/page_text.h"

class QLabel;
class QListView;
class QProgressBar;
class QToolButton;

namespace tarrowin {

// What tells the six tabs apart, as far as it is data: captions, and the names of the controls.
struct ObjectPageRow {
  ObjectList list;
  const char* caption;  // of the tab
  const char* icon;     // key of the tab's picture
  const char* listName;
  const char* headingName;
  const char* totalName;
  const char* convertName;
  const char* allName;
};
extern const std::array<ObjectPageRow, kObjectListCount> kObjectPages;

class ObjectPage : public QWidget {
  Q_OBJECT

 public:
  // The selection in the list is the user's; everything else on the tab follows the window's data.
  ObjectPage(const ObjectPageRow& row, const PageText& text);

  void show(const MainWindow& window);
  // Takes the list's items and their selection from the window's data.
  void showItems(const MainWindow& window);
  // Hands what the user set over to the window's data: the selection, the options.
  void read(MainWindow& window) const;

 signals:
  // A button; the index is that of an element of a control array.
  void clicked(const QString& button, int index = 0);
  void doubleClicked(tarrowin::ObjectList list);

 protected:
  // Rows of the grid, from above.
  static constexpr int kHeadingRow = 0, kListRow = 1, kOptionsRow = 2, kTotalRow = 3,
                       kProgressRow = 4;

  PageGrid& grid() { return grid_; }
  const PageText& text() const { return text_; }
  // Adds a button below those that convert.
  QToolButton* addButton(const QString& name, const QString& caption, std::string_view picture,
                         const QString& toolTip);
  virtual void showOptions(const MainWindow& window) { static_cast<void>(window); }
  virtual void readOptions(MainWindow& window) const { static_cast<void>(window); }

 private:
  QItemSelection selectionOf(const std::vector<ListItem>& items) const;
  // Sets of each item whether it is selected in the view.
  void markSelected(std::vector<ListItem>& items) const;
  const ObjectPageRow& row_;
  PageText text_;
  PageGrid grid_;
  ObjectListModel* model_;
  QLabel* heading_;
  QListView* list_;
  QWidget* buttons_;
  QToolButton* convert_;
  QToolButton* all_;
  QLabel* total_;
  QProgressBar* progress_;
};

}  // namespace tarrowin
