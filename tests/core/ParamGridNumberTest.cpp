#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "TestDocuments.h"
#include "TestEditor.h"

namespace mavCycEd {
namespace {

using test::catalogueWith;
using test::element;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

std::string unit(const std::string& name, const std::string& text, const std::string& factor) {
  return element("UNIT", element("UNITNAME", name) + element("UNITTEXT", text) + element("FACTOR", factor));
}

/// Grid rows of numbers.
class ParamGridNumberTest : public ::testing::Test {
 protected:
  ParamGridNumberTest() {
    editor_.control().SetConfigXML(
        element("Config", element("Units", unit("ul", "µl", "1000") + unit("zero", "z", "0") + unit("bare", "", "10") +
                                               unit("number", "7", "10") + unit("class", "TRAY", "1") +
                                               unit("nothing", "None", "10") + unit("minus", "m", "-2"))));
  }
  /// Shows an atom with these definitions.
  void show(const std::vector<std::string>& definitions) {
    editor_.load(catalogueWith(definitions));
    editor_.choose("ATOM");
  }
  /// The facts about the one row of an atom with this definition.
  const ParamRowInfo& factsOf(const std::string& definition) {
    show({definition});
    return editor_.control().parameterRows().row(1);
  }
  std::string keyOf(const std::string& definition) {
    show({definition});
    return editor_.screen().GrdAtom.cellText(0, 1);
  }
  std::string cell() { return editor_.screen().GrdAtom.cellText(1, 1); }

