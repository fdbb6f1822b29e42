#include "ChangeWatch.h"

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QThread>
#include <QVBoxLayout>

namespace mavCycEd::host {
namespace {

class ChangeWatchTest : public testing::Test {
 protected:
  static constexpr int rested = 1200;  // milliseconds

  ChangeWatchTest() {
    auto* const layout = new QVBoxLayout(&editor_);
    layout->addWidget(&box_);
    layout->addWidget(&button_);
    editor_.show();
  }

  QWidget editor_;
  QLineEdit box_;
  QPushButton button_;
  QLineEdit elsewhere_;
  bool answer_ = true;
  int asked_ = 0;
  unsigned long answerTakes_ = 0;
  ChangeWatch watch_{editor_, [this] {
                       ++asked_;
                       QThread::msleep(answerTakes_);
                       return answer_;
                     }};
};

TEST_F(ChangeWatchTest, NobodyIsAskedWhileNothingIsDone) {
  QTest::keyClicks(&elsewhere_, QStringLiteral("abc"));
  watch_.glance();
  QTest::qWait(rested);
  EXPECT_EQ(asked_, 0);
  EXPECT_FALSE(watch_.entered());
}

TEST_F(ChangeWatchTest, AsksOnceAfterTheTyping) {
  QSignalSpy changed(&watch_, &ChangeWatch::changedChanged);
  for (int i = 0; i < 5; ++i) QTest::keyClicks(&box_, QStringLiteral("abc"), Qt::NoModifier, 20);
  EXPECT_EQ(asked_, 0);
  EXPECT_TRUE(QTest::qWaitFor([this] { return asked_ > 0; }));
  EXPECT_TRUE(watch_.changed());
  EXPECT_EQ(changed.count(), 1);
  QTest::qWait(rested);
  EXPECT_EQ(asked_, 1);
}

TEST_F(ChangeWatchTest, AGlanceAsksAtOnceButOnlyAboutSomething) {
  QTest::keyClick(&box_, Qt::Key_A);
  watch_.glance();
  watch_.glance();
  EXPECT_EQ(asked_, 1);
  EXPECT_TRUE(watch_.changed());
}

TEST_F(ChangeWatchTest, WhereTheAnswerTakesLongItIsAskedForOnlyWhereItMatters) {
  answerTakes_ = 60;
  answer_ = false;
  EXPECT_FALSE(watch_.ask()) << "this is how it learns";
  QTest::keyClick(&box_, Qt::Key_Left);
  EXPECT_FALSE(watch_.changed());
  QTest::keyClick(&box_, Qt::Key_A);
  EXPECT_TRUE(watch_.changed()) << "it may have changed, and nobody is kept waiting to know";
  watch_.glance();
  QTest::qWait(rested);
  EXPECT_EQ(asked_, 1);
  EXPECT_FALSE(watch_.ask());
  EXPECT_FALSE(watch_.changed());
}

TEST_F(ChangeWatchTest, WhatMayHaveEnteredSomething) {
  QTest::keyClick(&box_, Qt::Key_Left);
  QTest::keyClick(&box_, Qt::Key_Tab);
  QTest::keyClick(&box_, Qt::Key_C, Qt::ControlModifier);
  QTest::mouseClick(&box_, Qt::LeftButton);
  EXPECT_FALSE(watch_.entered());
  QTest::keyClick(&box_, Qt::Key_V, Qt::ControlModifier);
  EXPECT_TRUE(watch_.entered());
  watch_.settle(false);
  EXPECT_FALSE(watch_.entered());
  QTest::mouseClick(&button_, Qt::LeftButton);
  EXPECT_TRUE(watch_.entered());
  watch_.settle(false);
  QTest::keyClick(&box_, Qt::Key_Delete);
  EXPECT_TRUE(watch_.entered());
}

TEST_F(ChangeWatchTest, DialogsOfTheEditorBelongToIt) {
  QWidget dialog(&editor_, Qt::Dialog);
  QLineEdit inDialog(&dialog);
  QTest::keyClick(&inDialog, Qt::Key_A);
  EXPECT_TRUE(watch_.entered());
}

TEST_F(ChangeWatchTest, SettlingEndsTheWaiting) {
  QTest::keyClick(&box_, Qt::Key_A);
  watch_.settle(false);
  QTest::qWait(rested);
  EXPECT_EQ(asked_, 0);
  watch_.settle(true);
  EXPECT_TRUE(watch_.changed());
}

}  // namespace
}  // namespace mavCycEd::host
