#include "kit/CellEdit.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "TestScreen.h"

namespace mavCycEd::kit {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class CellEditTest : public ::testing::Test, public test::TestList {};

TEST_F(CellEditTest, EveryKeystrokeIsInTheRowsAtOnce) {
  press(1, 1);
  told();
  type("2");
  EXPECT_EQ(value(1), "2");
  type("");
  EXPECT_EQ(value(1), "");
  EXPECT_THAT(told(), ElementsAre("text 1 '2'", "text 1 ''"));
}

TEST_F(CellEditTest, WhatIsTypedIsPutOnOneLine) {
  press(1, 1);
  type("1\r\n2");
  EXPECT_EQ(value(1), "1 2");
  EXPECT_EQ(screen.typing, (TypedLine{"1 2", 3}));
}

TEST_F(CellEditTest, TheRowIsMadeCurrentBeforeTypingIsTold) {
  press(1, 3);
  list->setRow(1);
  told();
  type("6");
  EXPECT_THAT(told(), ElementsAre("row 3", "text 3 '6'"));
}

TEST_F(CellEditTest, CharactersThatHadToGoLeaveTheEditWhereItWas) {
  answer = [this](const std::string& event) {
    if (event == "text 1 '1;2'") list->setValue(1, 1, "12");
  };
  press(1, 1);
  told();
  screen.typing = {"1;2", 2};
  list->typedInEditor();
  EXPECT_EQ(screen.typing, (TypedLine{"12", 1}));
  EXPECT_THAT(told(), ElementsAre("text 1 '1;2'", "text 1 '12'"));
  EXPECT_EQ(value(1), "12");
}

TEST_F(CellEditTest, WritesIntoOtherCellsAreSilent) {
  press(1, 1);
  told();
  list->setValue(0, 1, "Amount");
  list->setValue(1, 2, "Buffer");
  list->setValue(1, 9, "nowhere");
  EXPECT_THAT(told(), IsEmpty());
  EXPECT_EQ(screen.typing.text, "10");
}

TEST_F(CellEditTest, OneThatIsGivenUpRestoresTheValueAndTellsNothing) {
  press(1, 1);
  type("99");
  told();
  key(Key::Escape);
  EXPECT_EQ(value(1), "10");
  EXPECT_EQ(editedRow(), 0);
  EXPECT_TRUE(screen.isFocused());
  EXPECT_THAT(told(), IsEmpty());
}

TEST_F(CellEditTest, EndIsToldOnceAndOnlyWhenSomethingWasTyped) {
  press(1, 1);
  told();
  list->endEdit();
  EXPECT_THAT(told(), IsEmpty());
  press(1, 1);
  type("4");
  told();
  list->endEdit();
  list->endEdit();
  EXPECT_THAT(told(), ElementsAre("end 1 Volume='4'"));
}

TEST_F(CellEditTest, WhatTheScreenHasNotToldYetIsToldBeforeTheEnd) {
  press(1, 1);
  told();
  screen.typing = {"7", 1};
  screen.untold = true;
  list->endEdit();
  EXPECT_THAT(told(), ElementsAre("text 1 '7'", "end 1 Volume='7'"));
  EXPECT_EQ(value(1), "7");
}

TEST_F(CellEditTest, FocusThatAKeyTakesAwayEndsIt) {
  press(1, 1);
  type("4");
  told();
  list->focusLeftEditor(false);
  EXPECT_THAT(told(), ElementsAre("end 1 Volume='4'"));
  EXPECT_FALSE(screen.watchesMouse);
}

TEST_F(CellEditTest, FocusThatAPressTakesAwayEndsItWhenTheButtonIsUp) {
  press(1, 1);
  type("4");
  told();
  list->focusLeftEditor(true);
  EXPECT_EQ(editedRow(), 0);
  EXPECT_TRUE(screen.watchesMouse);
  EXPECT_THAT(told(), IsEmpty());
  list->mouseIsUp();
  EXPECT_FALSE(screen.watchesMouse);
  EXPECT_THAT(told(), ElementsAre("end 1 Volume='4'"));
  list->mouseIsUp();
  EXPECT_THAT(told(), IsEmpty());
}

TEST_F(CellEditTest, TheCommandOfTheClickHearsOfTheEndFirst) {
  press(1, 1);
  type("4");
  list->focusLeftEditor(true);
  told();
  list->endEdit();
  EXPECT_THAT(told(), ElementsAre("end 1 Volume='4'"));
  EXPECT_FALSE(screen.watchesMouse);
}

TEST_F(CellEditTest, AnEndThatWaitsFollowsItsRow) {
  press(1, 3);
  type("4");
  list->focusLeftEditor(true);
  told();
  list->insertRow("First", "", false);
  list->mouseIsUp();
  EXPECT_THAT(told(), ElementsAre("end 4 Speed='4'"));
}

TEST_F(CellEditTest, AnEndThatWaitsGoesWithItsRow) {
  press(1, 3);
  type("4");
  list->focusLeftEditor(true);
  told();
  list->deleteRow(3);
  list->mouseIsUp();
  EXPECT_THAT(told(), IsEmpty());
}

TEST_F(CellEditTest, RowsInFrontMayComeAndGo) {
  press(1, 3);
  list->deleteRow(1);
  EXPECT_EQ(editedRow(), 2);
  list->insertRow("First", "", false);
  list->insertRow("Last", "", true);
  EXPECT_EQ(editedRow(), 3);
  type("8");
  EXPECT_EQ(value(3), "8");
}

TEST_F(CellEditTest, ItsOwnRowTakesItAlongInSilence) {
  press(1, 1);
  type("4");
  told();
  list->deleteRow(1);
  EXPECT_EQ(editedRow(), 0);
  EXPECT_EQ(screen.editedRow, 0);
  EXPECT_THAT(told(), IsEmpty());
}

TEST_F(CellEditTest, AnEditorThatIsGoneEndsItInSilence) {
  press(1, 1);
  type("4");
  told();
  list->editorIsGone();
  EXPECT_EQ(editedRow(), 0);
  EXPECT_THAT(told(), IsEmpty());
}

TEST_F(CellEditTest, WithoutAScreenNoneOpens) {
  screen.hasEditor = false;
  press(1, 1);
  EXPECT_EQ(editedRow(), 0);
  list->setScreen(nullptr, nullptr);
  list->focusValue(2);
  EXPECT_EQ(editedRow(), 0);
  EXPECT_EQ(list->rows().currentRow(), 2);
}

TEST_F(CellEditTest, APickEndsItAndTheCellIsEditedOn) {
  press(1, 2);
  type("Tr");
  told();
  list->pickedInEditor(2);
  EXPECT_EQ(value(2), "Buffer");
  EXPECT_THAT(told(), ElementsAre("end 2 Source='Buffer'"));
  EXPECT_EQ(editedRow(), 2);
  EXPECT_EQ(screen.typing.text, "Buffer");
  key(Key::Tab);
  EXPECT_EQ(editedRow(), 3);
  EXPECT_THAT(told(), ElementsAre("row 3"));
}

TEST_F(CellEditTest, APickWhoseAnswerLeadsElsewhereEndsThere) {
  answer = [this](const std::string& event) {
    if (event.starts_with("end")) list->setRow(1);
  };
  press(1, 2);
  list->pickedInEditor(0);
  EXPECT_EQ(editedRow(), 0);
  answer = [this](const std::string& event) {
    if (event.starts_with("end")) screen.focus = test::TestScreen::Focus::Behind;
  };
  press(1, 2);
  list->pickedInEditor(0);
  EXPECT_EQ(editedRow(), 0);
  answer = [this](const std::string& event) {
    if (event.starts_with("end")) list->focusValue(3);
  };
  press(1, 2);
  list->pickedInEditor(0);
  EXPECT_EQ(editedRow(), 3);
}

TEST_F(CellEditTest, APickOfNoItemIsNone) {
  press(1, 2);
  told();
  list->pickedInEditor(3);
  list->pickedInEditor(-1);
  EXPECT_THAT(told(), IsEmpty());
  EXPECT_EQ(editedRow(), 2);
}

TEST_F(CellEditTest, OnlyAValueWithAListOpensOne) {
  press(1, 1);
  list->pressKeyInEditor({.key = Key::F4});
  EXPECT_EQ(screen.listsOpened, 0);
  press(1, 2);
  list->pressKeyInEditor({.key = Key::F4});
  EXPECT_EQ(screen.listsOpened, 1);
}

// Whatever is told, the answer may destroy the list; what ran on afterwards would be found by a memory checker.
TEST_F(CellEditTest, AnyAnswerMayDestroyTheList) {
  const std::vector<std::function<void()>> acts{
      [this] { press(1, 3); },
      [this] { type("5"); },
      [this] { list->endEdit(); },
      [this] { list->pickedInEditor(1); },
      [this] { key(Key::Tab); },
      [this] { list->askForMenuByKey(); },
      [this] {
        list->askForMenu({200, 60});
      },
      [this] { list->focusLeftEditor(false); },
      [this] {
        list->focusLeftEditor(true);
        if (list) list->mouseIsUp();
      },
      [this] { list->setValue(1, 2, "Tray2"); },
  };
  for (std::size_t i = 0; i < acts.size(); ++i) {
    list = std::make_unique<ValueList>();
    screen.focus = test::TestScreen::Focus::Before;
    test::TestScreen shown(list->rows());
    list->setScreen(&shown, &shown);
    for (const char* const row : {"a", "b", "c"}) list->insertRow(row, "", true);
    list->setPickList(2, "x;y");
    list->focusValue(2);
    shown.untold = true;
    list->setEvents(events());
    answer = [this](const std::string&) { list.reset(); };
    acts[i]();
    EXPECT_EQ(list, nullptr) << i;
    told();
  }
}

}  // namespace
}  // namespace mavCycEd::kit
