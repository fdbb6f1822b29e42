#include <gtest/gtest.h>

#include <QTest>

#include "qt/QtTimer.h"

namespace mavCycEd::test {
namespace {

class Timer : public testing::Test {
 protected:
  Timer() {
    timer.setEvents({.Tick = [this] { ++ticks; }});
  }

  qt::QtTimer timer{"timer"};
  int ticks = 0;
};

TEST_F(Timer, IsOffAtFirst) {
  EXPECT_FALSE(timer.isEnabled());
  EXPECT_EQ(timer.interval(), 0);
}

TEST_F(Timer, TicksUntilItIsSwitchedOff) {
  timer.setInterval(1);
  timer.setEnabled(true);
  EXPECT_TRUE(QTest::qWaitFor([this] { return ticks >= 3; }));
  timer.setEnabled(false);
  const int before = ticks;
  QTest::qWait(20);
  EXPECT_EQ(ticks, before);
}

TEST_F(Timer, StandsStillWithoutAnInterval) {
  timer.setEnabled(true);
  EXPECT_TRUE(timer.isEnabled());
  QTest::qWait(20);
  EXPECT_EQ(ticks, 0);
  timer.setInterval(1);
  EXPECT_TRUE(QTest::qWaitFor([this] { return ticks > 0; }));
}

TEST_F(Timer, SwitchesItselfOff) {
  timer.setEvents({.Tick = [this] {
    ++ticks;
    timer.setEnabled(false);
  }});
  timer.setInterval(1);
  timer.setEnabled(true);
  EXPECT_TRUE(QTest::qWaitFor([this] { return ticks > 0; }));
  QTest::qWait(30);
  EXPECT_EQ(ticks, 1);
}

}  // namespace
}  // namespace mavCycEd::test
