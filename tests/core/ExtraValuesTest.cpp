#include "panels/ExtraValues.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "TestPlatform.h"
#include "memory/MemoryValueList.h"

namespace mavCycEd {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// A grid with a row that takes no pick list.
class BrokenGrid : public memory::MemoryValueList {
 public:
  using MemoryValueList::MemoryValueList;
  void setPickList(int row, std::string_view items) override {
    if (row == brokenRow) throw RunTimeError(77, "no list");
    MemoryValueList::setPickList(row, items);
  }
  int brokenRow = 0;
};

/// A grid whose rows are written by hand: a number in ml, a pick list without a unit, a pick list of the unit None, and
/// a number whose unit is an object class.
class ExtraValuesTest : public ::testing::Test {
 protected:
  enum Row { Volume = 1, Source, Mode, Place };

  ExtraValuesTest() {
    state_.rows.resize(Place);
    addRow("Volume(ml)", "5", "ml", 1);
    addRow("Source", "Tray2", "", 0, "Tray1;Tray2");
    addRow("Mode", "fast", "None", 0, "slow;fast");
    addRow("Place", "3", "TRAY", 1);
  }

  void addRow(const char* key, const char* value, const char* unit, int isNumeric, const char* pickList = "") {
    grid_.InsertRow(key, value, true);
    const int row = grid_.RowCount() - 1;
    if (*pickList != 0) grid_.setPickList(row, pickList);
    ParamRowInfo& info = state_.rows.row(row);
    info.Value = std::string(value);
    info.Unit = unit;
    info.IsNumeric = isNumeric;
    info.Items = pickList;
  }
  void setVariables(const std::vector<std::string>& entries) {
    cycle_.variables.clear();
    for (const std::string& entry : entries) cycle_.variables.emplace_back(entry);
  }
  std::vector<std::string> extraValues() {
    std::vector<std::string> texts;
    for (int row = Volume; row <= Place; ++row) texts.push_back(state_.rows.row(row).ExtraValues);
    return texts;
  }
  std::vector<std::string> values() {
    std::vector<std::string> texts;
    for (int row = Volume; row <= Place; ++row) texts.push_back(grid_.cellText(1, row));
    return texts;
  }
  const std::string& items(int row) { return state_.rows.row(row).Items; }
  const std::vector<std::string>& pickList(int row) { return grid_.rows().entry(row)->pickList; }

