#include "win32/GridGeometry.h"

#include <algorithm>

namespace mavCycEd::win32 {
namespace {

// A position within a part of the grid that is `pixels` long on the screen and `units` long in the grid's own units.
int within(int position, int pixels, int units) {
  return pixels <= 0 ? 0 : std::clamp(position * units / pixels, 0, units - 1);
}

// The first pixel that belongs to a unit.
int pixelOf(int position, int pixels, int units) { return (position * pixels + units - 1) / units; }

}  // namespace

int GridGeometry::keyWidth() const {
  const int narrowest = std::min(3 * rowHeight, width / 2);
  return std::clamp(static_cast<int>(width * keyShare), narrowest, std::max(narrowest, width - narrowest));
}

int GridGeometry::pageRows() const { return std::max((height - titleHeight) / std::max(rowHeight, 1), 1); }

int GridGeometry::rowAt(int y) const {
  if (y < titleHeight) return 0;
  const int row = top + (y - titleHeight) / std::max(rowHeight, 1);
  return row < rowCount ? row : -1;
}

RECT GridGeometry::cell(int column, int row) const {
  const int y = row == 0 ? 0 : titleHeight + (row - top) * rowHeight;
  const int bottom = y + (row == 0 ? titleHeight : rowHeight);
  return column == 0 ? RECT{0, y, keyWidth(), bottom} : RECT{keyWidth(), y, width, bottom};
}

bool GridGeometry::isInView(int row) const { return row >= top && row < top + pageRows(); }

POINT GridGeometry::unitsAt(POINT pixels) const {
  const int x =
      pixels.x < keyWidth() ? within(pixels.x, keyWidth(), valueColumnBegin) : valueColumnBegin + pixels.x - keyWidth();
  const int row = rowAt(pixels.y);
  if (row == 0) return {x, within(pixels.y, titleHeight, rowUnits)};
  if (row > 0) return {x, rowUnits * row + within(pixels.y - cell(0, row).top, rowHeight, rowUnits)};
  const int below = pixels.y - cell(0, rowCount).top;
  return {x, rowUnits * rowCount + below * rowUnits / std::max(rowHeight, 1)};
}

POINT GridGeometry::pixelsAt(POINT units) const {
  const int x = units.x < valueColumnBegin ? std::min(pixelOf(units.x, keyWidth(), valueColumnBegin), keyWidth() - 1)
                                           : keyWidth() + units.x - valueColumnBegin;
  if (units.y < rowUnits) return {x, pixelOf(units.y, titleHeight, rowUnits)};
  const int row = units.y / rowUnits;
  return {x, cell(0, row).top + pixelOf(units.y % rowUnits, rowHeight, rowUnits)};
}

}  // namespace mavCycEd::win32
