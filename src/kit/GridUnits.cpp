#include "kit/GridUnits.h"

#include <algorithm>

namespace mavCycEd::kit::units {
namespace {

// A position within a part of the grid that is `pixels` long on the screen and `units` long in the grid's own units.
int within(int position, int pixels, int units) {
  return pixels <= 0 ? 0 : std::clamp(position * units / pixels, 0, units - 1);
}

// The first pixel that belongs to a unit.
int pixelOf(int position, int pixels, int units) { return (position * pixels + units - 1) / units; }

}  // namespace

int x(int pixels, int keyWidth) {
  return pixels < keyWidth ? within(pixels, keyWidth, valueColumnBegin) : valueColumnBegin + pixels - keyWidth;
}

int y(int pixels, int row, int height) { return rowHeight * row + within(pixels, height, rowHeight); }

int yBelowRows(int pixels, int rowCount, int height) {
  return rowHeight * rowCount + pixels * rowHeight / std::max(height, 1);
}

int pixelsOfX(int x, int keyWidth) {
  return x < valueColumnBegin ? std::min(pixelOf(x, keyWidth, valueColumnBegin), keyWidth - 1)
                              : keyWidth + x - valueColumnBegin;
}

int pixelsInRow(int y, int height) { return pixelOf(y % rowHeight, height, rowHeight); }

}  // namespace mavCycEd::kit::units
