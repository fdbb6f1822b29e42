#include "cycle/SequenceDisplay.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <vector>

#include "memory/MemoryListBox.h"

namespace mavCycEd {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class SequenceDisplayTest : public ::testing::Test {
 protected:
  const std::vector<std::string>& rebuilt(const std::vector<std::string>& names) {
    cycle_.atoms.Clear();
    for (const std::string& name : names) cycle_.atoms.Add(name, "", "", std::string());
    rebuildSequenceList(cycle_, list_);
    return list_.items();
  }

  CycleState cycle_;
  memory::MemoryListBox list_{nullptr};
};

TEST_F(SequenceDisplayTest, ALineHasNumberIndentAndName) {
  EXPECT_EQ(displayLine(1, 1, "MIX"), "01 MIX");
  EXPECT_EQ(displayLine(10, 4, "Größe"), "10    Größe");
  EXPECT_EQ(displayLine(100, 7, "MIX"), "100       MIX");
  EXPECT_EQ(displayLine(2, 1, ""), "02 ");
}

TEST_F(SequenceDisplayTest, NestedBlocksStandThreeSpacesFurtherIn) {
  EXPECT_THAT(rebuilt({"REPEAT", "A", "REPEAT", "B", "END", "END", "C"}),
              ElementsAre("01 REPEAT", "02    A", "03    REPEAT", "04       B", "05    END", "06 END", "07 C"));
}

TEST_F(SequenceDisplayTest, UnmatchedEndsStayAtTheMargin) {
  EXPECT_THAT(rebuilt({"END", "END", "A"}), ElementsAre("01 END", "02 END", "03 A"));
  EXPECT_THAT(rebuilt({"END", "REPEAT", "A", "END"}), ElementsAre("01 END", "02 REPEAT", "03    A", "04 END"));
}

TEST_F(SequenceDisplayTest, AnOpenBlockLeavesTheFollowingLinesIndented) {
  EXPECT_THAT(rebuilt({"REPEAT", "A"}), ElementsAre("01 REPEAT", "02    A"));
  EXPECT_EQ(cycle_.displayIndent, 4);
}

TEST_F(SequenceDisplayTest, BlockWordsAreExact) {
  EXPECT_THAT(rebuilt({"Repeat", "repeat", "REPEAT ", " REPEAT", "A", "End", "END "}),
              ElementsAre("01 Repeat", "02 repeat", "03 REPEAT ", "04  REPEAT", "05 A", "06 End", "07 END "));
  EXPECT_THAT(rebuilt({"REPEAT", "end", "END "}), ElementsAre("01 REPEAT", "02    end", "03    END "));
}

TEST_F(SequenceDisplayTest, ARebuildStartsAtTheMarginAndSelectsNothing) {
  cycle_.displayIndent = 10;
  rebuilt({"A", "B"});
  list_.setIndex(1);
  EXPECT_THAT(rebuilt({"C"}), ElementsAre("01 C"));
  EXPECT_EQ(list_.index(), -1);
  EXPECT_THAT(rebuilt({}), IsEmpty());
  EXPECT_EQ(cycle_.displayIndent, 1);
}

TEST_F(SequenceDisplayTest, TheHundredthLineHasThreeDigits) {
  const auto& lines = rebuilt(std::vector<std::string>(100, "A"));
  EXPECT_EQ(lines[98], "99 A");
  EXPECT_EQ(lines[99], "100 A");
}

TEST_F(SequenceDisplayTest, TheNextLineStandsAtTheCurrentIndent) {
  cycle_.displayIndent = 4;
  EXPECT_EQ(nextDisplayLine(cycle_, 5, "A"), "05    A");
  EXPECT_EQ(nextDisplayLine(cycle_, 6, "END"), "06 END");
  EXPECT_EQ(nextDisplayLine(cycle_, 7, "REPEAT"), "07 REPEAT");
  EXPECT_EQ(nextDisplayLine(cycle_, 8, "A"), "08    A");
}

TEST_F(SequenceDisplayTest, TheIndentGrowsNoFurtherThan16Bits) {
  constexpr auto widest = std::numeric_limits<std::int16_t>::max();
  cycle_.displayIndent = widest - 2;
  EXPECT_EQ(nextDisplayLine(cycle_, 1, "REPEAT").size(), 2U + (widest - 2) + 6);
  EXPECT_EQ(cycle_.displayIndent, widest);
  EXPECT_EQ(nextDisplayLine(cycle_, 2, "REPEAT").size(), 2U + widest + 6);
  EXPECT_EQ(cycle_.displayIndent, widest);
  EXPECT_EQ(nextDisplayLine(cycle_, 3, "END").size(), 2U + (widest - 3) + 3);
  EXPECT_EQ(cycle_.displayIndent, widest - 3);
}

}  // namespace
}  // namespace mavCycEd
