#include "memory/MemoryValueList.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

namespace mavCycEd::memory {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class MemoryValueListTest : public ::testing::Test {
 protected:
  MemoryValueListTest() {
    for (const char* key : {"a", "b", "c"}) grid_.InsertRow(key, "old", true);
    grid_.setEvents(events());
  }
  platform::ValueListEvents events() {
    return {.SelectionChange = [this] { told_.push_back("row " + std::to_string(grid_.Row())); },
            .ContextPopup = [this](int x, int y) { tell("menu", x, y); },
            .MouseDown = [this](platform::MouseButton button, int x,
                                int y) { tell(button == platform::MouseButton::Secondary ? "right" : "left", x, y); },
            .MouseMove = [this](int x, int y) { tell("move", x, y); },
            .SetEditText =
                [this](int column, int row, const std::string& value) {
                  tell("text '" + value + "'", column, row);
                  if (onText_) onText_(column, row, value);
                },
            .EndOfEdit = [this](int column, int row, const std::string& key,
                                const std::string& value) { tell("end " + key + "='" + value + "'", column, row); }};
  }
  void tell(const std::string& what, int a, int b) {
    told_.push_back(what + " " + std::to_string(a) + "," + std::to_string(b));
  }
  std::vector<std::string> cells() {
    std::vector<std::string> result;
    for (int row = 1; row < grid_.RowCount(); ++row) {
      result.push_back(grid_.cellText(0, row) + "=" + grid_.cellText(1, row));
    }
    return result;
  }

