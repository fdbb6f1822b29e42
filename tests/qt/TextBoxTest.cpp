#include <gtest/gtest.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QMenu>
#include <QScrollBar>
#include <QTest>
#include <QTextBlock>
#include <memory>
#include <string>

#include "TestWindow.h"
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
  for (const char* text : {"caf\xC3\xA9", "non-breaking\xC2\xA0space", "a\xFF", "\xEF\xBF\xBC", "\uFEFFmarked", ""}) {
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

TYPED_TEST(AnyTextBox, LeavingForAnotherControlIsTold) {
  int left = 0;
  this->box.setEvents({.Change = {}, .LostFocus = [&left] { ++left; }});
  QLineEdit other(&this->window);
  other.show();
  for (const Qt::FocusReason reason : {Qt::PopupFocusReason, Qt::ActiveWindowFocusReason}) {
    QFocusEvent forAWhile(QEvent::FocusOut, reason);
    QCoreApplication::sendEvent(this->box.widget(), &forAWhile);
  }
  EXPECT_EQ(left, 0);
  showActive(this->window);
  this->box.widget()->setFocus();
  other.setFocus();
  EXPECT_EQ(left, 1);
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

TEST_F(TextBoxOfLines, HasNoUndoOfItsOwn) {
  class Around : public QWidget {
   public:
    int keys = 0;

   protected:
    void keyPressEvent(QKeyEvent* event) override { keys += event->key() == Qt::Key_Z ? 1 : 0; }
  } around;
  qt::QtTextBox inside("inside", &around);
  inside.setText("a");
  QTest::keyClicks(inside.widget(), "b");
  EXPECT_FALSE(inside.widget()->document()->isUndoAvailable());
  QKeyEvent claimed(QEvent::ShortcutOverride, Qt::Key_Z, Qt::ControlModifier);
  QCoreApplication::sendEvent(inside.widget(), &claimed);
  EXPECT_FALSE(claimed.isAccepted()) << "left to whoever has a meaning for it";
  QTest::keyClick(inside.widget(), Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(inside.text(), "ba");
  EXPECT_EQ(around.keys, 1);
  const std::unique_ptr<QMenu> menu(inside.widget()->createStandardContextMenu());
  EXPECT_FALSE(menu->actions().first()->isEnabled()) << "Undo";
}

TEST_F(TextBoxOfLines, AnotherTextKeepsTheChangeInView) {
  std::string lines;
  for (int i = 0; i < 200; ++i) lines += "line " + std::to_string(i) + "\r\n";
  box.widget()->resize(200, 100);
  box.setText(lines);
  EXPECT_EQ(box.widget()->textCursor().position(), 0) << "another text is shown from its start";
  std::string changed = lines;
  const std::size_t place = changed.find("line 150") + 5;
  changed.insert(place, "\u00E4");
  box.setText(changed);
  EXPECT_EQ(box.widget()->textCursor().block().text(), QStringLiteral("line \u00E4150"));
  EXPECT_EQ(box.widget()->textCursor().positionInBlock(), 6);
  EXPECT_TRUE(box.widget()->viewport()->rect().intersects(box.widget()->cursorRect()));
  EXPECT_GT(box.widget()->verticalScrollBar()->value(), 100);
}

TEST_F(TextBoxOfLines, LoadedCharactersThatTypedOnesWouldEndALineStay) {
  const std::string loaded = "a\u2028b\u2029c\uFDD0d\uFDD1e";
  box.setText(loaded);
  EXPECT_EQ(box.text(), loaded);
  QTest::keyClick(box.widget(), Qt::Key_End, Qt::ControlModifier);
  QTest::keyClicks(box.widget(), "f");
  EXPECT_EQ(box.text(), "a\r\nb\r\nc\r\nd\r\nef") << "what a person edits has lines";
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
