#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <regex>
#include <string>
#include <vector>

#include "TestPlatform.h"
#include "memory/MemoryButton.h"
#include "memory/MemoryComboBox.h"
#include "memory/MemoryFrame.h"
#include "memory/MemoryListBox.h"
#include "memory/MemoryModalDialog.h"
#include "memory/MemoryOptionButton.h"
#include "memory/MemoryPopupMenu.h"
#include "memory/MemoryTextBox.h"
#include "memory/MemoryTimer.h"

namespace mavCycEd::memory {
namespace {

using test::errorNumberOf;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class MemoryListBoxTest : public ::testing::Test {
 protected:
  MemoryListBoxTest() {
    list_.assign({"a", "b", "c"});
    list_.setEvents({.Click = [this] { events_.push_back("click " + std::to_string(list_.index())); },
                     .DblClick = [this] { events_.push_back("double " + std::to_string(list_.index())); }});
  }
  MemoryItemListBox list_{nullptr};
  std::vector<std::string> events_;
};

TEST_F(MemoryListBoxTest, SettingTheIndexRaisesClickEveryTime) {
  list_.setIndex(1);
  list_.setIndex(1);
  list_.setIndex(-1);
  list_.setIndex(-1);
  EXPECT_THAT(events_, ElementsAre("click 1", "click 1", "click -1", "click -1"));
}

TEST_F(MemoryListBoxTest, ChangingItemsRaisesNothing) {
  list_.setIndex(2);
  events_.clear();
  list_.addItem("d");
  list_.setItemText(2, "C");
  list_.removeItem(0);
  list_.assign({"x"});
  list_.clear();
  EXPECT_THAT(events_, IsEmpty());
}

TEST_F(MemoryListBoxTest, TheSelectionStaysWithItsItem) {
  list_.setIndex(1);
  list_.addItem("d");
  list_.setItemText(1, "B");
  EXPECT_EQ(list_.index(), 1);
  list_.removeItem(2);
  EXPECT_EQ(list_.index(), 1) << "behind the selection";
  list_.removeItem(0);
  EXPECT_EQ(list_.index(), 0) << "in front of the selection";
  EXPECT_EQ(list_.itemText(0), "B");
  list_.removeItem(0);
  EXPECT_EQ(list_.index(), -1) << "the selection itself";
  EXPECT_THAT(list_.items(), ElementsAre("d"));
}

TEST_F(MemoryListBoxTest, ClearingAndAssigningRemoveTheSelection) {
  list_.setIndex(1);
  list_.assign({"x", "y"});
  EXPECT_EQ(list_.index(), -1);
  list_.setIndex(1);
  list_.clear();
  EXPECT_EQ(list_.index(), -1);
  EXPECT_EQ(list_.itemCount(), 0);
}

TEST_F(MemoryListBoxTest, IndexesBeyondTheListAreRefused) {
  for (const int index : {3, -2, 1000}) {
    EXPECT_EQ(errorNumberOf([&] { list_.setIndex(index); }), 5) << index;
    EXPECT_EQ(errorNumberOf([&] { list_.removeItem(index); }), 5) << index;
    EXPECT_EQ(errorNumberOf([&] { list_.setItemText(index, "x"); }), 5) << index;
    EXPECT_EQ(errorNumberOf([&] { list_.itemText(index); }), 5) << index;
  }
  EXPECT_EQ(errorNumberOf([&] { list_.removeItem(-1); }), 5);
  EXPECT_EQ(errorNumberOf([&] { list_.itemText(-1); }), 5);
  EXPECT_THAT(events_, IsEmpty());
  EXPECT_THAT(list_.items(), ElementsAre("a", "b", "c"));
}

TEST_F(MemoryListBoxTest, ADoubleClickSelectsFirst) {
  list_.doubleClick(2);
  EXPECT_THAT(events_, ElementsAre("click 2", "double 2"));
}

class MemoryComboBoxTest : public ::testing::Test {
 protected:
  MemoryComboBoxTest() {
    combo_.assign({"a", "b", "a"});
    combo_.setEvents(
        {.Click = [this] { events_.push_back(combo_.text()); }, .LostFocus = [this] { events_.push_back("left"); }});
  }
  MemoryComboBox combo_{nullptr};
  std::vector<std::string> events_;
};

TEST_F(MemoryComboBoxTest, SettingTheIndexShowsTheItemAndRaisesClickEveryTime) {
  combo_.setIndex(1);
  combo_.setIndex(1);
  EXPECT_EQ(combo_.text(), "b");
  combo_.setIndex(-1);
  EXPECT_EQ(combo_.text(), "");
  EXPECT_THAT(events_, ElementsAre("b", "b", ""));
}

TEST_F(MemoryComboBoxTest, SettingTheTextSelectsTheFirstItemOfThatText) {
  combo_.setText("a");
  EXPECT_EQ(combo_.index(), 0);
  combo_.setText("b");
  EXPECT_EQ(combo_.index(), 1);
  combo_.setText("b");
  EXPECT_THAT(events_, ElementsAre("a", "b", "b"));
}

TEST_F(MemoryComboBoxTest, ATextThatIsNoItemIsShownAllTheSame) {
  combo_.setText("A");
  EXPECT_EQ(combo_.index(), -1);
  EXPECT_EQ(combo_.text(), "A");
  EXPECT_THAT(events_, ElementsAre("A"));
}

TEST_F(MemoryComboBoxTest, ChangingItemsRaisesNothing) {
  combo_.setIndex(1);
  events_.clear();
  combo_.addItem("c");
  EXPECT_EQ(combo_.index(), 1);
  EXPECT_EQ(combo_.text(), "b");
  combo_.assign({"x"});
  EXPECT_EQ(combo_.index(), -1);
  EXPECT_EQ(combo_.text(), "");
  combo_.setText("x");
  events_.clear();
  combo_.clear();
  EXPECT_EQ(combo_.itemCount(), 0);
  EXPECT_EQ(combo_.text(), "");
  EXPECT_THAT(events_, IsEmpty());
}

TEST_F(MemoryComboBoxTest, IndexesBeyondTheListAreRefused) {
  for (const int index : {3, -2}) {
    EXPECT_EQ(errorNumberOf([&] { combo_.setIndex(index); }), 5) << index;
    EXPECT_EQ(errorNumberOf([&] { combo_.itemText(index); }), 5) << index;
  }
  EXPECT_EQ(errorNumberOf([&] { combo_.itemText(-1); }), 5);
  EXPECT_THAT(events_, IsEmpty());
}

TEST_F(MemoryComboBoxTest, ATypedTextIsOneLine) {
  combo_.type("x\r\ny");
  EXPECT_EQ(combo_.text(), "x y");
  EXPECT_THAT(events_, IsEmpty());
}

TEST_F(MemoryComboBoxTest, LeavingIsTold) {
  combo_.leave();
  EXPECT_THAT(events_, ElementsAre("left"));
}

class MemoryPopupMenuTest : public ::testing::Test {
 protected:
  MemoryPopupMenuTest() {
    menu_.setEvents({.Click = [this](int index) { chosen_.push_back(index); }});
  }
  MemoryPopupMenu menu_;
  std::vector<int> chosen_;
};

TEST_F(MemoryPopupMenuTest, TheFirstItemAlwaysExists) {
  EXPECT_EQ(menu_.itemCount(), 1);
  EXPECT_EQ(menu_.lastIndex(), 0);
  EXPECT_TRUE(menu_.hasItem(0));
  EXPECT_EQ(errorNumberOf([&] { menu_.removeItem(0); }), 5);
  EXPECT_EQ(errorNumberOf([&] { menu_.createItem(0); }), 9);
}

TEST_F(MemoryPopupMenuTest, ItemsComeAndGoUnderAnyIndex) {
  menu_.createItem(5);
  menu_.createItem(2);
  EXPECT_EQ(menu_.itemCount(), 3);
  EXPECT_EQ(menu_.lastIndex(), 5);
  EXPECT_EQ(menu_.itemCaption(5), "");
  EXPECT_TRUE(menu_.isItemVisible(5));
  EXPECT_EQ(errorNumberOf([&] { menu_.createItem(5); }), 9);
  menu_.removeItem(5);
  EXPECT_EQ(menu_.lastIndex(), 2);
  EXPECT_FALSE(menu_.hasItem(5));
}

TEST_F(MemoryPopupMenuTest, MissingItemsAreRefused) {
  EXPECT_EQ(errorNumberOf([&] { menu_.removeItem(3); }), 9);
  EXPECT_EQ(errorNumberOf([&] { menu_.itemCaption(3); }), 9);
  EXPECT_EQ(errorNumberOf([&] { menu_.setItemCaption(3, "x"); }), 9);
  EXPECT_EQ(errorNumberOf([&] { menu_.isItemVisible(3); }), 9);
  EXPECT_EQ(errorNumberOf([&] { menu_.setItemVisible(3, true); }), 9);
}

TEST_F(MemoryPopupMenuTest, AnOpenMenuShowsItsVisibleItemsInIndexOrder) {
  menu_.setItemVisible(0, false);
  for (const int index : {4, 1, 3}) {
    menu_.createItem(index);
    menu_.setItemCaption(index, "item " + std::to_string(index));
  }
  menu_.setItemVisible(3, false);
  EXPECT_THAT(menu_.visibleCaptions(), ElementsAre("item 1", "item 4"));
  EXPECT_FALSE(menu_.choose(0)) << "the menu is closed";
  menu_.popUp();
  EXPECT_FALSE(menu_.choose(2));
  EXPECT_FALSE(menu_.choose(-1));
  EXPECT_TRUE(menu_.isOpen());
  EXPECT_TRUE(menu_.choose(1));
  EXPECT_THAT(chosen_, ElementsAre(4));
  EXPECT_FALSE(menu_.isOpen());
}

TEST_F(MemoryPopupMenuTest, AMenuMayBeClosedWithoutAChoice) {
  menu_.popUp();
  menu_.dismiss();
  EXPECT_FALSE(menu_.isOpen());
  EXPECT_FALSE(menu_.choose(0));
  EXPECT_THAT(chosen_, IsEmpty());
}

TEST(MemoryOptionButton, TakesTheSelectionFromTheOthersOfItsGroup) {
  MemoryOptionButton a(nullptr);
  MemoryOptionButton b(nullptr);
  MemoryOptionButton other(nullptr);
  MemoryOptionButton::group({&a, &b});
  MemoryOptionButton::group({&other});
  other.select();
  a.select();
  EXPECT_TRUE(a.value());
  b.select();
  EXPECT_FALSE(a.value());
  EXPECT_TRUE(b.value());
  EXPECT_TRUE(other.value());
}

TEST(MemoryOptionButton, RaisesClickEveryTime) {
  MemoryOptionButton a(nullptr);
  MemoryOptionButton b(nullptr);
  MemoryOptionButton::group({&a, &b});
  int clicks = 0;
  a.setEvents({.Click = [&] { clicks += a.value() ? 1 : 100; }});
  a.select();
  a.select();
  b.select();
  EXPECT_EQ(clicks, 2);
}

TEST(MemoryModalDialog, IsLoadedAndHasAHandleWhileItIsShown) {
  MemoryModalDialog dialog;
  bool shown = false;
  dialog.setUser([&] {
    shown = true;
    EXPECT_TRUE(dialog.isLoaded());
    EXPECT_NE(dialog.hWnd(), 0U);
    dialog.close();
    EXPECT_FALSE(dialog.isLoaded());
  });
  dialog.showModal();
  EXPECT_TRUE(shown);
  EXPECT_EQ(dialog.hWnd(), 0U);
}

TEST(MemoryModalDialog, TellsWhenTheUserClosesItsWindow) {
  MemoryModalDialog dialog;
  int closed = 0;
  dialog.setEvents({.Close = [&] { ++closed; }});
  dialog.setUser([&] { dialog.closeWindow(); });
  dialog.showModal();
  EXPECT_EQ(closed, 1);
  dialog.setUser([&] { dialog.close(); });
  dialog.showModal();
  EXPECT_EQ(closed, 1) << "closed by code";
  dialog.setUser({});
  dialog.showModal();
  EXPECT_EQ(closed, 2) << "a dialog that nobody closes is closed by its user";
  EXPECT_FALSE(dialog.isLoaded());
}

TEST(MemoryTimer, TicksOnlyWhileItIsOn) {
  MemoryTimer timer;
  int ticks = 0;
  timer.setEvents({.Tick = [&] { ++ticks; }});
  EXPECT_EQ(timer.interval(), 0);
  EXPECT_FALSE(timer.isEnabled());
  timer.fire();
  EXPECT_EQ(ticks, 0);
  timer.setInterval(500);
  timer.setEnabled(true);
  timer.fire();
  timer.fire();
  EXPECT_EQ(ticks, 2) << "it stays on until it is switched off";
  timer.setEnabled(false);
  timer.fire();
  EXPECT_EQ(ticks, 2);
}

TEST(MemoryTextBox, HasCarriageReturnsAndLineFeedsWhateverWasSet) {
  MemoryTextBox box(nullptr);
  box.setText("a\nb\rc\u2028d");
  EXPECT_EQ(box.text(), "a\r\nb\r\nc\u2028d");
  box.replace("x\ny\u2028z");
  EXPECT_EQ(box.text(), "x\r\ny\r\nz");
}

TEST(MemoryTextBox, OfOneLineTakesNoLineEndsFromItsUser) {
  MemoryTextBox box(nullptr, MemoryTextBox::Lines::One);
  box.setText("a\nb");
  EXPECT_EQ(box.text(), "a\nb") << "as it was set";
  box.replace("x\r\ny\tz");
  EXPECT_EQ(box.text(), "x y z");
}

TEST(MemoryTextBox, TellsWhenTheFocusLeaves) {
  MemoryTextBox box(nullptr);
  int left = 0;
  box.setEvents({.Change = {}, .LostFocus = [&left] { ++left; }});
  box.leave();
  EXPECT_EQ(left, 1);
}

TEST(MemoryTextBox, OnlyTheUserRaisesChange) {
  MemoryTextBox box(nullptr);
  std::vector<std::string> changes;
  box.setEvents({.Change = [&] { changes.push_back(box.text()); }, .LostFocus = {}});
  box.setText("code");
  box.replace("user");
  box.replace("user");
  box.replace("");
  EXPECT_THAT(changes, ElementsAre("user", "user", ""));
  box.replace("");
  EXPECT_EQ(changes.size(), 3U) << "nothing over nothing";
}

TEST(MemoryButton, TellsThatItIsPressed) {
  MemoryButton button(nullptr);
  button.press();
  int presses = 0;
  button.setEvents({.Click = [&] { ++presses; }});
  button.press();
  EXPECT_EQ(presses, 1);
}

TEST(MemoryButton, AHandlerMayTakeTheHandlersBack) {
  MemoryButton button(nullptr);
  int presses = 0;
  button.setEvents({.Click = [&] {
    button.setEvents({});
    ++presses;
  }});
  button.press();
  button.press();
  EXPECT_EQ(presses, 1);
}

TEST(MemoryFrame, DisablesAndHidesWhatStandsInIt) {
  MemoryFrame outer(nullptr);
  MemoryFrame inner(&outer);
  MemoryButton button(&inner);
  EXPECT_TRUE(button.isUsable());
  outer.setEnabled(false);
  EXPECT_FALSE(button.isUsable());
  EXPECT_TRUE(button.isEnabled()) << "its own setting";
  EXPECT_TRUE(inner.isEnabled()) << "its own setting";
  outer.setEnabled(true);
  inner.setVisible(false);
  EXPECT_FALSE(button.isUsable());
  EXPECT_TRUE(outer.isVisible());
  inner.setVisible(true);
  button.setEnabled(false);
  EXPECT_FALSE(button.isUsable());
}

TEST(MemoryServices, AnswerForAPlatform) {
  std::vector<std::string> told;
  MemoryMessageBox messageBox([&](std::string_view message, std::string_view caption, int flags) {
    told.push_back(std::string(message) + "|" + std::string(caption) + "|" + std::to_string(flags));
  });
  EXPECT_EQ(messageBox.messageBox(0, "text", "title", 48), platform::OkButton);
  EXPECT_THAT(told, ElementsAre("text|title|48"));
  EXPECT_EQ(MemoryMessageBox().messageBox(0, "", "", 0), platform::OkButton);
  EXPECT_EQ(Utf8CodePage().fromUtf8("Größe \xFF"), "Größe \xFF");
  EXPECT_EQ(StandingClock("2024-03-09T14:05:00").localTimestamp(), "2024-03-09T14:05:00");
  // The expressions of the matchers are not the same on every system.
  const std::regex timestamp("[0-9]{4}-[01][0-9]-[0-3][0-9]T[0-2][0-9]:[0-5][0-9]:[0-6][0-9]");
  EXPECT_TRUE(std::regex_match(SystemClock().localTimestamp(), timestamp)) << SystemClock().localTimestamp();
}

}  // namespace
}  // namespace mavCycEd::memory
