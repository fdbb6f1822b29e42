#include "kit/ListItems.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace mavCycEd::kit {
namespace {

using ::testing::ElementsAre;

TEST(ListItems, ChangeAsTheirListDoes) {
  ListItems items;
  items.append("b");
  items.insert(0, "a");
  items.insert(2, "d");
  items.insert(2, "c");
  items.setText(3, "D");
  EXPECT_THAT(items.all(), ElementsAre("a", "b", "c", "D"));
  items.remove(1);
  EXPECT_THAT(items.all(), ElementsAre("a", "c", "D"));
}

TEST(ListItems, AreFoundByTheirTextAfterEveryChange) {
  ListItems items;
  items.assign({"a", "b", "a"});
  EXPECT_EQ(items.indexOf("a"), 0);
  EXPECT_EQ(items.indexOf("c"), -1);
  items.append("c");
  EXPECT_EQ(items.indexOf("c"), 3);
  items.remove(0);
  EXPECT_EQ(items.indexOf("a"), 1);
  items.insert(0, "c");
  EXPECT_EQ(items.indexOf("c"), 0);
  items.setText(0, "b");
  EXPECT_EQ(items.indexOf("b"), 0);
  items.assign({"x"});
  EXPECT_EQ(items.indexOf("b"), -1);
}

TEST(ListItems, TheLongestIsTheFirstOfItsLength) {
  ListItems items;
  EXPECT_EQ(items.longest(), -1);
  items.append("1");
  EXPECT_EQ(items.longest(), 0);
  items.append("123");
  items.append("12");
  items.append("321");
  EXPECT_EQ(items.longest(), 1);
  items.remove(1);
  EXPECT_EQ(items.longest(), 2);
  items.setText(2, "");
  EXPECT_EQ(items.longest(), 1);
  items.assign({"", ""});
  EXPECT_EQ(items.longest(), 0);
}

}  // namespace
}  // namespace mavCycEd::kit