  test::TestEditor editor_;
};

TEST_F(ParamGridNumberTest, TheUnitStandsInParenthesesRightBehindTheName) {
  EXPECT_EQ(keyOf("Volume;1;9;1;1;ml"), "Volume(ml)");
  EXPECT_EQ(keyOf("Volume;1;9;1;1;ul"), "Volume(µl)");
  EXPECT_EQ(keyOf("Heat;1;9;1;1;°C"), "Heat(°C)");
  EXPECT_EQ(keyOf(" #! Vol?ume ;1;9;1;1;ml"), "Volume(ml)");
}

TEST_F(ParamGridNumberTest, TheUnitIsCleanedBeforeItIsLookedUp) {
  EXPECT_EQ(keyOf("Volume;1;9;1;1;\u00C2u,l"), "Volume(µl)");
  EXPECT_EQ(keyOf("Volume;1;9;1;1;m,Äl"), "Volume(ml)");
}

TEST_F(ParamGridNumberTest, UnitsThatSayNothingAreNotShown) {
  EXPECT_EQ(keyOf("Volume;1;9;1;1;None"), "Volume");
  EXPECT_EQ(keyOf("Volume;1;9;1;1;nothing"), "Volume");
  EXPECT_EQ(keyOf("Volume;1;9;1;1;5"), "Volume") << "a number";
  EXPECT_EQ(keyOf("Volume;1;9;1;1;number"), "Volume") << "a number";
  EXPECT_EQ(keyOf("Volume;1;9;1;1;TRAY"), "Volume") << "a class";
  EXPECT_EQ(keyOf("Volume;1;9;1;1;class"), "Volume") << "a class";
  EXPECT_EQ(keyOf("Volume;1;9;1;1;bare"), "Volume");
  EXPECT_EQ(keyOf("Volume;1;9;1;1;"), "Volume");
  EXPECT_EQ(keyOf("Volume;1;9;1;1;none"), "Volume(none)");
}

TEST_F(ParamGridNumberTest, TheUnitIsKeptThoughItIsNotShown) {
  EXPECT_EQ(factsOf("Volume;1;9;1;1;None").Unit, "None");
  EXPECT_EQ(factsOf("Volume;1;9;1;1;TRAY").Unit, "TRAY");
  EXPECT_EQ(factsOf("Volume;1;9;1;1;ul").Unit, "µl");
}

TEST_F(ParamGridNumberTest, RangeDefaultAndStepAreDividedByTheFactor) {
  const ParamRowInfo& facts = factsOf("Volume;500;5000;5000;10;ul");
  EXPECT_EQ(facts.Factor, 1000);
  EXPECT_EQ(facts.Lower, Variant(0.5));
  EXPECT_EQ(facts.Upper, Variant(5.0));
  EXPECT_EQ(facts.Default, Variant(5.0));
  EXPECT_EQ(facts.Step, Variant(0.01));
  EXPECT_EQ(facts.IsNumeric, 1);
  EXPECT_EQ(facts.Items, "");
  EXPECT_EQ(facts.Description, "Range: 0.5 to 5 Default: 5 Step: 0.01");
}

TEST_F(ParamGridNumberTest, AFactorOf0CountsAs1) {
  const ParamRowInfo& facts = factsOf("Volume;1;9;9;2;zero");
  EXPECT_EQ(facts.Factor, 1);
  EXPECT_EQ(facts.Upper, Variant(9.0));
}

TEST_F(ParamGridNumberTest, ANegativeFactorDividesToo) {
  const ParamRowInfo& facts = factsOf("Volume;1;9;9;2;minus");
  EXPECT_EQ(facts.Factor, -2);
  EXPECT_EQ(facts.Upper, Variant(-4.5));
}

TEST_F(ParamGridNumberTest, WhatCountsAsZeroIsKeptAsWritten) {
  const ParamRowInfo& facts = factsOf("Volume;0.00;none;;-0;ul");
  EXPECT_EQ(facts.Lower, Variant(std::string("0.00")));
  EXPECT_EQ(facts.Upper, Variant(std::string("none")));
  EXPECT_EQ(facts.Default, Variant(std::string()));
  EXPECT_EQ(facts.Step, Variant(std::string("-0")));
  EXPECT_EQ(facts.Description, "Range: 0.00 to none Default:  Step: -0");
}

TEST_F(ParamGridNumberTest, AFieldCountsAsTheNumberItBeginsWith) {
  const ParamRowInfo& facts = factsOf("Volume; 500 ul;5e3x;+250;1.5.5;ul");
  EXPECT_EQ(facts.Lower, Variant(0.5));
  EXPECT_EQ(facts.Upper, Variant(5.0));
  EXPECT_EQ(facts.Default, Variant(0.25));
  EXPECT_EQ(facts.Step, Variant(0.0015));
}

TEST_F(ParamGridNumberTest, ADefaultOnALimitIsFilledIn) {
  EXPECT_EQ(factsOf("Volume;500;5000;500;10;ul").Value, Variant(0.5));
  EXPECT_EQ(cell(), "0.5");
  EXPECT_EQ(factsOf("Volume;500;5000;5000;10;ul").Value, Variant(5.0));
  EXPECT_EQ(cell(), "5");
  EXPECT_EQ(factsOf("Volume;1;3;1;1;number").Value, Variant(0.1));
  EXPECT_EQ(cell(), "0.1");
}

TEST_F(ParamGridNumberTest, ADefaultBetweenTheLimitsIsNotFilledIn) {
  const ParamRowInfo& facts = factsOf("Volume;500;5000;1000;10;ul");
  EXPECT_EQ(facts.Value, Variant(std::string()));
  EXPECT_EQ(facts.Default, Variant(1.0));
  EXPECT_EQ(cell(), "");
}

TEST_F(ParamGridNumberTest, DefaultsAreComparedWithTheLimitsAsWritten) {
  EXPECT_EQ(textOf(factsOf("Volume;1;100;100.0;1;ml").Value), "");
  EXPECT_EQ(textOf(factsOf("Volume;1;100; 100;1;ml").Value), "");
  EXPECT_EQ(textOf(factsOf("Volume;1;100.0;100.0;1;ml").Value), "100");
}

TEST_F(ParamGridNumberTest, ADefaultOfZeroIsNotFilledIn) {
  EXPECT_TRUE(holdsNothing(factsOf("Volume;0;100;0;1;ml").Value));
  EXPECT_EQ(cell(), "");
  EXPECT_TRUE(holdsNothing(factsOf("Volume;-5;0;0;1;ml").Value));
  EXPECT_EQ(cell(), "");
}

TEST_F(ParamGridNumberTest, WithoutAUnitTextNeitherRangeTextNorCellIsWritten) {
  const ParamRowInfo& facts = factsOf("Volume;10;100;100;10;bare");
  EXPECT_EQ(facts.Unit, "");
  EXPECT_EQ(facts.Description, "");
  EXPECT_EQ(facts.Value, Variant(10.0)) << "it is remembered all the same";
  EXPECT_EQ(cell(), "");
  EXPECT_EQ(facts.IsNumeric, 1);
  EXPECT_EQ(factsOf("Volume;10;100;100;10;").Description, "");
}

TEST_F(ParamGridNumberTest, NumbersInTextsHave15Digits) {
  const ParamRowInfo& facts = factsOf("Third;1;1000000;1;1;ul");
  EXPECT_EQ(facts.Description, "Range: 0.001 to 1000 Default: 0.001 Step: 0.001");
  editor_.control().SetConfigXML(element("Config", element("Units", unit("third", "t", "3"))));
  EXPECT_EQ(factsOf("Third;1;2;2;1;third").Description,
            "Range: 0.333333333333333 to 0.666666666666667 Default: 0.666666666666667 Step: 0.333333333333333");
  EXPECT_EQ(cell(), "0.666666666666667");
}

TEST_F(ParamGridNumberTest, RowsComeInTheOrderOfTheDefinitions) {
  show({"A;1;9;1;1;ml", "B;1;9;9;1;None", "C;1;9;5;1;s"});
  EXPECT_THAT(editor_.gridKeys(), ElementsAre("A(ml)", "B", "C(s)"));
  EXPECT_THAT(editor_.gridValues(), ElementsAre("1", "9", ""));
  EXPECT_EQ(editor_.control().parameterRows().row(3).Unit, "s");
  EXPECT_EQ(editor_.screen().GrdAtom.Row(), 1);
}

TEST_F(ParamGridNumberTest, FillingTheGridAgainStartsAnew) {
  show({"A;1;9;1;1;ml", "B;1;9;9;1;None"});
  editor_.screen().GrdAtom.type(2, "5");
  editor_.choose("ATOM");
  EXPECT_THAT(editor_.gridKeys(), ElementsAre("A(ml)", "B"));
  EXPECT_THAT(editor_.gridValues(), ElementsAre("1", "9"));
  EXPECT_THAT(editor_.errors, IsEmpty());
}

TEST_F(ParamGridNumberTest, FurtherDefinitionsFollowTheCataloguesOwn) {
  editor_.control().SetConfigXML(
      "<Config><FurtherAtoms><ATOM><AtomName>ATOM</AtomName><Param>Extra;1;9;9;1;s</Param><Param>More;1;9;1;1;None"
      "</Param></ATOM></FurtherAtoms></Config>");
  show({"A;1;9;1;1;ml"});
  EXPECT_THAT(editor_.gridKeys(), ElementsAre("A(ml)", "Extra(s)", "More"));
  EXPECT_THAT(editor_.gridValues(), ElementsAre("1", "9", "1"));
  EXPECT_EQ(editor_.control().parameterRows().row(2).Unit, "s");
  EXPECT_EQ(editor_.control().parameterRows().row(3).Unit, "None");
}

TEST_F(ParamGridNumberTest, AnAtomOutsideTheCatalogueHasItsFurtherDefinitionsOnly) {
  show({"A;1;9;1;1;ml"});
  editor_.choose("REPEAT");
  EXPECT_THAT(editor_.gridKeys(), ElementsAre("Repetitions"));
  EXPECT_THAT(editor_.gridValues(), ElementsAre("1"));
  editor_.choose("END");
  EXPECT_THAT(editor_.gridKeys(), IsEmpty());
  EXPECT_EQ(editor_.screen().GrdAtom.RowCount(), 1);
}

TEST_F(ParamGridNumberTest, AnEmptyDefinitionIsReportedAndTheOthersAreShown) {
  show({"A;1;9;1;1;ml", "", "C;1;9;1;1;s"});
  EXPECT_THAT(editor_.failedProcedures(), ElementsAre("FillParams "));
  EXPECT_EQ(editor_.errors.front().lngError, 9);
  EXPECT_THAT(editor_.gridKeys(), ElementsAre("A(ml)", "C(s)"));
}

}  // namespace
}  // namespace mavCycEd
