#include "mavCycEd/VariableDefinition.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace mavCycEd {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

std::string nameOf(const char* text) { return VariableDefinition(text).name(); }

TEST(VariableDefinition, HasItsNameBeforeTheFirstSeparatorAndParenthesis) {
  EXPECT_EQ(nameOf("Volume (ul);10;0;100"), "Volume");
  EXPECT_EQ(nameOf("  Rack ;TRAY"), "Rack");
  EXPECT_EQ(nameOf("bare"), "bare");
  EXPECT_EQ(nameOf("(ul);1"), "");
  EXPECT_EQ(nameOf(""), "");
}

TEST(VariableDefinition, OfANumberIsWrittenWithItsUnitInParentheses) {
  EXPECT_EQ(VariableDefinition::number({"Volume", "ul", "10", "0", "100"}).text(), "Volume (ul);10;0;100");
  EXPECT_EQ(VariableDefinition::number({"Count", "None", "5", "1", "10"}).text(), "Count ();5;1;10");
}

TEST(VariableDefinition, OfAnObjectListsItsTypes) {
  EXPECT_EQ(VariableDefinition::object("Rack", {"TRAY", "PLATE"}).text(), "Rack;TRAY;PLATE");
  EXPECT_EQ(VariableDefinition::object("Rack", {}).text(), "Rack;");
}

TEST(VariableDefinition, ReadsANumberBack) {
  const NumberVariable number = VariableDefinition("Volume (ul);10;0;100").asNumber();
  EXPECT_EQ(number.name, "Volume");
  EXPECT_EQ(number.unit, "ul");
  EXPECT_EQ(number.defaultValue, "10");
  EXPECT_EQ(number.lower, "0");
  EXPECT_EQ(number.upper, "100");
}

TEST(VariableDefinition, WithoutAUnitHasTheUnitNone) {
  EXPECT_EQ(VariableDefinition("Count ();5;1;10").asNumber().unit, "None");
  EXPECT_EQ(VariableDefinition("Count;5;1;10").asNumber().unit, "None");
}

TEST(VariableDefinition, WithFewerThanFourFieldsHasNoValues) {
  const NumberVariable number = VariableDefinition("Count ();5;1").asNumber();
  EXPECT_EQ(number.defaultValue + number.lower + number.upper, "");
}

TEST(VariableDefinition, IsOfferedToTheRowsOfItsUnit) {
  const auto offer = VariableDefinition("Vol (ul) max;1;0;2").offer();
  ASSERT_TRUE(offer.has_value());
  EXPECT_EQ(offer->name, "Vol  max");
  EXPECT_EQ(offer->unit, "ul");
  EXPECT_EQ(VariableDefinition("Count ();1;0;2").offer()->unit, "None");
  EXPECT_EQ(VariableDefinition("Rack;TRAY").offer()->unit, "");
}

TEST(VariableDefinition, IsNotOfferedWithoutFieldsOrName) {
  EXPECT_FALSE(VariableDefinition("Rack").offer().has_value());
  EXPECT_FALSE(VariableDefinition(" (ul);1").offer().has_value());
  EXPECT_FALSE(VariableDefinition("").offer().has_value());
}

TEST(VariableDefinition, ListsTheFieldsBehindTheName) {
  EXPECT_THAT(VariableDefinition("Rack;TRAY;PLATE").valueFields(), ElementsAre("TRAY", "PLATE"));
  EXPECT_THAT(VariableDefinition("Rack").valueFields(), IsEmpty());
}

TEST(VariableDefinition, OfSpacesIsBlank) {
  EXPECT_TRUE(VariableDefinition("  ").isBlank());
  EXPECT_FALSE(VariableDefinition(" x ").isBlank());
}

}  // namespace
}  // namespace mavCycEd
