#include "kit/ValueList.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "TestScreen.h"

namespace mavCycEd::kit {
namespace {

using platform::MouseButton;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using Focus = test::TestScreen::Focus;

class ValueListTest : public ::testing::Test, public test::TestList {
 protected:
  ValueList::KeyAnswer answerTo(Key key) { return list->pressKey({.key = key}); }
};

TEST_F(ValueListTest, CodeMovesTheRowInSilenceAndShowsIt) {
  list->setRow(3);
  EXPECT_EQ(screen.shownRow, 3);
  EXPECT_EQ(screen.announced, 0);
  list->setRow(9);
  EXPECT_EQ(list->rows().currentRow(), 3);
  EXPECT_THAT(told(), IsEmpty());
}

TEST_F(ValueListTest, TheUserMakesOnlyAnotherParameterRowCurrent) {
  for (const int row : {0, -1, 4, 1}) list->chooseRow(row);
  EXPECT_THAT(told(), IsEmpty());
  list->chooseRow(3);
  EXPECT_THAT(told(), ElementsAre("row 3"));
  EXPECT_EQ(screen.shownRow, 3);
  EXPECT_EQ(screen.announced, 1);
}

TEST_F(ValueListTest, APressMakesItsRowCurrentThenIsToldThenOpensTheValue) {
  press(1, 3);
  EXPECT_THAT(told(), ElementsAre("row 3", "press 0 200,60"));
  EXPECT_EQ(editedRow(), 3);
  press(0, 2);
  EXPECT_THAT(told(), ElementsAre("row 2", "press 0 5,41"));
  EXPECT_EQ(editedRow(), 0) << "a key is not edited";
}

TEST_F(ValueListTest, OnlyThePrimaryButtonOpensAValue) {
  for (const MouseButton button : {MouseButton::Secondary, MouseButton::Middle}) {
    list->pressMouse(button, {200, 60});
    EXPECT_EQ(editedRow(), 0);
  }
  screen.usable = false;
  press(1, 2);
  EXPECT_EQ(editedRow(), 0);
}

TEST_F(ValueListTest, APressOnTheTitlesIsToldAndLeavesRowAndEdit) {
  press(1, 2);
  told();
  list->pressMouse(MouseButton::Primary, {151, 2});
  EXPECT_THAT(told(), ElementsAre("press 0 151,2"));
  EXPECT_EQ(editedRow(), 2);
  EXPECT_EQ(list->rows().currentRow(), 2);
}

TEST_F(ValueListTest, APressBelowTheRowsEndsTheEditAndKeepsTheRow) {
  press(1, 2);
  type("x");
  told();
  list->pressMouse(MouseButton::Primary, {200, 4 * 19});
  EXPECT_THAT(told(), ElementsAre("end 2 Source='x'", "press 0 200,76"));
  EXPECT_EQ(editedRow(), 0);
  EXPECT_EQ(list->rows().currentRow(), 2);
}

TEST_F(ValueListTest, AnAnswerThatTakesTheRowAwayOpensNothing) {
  answer = [this](const std::string& event) {
    if (event.starts_with("press")) list->deleteRow(3);
  };
  press(1, 3);
  EXPECT_EQ(editedRow(), 0);
  EXPECT_EQ(list->rows().rowCount(), 3);
}

TEST_F(ValueListTest, APressOnTheArrowOpensTheListWhenTheButtonIsUp) {
  list->pressMouse(MouseButton::Primary, {310, 2 * 19});
  EXPECT_EQ(screen.listsOpened, 0);
  list->releaseMouse();
  EXPECT_EQ(screen.listsOpened, 1);
  list->releaseMouse();
  EXPECT_EQ(screen.listsOpened, 1);
}

TEST_F(ValueListTest, APressOnAnOpenEditorIsAPressOnTheGrid) {
  press(1, 3);
  list->setRow(1);
  told();
  list->pressMouseOnEditor(MouseButton::Secondary, {200, 60});
  EXPECT_THAT(told(), ElementsAre("row 3", "press 1 200,60"));
  EXPECT_EQ(editedRow(), 3);
}

TEST_F(ValueListTest, TheMenuIsAskedForInTheRowUnderThePointer) {
  press(1, 1);
  type("4");
  told();
  list->askForMenu({200, 60});
  EXPECT_THAT(told(), ElementsAre("end 1 Volume='4'", "row 3", "menu 200,60"));
  EXPECT_EQ(list->menuPlace().x, 200);
  EXPECT_EQ(list->menuPlace().y, 60);
  list->askForMenu({200, 2});
  EXPECT_THAT(told(), ElementsAre("menu 200,2"));
  EXPECT_EQ(list->rows().currentRow(), 3);
}

TEST_F(ValueListTest, TheMenuKeyTellsTheRowInAnyCaseAndAsksAtItsValue) {
  key(Key::F10, true);
  EXPECT_THAT(told(), ElementsAre("row 1", "menu 200,28"));
  press(1, 3);
  list->setRow(1);
  told();
  list->askForMenuByKey();
  EXPECT_THAT(told(), ElementsAre("row 3", "menu 200,66"));
  EXPECT_EQ(editedRow(), 0);
}

TEST_F(ValueListTest, ArrowsTellTheNewRowAndStopAtTheEnds) {
  for (const Key each : {Key::Down, Key::End, Key::Down, Key::Home, Key::Up, Key::PageDown}) key(each);
  EXPECT_THAT(told(), ElementsAre("row 2", "row 3", "row 1", "row 3"));
}

TEST_F(ValueListTest, KeysThatTypeOpenTheEditorAndGoThere) {
  EXPECT_EQ(answerTo(Key::Character), ValueList::KeyAnswer::IntoEditor);
  EXPECT_EQ(editedRow(), 1);
  EXPECT_EQ(answerTo(Key::Character), ValueList::KeyAnswer::NotTaken) << "the editor has the keys now";
  screen.hasEditor = false;
  list->endEdit();
  EXPECT_EQ(answerTo(Key::Character), ValueList::KeyAnswer::Taken) << "there is nowhere to go";
}

TEST_F(ValueListTest, EnterIsTheWindowsWhereItHasAUseForIt) {
  list->setEnterOpens(false);
  EXPECT_EQ(answerTo(Key::Enter), ValueList::KeyAnswer::NotTaken);
  EXPECT_FALSE(list->wantsKey({.key = Key::Enter}));
  list->setEnterOpens(true);
  EXPECT_TRUE(list->wantsKey({.key = Key::Enter}));
  EXPECT_EQ(answerTo(Key::Enter), ValueList::KeyAnswer::Taken);
  EXPECT_EQ(editedRow(), 1);
}

TEST_F(ValueListTest, TheListKeyOpensValueAndList) {
  list->setRow(2);
  EXPECT_EQ(answerTo(Key::F4), ValueList::KeyAnswer::Taken);
  EXPECT_EQ(editedRow(), 2);
  EXPECT_EQ(screen.listsOpened, 1);
}

TEST_F(ValueListTest, CopyTakesTheCurrentValue) {
  list->pressKey({.key = Key::Copy, .control = true});
  EXPECT_EQ(screen.copied, "10");
}

TEST_F(ValueListTest, AnEmptyListTakesKeysAndPressesWithoutHarm) {
  for (int row = 3; row >= 1; --row) list->deleteRow(row);
  for (const Key each : {Key::Down, Key::Up, Key::F2, Key::Enter, Key::Character, Key::F4, Key::F10}) key(each);
  key(Key::F10, true);
  press(1, 1);
  told();
  EXPECT_EQ(answerTo(Key::Character), ValueList::KeyAnswer::NotTaken);
  EXPECT_EQ(editedRow(), 0);
  EXPECT_TRUE(screen.isFocused());
}

TEST_F(ValueListTest, TabLeadsFromValueToValueAndThenOut) {
  press(1, 2);
  told();
  key(Key::Tab);
  EXPECT_EQ(editedRow(), 3);
  key(Key::Tab);
  EXPECT_EQ(editedRow(), 0);
  EXPECT_EQ(screen.focus, Focus::Behind);
  press(1, 2);
  key(Key::Tab, true);
  EXPECT_EQ(editedRow(), 1);
  key(Key::BackTab, true);
  EXPECT_EQ(screen.focus, Focus::Before);
}

TEST_F(ValueListTest, EnterStaysInTheLastRowAndArrowsStayInTheEditor) {
  press(1, 3);
  key(Key::Down);
  EXPECT_EQ(editedRow(), 3);
  key(Key::Enter);
  EXPECT_EQ(editedRow(), 0);
  EXPECT_EQ(screen.focus, Focus::Grid);
  press(1, 1);
  key(Key::Up);
  EXPECT_EQ(editedRow(), 1);
  key(Key::PageDown);
  EXPECT_EQ(editedRow(), 3);
}

TEST_F(ValueListTest, AStepEndsTheEditBeforeItLeadsOn) {
  press(1, 1);
  type("3");
  told();
  key(Key::Tab);
  EXPECT_THAT(told(), ElementsAre("end 1 Volume='3'", "row 2"));
}

TEST_F(ValueListTest, AFocusedValueIsReadyToBeTypedOverInSilence) {
  press(1, 1);
  type("3");
  told();
  list->focusValue(2);
  EXPECT_EQ(editedRow(), 2);
  EXPECT_EQ(screen.editedRow, 2);
  EXPECT_EQ(list->rows().currentRow(), 2);
  list->focusValue(9);
  EXPECT_EQ(editedRow(), 2);
  EXPECT_THAT(told(), IsEmpty());
}

TEST_F(ValueListTest, AnotherWayIntoARowEndsTheEditThatIsOpen) {
  press(1, 3);
  type("3");
  list->setRow(1);
  told();
  list->editCurrentRow();
  EXPECT_THAT(told(), ElementsAre("end 3 Speed='3'"));
  EXPECT_EQ(editedRow(), 1);
}

TEST_F(ValueListTest, WithoutAScreenItKeepsWhatItHolds) {
  press(1, 2);
  list->setScreen(nullptr, nullptr);
  told();
  EXPECT_EQ(editedRow(), 0);
  list->setRow(3);
  list->chooseRow(1);
  list->insertRow("Last", "1", true);
  press(1, 2);
  key(Key::F2);
  EXPECT_EQ(list->rows().rowCount(), 5);
  EXPECT_THAT(told(), ElementsAre("row 1", "press 0 0,0"));
}

}  // namespace
}  // namespace mavCycEd::kit
