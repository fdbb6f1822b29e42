#include "mavCycEd/CycleWriting.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <regex>
#include <string>

#include "TestTexts.h"
#include "mavCycEd/MacroLosses.h"

namespace mavCycEd::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using What = UnwritablePlace::What;

TEST(CycleWritingTest, AnUnchangedDocumentComesBackAsItWas) {
  const std::string text = sample("cycle-standard.xml");
  const Reading<ReadCycle> reading = readCycleDocument(text);
  EXPECT_EQ(writeCycleDocument(reading.value->cycle, reading.value->facts).text, text);
}

TEST(CycleWritingTest, AnOldDocumentIsWrittenInTheNewestFormat) {
  const Reading<ReadCycle> reading = readCycleDocument(sample("cycle-old.xml"));
  const WrittenCycle written = writeCycleDocument(
      reading.value->cycle, {.version = "02", .created = "2020-01-01T00:00:00", .modified = "2021-01-01T00:00:00"});
  EXPECT_FALSE(written.fault);
  EXPECT_THAT(written.text, HasSubstr("<CYCLE Created=\"2020-01-01T00:00:00\" Modified=\"2021-01-01T00:00:00\">"));
  EXPECT_THAT(written.text, HasSubstr("<VERSION>03</VERSION>"));
  EXPECT_EQ(readCycleDocument(written.text).value->cycle, reading.value->cycle);
}

TEST(CycleWritingTest, MissingTimesAreNow) {
  const std::string now = "[0-9]{4}-[0-9]{2}-[0-9]{2}T[0-9]{2}:[0-9]{2}:[0-9]{2}";
  const std::string text = writeCycleDocument(cycleOf({{"A", ""}})).text;
  EXPECT_TRUE(std::regex_match(std::string(text.substr(0, text.find('\n'))),
                               std::regex("<CYCLE Created=\"" + now + "\" Modified=\"" + now + "\">")));
}

TEST(CycleWritingTest, ACycleWithoutLinesIsNoDocument) {
  const WrittenCycle written = writeCycleDocument({});
  EXPECT_EQ(written.text, "");
  ASSERT_TRUE(written.fault);
  EXPECT_FALSE(written.fault->place);
}

void expectPlace(const Cycle& cycle, What what, std::size_t index, const std::string& text) {
  const WrittenCycle written = writeCycleDocument(cycle);
  EXPECT_EQ(written.text, "");
  ASSERT_TRUE(written.fault);
  ASSERT_TRUE(written.fault->place);
  EXPECT_EQ(written.fault->place->what, what);
  EXPECT_EQ(written.fault->place->index, index);
  EXPECT_EQ(written.fault->place->text, text);
  EXPECT_THAT(written.fault->message, HasSubstr(text));
}

TEST(CycleWritingTest, WhatCannotBeWrittenIsNamed) {
  expectPlace(cycleOf({{"A", ""}, {"R&D", ""}}), What::AtomName, 1, "R&D");
  expectPlace(cycleOf({{"A", "Volume;1<2"}}), What::ParameterValue, 0, "1<2");
  expectPlace(cycleOf({{"A", "V<x;1"}}), What::ParameterName, 0, "V<x");
  Cycle cycle = cycleOf({{"A", ""}});
  cycle.variables = {VariableDefinition("Fine;TRAY"), VariableDefinition("A&B;TRAY")};
  expectPlace(cycle, What::Variable, 1, "A&B;TRAY");
}

TEST(CycleWritingTest, AMacroTextReadsBack) {
  const Catalogue catalogue = laboratoryCatalogue();
  Cycle cycle = cycleOf({{"ASPIRATE", "Source;Tray1\rVolume(µl);Fill\rSpeed(rpm);"}, {"HOME", ""}});
  cycle.description = "One line";
  cycle.variables = {VariableDefinition("Fill (µl);10;0;100")};
  const WrittenCycle written = writeMacroText(cycle);
  EXPECT_FALSE(written.fault);
  EXPECT_EQ(written.text, "[PMA]\r\n//One line\r\nFill (µl);10;0;100\r\nASPIRATE(Tray1,Fill,)\r\nHOME()\r\n");
  EXPECT_THAT(readMacroText(written.text, catalogue).value->cycle.lines, testing::ContainerEq(cycle.lines));
}

TEST(CycleWritingTest, AMacroTextNeedsNames) {
  const WrittenCycle written = writeMacroText(cycleOf({{"A", "7"}, {"B", "7\rCount;3"}}));
  EXPECT_EQ(written.text, "");
  ASSERT_TRUE(written.fault && written.fault->place);
  EXPECT_EQ(written.fault->place->index, 1U);
  EXPECT_THAT(written.fault->message, HasSubstr("the atom B in line 2"));
}

TEST(MacroLossesTest, WhatDoesNotComeBackIsNamed) {
  Cycle cycle = cycleOf({{"WASH", "Cycles;3"},
                         {"WASH", "Cycles;"},
                         {"Wash", ""},
                         {"A", ""},
                         {"MIX", "A;1,5\rB;2"},
                         {"MIX", "A;1\rB;2"},
                         {"MIX(A", ""}});
  cycle.description = "One\r\nTwo";
  cycle.variables = {VariableDefinition("V (ul);1;0;2"), VariableDefinition("FILL(ul);1;0;2"),
                     VariableDefinition("//x;TRAY"), VariableDefinition("[PMA]")};
  const MacroLosses losses = lostInMacroText(cycle);
  EXPECT_TRUE(losses.description);
  EXPECT_THAT(losses.droppedValues, ElementsAre(0));
  EXPECT_THAT(losses.noCalls, ElementsAre(2, 3, 6));
  EXPECT_THAT(losses.tornValues, ElementsAre(4));
  EXPECT_THAT(losses.otherVariables, ElementsAre(1, 2, 3));
  EXPECT_FALSE(losses.empty());
}

TEST(MacroLossesTest, NothingIsLostOfWhatFits) {
  Cycle cycle = cycleOf({{"MIX", "A;1\rB;2"}, {"HOME", ""}});
  cycle.description = "One line\r\n";
  EXPECT_TRUE(lostInMacroText(cycle).empty());
}

}  // namespace
}  // namespace mavCycEd::test
