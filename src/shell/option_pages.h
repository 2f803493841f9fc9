// The tabs that have more on them than a list and its buttons.
#pragma once

#include <array>

#include "shell/object_page.h"

class QButtonGroup;
class QCheckBox;
class QComboBox;
class QGroupBox;
class QPushButton;

namespace tarrowin {

// One module for all selected queries.
class QueriesPage : public ObjectPage {
 public:
  explicit QueriesPage(const PageText& text);

 private:
  void showOptions(const MainWindow& window) override;
  void readOptions(MainWindow& window) const override;

  QCheckBox* chkMultiSel_;
};

// The preview, and what multi-page and continuous forms become.
class FormsPage : public ObjectPage {
 public:
  explicit FormsPage(const PageText& text);

 private:
  void showOptions(const MainWindow& window) override;
  void readOptions(MainWindow& window) const override;

  QToolButton* cmdObjProps_;
  QButtonGroup* optMultiPage_;
  QButtonGroup* optContinuous_;
};

// The paths of the two libraries that report conversion names.
class ReportsPage : public ObjectPage {
 public:
  explicit ReportsPage(const PageText& text);

 private:
  QGroupBox* makePathsFrame();
  void showOptions(const MainWindow& window) override;

  std::array<QPushButton*, 2> cmdFindPath_{};
  std::array<QLabel*, 4> lblFindPath_{};
};

// The form with which the project starts.
class ProjectPage : public ObjectPage {
 public:
  explicit ProjectPage(const PageText& text);

 private:
  void showOptions(const MainWindow& window) override;
  void readOptions(MainWindow& window) const override;

  QComboBox* cboFormNames_;
  std::vector<std::string> shownNames_;
};

}  // namespace tarrowin
