#pragma once

#include "platform/GridUnits.h"

/// A grid's own units, in which its mouse is told: 19 to a row, the title row first, and the value column from x = 151
/// on, whatever the fonts and the scaling are and wherever the divider stands on the screen.
namespace mavCycEd::kit::units {

using platform::gridUnits::rowHeight;
using platform::gridUnits::valueColumnBegin;

/// The row that a height is in, 0 for the title row.
constexpr int rowAt(int y) { return y / rowHeight; }

/// Pixels from the left edge of the key column, which is `keyWidth` pixels wide, in units.
int x(int pixels, int keyWidth);
/// Pixels from the upper edge of a row that is `height` pixels high, in units from the upper edge of the grid.
int y(int pixels, int row, int height);
/// Pixels from the lower edge of the last row, in units from the upper edge of the grid. `rowCount`: the number of
/// rows, the title row included.
int yBelowRows(int pixels, int rowCount, int height);

/// The first pixel of a unit, from the left edge of the key column.
int pixelsOfX(int x, int keyWidth);
/// The first pixel of a unit, from the upper edge of the row that the unit is in.
int pixelsInRow(int y, int height);

}  // namespace mavCycEd::kit::units
