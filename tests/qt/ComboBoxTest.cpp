#include <gmock/gmock.h>

#include <QAbstractItemView>
#include <QClipboard>
#include <QGuiApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QVBoxLayout>

#include "TestWindow.h"
#include "platform/RunTimeError.h"
#include "qt/QtComboBox.h"

namespace mavCycEd::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ComboBox : public testing::TestWithParam<qt::QtComboBox::Mode> {
 protected:
  ComboBox() {
    auto* const layout = new QVBoxLayout(&window);
    layout->addWidget(combo.widget());
    layout->addWidget(&other);
    combo.setEvents({.Click = [this] { log.push_back("Click " + combo.text()); },
                     .LostFocus = [this] { log.push_back("LostFocus"); }});
    combo.assign({"Aspirate", "Dispense", "Dispense"});
    showActive(window);
    combo.widget()->setFocus();
  }

  void pick(int index) {
    combo.widget()->showPopup();
    combo.widget()->view()->setCurrentIndex(combo.widget()->model()->index(index, 0));
    QTest::keyClick(combo.widget()->view(), Qt::Key_Return);
  }
  // What the widget itself shows.
  QString shown() {
    QComboBox& widget = *combo.widget();
    return widget.isEditable() || widget.currentIndex() >= 0 ? widget.currentText() : widget.placeholderText();
  }
  std::vector<std::string> told() { return std::exchange(log, {}); }

  kit::CommandGate gate;
  QWidget window;
  QPushButton other;
  qt::QtComboBox combo{gate, GetParam(), "combo", &window};
  std::vector<std::string> log;
};

INSTANTIATE_TEST_SUITE_P(Both, ComboBox,
                         testing::Values(qt::QtComboBox::Mode::PickOnly, qt::QtComboBox::Mode::TypedToo));

TEST_P(ComboBox, HasNoSelectionAtFirst) {
  EXPECT_EQ(combo.index(), -1);
  EXPECT_EQ(combo.text(), "");
  EXPECT_EQ(shown(), "");
  EXPECT_THAT(told(), IsEmpty());
}

TEST_P(ComboBox, PickIsToldAlsoOfTheSelectedItem) {
  pick(1);
  EXPECT_EQ(combo.index(), 1);
  pick(1);
  pick(2);
  EXPECT_EQ(combo.index(), 2);
  EXPECT_THAT(told(), ElementsAre("Click Dispense", "Click Dispense", "Click Dispense"));
}

TEST_P(ComboBox, CodeTellsOneClickEachTime) {
  combo.setIndex(0);
  combo.setIndex(0);
  combo.setIndex(-1);
  EXPECT_EQ(combo.text(), "");
  EXPECT_EQ(shown(), "");
  EXPECT_THAT(told(), ElementsAre("Click Aspirate", "Click Aspirate", "Click "));
  EXPECT_THROW(combo.setIndex(3), RunTimeError);
  EXPECT_THROW(combo.itemText(3), RunTimeError);
}

TEST_P(ComboBox, TextSelectsTheFirstItemThatItIs) {
  combo.setText("Dispense");
  EXPECT_EQ(combo.index(), 1);
  combo.setText("Wash");
  EXPECT_EQ(combo.index(), -1);
  EXPECT_EQ(combo.text(), "Wash");
  EXPECT_EQ(shown(), "Wash");
  combo.setText("dispense");
  EXPECT_EQ(combo.index(), -1);
  EXPECT_THAT(told(), ElementsAre("Click Dispense", "Click Wash", "Click dispense"));
}

TEST_P(ComboBox, NewItemsLeaveSelectionAndTextAlone) {
  combo.clear();
  EXPECT_EQ(combo.itemCount(), 0);
  combo.setText("Wash");
  told();
  combo.addItem("Wait");
  EXPECT_EQ(combo.index(), -1);
  EXPECT_EQ(combo.text(), "Wash");
  EXPECT_EQ(shown(), "Wash");
  combo.setIndex(0);
  combo.addItem("Wash");
  EXPECT_EQ(combo.index(), 0);
  EXPECT_EQ(shown(), "Wait");
  combo.setText("Wash");
  EXPECT_EQ(combo.index(), 1);
}

