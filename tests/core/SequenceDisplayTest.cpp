#include "panels/SequenceDisplay.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>
#include <vector>

namespace mavCycEd {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class SequenceDisplayTest : public ::testing::Test {
 protected:
  void add(const std::string& name) { cycle_.lines.push_back({name, {}}); }
  std::vector<std::string> rebuilt(const std::vector<std::string>& names) {
    cycle_.lines.clear();
    for (const std::string& name : names) add(name);
    display_.rebuild();
    return lines();
  }
  std::vector<std::string> lines() const {
    std::vector<std::string> texts;
    for (int i = 0; i < display_.count(); ++i) texts.push_back(display_.text(i));
    return texts;
  }

  Cycle cycle_;
  SequenceDisplay display_{cycle_};
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
  EXPECT_EQ(display_.currentIndent(), 4);
}

TEST_F(SequenceDisplayTest, BlockWordsAreExact) {
  EXPECT_THAT(rebuilt({"Repeat", "repeat", "REPEAT ", " REPEAT", "A", "End", "END "}),
              ElementsAre("01 Repeat", "02 repeat", "03 REPEAT ", "04  REPEAT", "05 A", "06 End", "07 END "));
  EXPECT_THAT(rebuilt({"REPEAT", "end", "END "}), ElementsAre("01 REPEAT", "02    end", "03    END "));
}

TEST_F(SequenceDisplayTest, ARebuildStartsAtTheMargin) {
  rebuilt({"REPEAT", "REPEAT"});
  EXPECT_THAT(rebuilt({"C"}), ElementsAre("01 C"));
  EXPECT_THAT(rebuilt({}), IsEmpty());
  EXPECT_EQ(display_.currentIndent(), 1);
}

TEST_F(SequenceDisplayTest, TheHundredthLineHasThreeDigits) {
  const auto lines = rebuilt(std::vector<std::string>(100, "A"));
  EXPECT_EQ(lines[98], "99 A");
  EXPECT_EQ(lines[99], "100 A");
}

TEST_F(SequenceDisplayTest, AnAppendedLineStandsAtTheCurrentIndent) {
  rebuilt({"REPEAT"});
  for (const char* name : {"A", "END", "REPEAT", "A"}) {
    add(name);
    display_.append();
  }
  EXPECT_THAT(lines(), ElementsAre("01 REPEAT", "02    A", "03 END", "04 REPEAT", "05    A"));
}

TEST_F(SequenceDisplayTest, AReplacedLineStandsAtTheMarginUntilTheNextRebuild) {
  rebuilt({"REPEAT", "A", "END", "B"});
  cycle_.lines[1].name = "REPEAT";
  display_.replace(1);
  EXPECT_THAT(lines(), ElementsAre("01 REPEAT", "02 REPEAT", "03 END", "04 B"));
  add("C");
  display_.append();
  EXPECT_EQ(lines().back(), "05 C") << "the current indent is the one before the replacement";
  cycle_.lines.pop_back();
  display_.rebuildAround(4, 1, 0);
  EXPECT_THAT(lines(), ElementsAre("01 REPEAT", "02    REPEAT", "03    END", "04    B"));
}

// Whatever is put in or taken out: the lines are those of a rebuild from the first line on.
TEST_F(SequenceDisplayTest, AChangeOfSomeLinesLeavesWhatARebuildWould) {
  const std::vector<std::string> names{"A", "REPEAT", "END"};
  SequenceDisplay whole(cycle_);
  std::uint32_t random = 1;
  const auto upTo = [&random](std::size_t most) {
    random = random * 1664525U + 1013904223U;
    return (random >> 8U) % (most + 1);
  };
  for (int step = 0; step < 2000; ++step) {
    auto& lines = cycle_.lines;
    const std::size_t at = upTo(lines.size());
    const std::size_t removed = upTo(std::min<std::size_t>(lines.size() - at, 2));
    const std::size_t added = upTo(lines.size() < 50 ? 2 : 0);
    const auto begin = lines.begin() + static_cast<std::ptrdiff_t>(at);
    auto place = lines.erase(begin, begin + static_cast<std::ptrdiff_t>(removed));
    for (std::size_t i = 0; i < added; ++i) place = lines.insert(place, {names[upTo(2)], {}});
    display_.rebuildAround(at, removed, added);
    whole.rebuild();
    ASSERT_EQ(display_.count(), whole.count());
    for (int i = 0; i < whole.count(); ++i) ASSERT_EQ(display_.text(i), whole.text(i)) << "after step " << step;
    ASSERT_EQ(display_.currentIndent(), whole.currentIndent()) << "after step " << step;
  }
}

TEST_F(SequenceDisplayTest, TheLongestLineIsTheOneThatReachesFurthest) {
  EXPECT_EQ(display_.longest(), -1);
  rebuilt({"A", "ABCD", "REPEAT", "ABC"});
  EXPECT_EQ(display_.longest(), 2);
  rebuilt({"REPEAT", "ABCD", "A"});
  EXPECT_EQ(display_.longest(), 1);
}

TEST_F(SequenceDisplayTest, TheIndentGrowsNoFurtherThan16Bits) {
  constexpr int widest = std::numeric_limits<std::int16_t>::max();
  rebuilt(std::vector<std::string>(11000, "REPEAT"));
  EXPECT_EQ(display_.currentIndent(), widest);
  EXPECT_EQ(display_.text(10999).size(), 5U + widest + 6);
  add("END");
  display_.append();
  EXPECT_EQ(display_.text(11000).size(), 5U + (widest - 3) + 3);
}

}  // namespace
}  // namespace mavCycEd
