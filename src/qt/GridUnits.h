#pragma once

#include <QPoint>
#include <QTableView>

namespace mavCycEd::qt {

/// Turns the pixels of a grid on the screen into the grid's own units: 19 units to a row, the title row first, and the
/// value column from x = 151 on, whatever the heights of the rows and wherever the divider stands.
class GridUnits {
 public:
  explicit GridUnits(const QTableView& view) : view_(view) {}

  /// A position on the cells or below them.
  QPoint ofCells(const QPoint& pixels) const { return {x(pixels.x()), yOfCells(pixels.y())}; }
  /// A position on the title row.
  QPoint ofTitles(const QPoint& pixels) const;

 private:
  int x(int pixels) const;
  int yOfCells(int pixels) const;

  const QTableView& view_;
};

}  // namespace mavCycEd::qt
