#include "mavCycEd/CycleReading.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "TestTexts.h"

namespace mavCycEd::test {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

TEST(CycleReadingTest, ACycleDocumentIsAValue) {
  const Reading<ReadCycle> reading = readCycleDocument(
      "<CYCLE Created='2020-01-02T03:04:05' Modified='2021-01-02T03:04:05'><DESCRIPTION>//a &lt; b\nnext</DESCRIPTION>"
      "<VARIABLES><VALUE>Fill (ul);1;0;9</VALUE></VARIABLES><ATOMSEQUENCE><ATOMS>" +
      atom("WASH", {{"Cycles", "3"}}) + atom("END", {}) + "</ATOMS></ATOMSEQUENCE><VERSION>03</VERSION></CYCLE>");
  ASSERT_TRUE(reading.complete());
  const Cycle& cycle = reading.value->cycle;
  EXPECT_EQ(cycle.description, "a < b\r\nnext");
  ASSERT_THAT(cycle.variables, SizeIs(1));
  EXPECT_EQ(cycle.variables[0].name(), "Fill");
  ASSERT_THAT(cycle.lines, SizeIs(2));
  EXPECT_EQ(cycle.lines[0], (AtomLine{"WASH", ParameterText("Cycles;3")}));
  EXPECT_EQ(reading.value->facts.version, "03");
  EXPECT_EQ(reading.value->facts.created, "2020-01-02T03:04:05");
  EXPECT_EQ(reading.value->facts.modified, "2021-01-02T03:04:05");
}

TEST(CycleReadingTest, TheSamplesAreRead) {
  const Catalogue catalogue =
      Catalogue::read(sample("catalogue.xml"), *Configuration::read(sample("configuration.xml")).value).value.value();
  for (const char* name : {"cycle-standard.xml", "cycle-old.xml", "cycle-1000.xml"}) {
    EXPECT_TRUE(readCycle(sample(name), catalogue).complete()) << name;
  }
}

TextFault onlyFaultIn(std::string_view text, bool ofUse) {
  const Reading<ReadCycle> reading = readCycleDocument(text);
  EXPECT_EQ(reading.value.has_value(), ofUse) << text;
  EXPECT_THAT(reading.faults, SizeIs(1)) << text;
  return reading.faults.empty() ? TextFault() : reading.faults[0];
}

TEST(CycleReadingTest, ADocumentWithoutVariablesIsOfNoUse) {
  const TextFault fault =
      onlyFaultIn("<?xml version='1.0'?>\n<CYCLE><ATOMSEQUENCE><ATOMS/></ATOMSEQUENCE></CYCLE>", false);
  EXPECT_EQ(fault.kind, TextFault::Kind::MissingElement);
  EXPECT_EQ(placeOf(fault), "2:1");
  EXPECT_THAT(fault.message, HasSubstr("VARIABLES"));
}

TEST(CycleReadingTest, WithoutAtomsThereAreNoLines) {
  const TextFault fault = onlyFaultIn("<CYCLE><VARIABLES><VALUE>V</VALUE></VARIABLES><ATOMSEQUENCE/></CYCLE>", true);
  EXPECT_EQ(fault.kind, TextFault::Kind::MissingElement);
  EXPECT_THAT(fault.message, HasSubstr("ATOMS"));
}

TEST(CycleReadingTest, TheLinesEndBeforeAnAtomWithoutName) {
  const std::string text = cycleDocument(atom("A", {}) + "<!-- <x> --><ATOM b='>'>\n</ATOM>\n" + atom("B", {}));
  const TextFault fault = onlyFaultIn(text, true);
  EXPECT_EQ(fault.kind, TextFault::Kind::MissingElement);
  EXPECT_EQ(placeOf(fault), "7:13");
  EXPECT_THAT(fault.message, HasSubstr("ATOMNAME"));
  const Reading<ReadCycle> reading = readCycleDocument(text);
  ASSERT_THAT(reading.value->cycle.lines, SizeIs(1));
  EXPECT_EQ(reading.value->cycle.lines[0].name, "A");
  EXPECT_EQ(reading.value->cycle.description, "First\r\nSecond");
}

TEST(CycleReadingTest, TheLinesEndBeforeAParameterThatIsNotComplete) {
  const std::string start = "<ATOM><ATOMNAME>A</ATOMNAME><PARAMETERS>\n ";
  const TextFault value =
      onlyFaultIn(cycleDocument(start + "<PARAMETER><PARAMNAME/></PARAMETER></PARAMETERS></ATOM>"), true);
  EXPECT_EQ(placeOf(value), "7:2");
  EXPECT_THAT(value.message, HasSubstr("The PARAMETER has no element PARAMVALUE"));
  const TextFault name =
      onlyFaultIn(cycleDocument(start + "<PARAMETER><PARAMVALUE/></PARAMETER></PARAMETERS></ATOM>"), true);
  EXPECT_THAT(name.message, HasSubstr("PARAMNAME"));
}

TEST(CycleReadingTest, TheFirstLackIsTold) {
  const TextFault fault = onlyFaultIn(
      cycleDocument("<ATOM><PARAMETERS><PARAMETER><PARAMNAME/></PARAMETER></PARAMETERS></ATOM>\n<ATOM/>\n"), true);
  EXPECT_EQ(fault.line, 6U);
}

TEST(CycleReadingTest, WhatIsNoCycleIsTold) {
  EXPECT_EQ(onlyFaultIn("", false).kind, TextFault::Kind::Empty);
  EXPECT_EQ(onlyFaultIn("<CYCLE>", false).kind, TextFault::Kind::NotWellFormed);
  EXPECT_EQ(onlyFaultIn("<CYCLE>\xFF</CYCLE>", false).kind, TextFault::Kind::ForbiddenCharacter);
  EXPECT_EQ(onlyFaultIn("<!DOCTYPE CYCLE>\n<CYCLE/>", false).kind, TextFault::Kind::DocumentType);
  EXPECT_EQ(onlyFaultIn("<Config/>", false).message,
            "The outermost element of a cycle is CYCLE, but here it is Config. This looks like a configuration.");
  EXPECT_EQ(onlyFaultIn("[PMA]\r\n", false).kind, TextFault::Kind::NotWellFormed);
}

TEST(CycleReadingTest, EitherFormIsTakenForWhatItIs) {
  const Catalogue catalogue = laboratoryCatalogue();
  EXPECT_THAT(readCycle("[PMA]\r\nWASH(3)", catalogue).value->cycle.lines, SizeIs(1));
  EXPECT_THAT(readCycle(cycleDocument(""), catalogue).value->cycle.lines, IsEmpty());
  EXPECT_EQ(readCycle("[PMA]\nWASH(3)", catalogue).faults.at(0).kind, TextFault::Kind::NotWellFormed);
}

}  // namespace
}  // namespace mavCycEd::test
