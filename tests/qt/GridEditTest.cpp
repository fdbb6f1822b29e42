#include <gmock/gmock.h>

#include <QAbstractItemView>
#include <QClipboard>
#include <QComboBox>
#include <QMessageBox>
#include <QTimer>

#include "TestGrid.h"
#include "qt/QtMessageBox.h"

namespace mavCycEd::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class GridEdit : public testing::Test, public TestGrid {};

TEST_F(GridEdit, ClickOnAValueOpensTheEditorWithEverythingSelected) {
  click(1, 1);
  EXPECT_EQ(editedRow(), 1);
  type("25");
  EXPECT_EQ(value(1), "25");
  EXPECT_THAT(told(), ElementsAre("SetEditText 1 1 2", "SetEditText 1 1 25"));
}

TEST_F(GridEdit, ClickOnAKeyOpensNoEditor) {
  click(0, 3);
  EXPECT_EQ(editedRow(), 0);
  EXPECT_EQ(grid.Row(), 3);
}

TEST_F(GridEdit, EveryKeystrokeIsInTheRowsAtOnce) {
  click(1, 3);
  told();
  type("5");
  EXPECT_EQ(value(3), "5");
  key(Qt::Key_Backspace);
  EXPECT_EQ(value(3), "");
  EXPECT_THAT(told(), ElementsAre("SetEditText 1 3 5", "SetEditText 1 3 "));
}

TEST_F(GridEdit, TypingOpensTheEditorAndReplacesTheValue) {
  view().setFocus();
  type("7");
  EXPECT_EQ(editedRow(), 1);
  EXPECT_EQ(value(1), "7");
}

TEST_F(GridEdit, DeleteKeyClearsTheValue) {
  view().setFocus();
  key(Qt::Key_Delete);
  EXPECT_EQ(value(1), "");
  EXPECT_THAT(told(), ElementsAre("SetEditText 1 1 "));
}

TEST_F(GridEdit, ComposedTextOpensTheEditorToo) {
  view().setFocus();
  QInputMethodEvent composed;
  composed.setCommitString(QStringLiteral("µ"));
  QCoreApplication::sendEvent(&view(), &composed);
  EXPECT_EQ(value(1), "µ");
}

TEST_F(GridEdit, F2AndEnterOpenTheEditor) {
  for (const Qt::Key opening : {Qt::Key_F2, Qt::Key_Return, Qt::Key_Enter}) {
    view().setFocus();
    key(opening);
    EXPECT_EQ(editedRow(), 1);
    EXPECT_EQ(qt::lineOf(*editor(1)).selectedText(), "10");
    key(Qt::Key_Escape);
    EXPECT_EQ(editedRow(), 0);
  }
  EXPECT_THAT(told(), IsEmpty());
}

TEST_F(GridEdit, EscapeRestoresTheValueAndTellsNothing) {
  click(1, 1);
  type("99");
  told();
  key(Qt::Key_Escape);
  EXPECT_EQ(value(1), "10");
  EXPECT_EQ(editedRow(), 0);
  EXPECT_TRUE(view().hasFocus());
  EXPECT_THAT(told(), IsEmpty());
}

TEST_F(GridEdit, TabGoesFromValueToValueAndThenOutOfTheGrid) {
  click(1, 1);
  type("3");
  key(Qt::Key_Tab);
  EXPECT_EQ(editedRow(), 2);
  EXPECT_THAT(told(), ElementsAre("SetEditText 1 1 3", "EndOfEdit 1 1 Volume 3", "SelectionChange 2"));
  key(Qt::Key_Tab);
  EXPECT_EQ(editedRow(), 3);
  key(Qt::Key_Tab);
  EXPECT_EQ(editedRow(), 0);
  EXPECT_TRUE(after.widget()->hasFocus());
}

