#include "kit/FirstRowTimer.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "TestScreen.h"
#include "memory/MemoryTimer.h"

namespace mavCycEd::kit {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class FirstRowTimerTest : public ::testing::Test, public test::TestList {
 protected:
  FirstRowTimerTest() {
    timer_->setEvents({.Tick = [this] { ++ticks_; }});
    timer_->setInterval(500);
    timer_->setEnabled(true);
    told();
  }

  memory::MemoryTimer* clock_ = new memory::MemoryTimer;
  std::unique_ptr<FirstRowTimer> timer_ =
      std::make_unique<FirstRowTimer>(std::unique_ptr<platform::Timer>(clock_), *list);
  int ticks_ = 0;
};

TEST_F(FirstRowTimerTest, TicksForAUserWhoHasNotCome) {
  EXPECT_EQ(clock_->interval(), 500);
  clock_->fire();
  clock_->fire();
  EXPECT_EQ(ticks_, 2);
  EXPECT_TRUE(timer_->isEnabled());
}

TEST_F(FirstRowTimerTest, ARowThatTheUserComesToSwitchesItOff) {
  key(Key::Down);
  EXPECT_FALSE(timer_->isEnabled());
  EXPECT_THAT(told(), ElementsAre("row 2"));
}

TEST_F(FirstRowTimerTest, TheRowThatWasCurrentIsToldInPlaceOfTheTick) {
  press(0, 1);
  EXPECT_FALSE(timer_->isEnabled());
  EXPECT_THAT(told(), ElementsAre("row 1", "press 0 5,22"));
  press(0, 1);
  EXPECT_THAT(told(), ElementsAre("press 0 5,22")) << "told once";
}

TEST_F(FirstRowTimerTest, OpeningAValueOrAskingForTheMenuIsComing) {
  key(Key::F2);
  EXPECT_FALSE(timer_->isEnabled());
  timer_->setEnabled(true);
  list->askForMenu({20, 3});
  EXPECT_FALSE(timer_->isEnabled());
  timer_->setEnabled(true);
  list->askForMenuByKey();
  EXPECT_FALSE(timer_->isEnabled());
}

TEST_F(FirstRowTimerTest, ATickThatFallsIntoAnEditIsDroppedAndNotPutOff) {
  list->focusValue(3);  // put before the user by code: nobody has come to a row
  EXPECT_TRUE(timer_->isEnabled());
  clock_->fire();
  EXPECT_EQ(ticks_, 0);
  EXPECT_FALSE(timer_->isEnabled());
  list->endEdit();
  clock_->fire();
  EXPECT_EQ(ticks_, 0);
  EXPECT_EQ(list->rows().currentRow(), 3);
}

TEST_F(FirstRowTimerTest, CodeThatMovesTheRowLeavesItOn) {
  list->setRow(2);
  list->setValue(1, 2, "Buffer");
  EXPECT_TRUE(timer_->isEnabled());
  EXPECT_THAT(told(), IsEmpty());
}

TEST_F(FirstRowTimerTest, OneThatIsSwitchedOnAgainByTheAnswerStaysOn) {
  answer = [this](const std::string&) { timer_->setEnabled(true); };
  key(Key::Down);
  EXPECT_TRUE(timer_->isEnabled());
}

TEST_F(FirstRowTimerTest, ItMayGoBeforeTheList) {
  timer_.reset();
  key(Key::Down);
  EXPECT_THAT(told(), ElementsAre("row 2"));
}

}  // namespace
}  // namespace mavCycEd::kit
