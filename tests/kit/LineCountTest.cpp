#include "kit/LineCount.h"

#include <gtest/gtest.h>

#include "TestLines.h"

namespace mavCycEd::kit {
namespace {

class LineCountTest : public ::testing::Test {
 protected:
  LineCountTest() {
    lines_.show(owned_);
    lines_.longest();
    owned_.longestAsked = 0;
  }
  void splice(int at, int removed, const std::vector<std::string>& added) {
    owned_.splice(at, removed, added);
    lines_.splice({.at = at, .removed = removed, .added = static_cast<int>(added.size())});
  }
  std::string longest() const { return lines_.longest() < 0 ? "none" : lines_.text(lines_.longest()); }

  test::TestLines owned_{{"1", "longest", "123", "12"}};
  LineCount lines_;
};

TEST_F(LineCountTest, WithoutLinesThereIsNoLongest) {
  lines_.clear();
  EXPECT_EQ(lines_.count(), 0);
  EXPECT_EQ(lines_.longest(), -1);
  const test::TestLines none;
  lines_.show(none);
  EXPECT_EQ(lines_.longest(), -1);
}

TEST_F(LineCountTest, SplicesBesideTheLongestLineLookAtFewLines) {
  splice(0, 1, {"x", "y"});
  EXPECT_EQ(longest(), "longest");
  splice(0, 3, {"longer than that"});
  EXPECT_EQ(longest(), "longer than that");
  EXPECT_EQ(owned_.longestAsked, 1) << "the longest line went, once";
  splice(0, 0, {"the longest of all lines so far"});
  splice(4, 0, {"short"});
  EXPECT_EQ(longest(), "the longest of all lines so far");
  EXPECT_EQ(owned_.longestAsked, 1);
}

TEST_F(LineCountTest, WhenTheLongestLineGoesItIsLookedForAgain) {
  splice(1, 1, {});
  EXPECT_EQ(longest(), "123");
  splice(1, 1, {"1"});
  EXPECT_EQ(longest(), "12");
}

TEST_F(LineCountTest, WhenTheLongestLineHasAnotherTextItIsLookedForAgain) {
  owned_.texts[1] = "l";
  splice(3, 0, {"x"});
  EXPECT_EQ(longest(), "123");
}

TEST_F(LineCountTest, ALineThatHasBecomeLongerIsNoticedWhenItIsDrawn) {
  owned_.texts[2] = "   indented 123";
  splice(0, 0, {"x"});
  EXPECT_FALSE(lines_.notice(0));
  EXPECT_TRUE(lines_.notice(3));
  EXPECT_FALSE(lines_.notice(3));
  EXPECT_EQ(longest(), "   indented 123");
}

}  // namespace
}  // namespace mavCycEd::kit
