#include "mavCycEd/CycleCheck.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "TestTexts.h"
#include "mavCycEd/VariableUses.h"

namespace mavCycEd::test {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

TEST(CycleCheckTest, ValuesInTheirRangeAreFine) {
  EXPECT_THAT(checkCycle(cycleOf({{"REPEAT", "Repetitions;3"},
                                  {"ASPIRATE", "Source;Anything\rVolume(µl);1\rSpeed(rpm);fast"},
                                  {"WASH", "Cycles;99\rMore;1e99"},
                                  {"END", ""}}),
                         laboratoryCatalogue()),
              IsEmpty());
}

TEST(CycleCheckTest, EveryFaultyValueIsToldWithItsPlace) {
  const auto faults = checkCycle(
      cycleOf({{"WASH", "Cycles;0"}, {"ASPIRATE", "Source;A\rVolume(µl);2.3\rSpeed(rpm);60"}}), laboratoryCatalogue());
  ASSERT_THAT(faults, SizeIs(3));
  EXPECT_EQ(faults[0].line, 0U);
  EXPECT_EQ(faults[0].message, "Cycles 0 is out of range. Enter 1 to 99, in steps of 1.");
  EXPECT_EQ(faults[1].line, 1U);
  EXPECT_EQ(faults[1].parameter, 1U);
  EXPECT_THAT(faults[1].message, HasSubstr("lies between two steps"));
  EXPECT_EQ(faults[2].parameter, 2U);
}

TEST(CycleCheckTest, ValuesAreTakenByTheirPositionWhateverTheirNames) {
  EXPECT_THAT(checkCycle(cycleOf({{"WASH", "0"}}), laboratoryCatalogue()), SizeIs(1));
  EXPECT_THAT(checkCycle(cycleOf({{"WASH", "Another;0"}}), laboratoryCatalogue()), SizeIs(1));
}

TEST(CycleCheckTest, WhatCannotBeCheckedIsToldOnce) {
  const auto faults = checkCycle(cycleOf({{"HOME", ""}, {"X", "A;1"}, {"X", "A;1"}, {"BROKEN", ""}, {"BROKEN", ""}}),
                                 laboratoryCatalogue());
  ASSERT_THAT(faults, SizeIs(2));
  EXPECT_EQ(faults[0].kind, CycleFault::Kind::UnknownAtom);
  EXPECT_EQ(faults[0].line, 1U);
  EXPECT_EQ(faults[1].kind, CycleFault::Kind::AtomDefinition);
  EXPECT_EQ(faults[1].line, 3U);
}

TEST(CycleCheckTest, TheUsesOfAVariableAreFound) {
  const auto uses = usesOf("Fill", cycleOf({{"A", "Volume(ul);fill\rSpeed;1"}, {"B", "X;Filler\rTime(s);2+FILL"}}));
  ASSERT_THAT(uses, SizeIs(2));
  EXPECT_EQ(uses[0].parameterName, "Volume");
  EXPECT_EQ(uses[1].line, 1U);
  EXPECT_EQ(uses[1].parameter, 1U);
}

TEST(CycleCheckTest, TheSampleCycleHasNoFault) {
  const Catalogue catalogue =
      Catalogue::read(sample("catalogue.xml"), *Configuration::read(sample("configuration.xml")).value).value.value();
  EXPECT_THAT(checkCycle(readCycle(sample("cycle-1000.xml"), catalogue).value->cycle, catalogue), IsEmpty());
}

}  // namespace
}  // namespace mavCycEd::test
