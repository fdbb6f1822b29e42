#include "rules/ParameterDefinition.h"

#include <gtest/gtest.h>

#include <string>

#include "TestPlatform.h"

namespace mavCycEd {
namespace {

using Kind = ParameterDefinition::Kind;

TEST(ParameterDefinition, TheDisplayNameHasNoMarksAndNoOuterSpaces) {
  EXPECT_EQ(ParameterDefinition("Volume;1;2").displayName(), "Volume");
  EXPECT_EQ(ParameterDefinition(" #!Vol#ume ?;1").displayName(), "Volume");
  EXPECT_EQ(ParameterDefinition("Größe 1, left;1").displayName(), "Größe 1, left");
  EXPECT_EQ(ParameterDefinition("#?!;1").displayName(), "");
  EXPECT_EQ(ParameterDefinition(";1").displayName(), "");
}

TEST(ParameterDefinition, FieldsStandBetweenSemicolons) {
  const ParameterDefinition definition("Volume;;100; 5 ;µl");
  EXPECT_EQ(definition.field(0), "Volume");
  EXPECT_EQ(definition.field(1), "");
  EXPECT_EQ(definition.field(3), " 5 ");
  EXPECT_EQ(definition.field(4), "µl");
  EXPECT_EQ(definition.field(5), "");
  EXPECT_EQ(definition.lastField(), "µl");
}

TEST(ParameterDefinition, OneFieldIsFirstAndLast) {
  const ParameterDefinition definition("Volume");
  EXPECT_EQ(definition.field(0), "Volume");
  EXPECT_EQ(definition.lastField(), "Volume");
  EXPECT_EQ(definition.kind(), Kind::List);
}

TEST(ParameterDefinition, TheClassListStandsBehindTheFirstSemicolon) {
  EXPECT_EQ(ParameterDefinition("Tray;TRAY;RACK;None").classList(), "TRAY;RACK;None");
  EXPECT_EQ(ParameterDefinition("Tray;SYRINGE").classList(), "SYRINGE");
  EXPECT_EQ(ParameterDefinition("Tray;").classList(), "");
}

TEST(ParameterDefinition, FiveFieldsWithoutClassOrMarkMakeANumber) {
  EXPECT_EQ(ParameterDefinition("Volume;1;100;1;1").kind(), Kind::Number);
  EXPECT_EQ(ParameterDefinition("Volume!?;1;100;1;1;ml").kind(), Kind::Number);
  EXPECT_EQ(ParameterDefinition("Volume;A;100;1;1;ml").kind(), Kind::Number) << "one capital is no class";
  EXPECT_EQ(ParameterDefinition("Volume;;;;").kind(), Kind::Number);
}

TEST(ParameterDefinition, AClassInTheSecondFieldMakesAnObject) {
  EXPECT_EQ(ParameterDefinition("Tray;TRAY").kind(), Kind::Object);
  EXPECT_EQ(ParameterDefinition("Tray;TRAY;1;1;1;1").kind(), Kind::Object);
  EXPECT_EQ(ParameterDefinition("#Tray;TRAY;RACK").kind(), Kind::Object);
  EXPECT_EQ(ParameterDefinition("Tray;T,RÂAY").kind(), Kind::Object) << "classes are compared cleaned";
}

TEST(ParameterDefinition, AnythingElseIsAList) {
  EXPECT_EQ(ParameterDefinition("#Mode;1;2;3;4;5").kind(), Kind::List);
  EXPECT_EQ(ParameterDefinition("Mo#de;1;2;3;4;5").kind(), Kind::List);
  EXPECT_EQ(ParameterDefinition("Mode;1;2;3").kind(), Kind::List);
  EXPECT_EQ(ParameterDefinition("Mode;TRAY2").kind(), Kind::List);
}

TEST(ParameterDefinition, AnEmptyDefinitionFails) {
  EXPECT_EQ(test::errorNumberOf([] { ParameterDefinition(""); }), 9);
}

}  // namespace
}  // namespace mavCycEd
