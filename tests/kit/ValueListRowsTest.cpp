#include "kit/ValueListRows.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace mavCycEd::kit {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class ValueListRowsTest : public ::testing::Test {
 protected:
  void fill(const std::vector<std::string>& keys) {
    for (const std::string& key : keys) rows_.insert(key, "value of " + key, true);
  }
  std::vector<std::string> keys() const {
    std::vector<std::string> result;
    for (int row = 1; row < rows_.rowCount(); ++row) result.push_back(rows_.cell(0, row));
    return result;
  }
  std::string currentKey() const { return rows_.cell(0, rows_.currentRow()); }

  ValueListRows rows_;
};

TEST_F(ValueListRowsTest, TheTitleRowIsAlwaysThere) {
  EXPECT_EQ(rows_.rowCount(), 1);
  EXPECT_EQ(rows_.currentRow(), 0);
  EXPECT_FALSE(rows_.isParameterRow(0));
  EXPECT_FALSE(rows_.isParameterRow(1));
  EXPECT_EQ(rows_.entry(0), nullptr);
}

TEST_F(ValueListRowsTest, RowsAreAddedAtTheEndOrAsRow1) {
  EXPECT_EQ(rows_.insert("a", "1", true), 1);
  EXPECT_EQ(rows_.insert("b", "2", true), 2);
  EXPECT_EQ(rows_.insert("c", "3", false), 1);
  EXPECT_THAT(keys(), ElementsAre("c", "a", "b"));
  EXPECT_EQ(rows_.cell(1, 1), "3");
  EXPECT_TRUE(rows_.isParameterRow(3));
  EXPECT_FALSE(rows_.isParameterRow(4));
  EXPECT_FALSE(rows_.isParameterRow(-1));
}

TEST_F(ValueListRowsTest, TheFirstRowAddedBecomesCurrent) {
  fill({"a"});
  EXPECT_EQ(rows_.currentRow(), 1);
}

TEST_F(ValueListRowsTest, TheCurrentRowStaysOnItsEntry) {
  fill({"a", "b"});
  EXPECT_EQ(currentKey(), "a");
  rows_.insert("c", "", false);
  EXPECT_EQ(rows_.currentRow(), 2);
  EXPECT_EQ(currentKey(), "a");
}

TEST_F(ValueListRowsTest, OnlyAParameterRowBecomesCurrent) {
  fill({"a", "b"});
  rows_.setCurrentRow(2);
  EXPECT_EQ(rows_.currentRow(), 2);
  for (const int row : {0, -1, 3, 1000}) {
    rows_.setCurrentRow(row);
    EXPECT_EQ(rows_.currentRow(), 2) << row;
  }
}

TEST_F(ValueListRowsTest, RemovingARowInFrontMovesTheCurrentRowAlong) {
  fill({"a", "b", "c"});
  rows_.setCurrentRow(3);
  rows_.remove(1);
  EXPECT_EQ(rows_.currentRow(), 2);
  EXPECT_EQ(currentKey(), "c");
}

TEST_F(ValueListRowsTest, RemovingARowBehindLeavesTheCurrentRow) {
  fill({"a", "b", "c"});
  rows_.setCurrentRow(2);
  rows_.remove(3);
  EXPECT_EQ(currentKey(), "b");
  EXPECT_EQ(rows_.currentRow(), 2);
}

TEST_F(ValueListRowsTest, TheRowThatTakesTheCurrentOnesPlaceIsCurrent) {
  fill({"a", "b", "c"});
  rows_.setCurrentRow(2);
  rows_.remove(2);
  EXPECT_EQ(rows_.currentRow(), 2);
  EXPECT_EQ(currentKey(), "c");
}

TEST_F(ValueListRowsTest, TheNewLastRowIsCurrentWhenTheLastOneGoes) {
  fill({"a", "b", "c"});
  rows_.setCurrentRow(3);
  rows_.remove(3);
  EXPECT_EQ(currentKey(), "b");
  rows_.remove(2);
  EXPECT_EQ(currentKey(), "a");
  rows_.remove(1);
  EXPECT_EQ(rows_.currentRow(), 0);
  fill({"d"});
  EXPECT_EQ(currentKey(), "d");
}

TEST_F(ValueListRowsTest, RemovingWhatIsNoParameterRowDoesNothing) {
  fill({"a", "b"});
  for (const int row : {0, -1, 3, 1000}) rows_.remove(row);
  EXPECT_THAT(keys(), ElementsAre("a", "b"));
}

TEST_F(ValueListRowsTest, CellsAreWrittenAndRead) {
  fill({"a", "b"});
  EXPECT_TRUE(rows_.setCell(0, 2, "Größe"));
  EXPECT_TRUE(rows_.setCell(1, 2, ""));
  EXPECT_EQ(rows_.cell(0, 2), "Größe");
  EXPECT_EQ(rows_.cell(1, 2), "");
  EXPECT_EQ(rows_.cell(1, 1), "value of a");
}

TEST_F(ValueListRowsTest, CellsBeyondTheRowsAreEmptyAndNotWritten) {
  fill({"a"});
  for (const int row : {0, -1, 2}) {
    EXPECT_FALSE(rows_.setCell(1, row, "x")) << row;
    EXPECT_EQ(rows_.cell(1, row), "") << row;
  }
  for (const int column : {-1, 2}) {
    EXPECT_FALSE(rows_.setCell(column, 1, "x")) << column;
    EXPECT_EQ(rows_.cell(column, 1), "") << column;
  }
  EXPECT_EQ(rows_.cell(0, 1) + rows_.cell(1, 1), "avalue of a");
}

TEST_F(ValueListRowsTest, PickListsAreSeparatedBySemicolons) {
  fill({"a", "b"});
  EXPECT_TRUE(rows_.setPickList(2, "one;Größe 2;;three"));
  EXPECT_THAT(rows_.entry(2)->pickList, ElementsAre("one", "Größe 2", "", "three"));
  EXPECT_THAT(rows_.entry(1)->pickList, IsEmpty());
  EXPECT_EQ(rows_.cell(1, 2), "value of b") << "the value stays";
  EXPECT_TRUE(rows_.setPickList(2, ""));
  EXPECT_THAT(rows_.entry(2)->pickList, IsEmpty());
  EXPECT_FALSE(rows_.setPickList(0, "one"));
  EXPECT_FALSE(rows_.setPickList(3, "one"));
}

TEST_F(ValueListRowsTest, APickListMovesWithItsRow) {
  fill({"a", "b"});
  rows_.setPickList(2, "one");
  rows_.insert("c", "", false);
  EXPECT_THAT(rows_.entry(3)->pickList, ElementsAre("one"));
  rows_.remove(1);
  EXPECT_THAT(rows_.entry(2)->pickList, ElementsAre("one"));
}

}  // namespace
}  // namespace mavCycEd::kit
