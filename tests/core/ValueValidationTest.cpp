#include "panels/ValueValidation.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "TestPlatform.h"
#include "memory/MemoryValueList.h"

namespace mavCycEd {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// A grid whose rows are written by hand, with a laboratory that knows arguments for the classes "ml" and "TRAY".
class ValueValidationTest : public ::testing::Test {
 protected:
  ValueValidationTest() {
    state_.ready = true;
    configure(
        "<Config><Arguments><OBJECT><OBJECTNAME>ml</OBJECTNAME><A>low</A><A>high</A><A>last</A></OBJECT>"
        "<OBJECT><OBJECTNAME>TRAY</OBJECTNAME><A>rack</A><A>shelf</A></OBJECT></Arguments></Config>");
    catalogue_.setCatalogue(
        test::parsed("<LATESTKAM><CLASSES><CLASS><N>SYRINGE</N><S>S100;100;bar</S><S>S250;250;bar</S></CLASS></CLASSES>"
                     "</LATESTKAM>"));
  }

  void configure(const char* configuration) { catalogue_.configuration().setText(configuration); }
  /// Adds a row of a number.
  ParamRowInfo& addRow(const std::string& key, const std::string& value,
                       const std::string& description = "Range: 1 to 9 Default: 1 Step: 1") {
    grid_.InsertRow(key, value, true);
    const int row = grid_.RowCount() - 1;
    state_.rows.grow(row - state_.rows.upperBound());
    ParamRowInfo& info = state_.rows.row(row);
    info.Description = description;
    return info;
  }
  void limit(ParamRowInfo& info) {
    info.Lower = std::string("1");
    info.Upper = std::string("9");
    info.Step = std::string("1");
  }
  /// The message about the whole grid; empty when all its values are valid.
  std::string complaint() {
    std::string message = "untouched";
    if (!validation_.ParamValueControl(message)) return message;
    EXPECT_EQ(message, "untouched");
    return {};
  }
  std::string complaintAbout(const std::string& key, const std::string& value) {
    return "Parameter " + key + " has invalid value of " + value + ".";
  }

