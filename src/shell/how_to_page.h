// The How to tab: a page of numbered steps and its pager.
#pragma once

#include <QWidget>
#include <array>

#include "core/main_window.h"
#include "shell/page_grid.h"
#include "shell/page_text.h"

class QLabel;
class QToolButton;

namespace tarrowin {

class HowToPage : public QWidget {
  Q_OBJECT

 public:
  explicit HowToPage(const PageText& text);

  void show(const MainWindow& window);

 signals:
  void clicked(const QString& button);

 private:
  QToolButton* makePagerButton(const QString& name, const QString& caption);

  PageText text_;
  PageGrid grid_;
  QLabel* lblTitle_;
  std::array<QLabel*, 7> lblInfo_{};
  QLabel* lblCurrentPage_;
  QLabel* lblLastPage_;
  QLabel* position_;  // both numbers, for a person
  QToolButton* cmdPrev_;
  QToolButton* cmdNext_;
};

}  // namespace tarrowin
