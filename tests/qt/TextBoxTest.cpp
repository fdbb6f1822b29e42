#include <gtest/gtest.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QTest>

#include "qt/QtLineBox.h"
#include "qt/QtTextBox.h"

namespace mavCycEd::test {
namespace {

template <typename Box>
class AnyTextBox : public testing::Test {
 protected:
  AnyTextBox() {
    box.setEvents({.Change = [this] { ++changes; }, .LostFocus = {}});
    window.show();
    box.widget()->setFocus();
  }

  QWidget window;
  Box box{"box", &window};
  int changes = 0;
};

using Boxes = testing::Types<qt::QtTextBox, qt::QtLineBox>;
TYPED_TEST_SUITE(AnyTextBox, Boxes);

TYPED_TEST(AnyTextBox, CodeTellsNoChange) {
  this->box.setText("one");
  this->box.setText("");
  EXPECT_EQ(this->changes, 0);
}

TYPED_TEST(AnyTextBox, EveryEditOfTheUserIsAChange) {
  this->box.setText("ab");
  QTest::keyClick(this->box.widget(), Qt::Key_End);
  QTest::keyClicks(this->box.widget(), "cd");
  EXPECT_EQ(this->box.text(), "abcd");
  EXPECT_EQ(this->changes, 2);
  QTest::keyClick(this->box.widget(), Qt::Key_A, Qt::ControlModifier);
  QTest::keyClick(this->box.widget(), Qt::Key_Delete);
  EXPECT_EQ(this->box.text(), "");
  EXPECT_EQ(this->changes, 3);
  QTest::keyClick(this->box.widget(), Qt::Key_Delete);
  EXPECT_EQ(this->changes, 3);
}

TYPED_TEST(AnyTextBox, SetTextIsReadBackAsItWas) {
  for (const char* text : {"caf\xC3\xA9", "non-breaking\xC2\xA0space", "a\xFF", "\xEF\xBF\xBC", ""}) {
    this->box.setText(text);
    EXPECT_EQ(this->box.text(), text);
  }
}

TYPED_TEST(AnyTextBox, ComposedTextCountsWhenItIsEntered) {
  QInputMethodEvent composing(QStringLiteral("k"), {});
  QCoreApplication::sendEvent(this->box.widget(), &composing);
  EXPECT_EQ(this->changes, 0);
  EXPECT_EQ(this->box.text(), "");
  QInputMethodEvent entering;
  entering.setCommitString(QStringLiteral("か"));
  QCoreApplication::sendEvent(this->box.widget(), &entering);
  EXPECT_EQ(this->changes, 1);
  EXPECT_EQ(this->box.text(), "か");
}

TYPED_TEST(AnyTextBox, FocusAndSelectAllIsReadyToBeTypedOver) {
  this->box.setText("old");
  this->box.focusAndSelectAll();
  QTest::keyClicks(this->box.widget(), "n");
  EXPECT_EQ(this->box.text(), "n");
}

TYPED_TEST(AnyTextBox, EnabledIsTheBoxsOwnSetting) {
  this->window.setEnabled(false);
  EXPECT_TRUE(this->box.isEnabled());
  this->box.setEnabled(false);
  this->window.setEnabled(true);
  EXPECT_FALSE(this->box.isEnabled());
}

class TextBoxOfLines : public AnyTextBox<qt::QtTextBox> {};

TEST_F(TextBoxOfLines, LineEndsAreCarriageReturnAndLineFeed) {
  box.setText("a\nb\rc\r\nd");
  EXPECT_EQ(box.text(), "a\r\nb\r\nc\r\nd");
  QTest::keyClick(box.widget(), Qt::Key_End, Qt::ControlModifier);
  QTest::keyClick(box.widget(), Qt::Key_Return);
  QTest::keyClick(box.widget(), Qt::Key_Return, Qt::ShiftModifier);
  QTest::keyClicks(box.widget(), "e");
  EXPECT_EQ(box.text(), "a\r\nb\r\nc\r\nd\r\n\r\ne");
}

TEST_F(TextBoxOfLines, TypingKeepsNonBreakingBlanks) {
  box.setText("10\xC2\xA0ul");
  QTest::keyClick(box.widget(), Qt::Key_End);
  QTest::keyClicks(box.widget(), "!");
  EXPECT_EQ(box.text(), "10\xC2\xA0ul!");
}

TEST_F(TextBoxOfLines, UndoIsAnEditToo) {
  box.setText("a");
  QTest::keyClick(box.widget(), Qt::Key_End);
  QTest::keyClicks(box.widget(), "b");
  QTest::keyClick(box.widget(), Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(box.text(), "a");
  EXPECT_EQ(changes, 2);
}

TEST_F(TextBoxOfLines, TabLeavesTheBox) { EXPECT_TRUE(box.widget()->tabChangesFocus()); }

class TextBoxOfOneLine : public AnyTextBox<qt::QtLineBox> {};

TEST_F(TextBoxOfOneLine, PastedLineEndsBecomeBlanks) {
  box.setText("ab");
  QGuiApplication::clipboard()->setText(QStringLiteral("1\r\n2\t"));
  QTest::keyClick(box.widget(), Qt::Key_Home);
  QTest::keyClick(box.widget(), Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(box.text(), "1 2 ab");
  EXPECT_EQ(changes, 1);
  QTest::keyClicks(box.widget(), "3");
  EXPECT_EQ(box.text(), "1 2 3ab") << "behind what was pasted";
}

TEST_F(TextBoxOfOneLine, KeepsWhatIsSetUntilItIsEdited) {
  box.setText("a\nb");
  EXPECT_EQ(box.text(), "a\nb");
  QTest::keyClick(box.widget(), Qt::Key_End);
  QTest::keyClicks(box.widget(), "c");
  EXPECT_EQ(box.text(), "a bc");
}

TEST_F(TextBoxOfOneLine, HandlerMayWriteTheTextBack) {
  box.setEvents({.Change =
                     [this] {
                       ++changes;
                       box.setText("ab");
                       box.focusAndSelectAll();
                     },
                 .LostFocus = {}});
  QTest::keyClicks(box.widget(), "-");
  EXPECT_EQ(box.text(), "ab");
  EXPECT_EQ(changes, 1);
  QTest::keyClicks(box.widget(), "c");
  EXPECT_EQ(changes, 2);
}

}  // namespace
}  // namespace mavCycEd::test