TEST_F(GridEdit, BacktabGoesBackAndThenOutOfTheGrid) {
  click(1, 2);
  key(Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_EQ(editedRow(), 1);
  key(Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_EQ(editedRow(), 0);
  EXPECT_TRUE(before.widget()->hasFocus());
}

TEST_F(GridEdit, TabOfTheGridItselfLeavesIt) {
  view().setFocus();
  key(Qt::Key_Tab);
  EXPECT_TRUE(after.widget()->hasFocus());
}

TEST_F(GridEdit, EnterGoesToTheNextValueAndStaysInTheLastRow) {
  click(1, 2);
  key(Qt::Key_Return);
  EXPECT_EQ(editedRow(), 3);
  key(Qt::Key_Return);
  EXPECT_EQ(editedRow(), 0);
  EXPECT_EQ(grid.Row(), 3);
  EXPECT_TRUE(view().hasFocus());
}

TEST_F(GridEdit, ArrowsLeadToTheNeighbouringValuesAndStopAtTheEnds) {
  click(1, 1);
  key(Qt::Key_Down);
  EXPECT_EQ(editedRow(), 2);
  key(Qt::Key_Down);
  key(Qt::Key_Down);
  EXPECT_EQ(editedRow(), 3);
  key(Qt::Key_Up);
  key(Qt::Key_Up);
  key(Qt::Key_Up);
  EXPECT_EQ(editedRow(), 1);
  key(Qt::Key_PageDown);
  EXPECT_EQ(editedRow(), 3);
  key(Qt::Key_PageUp);
  EXPECT_EQ(editedRow(), 1);
}

TEST_F(GridEdit, EndsWhenTheFocusLeaves) {
  click(1, 1);
  type("4");
  told();
  after.widget()->setFocus();
  EXPECT_EQ(editedRow(), 0);
  EXPECT_EQ(value(1), "4");
  EXPECT_THAT(told(), ElementsAre("EndOfEdit 1 1 Volume 4"));
}

TEST_F(GridEdit, EndsWithoutAWordWhenNothingWasTyped) {
  click(1, 1);
  after.widget()->setFocus();
  EXPECT_EQ(editedRow(), 0);
  EXPECT_THAT(told(), IsEmpty());
}

TEST_F(GridEdit, EndsOnceBeforeTheClickOfAButton) {
  click(1, 1);
  type("4");
  told();
  QTest::mouseClick(after.widget(), Qt::LeftButton);
  EXPECT_THAT(told(), ElementsAre("EndOfEdit 1 1 Volume 4", "Click after"));
}

TEST_F(GridEdit, EndsOnceBeforeTheAccessKeyOfAButton) {
  click(1, 1);
  type("4");
  told();
  // An access key presses the button for a moment and leaves the focus where it is.
  QTest::keyClick(&window, Qt::Key_A, Qt::AltModifier);
  ASSERT_TRUE(QTest::qWaitFor([this] { return !log.empty(); }));
  EXPECT_THAT(told(), ElementsAre("EndOfEdit 1 1 Volume 4", "Click after"));
  EXPECT_EQ(value(1), "4");
}

TEST_F(GridEdit, GoesOnWhileAnotherWindowIsInFront) {
  click(1, 1);
  type("4");
  told();
  QWidget other;
  showActive(other);
  EXPECT_EQ(editedRow(), 1);
  EXPECT_THAT(told(), IsEmpty());
}

TEST_F(GridEdit, WriteIntoTheEditedCellGoesOnWithTheNewText) {
  click(1, 1);
  type("12");
  told();
  grid.setValue(1, 1, "1");
  EXPECT_EQ(editedRow(), 1);
  EXPECT_EQ(editorText(), "1");
  EXPECT_THAT(told(), ElementsAre("SetEditText 1 1 1"));
  type("5");
  EXPECT_EQ(value(1), "15");
}

TEST_F(GridEdit, TypingGoesOnWhereACharacterHadToGo) {
  platform::ValueListEvents filtering = events();
  filtering.SetEditText = [&](int column, int row, const std::string& value) {
    std::string cleaned = value;
    if (std::erase(cleaned, ';') > 0) grid.setValue(column, row, cleaned);
  };
  grid.setEvents(filtering);
  click(1, 1);
  type("1234");
  key(Qt::Key_Left);
  key(Qt::Key_Left);
  type(";5");
  EXPECT_EQ(value(1), "12534");
  QGuiApplication::clipboard()->setText(QStringLiteral("a;b;"));
  key(Qt::Key_V, Qt::ControlModifier);
  type("c");
  EXPECT_EQ(value(1), "125abc34");
  key(Qt::Key_End);
  type(";6");
  EXPECT_EQ(value(1), "125abc346");
}

TEST_F(GridEdit, WriteIntoAnyOtherCellTellsNothing) {
  click(1, 1);
  grid.setValue(1, 2, "Buffer");
  grid.setValue(0, 1, "Amount");
  grid.setValue(1, 9, "nowhere");
  EXPECT_THAT(told(), IsEmpty());
  EXPECT_EQ(value(2), "Buffer");
  EXPECT_EQ(grid.cellText(0, 1), "Amount");
}

TEST_F(GridEdit, SurvivesAMessageBoxThatCleansTheText) {
  qt::QtMessageBox messages(&window);
  platform::ValueListEvents filtering = events();
  filtering.SetEditText = [&](int column, int row, const std::string& value) {
    log.push_back(value);
    if (value.find(';') == std::string::npos) return;
    QTimer::singleShot(0, [] { QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Return); });
    messages.messageBox(0, "No semicolons", "Grid", platform::Information);
    grid.setValue(column, row, "1");
  };
  grid.setEvents(filtering);
  click(1, 1);
  type("1;");
  EXPECT_EQ(editedRow(), 1);
  EXPECT_EQ(editorText(), "1");
  EXPECT_THAT(told(), ElementsAre("1", "1;", "1"));
  showActive(window);
  EXPECT_EQ(QApplication::focusWidget(), editor(1));
  type("2");
  EXPECT_EQ(value(1), "12");
}

TEST_F(GridEdit, DeletedRowClosesItsEditorSilently) {
  click(1, 1);
  type("4");
  told();
  grid.DeleteRow(1);
  EXPECT_EQ(editedRow(), 0);
  EXPECT_EQ(grid.RowCount(), 3);
  EXPECT_THAT(told(), IsEmpty());
}

TEST_F(GridEdit, RowsAboveMayComeAndGo) {
  click(1, 3);
  told();
  grid.DeleteRow(1);
  EXPECT_EQ(editedRow(), 2);
  grid.InsertRow("First", "", false);
  EXPECT_EQ(editedRow(), 3);
  type("8");
  EXPECT_EQ(value(3), "8");
}

TEST_F(GridEdit, CodeThatMovesTheRowLeavesTheEditOpen) {
  click(1, 3);
  told();
  grid.setRow(1);
  EXPECT_EQ(grid.Row(), 1);
  EXPECT_EQ(editedRow(), 3);
  EXPECT_THAT(told(), IsEmpty());
  type("6");
  EXPECT_THAT(told(), ElementsAre("SelectionChange 3", "SetEditText 1 3 6"));
}

TEST_F(GridEdit, FocusedValueIsReadyToBeTypedOver) {
  told();
  grid.focusValue(2);
  EXPECT_EQ(editedRow(), 2);
  EXPECT_EQ(QApplication::focusWidget(), editor(2));
  EXPECT_EQ(qt::lineOf(*editor(2)).selectedText(), "Tray1");
  grid.focusValue(9);
  EXPECT_EQ(editedRow(), 2);
  EXPECT_THAT(told(), IsEmpty());
}

TEST_F(GridEdit, PastedLinesBecomeOne) {
  QGuiApplication::clipboard()->setText(QStringLiteral("1\r\n2\t3"));
  view().setFocus();
  key(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(value(1), "1 2 3");
  key(Qt::Key_Home);
  key(Qt::Key_V, Qt::ControlModifier);
  type("4");
  EXPECT_EQ(value(1), "1 2 341 2 3");
}

TEST_F(GridEdit, CopyTakesTheCurrentValue) {
  view().setFocus();
  key(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QGuiApplication::clipboard()->text(), "10");
}

TEST_F(GridEdit, HandlerMayDestroyTheWholeScreen) {
  const QPointer<QWidget> owner(new QWidget);
  auto* const list = new qt::QtValueList("grid", owner);
  list->InsertRow("Volume", "1", true);
  owner->show();
  platform::ValueListEvents destroying;
  destroying.MouseDown = [&](platform::MouseButton, int, int) {
    delete list;
    delete owner.data();
  };
  list->setEvents(destroying);
  QTest::mousePress(list->view()->viewport(), Qt::LeftButton, {}, {5, 5});
  EXPECT_TRUE(owner.isNull());
}

class GridPickList : public testing::Test, public TestGrid {
 protected:
  QComboBox* combo() { return qobject_cast<QComboBox*>(editor(2)); }
  bool isListOpen() { return combo() != nullptr && combo()->view()->isVisible(); }
};

TEST_F(GridPickList, PickTellsTheEndOfTheEditOnly) {
  click(1, 2);
  told();
  ASSERT_NE(combo(), nullptr);
  combo()->showPopup();
  EXPECT_EQ(combo()->view()->currentIndex().data(), "Tray1");
  combo()->view()->setCurrentIndex(combo()->model()->index(2, 0));
  QTest::keyClick(combo()->view(), Qt::Key_Return);
  EXPECT_EQ(value(2), "Buffer");
  EXPECT_THAT(told(), ElementsAre("EndOfEdit 1 2 Source Buffer"));
}

TEST_F(GridPickList, KeysLeadOnFromAPickedItem) {
  click(1, 2);
  key(Qt::Key_F4);
  key(Qt::Key_Down);
  key(Qt::Key_Return);
  EXPECT_EQ(value(2), "Tray2");
  ASSERT_EQ(editedRow(), 2);
  EXPECT_EQ(qt::lineOf(*editor(2)).selectedText(), "Tray2");
  told();
  key(Qt::Key_Tab);
  EXPECT_EQ(editedRow(), 3);
  EXPECT_THAT(told(), ElementsAre("SelectionChange 3"));
}

TEST_F(GridPickList, PickEndsTheEditWhenItsAnswerLeadsElsewhere) {
  platform::ValueListEvents answering;
  answering.EndOfEdit = [this](int, int, const std::string&, const std::string&) { grid.setRow(1); };
  grid.setEvents(answering);
  click(1, 2);
  key(Qt::Key_F4);
  key(Qt::Key_Return);
  EXPECT_EQ(editedRow(), 0);
  EXPECT_EQ(grid.Row(), 1);
}

TEST_F(GridPickList, TypedTextMayBeNoItem) {
  click(1, 2);
  told();
  type("Tr");
  EXPECT_EQ(value(2), "Tr");  // nothing completes it
  key(Qt::Key_Tab);
  EXPECT_THAT(told(),
              ElementsAre("SetEditText 1 2 T", "SetEditText 1 2 Tr", "EndOfEdit 1 2 Source Tr", "SelectionChange 3"));
}

TEST_F(GridPickList, KeysOpenTheList) {
  grid.setRow(2);
  view().setFocus();
  key(Qt::Key_Down, Qt::AltModifier);
  EXPECT_TRUE(isListOpen());
  combo()->hidePopup();
  EXPECT_EQ(editedRow(), 2);
  key(Qt::Key_F4);
  EXPECT_TRUE(isListOpen());
}

TEST_F(GridPickList, ClickOnTheArrowOpensTheList) {
  const QPoint arrow(cell(1, 2).right() - 4, cell(1, 2).center().y());
  QTest::mouseClick(view().viewport(), Qt::LeftButton, {}, arrow);
  EXPECT_TRUE(isListOpen());
  EXPECT_THAT(told(), ElementsAre("SelectionChange 2"));
}

TEST_F(GridPickList, ClosedListLeavesTheEditAndTheText) {
  click(1, 2);
  type("Buf");
  combo()->showPopup();
  QTest::keyClick(combo()->view(), Qt::Key_Escape);
  EXPECT_EQ(editedRow(), 2);
  EXPECT_EQ(editorText(), "Buf");
}

TEST_F(GridPickList, WheelChangesNothing) {
  click(1, 2);
  QWheelEvent wheel(QPointF(5, 5), combo()->mapToGlobal(QPointF(5, 5)), {}, QPoint(0, -120), Qt::NoButton,
                    Qt::NoModifier, Qt::NoScrollPhase, false);
  QCoreApplication::sendEvent(combo(), &wheel);
  EXPECT_EQ(value(2), "Tray1");
}

}  // namespace
}  // namespace mavCycEd::test
