#pragma once

#include "kit/GridUnits.h"
#include "win32/Windows.h"

namespace mavCycEd::win32 {

/// Where the rows and columns of a grid stand in its window, and what its pixels are in the grid's own units.
struct GridGeometry {
  int width = 0;
  int height = 0;
  int titleHeight = kit::units::rowHeight;
  int rowHeight = kit::units::rowHeight;
  double keyShare = 0.55;  // of the key column in the width
  int rowCount = 1;        // the title row included
  int top = 1;             // the first row below the title row

  int keyWidth() const;
  /// How many whole rows there is room for below the title row; at least one.
  int pageRows() const;
  /// The row at a height in the window: 0 for the title row, -1 below the rows.
  int rowAt(int y) const;
  /// The place of a cell; rows above and below what is in view have one, too.
  RECT cell(int column, int row) const;
  bool isInView(int row) const;

  POINT unitsAt(POINT pixels) const;
  /// The first pixel of a unit.
  POINT pixelsAt(POINT units) const;
};

}  // namespace mavCycEd::win32
