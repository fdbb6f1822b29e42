#include "qt/GridUnits.h"

#include <QHeaderView>
#include <algorithm>

namespace mavCycEd::qt {
namespace {

constexpr int rowUnits = 19;
constexpr int valueColumnBegin = 151;

// A position within a part of the grid that is `pixels` long on the screen and `units` long in the grid's own units.
int within(int position, int pixels, int units) {
  return pixels <= 0 ? 0 : std::clamp(position * units / pixels, 0, units - 1);
}

}  // namespace

int GridUnits::x(int pixels) const {
  const int keyWidth = view_.columnWidth(0);
  const int position = pixels - view_.columnViewportPosition(0);
  return position < keyWidth ? within(position, keyWidth, valueColumnBegin) : valueColumnBegin + position - keyWidth;
}

int GridUnits::yOfCells(int pixels) const {
  const int row = view_.rowAt(pixels);
  if (row >= 0) {
    return rowUnits * (row + 1) + within(pixels - view_.rowViewportPosition(row), view_.rowHeight(row), rowUnits);
  }
  const int last = view_.model()->rowCount() - 1;
  const int bottom = last < 0 ? 0 : view_.rowViewportPosition(last) + view_.rowHeight(last);
  const int rowHeight = std::max(view_.verticalHeader()->defaultSectionSize(), 1);
  return rowUnits * (last + 2) + (pixels - bottom) * rowUnits / rowHeight;
}

QPoint GridUnits::ofTitles(const QPoint& pixels) const {
  return {x(pixels.x()), within(pixels.y(), view_.horizontalHeader()->height(), rowUnits)};
}

}  // namespace mavCycEd::qt
