// Columns of fixed shares; what stands in them may not widen them.
#include "shell/page_grid.h"

#include <QGridLayout>
#include <array>

namespace tarrowin {

namespace {

// Left sides in thousandths of the width: the margin, the places, and what is left of the edge. A
// gap stands before the second frame, so that it does not touch the first.
constexpr std::array<int, 10> kBoundaries = {0, 30, 220, 462, 475, 825, 885, 925, 995, 1000};
constexpr int kGapColumn = 3;

constexpr int columnOf(PagePlace place) {
  const int column = 1 + static_cast<int>(place);
  return column < kGapColumn ? column : column + 1;
}
// Where a control ends that reaches up to a place.
constexpr int endBefore(PagePlace place) {
  return place == PagePlace::kSecondFrame ? kGapColumn : columnOf(place);
}

}  // namespace

PageGrid::PageGrid(QWidget* page) : grid_(new QGridLayout(page)) {
  grid_->setContentsMargins(0, 8, 0, 8);
  grid_->setHorizontalSpacing(0);
  grid_->setVerticalSpacing(6);
  for (std::size_t column = 0; column + 1 < kBoundaries.size(); ++column) {
    grid_->setColumnStretch(static_cast<int>(column),
                            kBoundaries[column + 1] - kBoundaries[column]);
    grid_->setColumnMinimumWidth(static_cast<int>(column), 0);
  }
}

void PageGrid::place(QWidget* widget, int row, PagePlace from, PagePlace upTo) {
  placeAt(widget, row, from, endBefore(upTo) - columnOf(from));
}

void PageGrid::stretchRow(int row) { grid_->setRowStretch(row, 1); }

void PageGrid::placeAt(QWidget* widget, int row, PagePlace place, int columns) {
  QSizePolicy policy = widget->sizePolicy();
  policy.setHorizontalPolicy(QSizePolicy::Ignored);
  widget->setSizePolicy(policy);
  widget->setMinimumWidth(1);
  grid_->addWidget(widget, row, columnOf(place), 1, columns);
}

}  // namespace tarrowin
