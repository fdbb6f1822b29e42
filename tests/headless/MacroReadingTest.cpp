// A macro text as a cycle, by way of the catalogue.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "TestTexts.h"

namespace mavCycEd::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

class MacroReadingTest : public testing::Test {
 protected:
  Reading<ReadCycle> read(const std::string& lines) { return readMacroText("[PMA]\r\n" + lines, catalogue_); }
  /// The parameter text of the only line.
  std::string parametersOf(const std::string& call) {
    const Reading<ReadCycle> reading = read(call);
    EXPECT_THAT(reading.value->cycle.lines, SizeIs(1)) << call;
    return reading.value->cycle.lines.at(0).parameters.text();
  }

  Catalogue catalogue_ = laboratoryCatalogue();
};

TEST_F(MacroReadingTest, EachKindOfLineHasItsPlace) {
  const Reading<ReadCycle> reading =
      read("//first // line\r\nFill (µl);10;0;100\r\nWASH(3)\r\n[PMA]\r\n\r\n//next\r\nHOME()");
  EXPECT_TRUE(reading.complete());
  const Cycle& cycle = reading.value->cycle;
  EXPECT_EQ(cycle.description, "first  line\r\nnext\r\n");
  EXPECT_THAT(cycle.variables, ElementsAre(VariableDefinition("Fill (µl);10;0;100"), VariableDefinition("")));
  EXPECT_THAT(cycle.lines, ElementsAre(AtomLine{"WASH", ParameterText("Cycles;3")}, AtomLine{"HOME", {}}));
  EXPECT_FALSE(reading.value->facts.version);
}

TEST_F(MacroReadingTest, ValuesThatAreNotGivenAreThoseOfANewLine) {
  EXPECT_EQ(parametersOf("ASPIRATE()"), "Source;Tray1\rVolume(µl);\rSpeed(rpm);");
  EXPECT_EQ(parametersOf("ASPIRATE(Tray2,Fill)"), "Source;Tray2\rVolume(µl);Fill\rSpeed(rpm);");
  EXPECT_EQ(parametersOf("ASPIRATE(,8,)"), "Source;\rVolume(µl);8\rSpeed(rpm);");
  EXPECT_EQ(parametersOf("WASH(Vol(max))"), "Cycles;Vol(max)");
  EXPECT_EQ(parametersOf("VALVE()"), "Way;Inject");
}

TEST_F(MacroReadingTest, ALineWithARefusedValueIsLeftOut) {
  const Reading<ReadCycle> reading = read("WASH(2)\r\nASPIRATE(ä,0.5,x)\r\nWASH(100)\r\nWASH(99)");
  EXPECT_THAT(reading.value->cycle.lines, SizeIs(2));
  ASSERT_THAT(reading.faults, SizeIs(2));
  EXPECT_EQ(reading.faults[0].kind, TextFault::Kind::RefusedValue);
  EXPECT_EQ(placeOf(reading.faults[0]), "3:12");
  EXPECT_THAT(reading.faults[0].message, HasSubstr("Volume 0.5 is out of range. Enter 1 to 1000"));
  EXPECT_EQ(placeOf(reading.faults[1]), "4:6");
  EXPECT_FALSE(reading.complete());
}

TEST_F(MacroReadingTest, AnUnknownAtomKeepsItsNameOnly) {
  const Reading<ReadCycle> reading = read("UNKNOWN(1,2)\r\nUNKNOWN(3)");
  EXPECT_THAT(reading.value->cycle.lines, ElementsAre(AtomLine{"UNKNOWN", {}}, AtomLine{"UNKNOWN", {}}));
  ASSERT_THAT(reading.faults, SizeIs(1)) << "an atom is told of once";
  EXPECT_EQ(reading.faults[0].kind, TextFault::Kind::UnknownAtom);
  EXPECT_EQ(placeOf(reading.faults[0]), "2:1");
}

TEST_F(MacroReadingTest, ValuesBehindTheLastParameterAreDropped) {
  const Reading<ReadCycle> reading = read("WASH(3,4,5)");
  EXPECT_THAT(reading.value->cycle.lines, ElementsAre(AtomLine{"WASH", ParameterText("Cycles;3")}));
  ASSERT_THAT(reading.faults, SizeIs(1));
  EXPECT_EQ(reading.faults[0].kind, TextFault::Kind::DroppedValues);
  EXPECT_EQ(placeOf(reading.faults[0]), "2:8");
}

TEST_F(MacroReadingTest, ADefinitionThatCannotBeReadIsTold) {
  const Reading<ReadCycle> reading = read("BROKEN()");
  EXPECT_THAT(reading.value->cycle.lines, SizeIs(1));
  ASSERT_THAT(reading.faults, SizeIs(1));
  EXPECT_EQ(reading.faults[0].kind, TextFault::Kind::AtomDefinition);
}

TEST_F(MacroReadingTest, TheHeaderIsExact) {
  for (const char* text : {"", "[PMA]", "[PMA]\n", "[pma]\r\n", " [PMA]\r\n", "<CYCLE/>"}) {
    const Reading<ReadCycle> reading = readMacroText(text, catalogue_);
    EXPECT_FALSE(reading.value) << text;
    EXPECT_EQ(reading.faults.at(0).kind, TextFault::Kind::NoMacroText) << text;
  }
  EXPECT_TRUE(readMacroText("[PMA]\r\n", catalogue_).complete());
}

}  // namespace
}  // namespace mavCycEd::test
