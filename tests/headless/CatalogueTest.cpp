#include "mavCycEd/Catalogue.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "TestTexts.h"

namespace mavCycEd::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

TEST(CatalogueTest, OffersItsAtomsThenFurtherOnes) {
  const Catalogue catalogue = laboratoryCatalogue();
  EXPECT_THAT(catalogue.atomNames(),
              ElementsAre("WASH", "ASPIRATE", "VALVE", "BROKEN", "HOME", "SHAKE", "REPEAT", "END"));
  EXPECT_TRUE(catalogue.offersAtom("SHAKE"));
  EXPECT_FALSE(catalogue.offersAtom("shake"));
  EXPECT_FALSE(catalogue.offersAtom(""));
}

TEST(CatalogueTest, ANumberHasLimitsInItsShownUnit) {
  const AtomParameters parameters = laboratoryCatalogue().parametersOf("ASPIRATE");
  EXPECT_THAT(parameters.faults, IsEmpty());
  ASSERT_THAT(parameters.rows, SizeIs(3));
  const ParameterRow& volume = parameters.rows[1];
  EXPECT_EQ(volume.name, "Volume");
  EXPECT_EQ(volume.key, "Volume(µl)");
  EXPECT_EQ(volume.kind, ParameterRow::Kind::Number);
  EXPECT_EQ(volume.unit, "µl");
  EXPECT_EQ(volume.lower, 1.0);
  EXPECT_EQ(volume.upper, 1000.0);
  EXPECT_EQ(volume.step, 0.5);
  EXPECT_EQ(volume.factor, 10);
  EXPECT_EQ(volume.defaultValue, "10");
  EXPECT_EQ(volume.firstValue, "") << "only a default on a limit is filled in";
  EXPECT_EQ(volume.description, "Range: 1 to 1000 Default: 10 Step: 0.5");
  EXPECT_EQ(parameters.rows[2].lower, 0.0);
}

TEST(CatalogueTest, ChoicesHaveItems) {
  const Catalogue catalogue = laboratoryCatalogue();
  const ParameterRow source = catalogue.parametersOf("ASPIRATE").rows.at(0);
  EXPECT_EQ(source.kind, ParameterRow::Kind::Choice);
  EXPECT_THAT(source.items, ElementsAre("Tray1", "ask_operator")) << "what is hidden is left out";
  EXPECT_EQ(source.firstValue, "Tray1");
  EXPECT_EQ(source.description, "TRAY");
  const ParameterRow way = catalogue.parametersOf("VALVE").rows.at(0);
  EXPECT_THAT(way.items, ElementsAre("Load", "Inject"));
  EXPECT_EQ(way.firstValue, "Inject");
}

TEST(CatalogueTest, HiddenObjectsMayBeOffered) {
  const Reading<Catalogue> reading = Catalogue::read(laboratory(), {}, Catalogue::Hidden::Offered);
  EXPECT_THAT(reading.value->parametersOf("ASPIRATE").rows.at(0).items, ElementsAre("Tray1", "Tray2"));
}

TEST(CatalogueTest, ADefinitionThatCannotBeReadIsToldAndTheOthersStand) {
  const AtomParameters parameters = laboratoryCatalogue().parametersOf("BROKEN");
  ASSERT_THAT(parameters.rows, SizeIs(2));
  EXPECT_THAT(parameters.rows[0].items, ElementsAre("Load", "Inject"));
  EXPECT_EQ(parameters.rows[1].name, "Cycles");
  EXPECT_THAT(parameters.faults, ElementsAre(HasSubstr("\"Way#;0;1;7;1;2\"")));
}

TEST(CatalogueTest, AnAtomThatIsNotOfferedHasNoParameters) {
  EXPECT_THAT(laboratoryCatalogue().parametersOf("UNKNOWN").rows, IsEmpty());
}

TEST(CatalogueTest, ValuesAreCheckedByAtomAndParameter) {
  const Catalogue catalogue = laboratoryCatalogue();
  EXPECT_FALSE(catalogue.checkValue("ASPIRATE", 1, "1000"));
  EXPECT_FALSE(catalogue.checkValue("ASPIRATE", 1, "Fill+2"));
  EXPECT_FALSE(catalogue.checkValue("ASPIRATE", 9, "x"));
  EXPECT_FALSE(catalogue.checkValue("UNKNOWN", 0, "1"));
  const auto high = catalogue.checkValue("ASPIRATE", 1, "1000.5");
  ASSERT_TRUE(high);
  EXPECT_EQ(high->kind, ValueFault::Kind::OutOfRange);
  EXPECT_EQ(high->wanted, "1 to 1000, in steps of 0.5");
  EXPECT_EQ(catalogue.checkValue("ASPIRATE", 1, "1.3")->kind, ValueFault::Kind::OffStep);
  EXPECT_EQ(catalogue.checkValue("ASPIRATE", 2, "2.5")->kind, ValueFault::Kind::NotReckonable)
      << "a step of 0.5 counts as 0 with a factor of 1";
}

