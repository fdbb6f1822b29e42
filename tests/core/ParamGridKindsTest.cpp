#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "TestDocuments.h"
#include "TestEditor.h"

namespace mavCycEd {
namespace {

using test::element;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

std::string object(const std::string& className, const std::string& name, const std::string& attributes = {}) {
  return "<O" + attributes + ">" + element("First", className) + element("Second", name) + "</O>";
}

/// Grid rows of objects and of named lists.
class ParamGridKindsTest : public ::testing::Test {
 protected:
  ParamGridKindsTest() {
    catalogue_.objects = object("TRAY", "Tray1") + object("RACK", "Rack µ") + object("TRAY", "Tray2") +
                         object("SYRINGE", "Fast") + object("TRAY", "Service", " Hidden=\"1\"");
    catalogue_.lists = {{"7", "slow;medium;fast"}, {"8", ""}, {"0", "zero;one"}};
  }
  void show(const std::vector<std::string>& definitions) {
    catalogue_.atoms = {{"ATOM", definitions}};
    editor_.load(xmlOf(catalogue_));
    editor_.choose("ATOM");
  }
  const ParamRowInfo& factsOf(const std::string& definition) {
    show({definition});
    return editor_.control().parameterRows().row(1);
  }
  std::string itemsOf(const std::string& definition) { return factsOf(definition).Items; }
  void setArguments(const std::string& objects) {
    editor_.control().SetConfigXML(element("Config", element("Arguments", objects)));
  }
  std::string cell() { return editor_.screen().GrdAtom.cellText(1, 1); }

