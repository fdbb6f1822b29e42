#pragma once

#include <QHeaderView>
#include <QTableView>
#include <QTest>
#include <algorithm>
#include <string>
#include <utility>

#include "ControlDriver.h"
#include "kit/GridUnits.h"
#include "qt/ValueListModel.h"

namespace mavCycEd::play {

/// A grid of the Qt edition under a user's hands.
class GridHands {
 public:
  explicit GridHands(QTableView& view) : view_(view) {}

  /// The number of rows, the title row included.
  int rowCount() const { return view_.model()->rowCount() + 1; }
  /// The row that is shown as the current one, 0 for none.
  int row() const {
    const QModelIndexList selected = view_.selectionModel()->selectedRows();
    return selected.isEmpty() ? 0 : qt::ValueListModel::rowOf(selected.first());
  }

  /// Gives the grid the focus and goes to a row, key by key.
  void goTo(int wanted) {
    view_.setFocus();
    for (int at = row(); at != wanted; at = row()) {
      QTest::keyClick(&view_, at < wanted ? Qt::Key_Down : Qt::Key_Up);
      if (row() == at) throw StepRefused("The grid does not let its user go to row " + std::to_string(wanted) + ".");
    }
  }

  QModelIndex valueCell(int row) const { return view_.model()->index(row - 1, qt::ValueListModel::valueColumn); }
  /// The open editor of a row, nullptr when there is none.
  QWidget* editor(int row) const { return view_.indexWidget(valueCell(row)); }

  /// The widget under a position in the grid's own units, and the position in its pixels.
  std::pair<QWidget*, QPoint> at(int x, int y) const {
    const int row = kit::units::rowAt(y);
    if (row == 0) {
      QHeaderView& titles = *view_.horizontalHeader();
      return {titles.viewport(), {pixelX(x), kit::units::pixelsInRow(y, titles.height())}};
    }
    const int height = view_.verticalHeader()->defaultSectionSize();
    if (row >= rowCount()) return {view_.viewport(), {pixelX(x), belowRows(y)}};
    view_.scrollTo(valueCell(row));
    return {view_.viewport(), {pixelX(x), view_.rowViewportPosition(row - 1) + kit::units::pixelsInRow(y, height)}};
  }

 private:
  // The pixel of a unit below the last row. Where there is none, the window is made higher.
  int belowRows(int y) const {
    const int height = view_.verticalHeader()->defaultSectionSize();
    for (int before = -1;;) {
      const int bottom = rowCount() == 1 ? 0 : view_.rowViewportPosition(rowCount() - 2) + height;
      const int rowsBetween = kit::units::rowAt(y) - rowCount();
      const int place = bottom + rowsBetween * height + kit::units::pixelsInRow(y, height);
      const int inView = view_.viewport()->height();
      if (place < inView || inView == std::exchange(before, inView)) return place;
      QWidget& window = *view_.window();
      window.resize(window.width(), window.height() + place + 1 - inView);
    }
  }

  // What lies right of the value column is its last pixel: the grid's own units end nowhere, the view does.
  int pixelX(int x) const {
    const int pixels = kit::units::pixelsOfX(x, view_.columnWidth(qt::ValueListModel::keyColumn));
    return std::min(pixels, view_.viewport()->width() - 1);
  }

  QTableView& view_;
};

}  // namespace mavCycEd::play