TEST(CatalogueTest, AFaultIsToldWithWhatIsWanted) {
  const ParameterRow row = laboratoryCatalogue().parametersOf("ASPIRATE").rows.at(1);
  EXPECT_EQ(describe(*checkValue(row, "0.5"), row, "0.5"),
            "Volume 0.5 is out of range. Enter 1 to 1000, in steps of 0.5.");
}

TEST(CatalogueTest, VariablesAreOfferedWhereTheirUnitFits) {
  const Catalogue catalogue = laboratoryCatalogue();
  const AtomParameters parameters = catalogue.parametersOf("ASPIRATE");
  const std::vector variables{VariableDefinition("Fill (µl);10;0;100"), VariableDefinition("Count ();1;0;5"),
                              VariableDefinition("Place;TRAY")};
  EXPECT_THAT(catalogue.valuesOfferedFor(parameters.rows[1], variables),
              ElementsAre("10", "user_index", "ask_operator", "Fill"));
  EXPECT_THAT(catalogue.itemsOf(parameters.rows[1], variables), IsEmpty());
  const ParameterRow way = catalogue.parametersOf("VALVE").rows.at(0);
  EXPECT_THAT(catalogue.itemsOf(way, variables), ElementsAre("Load", "Inject", "Place"));
}

TEST(CatalogueTest, WhatIsNoCatalogueIsToldWithItsPlace) {
  const auto faultIn = [](std::string_view text) {
    const Reading<Catalogue> reading = Catalogue::read(text);
    EXPECT_FALSE(reading.value);
    EXPECT_FALSE(reading.complete());
    return reading.faults.at(0);
  };
  EXPECT_EQ(faultIn("\n ").kind, TextFault::Kind::Empty);
  EXPECT_EQ(faultIn("<LATESTKAM>\n<ATOMS>\n</LATESTKAM>").kind, TextFault::Kind::NotWellFormed);
  EXPECT_EQ(faultIn("<LATESTKAM>\n<ATOMS>\n</LATESTKAM>").line, 3U);
  EXPECT_EQ(faultIn("<!DOCTYPE LATESTKAM><LATESTKAM/>").kind, TextFault::Kind::DocumentType);
  EXPECT_EQ(placeOf(faultIn("<LATESTKAM>\n\x02</LATESTKAM>")), "2:1");
  const TextFault other = faultIn("<?xml version='1.0'?>\n<!-- <a> -->\n <CYCLE/>");
  EXPECT_EQ(other.kind, TextFault::Kind::OtherRoot);
  EXPECT_EQ(placeOf(other), "3:2");
  EXPECT_EQ(other.message,
            "The outermost element of a catalogue is LATESTKAM, but here it is CYCLE. This looks like a cycle.");
}

TEST(CatalogueTest, CopiesOutliveWhatTheyWereMadeFrom) {
  Catalogue copy = laboratoryCatalogue();
  {
    const Catalogue other = Catalogue::read("<LATESTKAM/>").value.value();
    copy = other;
  }
  EXPECT_THAT(copy.atomNames(), ElementsAre("REPEAT", "END"));
}

TEST(ConfigurationTest, ItIsReadOrTold) {
  EXPECT_TRUE(Configuration::read("<Config/>").complete());
  EXPECT_EQ(Configuration::read("").faults.at(0).kind, TextFault::Kind::Empty);
  EXPECT_EQ(Configuration::read("<Config><Units></Config>").faults.at(0).kind, TextFault::Kind::NotWellFormed);
  EXPECT_EQ(Configuration::read("<CYCLE/>").faults.at(0).kind, TextFault::Kind::OtherRoot);
  EXPECT_FALSE(Configuration::read("<CYCLE/>").value);
}

TEST(ConfigurationTest, AFactorThatIsNoNumberIsToldOfTheDefinitionsThatNeedIt) {
  const auto configuration = Configuration::read(
      "<Config><Units><UNIT><UNITNAME>ul</UNITNAME><FACTOR>99999999999</FACTOR></UNIT></Units></Config>");
  const Reading<Catalogue> reading = Catalogue::read(laboratory(), *configuration.value);
  EXPECT_THAT(reading.value->parametersOf("ASPIRATE").faults, ElementsAre(HasSubstr("Volume!;10;10000;100;5;ul")));
  EXPECT_THAT(reading.value->parametersOf("ASPIRATE").rows, SizeIs(2));
}

}  // namespace
}  // namespace mavCycEd::test
