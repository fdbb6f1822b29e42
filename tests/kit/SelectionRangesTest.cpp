#include "kit/SelectionRanges.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>
#include <set>

namespace mavCycEd::kit {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using Range = SelectionRanges::Range;

SelectionRanges selectionOf(std::initializer_list<int> lines) {
  SelectionRanges selection;
  for (const int line : lines) selection.toggle(line);
  return selection;
}

TEST(SelectionRanges, AtFirstNothingIsSelected) {
  const SelectionRanges selection;
  EXPECT_THAT(selection.ranges(), IsEmpty());
  EXPECT_EQ(selection.first(), -1);
  EXPECT_EQ(selection.anchor(), -1);
  EXPECT_EQ(selection.count(), 0);
  EXPECT_FALSE(selection.contains(0));
}

TEST(SelectionRanges, SelectingTakesTheSelectionFromTheOthers) {
  SelectionRanges selection = selectionOf({1, 5});
  selection.select(3);
  EXPECT_THAT(selection.ranges(), ElementsAre(Range{3, 1}));
  EXPECT_EQ(selection.anchor(), 3);
  selection.select(-1);
  EXPECT_THAT(selection.ranges(), IsEmpty());
  EXPECT_EQ(selection.anchor(), -1);
}

TEST(SelectionRanges, ToggledLinesJoinAndPartRanges) {
  SelectionRanges selection = selectionOf({4, 2, 7});
  EXPECT_THAT(selection.ranges(), ElementsAre(Range{2, 1}, Range{4, 1}, Range{7, 1}));
  selection.toggle(3);
  EXPECT_THAT(selection.ranges(), ElementsAre(Range{2, 3}, Range{7, 1}));
  EXPECT_EQ(selection.anchor(), 3);
  EXPECT_EQ(selection.count(), 4);
  EXPECT_EQ(selection.first(), 2);
  selection.toggle(3);
  EXPECT_THAT(selection.ranges(), ElementsAre(Range{2, 1}, Range{4, 1}, Range{7, 1}));
  EXPECT_EQ(selection.anchor(), 3);
}

TEST(SelectionRanges, ExtendingGoesFromTheAnchorInEitherDirection) {
  SelectionRanges selection;
  selection.extendTo(4);
  EXPECT_THAT(selection.ranges(), ElementsAre(Range{4, 1})) << "without an anchor";
  selection.extendTo(6);
  EXPECT_THAT(selection.ranges(), ElementsAre(Range{4, 3}));
  selection.extendTo(1);
  EXPECT_THAT(selection.ranges(), ElementsAre(Range{1, 4}));
  EXPECT_EQ(selection.anchor(), 4);
  selection.toggle(9);
  selection.extendTo(8);
  EXPECT_THAT(selection.ranges(), ElementsAre(Range{8, 2}));
}

TEST(SelectionRanges, LinesThatComeAreNotSelectedAndPartARange) {
  SelectionRanges selection;
  selection.select(2);
  selection.extendTo(5);
  selection.splice({.at = 4, .removed = 0, .added = 2});
  EXPECT_THAT(selection.ranges(), ElementsAre(Range{2, 2}, Range{6, 2}));
  EXPECT_EQ(selection.anchor(), 2);
}

TEST(SelectionRanges, LinesThatGoCloseTheGap) {
  SelectionRanges selection = selectionOf({1, 4, 6});
  selection.splice({.at = 2, .removed = 2, .added = 0});
  EXPECT_THAT(selection.ranges(), ElementsAre(Range{1, 2}, Range{4, 1}));
  EXPECT_EQ(selection.anchor(), 4);
  selection.splice({.at = 4, .removed = 1, .added = 0});
  EXPECT_THAT(selection.ranges(), ElementsAre(Range{1, 2}));
  EXPECT_EQ(selection.anchor(), -1) << "it went";
}

TEST(SelectionRanges, ChangesInPlaceLeaveTheSelection) {
  SelectionRanges selection = selectionOf({1, 2, 5});
  const std::vector<Range> before = selection.ranges();
  selection.splice({.at = 0, .removed = 6, .added = 6});
  EXPECT_EQ(selection.ranges(), before);
  EXPECT_EQ(selection.anchor(), 5);
}

// The same with a set of line numbers, line by line.
std::set<int> splicedSet(const std::set<int>& lines, const Splice& change) {
  if (change.isInPlace()) return lines;
  std::set<int> left;
  for (const int line : lines) {
    if (line < change.at) left.insert(line);
    if (line >= change.behind()) left.insert(line + change.shift());
  }
  return left;
}

TEST(SelectionRanges, AgreeWithASetOfLineNumbers) {
  std::mt19937 random(20240309);
  const auto upTo = [&random](int most) { return std::uniform_int_distribution<int>(0, most)(random); };
  SelectionRanges selection;
  std::set<int> lines;
  constexpr int steps = 20'000;
  constexpr int most = 30;
  for (int step = 0; step < steps; ++step) {
    if (upTo(2) > 0) {
      const int line = upTo(most);
      selection.toggle(line);
      if (lines.erase(line) == 0) lines.insert(line);
    } else {
      const Splice change{.at = upTo(most), .removed = upTo(3), .added = upTo(3)};
      selection.splice(change);
      lines = splicedSet(lines, change);
    }
    std::set<int> selected;
    int end = -1;
    for (const Range& range : selection.ranges()) {
      ASSERT_GT(range.first, end) << "neither overlap nor touch";
      ASSERT_GT(range.count, 0);
      end = range.end();
      for (int line = range.first; line < end; ++line) selected.insert(line);
    }
    ASSERT_EQ(selected, lines) << "step " << step;
    ASSERT_EQ(selection.count(), static_cast<int>(lines.size()));
    const int any = upTo(most);
    ASSERT_EQ(selection.contains(any), lines.contains(any));
  }
}

}  // namespace
}  // namespace mavCycEd::kit
