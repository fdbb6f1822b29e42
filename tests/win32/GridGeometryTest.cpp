#include "win32/GridGeometry.h"

#include <gtest/gtest.h>

namespace mavCycEd::win32 {
namespace {

class GridGeometryTest : public ::testing::TestWithParam<int> {
 protected:
  GridGeometryTest() {
    geometry_.width = 400 * GetParam() / 100;
    geometry_.height = 300 * GetParam() / 100;
    geometry_.rowHeight = 23 * GetParam() / 100;
    geometry_.titleHeight = 25 * GetParam() / 100;
    geometry_.rowCount = 6;
  }
  POINT roundTrip(POINT units) const { return geometry_.unitsAt(geometry_.pixelsAt(units)); }

  GridGeometry geometry_;
};

TEST_P(GridGeometryTest, EveryUnitIsFoundAgain) {
  for (int y = 0; y < 5 * kit::units::rowHeight; ++y) {
    const POINT units = roundTrip({160, y});
    EXPECT_EQ(units.y, y);
    EXPECT_EQ(units.x, 160);
  }
}

TEST_P(GridGeometryTest, TheValueColumnBeginsAt151) {
  EXPECT_EQ(geometry_.unitsAt({geometry_.keyWidth(), 0}).x, 151);
  EXPECT_EQ(geometry_.unitsAt({geometry_.keyWidth() - 1, 0}).x, 150);
}

TEST_P(GridGeometryTest, BelowTheRowsTheUnitsGoOn) {
  EXPECT_EQ(geometry_.unitsAt({0, geometry_.cell(0, 6).top}).y, 6 * kit::units::rowHeight);
  EXPECT_EQ(geometry_.rowAt(geometry_.cell(0, 6).top), -1);
}

TEST_P(GridGeometryTest, ScrolledRowsKeepTheirUnits) {
  geometry_.top = 3;
  EXPECT_EQ(geometry_.rowAt(geometry_.titleHeight), 3);
  EXPECT_EQ(geometry_.unitsAt({0, geometry_.titleHeight}).y, 3 * kit::units::rowHeight);
}

INSTANTIATE_TEST_SUITE_P(Scalings, GridGeometryTest, ::testing::Values(100, 125, 150, 200));

}  // namespace
}  // namespace mavCycEd::win32
