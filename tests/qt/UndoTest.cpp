// Taking steps back: the keys wherever the keyboard is, and the actions for a host's menu.
#include <gmock/gmock.h>

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QListView>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTableView>
#include <QTest>
#include <QVBoxLayout>

#include "TestWindow.h"
#include "mavCycEd/ctlCycEd.h"

namespace mavCycEd::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const QString catalogue = QStringLiteral(R"(<LATESTKAM><ATOMS>
  <ATOM><AtomName>Aspirate</AtomName><Param>Volume;1;100;1;1;ul</Param><Param>Speed;1;100;50;1;None</Param></ATOM>
  <ATOM><AtomName>Home</AtomName></ATOM>
</ATOMS></LATESTKAM>)");

/// The control on a host's window, which has an action of its own on Ctrl+Z.
class Undo : public testing::Test {
 protected:
  Undo() {
    auto* const layout = new QVBoxLayout(&window);
    layout->addWidget(&hostsButton);
    layout->addWidget(&control);
    hostsAction.setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Z));
    QObject::connect(&hostsAction, &QAction::triggered, &window, [this] { ++hostsUndos; });
    window.addAction(&hostsAction);
    window.resize(900, 700);
    showActive(window);
    control.SetXMLStrings(catalogue, QString());
    auto& picker = widget<QComboBox>("cboAtom");
    picker.setFocus();
    QTest::keyClicks(&picker, QStringLiteral("A"));
  }

  template <typename Widget = QWidget>
  Widget& widget(const char* name) {
    auto* const found = control.findChild<Widget*>(QLatin1String(name));
    if (found == nullptr) throw std::runtime_error(std::string("no ") + name);
    return *found;
  }
  void insert() { QTest::mouseClick(&widget("cmdInset"), Qt::LeftButton); }
  int lineCount() { return widget<QListView>("lstAtomSequence").model()->rowCount(); }
  std::string description() { return widget<QPlainTextEdit>("txtCycleDescription").toPlainText().toStdString(); }
  void describe(const char* text) {
    auto& box = widget<QPlainTextEdit>("txtCycleDescription");
    box.setFocus();
    box.moveCursor(QTextCursor::End);
    QTest::keyClicks(&box, QLatin1String(text));
  }
  static void pressUndo() { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Z, Qt::ControlModifier); }
  static void pressRedo() { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Y, Qt::ControlModifier); }

  QWidget window;
  QPushButton hostsButton;
  QAction hostsAction;
  int hostsUndos = 0;
  ctlCycEd control;
};

TEST_F(Undo, KeysWorkWhereverTheKeyboardIsInTheControl) {
  for (const char* name :
       {"cboAtom", "GrdAtom", "lstAtomSequence", "cmdInset", "txtCycleDescription", "lstVariables"}) {
    insert();
    const int lines = lineCount();
    widget(name).setFocus();
    pressUndo();
    EXPECT_EQ(lineCount(), lines - 1) << name;
    pressRedo();
    EXPECT_EQ(lineCount(), lines) << name;
    pressUndo();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(lineCount(), lines) << name;
  }
  EXPECT_EQ(hostsUndos, 0);
}

TEST_F(Undo, KeysAreTheHostsOutsideOfTheControl) {
  insert();
  hostsButton.setFocus();
  pressUndo();
  EXPECT_EQ(hostsUndos, 1);
  EXPECT_EQ(lineCount(), 1);
}

TEST_F(Undo, KeysAreTheCellsWhileAValueIsTyped) {
  insert();
  QTableView& grid = widget<QTableView>("GrdAtom");
  grid.setFocus();
  QTest::keyClick(&grid, Qt::Key_Down);
  QTest::keyClicks(&grid, QStringLiteral("7"));
  auto* const line = qobject_cast<QLineEdit*>(QApplication::focusWidget());
  ASSERT_NE(line, nullptr);
  pressUndo();
  EXPECT_NE(line->text(), QStringLiteral("7"));
  EXPECT_EQ(lineCount(), 1);
  pressRedo();
  EXPECT_EQ(line->text(), QStringLiteral("7"));
  EXPECT_EQ(lineCount(), 1);
  EXPECT_EQ(hostsUndos, 0);
}

TEST_F(Undo, TheDescriptionHasNoHistoryBesideTheControls) {
  insert();
  describe("ab");
  EXPECT_EQ(control.undoAction()->text(), QStringLiteral("&Undo Change Description"));
  pressUndo();
  EXPECT_EQ(description(), "");
  EXPECT_EQ(lineCount(), 1);
  pressUndo();
  EXPECT_EQ(lineCount(), 0);
  pressRedo();
  pressRedo();
  EXPECT_EQ(description(), "ab");
}

TEST_F(Undo, APauseEndsAStretchOfTyping) {
  describe("a");
  QTest::qWait(1200);
  describe("b");
  pressUndo();
  EXPECT_EQ(description(), "a");
}

TEST_F(Undo, LeavingTheDescriptionEndsAStretchOfTyping) {
  describe("a");
  widget("lstVariables").setFocus();
  describe("b");
  pressUndo();
  EXPECT_EQ(description(), "a");
}

TEST_F(Undo, TheCaretStandsBehindWhatCameBack) {
  describe("one two three");
  widget("lstVariables").setFocus();
  auto& box = widget<QPlainTextEdit>("txtCycleDescription");
  box.setFocus();
  QTextCursor cursor = box.textCursor();
  cursor.setPosition(4);
  cursor.setPosition(7, QTextCursor::KeepAnchor);
  box.setTextCursor(cursor);
  QTest::keyClicks(&box, QStringLiteral("2"));
  EXPECT_EQ(description(), "one 2 three");
  pressUndo();
  EXPECT_EQ(description(), "one two three");
  EXPECT_EQ(box.textCursor().position(), 7);
}

TEST_F(Undo, TheActionsSayWhatTheyDoAndWhetherTheyCan) {
  QAction& undo = *control.undoAction();
  QAction& redo = *control.redoAction();
  EXPECT_FALSE(undo.isEnabled());
  EXPECT_FALSE(redo.isEnabled());
  EXPECT_EQ(undo.text(), QStringLiteral("&Undo"));
  insert();
  EXPECT_TRUE(undo.isEnabled());
  EXPECT_EQ(undo.text(), QStringLiteral("&Undo Insert"));
  undo.trigger();
  EXPECT_EQ(lineCount(), 0);
  EXPECT_FALSE(undo.isEnabled());
  EXPECT_EQ(redo.text(), QStringLiteral("&Redo Insert"));
  redo.trigger();
  EXPECT_EQ(lineCount(), 1);
  control.SetXMLStrings(catalogue, QString());
  EXPECT_FALSE(undo.isEnabled());
  EXPECT_FALSE(redo.isEnabled());
}

TEST_F(Undo, AnOpenCellStaysOpenWhileALineThatIsNotSelectedComesBack) {
  insert();
  describe("text");
  QTableView& grid = widget<QTableView>("GrdAtom");
  grid.setFocus();
  QTest::keyClicks(&grid, QStringLiteral("4"));
  QPointer<QWidget> line = QApplication::focusWidget();
  QTest::keyClicks(line, QStringLiteral("2"));
  control.undoAction()->trigger();
  EXPECT_EQ(description(), "");
  ASSERT_FALSE(line.isNull());
  EXPECT_EQ(QApplication::focusWidget(), line);
  EXPECT_EQ(qobject_cast<QLineEdit*>(line)->text(), QStringLiteral("42"));
}

}  // namespace
}  // namespace mavCycEd::test