  test::RecordingSink errors_;
  BrokenGrid grid_{nullptr};
  Cycle cycle_;
  GridState state_;
  ExtraValues extra_{grid_, state_, cycle_, errors_};
};

TEST_F(ExtraValuesTest, ANumberOfTheSameUnitIsOfferedTheVariableAndGetsNoPickList) {
  extra_.Add_Extra_Udons(VariableDefinition("Fill (ml);1;0;9"));
  extra_.Add_Extra_Udons(VariableDefinition("Rest(ml);1;0;9"));
  EXPECT_THAT(extraValues(), ElementsAre("Fill;Rest", "", "", ""));
  EXPECT_EQ(items(Volume), "");
  EXPECT_THAT(pickList(Volume), IsEmpty());
  EXPECT_THAT(values(), ElementsAre("5", "Tray2", "fast", "3"));
}

TEST_F(ExtraValuesTest, UnitsAreComparedAsAWhole) {
  extra_.Add_Extra_Udons(VariableDefinition("Flow (ml/min);1;0;9"));
  extra_.Add_Extra_Udons(VariableDefinition("Fill (ML);1;0;9"));
  EXPECT_THAT(extraValues(), ElementsAre("", "", "", ""));
}

TEST_F(ExtraValuesTest, APickListWithoutAUnitIsOfferedVariablesForObjects) {
  extra_.Add_Extra_Udons(VariableDefinition("Rack;TRAY;WASTE"));
  extra_.Add_Extra_Udons(VariableDefinition(" Shelf ;TRAY"));
  EXPECT_THAT(extraValues(), ElementsAre("", "Rack;Shelf", "", ""));
  EXPECT_EQ(items(Source), "Tray1;Tray2;Rack;Shelf");
  EXPECT_THAT(pickList(Source), ElementsAre("Tray1", "Tray2", "Rack", "Shelf"));
  EXPECT_EQ(grid_.cellText(1, Source), "Tray2") << "the shown value stays";
}

TEST_F(ExtraValuesTest, EmptyParenthesesStandForTheUnitNone) {
  extra_.Add_Extra_Udons(VariableDefinition("Rounds ();3;1;12"));
  EXPECT_THAT(extraValues(), ElementsAre("", "", "Rounds", ""));
  EXPECT_THAT(pickList(Mode), ElementsAre("slow", "fast", "Rounds"));
}

TEST_F(ExtraValuesTest, ANumberWhoseUnitIsAnObjectClassGetsAPickList) {
  extra_.Add_Extra_Udons(VariableDefinition("Rack (TRAY);1;0;9"));
  EXPECT_THAT(extraValues(), ElementsAre("", "", "", "Rack"));
  EXPECT_EQ(items(Place), "Rack");
  EXPECT_THAT(pickList(Place), ElementsAre("Rack"));
  EXPECT_EQ(grid_.cellText(1, Place), "3");
}

TEST_F(ExtraValuesTest, AnEntryOfOnePartIsIgnored) {
  extra_.Add_Extra_Udons(VariableDefinition("Fill (ml)"));
  extra_.Add_Extra_Udons(VariableDefinition(""));
  EXPECT_THAT(extraValues(), ElementsAre("", "", "", ""));
  extra_.Add_Extra_Udons(VariableDefinition("Fill (ml);1;0;9"));
  extra_.Delete_Extra_Udons(VariableDefinition("Fill (ml)"));
  EXPECT_THAT(extraValues(), ElementsAre("Fill", "", "", ""));
}

TEST_F(ExtraValuesTest, ParenthesesTheOtherWayRoundAreNoUnit) {
  extra_.Add_Extra_Udons(VariableDefinition("a)b(c;1;0;9"));
  EXPECT_THAT(extraValues(), ElementsAre("", "a)b(c", "", ""));
}

TEST_F(ExtraValuesTest, AWithdrawnVariableLeavesNothingBehind) {
  for (const char* variable : {"Fill (ml);1;0;9", "Rest (ml);1;0;9", "Rack;TRAY", "Shelf;TRAY", "Site (TRAY);1;0;9"}) {
    extra_.Add_Extra_Udons(VariableDefinition(variable));
  }
  extra_.Delete_Extra_Udons(VariableDefinition("Fill (ml);1;0;9"));
  extra_.Delete_Extra_Udons(VariableDefinition("Shelf;TRAY"));
  EXPECT_THAT(extraValues(), ElementsAre("Rest", "Rack", "", "Site"));
  EXPECT_EQ(items(Source), "Tray1;Tray2;Rack");
  extra_.Delete_Extra_Udons(VariableDefinition("Rest (ml);1;0;9"));
  extra_.Delete_Extra_Udons(VariableDefinition("Rack;TRAY"));
  extra_.Delete_Extra_Udons(VariableDefinition("Site (TRAY);1;0;9"));
  EXPECT_THAT(extraValues(), ElementsAre("", "", "", ""));
  EXPECT_EQ(items(Source), "Tray1;Tray2");
  EXPECT_THAT(pickList(Source), ElementsAre("Tray1", "Tray2"));
  EXPECT_EQ(items(Place), "");
  EXPECT_THAT(pickList(Place), IsEmpty());
  EXPECT_THAT(values(), ElementsAre("5", "Tray2", "fast", "3"));
}

TEST_F(ExtraValuesTest, ANameThatIsPartOfAnotherStaysWhole) {
  extra_.Add_Extra_Udons(VariableDefinition("Rack;TRAY"));
  extra_.Add_Extra_Udons(VariableDefinition("Rack_A;TRAY"));
  extra_.Delete_Extra_Udons(VariableDefinition("Rack;TRAY"));
  EXPECT_EQ(state_.rows.row(Source).ExtraValues, "Rack_A");
  EXPECT_EQ(items(Source), "Tray1;Tray2;Rack_A");
}

TEST_F(ExtraValuesTest, ARowThatHeldTheVariableShowsItsValueAgain) {
  extra_.Add_Extra_Udons(VariableDefinition("Fill (ml);1;0;9"));
  extra_.Add_Extra_Udons(VariableDefinition("Rack;TRAY"));
  grid_.setValue(1, Volume, "Fill");
  grid_.setValue(1, Source, "Rack");
  grid_.setValue(1, Mode, "Fill");  // a text that is not this variable: the row has another unit
  extra_.Delete_Extra_Udons(VariableDefinition("Fill (ml);1;0;9"));
  extra_.Delete_Extra_Udons(VariableDefinition("Rack;TRAY"));
  EXPECT_THAT(values(), ElementsAre("5", "Tray2", "Fill", "3"));
  EXPECT_EQ(grid_.cellText(0, Volume), "Volume(ml)");
  EXPECT_EQ(grid_.cellText(0, Source), "Source");
  EXPECT_EQ(grid_.RowCount(), Place + 1);
}

TEST_F(ExtraValuesTest, ARefilledGridIsOfferedAllVariablesInTheirOrder) {
  setVariables({"Fill (ml);1;0;9", "  ", "Rack;TRAY", "Rest (ml);1;0;9"});
  extra_.Update_Extra_Params();
  EXPECT_THAT(extraValues(), ElementsAre("Fill;Rest", "Rack", "", ""));
  EXPECT_THAT(errors_.reports, IsEmpty());
}

TEST_F(ExtraValuesTest, AVariableThatCannotBeOfferedIsToldOfAndTheOthersAreOffered) {
  grid_.brokenRow = Source;
  setVariables({"Rack;TRAY", "Fill (ml);1;0;9", "Shelf;TRAY", "Rounds ();3;1;12"});
  extra_.Update_Extra_Params();
  EXPECT_THAT(errors_.procedures(), ElementsAre("Add_Extra_Udons", "Add_Extra_Udons")) << "Rack and Shelf";
  EXPECT_EQ(errors_.reports.front().number, 77);
  EXPECT_THAT(extraValues(), ElementsAre("Fill", "Rack;Shelf", "Rounds", ""));
}

TEST_F(ExtraValuesTest, RowsFollowTheVariablesAsTheyAreNowAndKeepTheirValues) {
  setVariables({"Fill (ml);1;0;9", "Rack;TRAY", "Site (TRAY);1;0;9"});
  extra_.Update_Extra_Params();
  grid_.setValue(1, Volume, "Fill");
  grid_.setValue(1, Source, "Rack");
  setVariables({"Shelf;TRAY", "Rest (ml);1;0;9"});
  extra_.followVariables();
  EXPECT_THAT(extraValues(), ElementsAre("Rest", "Shelf", "", ""));
  EXPECT_THAT(pickList(Source), ElementsAre("Tray1", "Tray2", "Shelf"));
  EXPECT_THAT(pickList(Place), IsEmpty());
  EXPECT_THAT(values(), ElementsAre("Fill", "Rack", "fast", "3"));
  setVariables({});
  extra_.followVariables();
  EXPECT_EQ(items(Source), "Tray1;Tray2");
  EXPECT_THAT(extraValues(), ElementsAre("", "", "", ""));
}

TEST_F(ExtraValuesTest, RowsBeyondTheTableAreLeftAlone) {
  grid_.InsertRow("Late", "1", true);
  extra_.Add_Extra_Udons(VariableDefinition("Fill (ml);1;0;9"));
  extra_.Delete_Extra_Udons(VariableDefinition("Fill (ml);1;0;9"));
  EXPECT_THAT(errors_.reports, IsEmpty());
}

}  // namespace
}  // namespace mavCycEd