TEST_P(ComboBox, AssigningForgetsSelectionAndText) {
  combo.setIndex(1);
  told();
  combo.assign({"x"});
  EXPECT_EQ(combo.index(), -1);
  EXPECT_EQ(combo.text(), "");
  EXPECT_EQ(shown(), "");
  EXPECT_THAT(told(), IsEmpty());
}

TEST_P(ComboBox, WheelChangesNothing) {
  combo.setIndex(0);
  told();
  QWheelEvent wheel(QPointF(5, 5), combo.widget()->mapToGlobal(QPointF(5, 5)), {}, QPoint(0, -120), Qt::NoButton,
                    Qt::NoModifier, Qt::NoScrollPhase, false);
  QCoreApplication::sendEvent(combo.widget(), &wheel);
  EXPECT_EQ(combo.index(), 0);
  EXPECT_THAT(told(), IsEmpty());
}

TEST_P(ComboBox, OpenListIsNoLossOfTheFocus) {
  combo.widget()->showPopup();
  combo.widget()->hidePopup();
  EXPECT_THAT(told(), IsEmpty());
  other.setFocus();
  EXPECT_THAT(told(), ElementsAre("LostFocus"));
}

TEST_P(ComboBox, ListHasTwentyItemsAtMost) {
  std::vector<std::string> items(200, "Atom");
  combo.assign(std::move(items));
  combo.widget()->showPopup();
  const int height = combo.widget()->view()->sizeHintForRow(0);
  EXPECT_LT(combo.widget()->view()->height(), 22 * height);
}

class TypedComboBox : public ComboBox {};
INSTANTIATE_TEST_SUITE_P(Typed, TypedComboBox, testing::Values(qt::QtComboBox::Mode::TypedToo));

TEST_P(TypedComboBox, TypedTextIsToldByNobody) {
  QTest::keyClicks(combo.widget(), "ml");
  EXPECT_EQ(combo.text(), "ml");
  EXPECT_EQ(combo.index(), -1);
  EXPECT_THAT(told(), IsEmpty());
}

TEST_P(TypedComboBox, TypedTextMayBeAnItem) {
  QTest::keyClicks(combo.widget(), "Dispense");
  EXPECT_EQ(combo.text(), "Dispense");
  EXPECT_EQ(combo.index(), 1);
}

TEST_P(TypedComboBox, PastedLineEndsBecomeBlanks) {
  QGuiApplication::clipboard()->setText(QStringLiteral("per\r\nhour"));
  QTest::keyClick(combo.widget(), Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(combo.text(), "per hour");
  EXPECT_EQ(shown(), "per hour");
}

TEST_P(TypedComboBox, EnterAddsNoItemAndTakesNoSimilarOne) {
  QTest::keyClicks(combo.widget(), "dispense");
  QTest::keyClick(combo.widget(), Qt::Key_Return);
  EXPECT_EQ(combo.text(), "dispense");
  EXPECT_EQ(combo.itemCount(), 3);
  EXPECT_THAT(told(), IsEmpty());
}

TEST(PickOnlyComboBox, TypingAheadBeginsAnewBehindAnAccessKey) {
  QWidget window;
  const kit::CommandGate gate;
  qt::QtComboBox combo(gate, qt::QtComboBox::Mode::PickOnly, "combo", &window);
  combo.assign({"ASPIRATE", "WAIT", "WASH"});
  std::vector<std::string> picks;
  combo.setEvents({.Click = [&] { picks.push_back(combo.text()); }, .LostFocus = {}});
  showActive(window);
  combo.widget()->setFocus();
  QTest::keyClicks(combo.widget(), "was");
  EXPECT_THAT(picks, testing::ElementsAre("WAIT", "WASH"));
  QTest::keyClick(combo.widget(), Qt::Key_S, Qt::AltModifier);
  QTest::keyClicks(combo.widget(), "a");
  EXPECT_EQ(combo.text(), "ASPIRATE");
}

}  // namespace
}  // namespace mavCycEd::test
