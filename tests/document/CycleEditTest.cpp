#include "mavCycEd/CycleEdit.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>

namespace mavCycEd {
namespace {

using ::testing::ElementsAre;

AtomLine line(const char* name) { return {name, ParameterText("P;1")}; }

Cycle cycleOf(const std::vector<const char*>& names) {
  Cycle cycle;
  for (const char* name : names) cycle.lines.push_back(line(name));
  return cycle;
}

std::vector<std::string> namesOf(const Cycle& cycle) {
  std::vector<std::string> names;
  for (const AtomLine& each : cycle.lines) names.push_back(each.name);
  return names;
}

std::vector<std::string> durationsOf(const Cycle& cycle) {
  std::vector<std::string> durations;
  for (const LinePlace& each : cycle.places) durations.push_back(each.duration);
  return durations;
}

TEST(CycleEdit, InsertsLinesAndLeavesThePlaces) {
  Cycle cycle = cycleOf({"A", "B", "C"});
  cycle.places = {{"1", ""}, {"2", ""}, {"3", ""}};
  edits::insertLines(1, {line("X"), line("Y")}).apply(cycle);
  EXPECT_THAT(namesOf(cycle), ElementsAre("A", "X", "Y", "B", "C"));
  EXPECT_THAT(durationsOf(cycle), ElementsAre("1", "2", "3"));
}

TEST(CycleEdit, RemovesLinesWithTheirPlaces) {
  Cycle cycle = cycleOf({"A", "B", "C"});
  cycle.places = {{"1", ""}, {"2", ""}, {"3", ""}};
  edits::removeLines(1, 1).apply(cycle);
  EXPECT_THAT(namesOf(cycle), ElementsAre("A", "C"));
  EXPECT_THAT(durationsOf(cycle), ElementsAre("1", "3"));
}

TEST(CycleEdit, AppliedTwiceLeadsBack) {
  Cycle cycle = cycleOf({"A", "B", "C"});
  cycle.places = {{"1", ""}, {"", "g"}};
  cycle.variables = {VariableDefinition("V;T")};
  cycle.description = "one";
  const Cycle before = cycle;
  CycleEdit edit = edits::removeLines(0, 2);
  edit.then(edits::replaceLine(0, line("Z")))
      .then(edits::insertVariable(1, VariableDefinition("W;T")))
      .then(edits::changeDescription("one", "two"))
      .then(edits::setPlace(1, {"5", ""}));
  edit.apply(cycle);
  EXPECT_NE(cycle, before);
  const Cycle after = cycle;
  edit.apply(cycle);
  EXPECT_EQ(cycle, before);
  edit.apply(cycle);
  EXPECT_EQ(cycle, after);
}

TEST(CycleEdit, BeyondTheCycleChangesNothing) {
  Cycle cycle = cycleOf({"A"});
  const Cycle before = cycle;
  CycleEdit edit = edits::replaceLine(0, line("B"));
  edit.then(edits::removeVariable(0));
  EXPECT_THROW(edit.apply(cycle), std::out_of_range);
  EXPECT_EQ(cycle, before);
  EXPECT_THROW(edits::insertLines(2, {line("B")}).apply(cycle), std::out_of_range);
  EXPECT_THROW(edits::removeLines(0, static_cast<std::size_t>(-1)).apply(cycle), std::out_of_range);
  EXPECT_THROW(edits::setPlace(4'000'000'000, {"1", ""}).apply(cycle), std::out_of_range);
}

TEST(CycleEdit, ThatChangesNothingIsEmptyWhenItHasBeenApplied) {
  Cycle cycle = cycleOf({"A"});
  cycle.description = "text";
  CycleEdit edit = edits::replaceLine(0, line("A"));
  edit.then(edits::setPlace(1, {})).then(edits::changeDescription("text", "text"));
  edit.apply(cycle);
  EXPECT_TRUE(edit.empty());
}

TEST(CycleEdit, OfADescriptionKeepsOnlyWhatDiffers) {
  const CycleEdit edit = edits::changeDescription("one two three", "one 2 three");
  const auto& splice = std::get<TextSplice>(edit.changes().front());
  EXPECT_EQ(splice.at, 4U);
  EXPECT_EQ(splice.removed, 3U);
  EXPECT_EQ(splice.added, "2");
}

TEST(CycleEdit, APlaceBehindTheLastOneIsRemembered) {
  Cycle cycle = cycleOf({"A", "B"});
  CycleEdit edit = edits::setPlace(1, {"7", "g"});
  edit.apply(cycle);
  EXPECT_THAT(durationsOf(cycle), ElementsAre("", "7"));
  edit.apply(cycle);
  EXPECT_TRUE(cycle.places.empty());
}

}  // namespace
}  // namespace mavCycEd