  test::Catalogue catalogue_;
  test::TestEditor editor_;
};

TEST_F(ParamGridKindsTest, AnObjectParameterOffersTheObjectsOfItsClass) {
  const ParamRowInfo& facts = factsOf("Place;TRAY;None");
  EXPECT_EQ(facts.Items, "Tray1;Tray2");
  EXPECT_EQ(facts.Value, Variant(std::string("Tray1"))) << "the default is the first item";
  EXPECT_EQ(facts.Description, "TRAY;None");
  EXPECT_EQ(facts.Unit, "None");
  EXPECT_EQ(facts.IsNumeric, 0);
  EXPECT_EQ(cell(), "Tray1");
  EXPECT_THAT(editor_.pickList(1), ElementsAre("Tray1", "Tray2"));
  EXPECT_THAT(editor_.gridKeys(), ElementsAre("Place"));
}

TEST_F(ParamGridKindsTest, SeveralClassesOfferTheirObjectsInTheCataloguesOrder) {
  EXPECT_EQ(itemsOf("Place;RACK;TRAY;None"), "Tray1;Rack µ;Tray2");
}

TEST_F(ParamGridKindsTest, ClassesAreComparedExactly) {
  catalogue_.objects = object("TRAYS", "a") + object("Tray", "b") + object("TRAY ", "c") + object("TRAY", "d");
  EXPECT_EQ(itemsOf("Place;TRAY;None"), "d");
}

TEST_F(ParamGridKindsTest, AnObjectParameterMayHaveAUnitOrMarks) {
  factsOf("Place!#;TRAY;mm");
  EXPECT_THAT(editor_.gridKeys(), ElementsAre("Place(mm)"));
  EXPECT_THAT(editor_.pickList(1), ElementsAre("Tray1", "Tray2"));
}

TEST_F(ParamGridKindsTest, AClassAsLastFieldIsNoUnit) {
  factsOf("Place;TRAY");
  EXPECT_THAT(editor_.gridKeys(), ElementsAre("Place"));
  EXPECT_EQ(cell(), "Tray1");
}

TEST_F(ParamGridKindsTest, TheItemSyrComesFirstWhenTheWholeListIsSyringe) {
  EXPECT_EQ(itemsOf("Syringe;SYRINGE"), "SYR;Fast");
  EXPECT_EQ(cell(), "SYR");
  EXPECT_EQ(itemsOf("Syringe;SYRINGE;None"), "Fast");
  EXPECT_EQ(itemsOf("Syringe;SYRINGE;TRAY"), "Tray1;Tray2;Fast");
}

TEST_F(ParamGridKindsTest, HiddenObjectsAreLeftOutUnlessTheyAreAskedFor) {
  EXPECT_EQ(itemsOf("Place;TRAY;None"), "Tray1;Tray2");
  editor_.control().Ignore_Hidden(true);
  editor_.choose("ATOM");
  EXPECT_THAT(editor_.pickList(1), ElementsAre("Tray1", "Tray2")) << "not before the next load";
  EXPECT_EQ(itemsOf("Place;TRAY;None"), "Tray1;Tray2;Service");
  editor_.control().Ignore_Hidden(false);
  editor_.choose("ATOM");
  EXPECT_THAT(editor_.pickList(1), ElementsAre("Tray1", "Tray2", "Service")) << "not before the next load";
}

TEST_F(ParamGridKindsTest, ConfiguredNamesFollowTheObjects) {
  setArguments(
      "<OBJECT><OBJECTNAME>TRAY</OBJECTNAME><A>own</A></OBJECT>"
      "<OBJECT><OBJECTNAME>FREE TEXT</OBJECTNAME><A>free</A></OBJECT>"
      "<OBJECT><OBJECTNAME>RACK</OBJECTNAME><A>other</A></OBJECT>");
  EXPECT_EQ(itemsOf("Place;TRAY;None"), "Tray1;Tray2;free;own");
}

TEST_F(ParamGridKindsTest, AConfiguredNameInAnotherCaseIsNotAddedAgain) {
  setArguments(
      "<OBJECT><OBJECTNAME>TRAY</OBJECTNAME><A>TRAY1</A><A>new</A><A>NEW</A></OBJECT>"
      "<OBJECT><OBJECTNAME>RACK</OBJECTNAME><A>rack \u03BC</A></OBJECT>");
  EXPECT_EQ(itemsOf("Place;TRAY;RACK;None"), "Tray1;Rack µ;Tray2;new");
}

TEST_F(ParamGridKindsTest, ConfiguredNamesAloneMakeAPickList) {
  setArguments("<OBJECT><OBJECTNAME>LIQUID</OBJECTNAME><A>Water</A><A>Ethanol</A></OBJECT>");
  EXPECT_EQ(itemsOf("Liquid;LIQUID;None"), "Water;Ethanol");
  EXPECT_EQ(cell(), "Water");
}

TEST_F(ParamGridKindsTest, WithoutAnyItemAnObjectParameterIsFilledAsAList) {
  const ParamRowInfo& facts = factsOf("Liquid;LIQUID;x;1;7");
  EXPECT_EQ(facts.Items, "slow;medium;fast");
  EXPECT_EQ(facts.Description, "slow;medium;fast");
  EXPECT_EQ(cell(), "medium");
}

TEST_F(ParamGridKindsTest, WithoutAnyItemAndListTheRowIsEmpty) {
  const ParamRowInfo& facts = factsOf("Liquid;LIQUID;99");
  EXPECT_EQ(facts.Items, "");
  EXPECT_TRUE(holdsNothing(facts.Value));
  EXPECT_EQ(facts.IsNumeric, 0);
  EXPECT_EQ(cell(), "");
  EXPECT_THAT(editor_.pickList(1), IsEmpty());
}

TEST_F(ParamGridKindsTest, AListParameterOffersItsNamedList) {
  const ParamRowInfo& facts = factsOf("#Mode;0;0;2;7");
  EXPECT_EQ(facts.Items, "slow;medium;fast");
  EXPECT_EQ(facts.Description, "slow;medium;fast");
  EXPECT_EQ(facts.Value, Variant(std::string("fast")));
  EXPECT_EQ(facts.IsNumeric, 0);
  EXPECT_EQ(cell(), "fast");
  EXPECT_THAT(editor_.pickList(1), ElementsAre("slow", "medium", "fast"));
  EXPECT_THAT(editor_.gridKeys(), ElementsAre("Mode")) << "the list number is no unit";
}

TEST_F(ParamGridKindsTest, AMarkMakesAListOfANumber) {
  EXPECT_EQ(factsOf("#Mode;1;9;0;1;7").IsNumeric, 0);
  EXPECT_EQ(cell(), "slow");
}

TEST_F(ParamGridKindsTest, LessThanFiveFieldsMakeAList) { EXPECT_EQ(factsOf("Mode;1;9;7").Items, "slow;medium;fast"); }

TEST_F(ParamGridKindsTest, ADefaultThatIsNoNumberIsTheFirstItem) {
  for (const char* definition : {"#Mode;0;0;x;7", "#Mode;0;0;;7", "#Mode;0;0;0;7", "#Mode;7"}) {
    factsOf(definition);
    EXPECT_EQ(cell(), "slow") << definition;
  }
}

TEST_F(ParamGridKindsTest, AListNumberThatIsNoneIsTheListOfNumberZero) {
  EXPECT_EQ(itemsOf("#Mode;0;0;1;None"), "zero;one");
  EXPECT_EQ(cell(), "one");
  EXPECT_THAT(editor_.errors, IsEmpty());
}

TEST_F(ParamGridKindsTest, AMissingOrEmptyListGivesAnEmptyPickList) {
  for (const char* definition : {"#Mode;0;0;2;99", "#Mode;0;0;2;8"}) {
    const ParamRowInfo& facts = factsOf(definition);
    EXPECT_EQ(facts.Items, "");
    EXPECT_TRUE(holdsNothing(facts.Value));
    EXPECT_EQ(cell(), "") << definition;
    EXPECT_THAT(editor_.pickList(1), IsEmpty());
  }
  EXPECT_THAT(editor_.errors, IsEmpty());
}

TEST_F(ParamGridKindsTest, ADefaultBeyondTheListIsReportedAndTheNextRowIsFilled) {
  for (const char* definition : {"#Mode;0;0;3;7", "#Mode;0;0;-1;7"}) {
    editor_.errors.clear();
    show({definition, "Volume;1;9;9;1;ml"});
    EXPECT_THAT(editor_.failedProcedures(), ElementsAre("FillParams ")) << definition;
    EXPECT_EQ(editor_.errors.front().lngError, 9);
    EXPECT_THAT(editor_.gridKeys(), ElementsAre("Mode", "Volume(ml)"));
    EXPECT_EQ(editor_.screen().GrdAtom.cellText(1, 2), "9");
  }
}

TEST_F(ParamGridKindsTest, AListWithoutANumberMetOnTheWayIsReported) {
  catalogue_.lists.insert(catalogue_.lists.begin(), {"first", "a;b"});
  show({"#Mode;0;0;0;7", "Volume;1;9;9;1;ml"});
  EXPECT_THAT(editor_.failedProcedures(), ElementsAre("FillParams "));
  EXPECT_EQ(editor_.errors.front().lngError, 13);
  EXPECT_THAT(editor_.gridKeys(), ElementsAre("Mode", "Volume(ml)"));
}

TEST_F(ParamGridKindsTest, ALettersCaseAndUmlautsSurviveInKeysAndItems) {
  catalogue_.lists = {{"7", "Größe;°C;µ"}};
  show({"#Übergang 10 %;0;0;1;7"});
  EXPECT_THAT(editor_.gridKeys(), ElementsAre("Übergang 10 %"));
  EXPECT_THAT(editor_.pickList(1), ElementsAre("Größe", "°C", "µ"));
  EXPECT_EQ(cell(), "°C");
}

TEST_F(ParamGridKindsTest, AnAtomWithoutParametersEmptiesTheGrid) {
  for (const std::vector<std::string>& before :
       {std::vector<std::string>{"#Mode;0;0;0;7"}, {"#Mode;0;0;0;7", "Volume;1;9;9;1;ml", "Place;TRAY"}}) {
    catalogue_.atoms = {{"FULL", before}, {"BARE", {}}};
    editor_.load(xmlOf(catalogue_));
    editor_.choose("FULL");
    EXPECT_EQ(editor_.screen().GrdAtom.RowCount(), static_cast<int>(before.size()) + 1);
    editor_.choose("BARE");
    EXPECT_EQ(editor_.screen().GrdAtom.RowCount(), 1);
    EXPECT_EQ(editor_.screen().GrdAtom.Row(), 0);
  }
}

TEST_F(ParamGridKindsTest, FillingTheGridRaisesNoEditNotification) {
  show({"#Mode;0;0;0;7"});
  EXPECT_FALSE(editor_.control().changedFlag());
  EXPECT_THAT(editor_.platform.messages, IsEmpty());
}

TEST_F(ParamGridKindsTest, AnAtomIsFoundByTheNameWithoutMarks) {
  catalogue_.atoms = {{"MI!X", {"A;1;9;1;1;ml"}}};
  editor_.load(xmlOf(catalogue_));
  editor_.choose("MIX");
  EXPECT_THAT(editor_.gridKeys(), ElementsAre("A(ml)"));
}

}  // namespace
}  // namespace mavCycEd
