// The places of controls on a tab, as fractions of its width: the same ones on every tab, so that
// the tabs look alike at any size.
#pragma once

#include <QWidget>

class QGridLayout;

namespace tarrowin {

// Where a control's left side stands.
enum class PagePlace {
  kLeft,         // 0.03: whatever has no place of its own
  kStartForm,    // 0.22: the combo box
  kSecondFrame,  // 0.475: every frame of options but the first
  kPrevious,     // 0.825
  kNext,         // 0.885
  kButton,       // 0.925: every other command button
};

class PageGrid {
 public:
  // Lays the page out; it had no layout before.
  explicit PageGrid(QWidget* page);

  // From one place up to where the next one begins; the button's place ends short of the edge.
  void place(QWidget* widget, int row, PagePlace from, PagePlace upTo);
  // A control in the last place of its row.
  void placeButton(QWidget* widget, int row) { placeAt(widget, row, PagePlace::kButton, 1); }
  // Two places wide, up to the edge.
  void placeNext(QWidget* widget, int row) { placeAt(widget, row, PagePlace::kNext, 2); }
  // The row that takes the space that is left.
  void stretchRow(int row);

 private:
  void placeAt(QWidget* widget, int row, PagePlace place, int columns);

  QGridLayout* grid_;
};

}  // namespace tarrowin
