#include "kit/GridUnits.h"

#include <gtest/gtest.h>

namespace mavCycEd::kit::units {
namespace {

// Rows and columns as they come with many fonts, scalings and places of the divider.
TEST(GridUnits, EveryUnitOfARowIsFoundAgain) {
  for (const int height : {19, 20, 23, 28, 46, 100}) {
    for (int unit = 0; unit < 5 * rowHeight; ++unit) {
      EXPECT_EQ(y(pixelsInRow(unit, height), rowAt(unit), height), unit) << height;
    }
  }
}

TEST(GridUnits, EveryPixelOfARowBelongsToIt) {
  for (const int height : {1, 7, 19, 20, 46}) {
    EXPECT_EQ(y(0, 3, height), 3 * 19) << height;
    for (int pixel = 0; pixel < height; ++pixel) EXPECT_EQ(rowAt(y(pixel, 3, height)), 3) << height;
  }
}

TEST(GridUnits, TheValueColumnBeginsAt151) {
  for (const int keyWidth : {1, 40, 151, 152, 400}) {
    EXPECT_EQ(x(keyWidth, keyWidth), 151) << keyWidth;
    EXPECT_EQ(x(keyWidth + 20, keyWidth), 171) << keyWidth;
    EXPECT_LT(x(keyWidth - 1, keyWidth), 151) << keyWidth;
    EXPECT_EQ(x(0, keyWidth), 0) << keyWidth;
    EXPECT_EQ(pixelsOfX(151, keyWidth), keyWidth);
    EXPECT_LT(pixelsOfX(150, keyWidth), keyWidth);
  }
}

TEST(GridUnits, EveryUnitOfAWideColumnIsFoundAgain) {
  for (int unit = 0; unit < 200; ++unit) EXPECT_EQ(x(pixelsOfX(unit, 230), 230), unit);
}

TEST(GridUnits, RowsGoOnBelowTheLastOne) {
  EXPECT_EQ(yBelowRows(0, 4, 23), 4 * 19);
  EXPECT_EQ(yBelowRows(23, 4, 23), 5 * 19);
  EXPECT_EQ(yBelowRows(22, 4, 23), 5 * 19 - 1);
}

TEST(GridUnits, AScreenWithoutRoomHarmsNobody) {
  EXPECT_EQ(y(5, 2, 0), 38);
  EXPECT_EQ(x(-5, 0), 0);
  EXPECT_EQ(yBelowRows(3, 1, 0), 19 + 3 * 19);
}

}  // namespace
}  // namespace mavCycEd::kit::units