  test::TestPlatform platform_;
  test::RecordingSink errors_;
  memory::MemoryValueList grid_{nullptr};
  GridState state_;
  modCycleHelper catalogue_{platform_.xml};
  ValueValidation validation_{grid_, state_, catalogue_, platform_.messageBox, errors_};
};

TEST_F(ValueValidationTest, NothingIsCheckedWhileTheGridIsRefilled) {
  limit(addRow("Count", "5"));
  state_.ready = false;
  EXPECT_FALSE(validation_.Check_Range("5", 1)) << "not even a value in its range passes";
  EXPECT_FALSE(validation_.Check_Range("50", 1));
  EXPECT_FALSE(validation_.Check_Range("5", 7)) << "nor a row beyond the table";
  validation_.GrdAtom_OnSetEditText(1, 1, "5;6");
  EXPECT_EQ(grid_.cellText(1, 1), "5");
  EXPECT_THAT(platform_.messages, IsEmpty());
  state_.ready = true;
  EXPECT_TRUE(validation_.Check_Range("5", 1));
  EXPECT_FALSE(validation_.Check_Range("50", 1));
  EXPECT_THAT(platform_.messages, ElementsAre("Count out of range or invalid step increment."));
}

TEST_F(ValueValidationTest, ARowBeyondTheTablePasses) {
  limit(addRow("Count", "5"));
  grid_.InsertRow("Late", "50", true);
  EXPECT_TRUE(validation_.Check_Range("50", 2));
  EXPECT_TRUE(validation_.Check_Range("50", 99));
  EXPECT_THAT(platform_.messages, IsEmpty());
  EXPECT_THAT(errors_.reports, IsEmpty());
}

TEST_F(ValueValidationTest, AParenthesisAtTheVeryFrontIsNoUnit) {
  limit(addRow("(ml)", "5"));
  validation_.Check_Range("50", 1);
  EXPECT_THAT(platform_.messages, ElementsAre("(ml) out of range or invalid step increment."));
}

TEST_F(ValueValidationTest, AnEmptyGridIsValid) { EXPECT_EQ(complaint(), ""); }

TEST_F(ValueValidationTest, NumbersAndSwitchesAreValid) {
  for (const char* value : {"5", "-1.5", "500", "On", "Off"}) addRow("Volume(ml)", value);
  EXPECT_EQ(complaint(), "");
}

TEST_F(ValueValidationTest, SwitchesAreComparedWithTheirCase) {
  addRow("Volume(ml)", "on");
  EXPECT_EQ(complaint(), complaintAbout("Volume(ml)", "on"));
}

TEST_F(ValueValidationTest, TheFirstInvalidValueIsNamedWithItsWholeKey) {
  addRow("Volume(ml)", "5");
  addRow("Speed(ml/min)", "slow, or so");
  addRow("Depth(mm)", "deep");
  EXPECT_EQ(complaint(), complaintAbout("Speed(ml/min)", "slow, or so"));
}

TEST_F(ValueValidationTest, AnEmptyValueIsInvalid) {
  addRow("Volume(ml)", "");
  EXPECT_EQ(complaint(), complaintAbout("Volume(ml)", ""));
}

TEST_F(ValueValidationTest, ValuesOfTheClassAreValid) {
  for (const char* value : {"user_index", "low", "high"}) addRow("Volume(ml)", value);
  addRow("Pressure(bar)", "SYR.S100");
  EXPECT_EQ(complaint(), "");
  addRow("Volume(ml)", "Low");
  EXPECT_EQ(complaint(), complaintAbout("Volume(ml)", "Low"));
}

TEST_F(ValueValidationTest, TheLastValueOfTheClassIsNeverCompared) {
  addRow("Volume(ml)", "last");
  EXPECT_EQ(complaint(), complaintAbout("Volume(ml)", "last"));
}

TEST_F(ValueValidationTest, TheLastValueOfASyringeIsNeverCompared) {
  addRow("Pressure(bar)", "SYR.S250");
  EXPECT_EQ(complaint(), complaintAbout("Pressure(bar)", "SYR.S250"));
}

TEST_F(ValueValidationTest, TheClassIsCleaned) {
  addRow("Volume(m,l\u00C2)", "low");
  EXPECT_EQ(complaint(), "");
}

TEST_F(ValueValidationTest, AKeyWithoutAUnitIsOfTheClassNone) {
  configure(
      "<Config><Arguments><OBJECT><OBJECTNAME>None</OBJECTNAME><A>any</A><A>last</A></OBJECT></Arguments></Config>");
  addRow("Count", "any");
  EXPECT_EQ(complaint(), "");
  addRow("Rounds", "user_index");
  EXPECT_EQ(complaint(), complaintAbout("Rounds", "user_index"));
}

TEST_F(ValueValidationTest, ARowWithoutCandidatesInheritsThatAValueWasFound) {
  addRow("Volume(ml)", "low");
  addRow("Count", "anything");
  EXPECT_EQ(complaint(), "");
}

TEST_F(ValueValidationTest, ARowWhoseOnlyCandidateIsNeverComparedInheritsToo) {
  addRow("Volume(ml)", "low");
  addRow("Time(s)", "anything");  // "user_index" alone
  addRow("Count", "anything");
  EXPECT_EQ(complaint(), "");
}

TEST_F(ValueValidationTest, AFoundObjectClearsTheMarkToo) {
  addRow("Tray(TRAY)", "rack", "TRAY");
  addRow("Count", "anything");
  EXPECT_EQ(complaint(), "");
}

TEST_F(ValueValidationTest, TheMarkPassesOverNumbersAndSwitches) {
  addRow("Volume(ml)", "low");
  addRow("Volume(ml)", "5");
  addRow("Volume(ml)", "Off");
  addRow("Count", "anything");
  EXPECT_EQ(complaint(), "");
}

TEST_F(ValueValidationTest, TheMarkIsSetAtFirst) {
  addRow("Count", "anything");
  addRow("Volume(ml)", "low");
  EXPECT_EQ(complaint(), complaintAbout("Count", "anything"));
}

TEST_F(ValueValidationTest, TheMarkIsSetAgainByARowWithCandidates) {
  addRow("Volume(ml)", "low");
  addRow("Tray(TRAY)", "nowhere", "TRAY");  // valid as such, but not found
  addRow("Count", "anything");
  EXPECT_EQ(complaint(), complaintAbout("Count", "anything"));
}

TEST_F(ValueValidationTest, TheMarkDoesNotOutliveOneCheck) {
  addRow("Volume(ml)", "low");
  EXPECT_EQ(complaint(), "");
  grid_.setValue(1, 1, "");
  EXPECT_EQ(complaint(), complaintAbout("Volume(ml)", ""));
}

TEST_F(ValueValidationTest, OnlyRowsThatTellADefaultAreJudged) {
  addRow("Source", "nowhere", "TRAY");
  addRow("Target", "nowhere", "TRAY;Default:");
  addRow("Mode", "nowhere", "slow;fast");
  addRow("Free", "nowhere", "");
  EXPECT_EQ(complaint(), "");
  addRow("Judged", "nowhere", "Default:");
  EXPECT_EQ(complaint(), complaintAbout("Judged", "nowhere"));
}

}  // namespace
}  // namespace mavCycEd
