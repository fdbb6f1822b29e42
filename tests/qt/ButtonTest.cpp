#include <gtest/gtest.h>

#include <QPointer>
#include <QTest>

#include "TestWindow.h"
#include "kit/CommandGate.h"
#include "qt/QtButton.h"
#include "qt/QtOptionButton.h"

namespace mavCycEd::test {
namespace {

TEST(Button, ItsAccessKeyActsAtOnce) {
  QWidget window;
  const kit::CommandGate gate;
  qt::QtButton button(gate, "button", &window);
  button.setCaption("In&sert ");
  int clicks = 0;
  button.setEvents({.Click = [&clicks] { ++clicks; }});
  showActive(window);
  QTest::keyClick(&window, Qt::Key_S, Qt::AltModifier);
  EXPECT_EQ(clicks, 1);
  constexpr int untilQtsOwnPressEnds = 200;
  QTest::qWait(untilQtsOwnPressEnds);
  EXPECT_EQ(clicks, 1);
  button.setEnabled(false);
  QTest::keyClick(&window, Qt::Key_S, Qt::AltModifier);
  EXPECT_EQ(clicks, 1);
}

TEST(Button, ItsAccessKeyMayDestroyIt) {
  const QPointer<QWidget> window(new QWidget);
  const kit::CommandGate gate;
  auto* const button = new qt::QtButton(gate, "button", window);
  button->setCaption("In&sert ");
  button->setEvents({.Click = [&] {
    delete button;
    delete window.data();
  }});
  showActive(*window);
  QTest::keyClick(window.data(), Qt::Key_S, Qt::AltModifier);
  EXPECT_TRUE(window.isNull());
}

TEST(OptionButton, ItsAccessKeyActsAtOnce) {
  QWidget window;
  const kit::CommandGate gate;
  qt::QtOptionButton number(gate, "number", &window);
  qt::QtOptionButton object(gate, "object", &window);
  number.setCaption("&Numeric Value");
  object.setCaption("&Object");
  number.select();
  int clicks = 0;
  object.setEvents({.Click = [&clicks] { ++clicks; }});
  showActive(window);
  QTest::keyClick(&window, Qt::Key_O, Qt::AltModifier);
  EXPECT_TRUE(object.value());
  EXPECT_EQ(clicks, 1);
}

}  // namespace
}  // namespace mavCycEd::test
