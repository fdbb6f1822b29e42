#include "win32/GridGeometry.h"

#include <algorithm>

namespace mavCycEd::win32 {
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
  const int x = kit::units::x(pixels.x, keyWidth());
  const int row = rowAt(pixels.y);
  if (row == 0) return {x, kit::units::y(pixels.y, 0, titleHeight)};
  if (row > 0) return {x, kit::units::y(pixels.y - cell(0, row).top, row, rowHeight)};
  return {x, kit::units::yBelowRows(pixels.y - cell(0, rowCount).top, rowCount, rowHeight)};
}

POINT GridGeometry::pixelsAt(POINT units) const {
  const int row = kit::units::rowAt(units.y);
  const int rowPixels = row == 0 ? titleHeight : rowHeight;
  return {kit::units::pixelsOfX(units.x, keyWidth()), cell(0, row).top + kit::units::pixelsInRow(units.y, rowPixels)};
}

}  // namespace mavCycEd::win32