  MemoryValueList grid_{nullptr};
  std::vector<std::string> told_;
  std::function<void(int column, int row, const std::string& value)> onText_;
};

TEST_F(MemoryValueListTest, TheTitleRowHoldsTheTitles) {
  grid_.setColumnTitle(0, "Parameter");
  grid_.setColumnTitle(1, "Value");
  EXPECT_EQ(grid_.cellText(0, 0), "Parameter");
  EXPECT_EQ(grid_.cellText(1, 0), "Value");
  grid_.setValue(0, 0, "x");
  EXPECT_EQ(grid_.cellText(0, 0), "Parameter") << "no parameter row";
}

TEST_F(MemoryValueListTest, CodeRaisesNothing) {
  grid_.InsertRow("d", "1", true);
  grid_.InsertRow("e", "1", false);
  grid_.setRow(3);
  grid_.setValue(1, 3, "new");
  grid_.setValue(0, 3, "key");
  grid_.setPickList(3, "x;y");
  grid_.DeleteRow(3);
  grid_.DeleteRow(1);
  EXPECT_THAT(told_, IsEmpty());
}

TEST_F(MemoryValueListTest, CellsBeyondTheRowsAreEmptyAndNotWritten) {
  grid_.setValue(1, 4, "x");
  grid_.setValue(1, -1, "x");
  grid_.DeleteRow(4);
  grid_.DeleteRow(0);
  EXPECT_EQ(grid_.cellText(1, 4), "");
  EXPECT_EQ(grid_.cellText(1, -1), "");
  EXPECT_THAT(cells(), ElementsAre("a=old", "b=old", "c=old"));
}

TEST_F(MemoryValueListTest, TheCurrentRowIsAParameterRowWhileThereIsOne) {
  EXPECT_EQ(grid_.Row(), 1);
  grid_.setRow(0);
  grid_.setRow(4);
  EXPECT_EQ(grid_.Row(), 1);
  grid_.setRow(3);
  grid_.DeleteRow(3);
  EXPECT_EQ(grid_.Row(), 2);
  grid_.DeleteRow(1);
  grid_.DeleteRow(1);
  EXPECT_EQ(grid_.Row(), 0);
}

TEST_F(MemoryValueListTest, MakingAnotherRowCurrentIsTold) {
  grid_.makeCurrent(3);
  EXPECT_THAT(told_, ElementsAre("row 3"));
  EXPECT_EQ(grid_.Row(), 3);
}

TEST_F(MemoryValueListTest, EveryKeystrokeIsOneNotification) {
  grid_.type(1, "aµ€");
  EXPECT_THAT(told_, ElementsAre("text 'a' 1,1", "text 'aµ' 1,1", "text 'aµ€' 1,1", "end a='aµ€' 1,1"));
  EXPECT_EQ(grid_.cellText(1, 1), "aµ€");
}

TEST_F(MemoryValueListTest, NothingTypedBreaksTheLine) {
  grid_.type(1, "a\r\nb\tc");
  EXPECT_EQ(grid_.cellText(1, 1), "a b c");
}

TEST_F(MemoryValueListTest, TypingMakesTheRowCurrentFirst) {
  grid_.type(2, "x");
  EXPECT_THAT(told_, ElementsAre("row 2", "text 'x' 1,2", "end b='x' 1,2"));
  EXPECT_EQ(grid_.Row(), 2);
}

TEST_F(MemoryValueListTest, TypingNothingClearsTheCell) {
  grid_.type(1, "");
  EXPECT_THAT(told_, ElementsAre("text '' 1,1", "end a='' 1,1"));
  EXPECT_EQ(grid_.cellText(1, 1), "");
}

TEST_F(MemoryValueListTest, TheUserTypesOnWhenTheTextIsCleanedMeanwhile) {
  onText_ = [this](int column, int row, const std::string& value) {
    if (value.ends_with(';')) grid_.setValue(column, row, value.substr(0, value.size() - 1));
  };
  grid_.type(1, "a;;b");
  EXPECT_THAT(told_, ElementsAre("text 'a' 1,1", "text 'a;' 1,1", "text 'a' 1,1", "text 'a;' 1,1", "text 'a' 1,1",
                                 "text 'ab' 1,1", "end a='ab' 1,1"));
  EXPECT_EQ(grid_.cellText(1, 1), "ab");
}

TEST_F(MemoryValueListTest, WritingOtherCellsDuringAnEditRaisesNothing) {
  onText_ = [this](int, int, const std::string&) {
    grid_.setValue(1, 2, "written");
    grid_.setValue(0, 1, "key");
  };
  grid_.type(1, "x");
  EXPECT_THAT(told_, ElementsAre("text 'x' 1,1", "end key='x' 1,1"));
  EXPECT_THAT(cells(), ElementsAre("key=x", "b=written", "c=old"));
}

TEST_F(MemoryValueListTest, WritingTheEditedCellAfterTheEditRaisesNothing) {
  grid_.type(1, "x");
  told_.clear();
  grid_.setValue(1, 1, "y");
  EXPECT_THAT(told_, IsEmpty());
}

TEST_F(MemoryValueListTest, DeletingTheEditedRowEndsTheEdit) {
  onText_ = [this](int, int row, const std::string&) { grid_.DeleteRow(row); };
  grid_.type(2, "xyz");
  EXPECT_THAT(cells(), ElementsAre("a=old", "c=old"));
  EXPECT_THAT(told_, ElementsAre("row 2", "text 'x' 1,2"));
}

TEST_F(MemoryValueListTest, DeletingARowInFrontMovesTheEditAlong) {
  onText_ = [this](int, int, const std::string& value) {
    if (value == "x") grid_.DeleteRow(1);
  };
  grid_.type(2, "xy");
  EXPECT_THAT(cells(), ElementsAre("b=xy", "c=old"));
  EXPECT_EQ(told_.back(), "end b='xy' 1,1");
}

TEST_F(MemoryValueListTest, InsertingARowInFrontMovesTheEditAlong) {
  onText_ = [this](int, int, const std::string& value) {
    if (value == "x") grid_.InsertRow("new", "1", false);
  };
  grid_.type(2, "xy");
  EXPECT_THAT(cells(), ElementsAre("new=1", "a=old", "b=xy", "c=old"));
  EXPECT_EQ(told_.back(), "end b='xy' 1,3");
}

TEST_F(MemoryValueListTest, DeletingEveryRowDuringAnEditEndsIt) {
  onText_ = [this](int, int, const std::string&) {
    while (grid_.RowCount() > 1) grid_.DeleteRow(1);
  };
  grid_.type(3, "xyz");
  EXPECT_THAT(cells(), IsEmpty());
  EXPECT_EQ(grid_.Row(), 0);
}

TEST_F(MemoryValueListTest, AHandlerMayTakeTheHandlersBack) {
  onText_ = [this](int, int, const std::string&) { grid_.setEvents({}); };
  grid_.type(1, "xy");
  EXPECT_EQ(grid_.cellText(1, 1), "xy");
  EXPECT_THAT(told_, ElementsAre("text 'x' 1,1"));
}

TEST_F(MemoryValueListTest, APickIsAnEndOfEditInTheRow) {
  grid_.setPickList(2, "x;y");
  grid_.pick(2, "y");
  EXPECT_THAT(told_, ElementsAre("row 2", "end b='y' 1,2"));
  EXPECT_EQ(grid_.cellText(1, 2), "y");
  EXPECT_EQ(grid_.Row(), 2);
}

TEST_F(MemoryValueListTest, PickListsStayWithTheirRows) {
  grid_.setPickList(2, "x;y");
  grid_.DeleteRow(1);
  EXPECT_THAT(grid_.rows().entry(1)->pickList, ElementsAre("x", "y"));
  grid_.setPickList(1, "");
  EXPECT_THAT(grid_.rows().entry(1)->pickList, IsEmpty());
}

TEST_F(MemoryValueListTest, TheMouseIsToldInTheGridsOwnUnits) {
  grid_.pressMouse(platform::MouseButton::Primary, 151, 19);
  grid_.moveMouse(3, 4);
  grid_.requestContextMenu(200, 30);
  EXPECT_THAT(told_, ElementsAre("left 151,19", "move 3,4", "menu 200,30"));
}

TEST_F(MemoryValueListTest, APressMakesItsRowCurrentFirst) {
  grid_.pressMouse(platform::MouseButton::Primary, 151, 38);
  grid_.pressMouse(platform::MouseButton::Secondary, 151, 19 + 18);
  EXPECT_THAT(told_, ElementsAre("row 2", "left 151,38", "row 1", "right 151,37"));
}

TEST_F(MemoryValueListTest, APressOutsideTheRowsLeavesTheCurrentRow) {
  grid_.pressMouse(platform::MouseButton::Primary, 151, 18);
  grid_.pressMouse(platform::MouseButton::Primary, 151, 4 * 19);
  EXPECT_THAT(told_, ElementsAre("left 151,18", "left 151,76"));
  EXPECT_EQ(grid_.Row(), 1);
}

TEST_F(MemoryValueListTest, CaptionToolTipAndFontAreKept) {
  grid_.setCaption("Atom Parameters");
  grid_.setToolTipText("Range: 1 to 9");
  grid_.setCellFont({.faceName = "Sans", .pointSize = 10.5, .characterSet = 1});
  EXPECT_EQ(grid_.caption(), "Atom Parameters");
  EXPECT_EQ(grid_.toolTipText(), "Range: 1 to 9");
  EXPECT_EQ(grid_.font().faceName, "Sans");
}

}  // namespace
}  // namespace mavCycEd::memory
