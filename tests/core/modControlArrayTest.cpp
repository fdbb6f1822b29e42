#include "panels/modControlArray.h"

#include <gtest/gtest.h>

#include "memory/MemoryPopupMenu.h"

namespace mavCycEd {
namespace {

class ModControlArrayTest : public ::testing::Test {
 protected:
  void create(std::initializer_list<int> indexes) {
    for (const int index : indexes) menu_.createItem(index);
  }

  memory::MemoryPopupMenu menu_;
};

TEST_F(ModControlArrayTest, DeletingLeavesItem0AsItIs) {
  menu_.setItemCaption(0, "Default:5");
  create({1, 2, 3});
  modControlArray::deleteItems(menu_);
  EXPECT_EQ(menu_.itemCount(), 1);
  EXPECT_EQ(menu_.lastIndex(), 0);
  EXPECT_EQ(menu_.itemCaption(0), "Default:5");
}

TEST_F(ModControlArrayTest, DeletingPassesOverGaps) {
  create({2, 7, 40});
  modControlArray::deleteItems(menu_);
  EXPECT_EQ(menu_.itemCount(), 1);
  EXPECT_TRUE(menu_.hasItem(0));
}

TEST_F(ModControlArrayTest, DeletingFromAMenuOfOneItemDoesNothing) {
  modControlArray::deleteItems(menu_);
  EXPECT_EQ(menu_.itemCount(), 1);
}

TEST_F(ModControlArrayTest, ItemsWithoutAGapAreContinuous) {
  EXPECT_TRUE(modControlArray::isContinuous(menu_));
  create({1, 2});
  EXPECT_TRUE(modControlArray::isContinuous(menu_));
  menu_.removeItem(2);
  EXPECT_TRUE(modControlArray::isContinuous(menu_));
}

TEST_F(ModControlArrayTest, AGapIsSeenWhereverItIs) {
  create({2});
  EXPECT_FALSE(modControlArray::isContinuous(menu_));
  create({1, 3, 4});
  EXPECT_TRUE(modControlArray::isContinuous(menu_));
  menu_.removeItem(3);
  EXPECT_FALSE(modControlArray::isContinuous(menu_));
}

TEST_F(ModControlArrayTest, TheFirstFreePlaceIsBehindItemsWithoutAGap) {
  EXPECT_EQ(modControlArray::firstFreePlace(menu_), 1);
  create({1, 2});
  EXPECT_EQ(modControlArray::firstFreePlace(menu_), 3);
}

TEST_F(ModControlArrayTest, TheFirstFreePlaceIsTheLowestGap) {
  create({2, 3, 6});
  EXPECT_EQ(modControlArray::firstFreePlace(menu_), 1);
  create({1});
  EXPECT_EQ(modControlArray::firstFreePlace(menu_), 4);
}

TEST_F(ModControlArrayTest, AMenuGrowsAtItsFreePlaces) {
  create({2});
  for (int i = 0; i < 3; ++i) menu_.createItem(modControlArray::firstFreePlace(menu_));
  EXPECT_TRUE(modControlArray::isContinuous(menu_));
  EXPECT_EQ(menu_.lastIndex(), 4);
}

}  // namespace
}  // namespace mavCycEd
