#include <gmock/gmock.h>

#include <QHeaderView>

#include "TestGrid.h"

namespace mavCycEd::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class GridMouse : public testing::Test, public TestGrid {
 protected:
  GridMouse() { logMouse = true; }

  void move(const QPoint& place) {
    QMouseEvent event(QEvent::MouseMove, place, view().viewport()->mapToGlobal(place), Qt::NoButton, Qt::NoButton,
                      Qt::NoModifier);
    QCoreApplication::sendEvent(view().viewport(), &event);
  }
  // The pointer comes to a part of an open editor.
  void moveTo(QWidget& part) {
    ASSERT_TRUE(part.hasMouseTracking());
    QMouseEvent event(QEvent::MouseMove, QPoint(), part.mapToGlobal(QPoint()), Qt::NoButton, Qt::NoButton,
                      Qt::NoModifier);
    QCoreApplication::sendEvent(&part, &event);
  }
  // Where the next row begins; a row ends with its grid line.
  int bottomOf(int row) { return view().rowViewportPosition(row - 1) + view().rowHeight(row - 1); }
  void askForMenu(QContextMenuEvent::Reason reason, const QPoint& place) {
    QContextMenuEvent event(reason, place, view().viewport()->mapToGlobal(place));
    QCoreApplication::sendEvent(view().viewport(), &event);
  }
};

TEST_F(GridMouse, RowsAreNineteenUnitsHighWhateverTheFont) {
  for (const int points : {8, 12, 30}) {
    QFont font = view().font();
    font.setPointSize(points);
    view().setFont(font);
    told();
    move(cell(1, 1).topLeft());
    move(QPoint(cell(1, 1).left(), bottomOf(1) - 1));
    move(cell(1, 2).topLeft());
    EXPECT_THAT(told(), ElementsAre("MouseMove 151,19", "MouseMove 151,37", "MouseMove 151,38")) << points;
  }
}

TEST_F(GridMouse, ValueColumnBeginsAt151WhereverTheDividerStands) {
  for (const int width : {40, 151, 230}) {
    view().setColumnWidth(0, width);
    told();
    move({0, 1});
    move({width - 1, 1});
    move({width, 1});
    move({width + 20, 1});
    const std::vector<std::string> places = told();
    ASSERT_EQ(places.size(), 4U);
    EXPECT_EQ(places[0], "MouseMove 0,19");
    EXPECT_LT(std::stoi(places[1].substr(10)), 151) << width;
    EXPECT_EQ(places[2], "MouseMove 151,19") << width;
    EXPECT_EQ(places[3], "MouseMove 171,19") << width;
  }
}

TEST_F(GridMouse, RowsGoOnBelowTheLastOne) {
  const QPoint below(view().columnWidth(0), bottomOf(3));
  move(below);
  move(below + QPoint(0, view().verticalHeader()->defaultSectionSize()));
  EXPECT_THAT(told(), ElementsAre("MouseMove 151,76", "MouseMove 151,95"));
}

TEST_F(GridMouse, TitlesAreRowZero) {
  QWidget* const titles = view().horizontalHeader()->viewport();
  QTest::mousePress(titles, Qt::LeftButton, {}, {view().columnWidth(0) + 9, 0});
  QTest::mouseRelease(titles, Qt::LeftButton, {}, {view().columnWidth(0) + 9, 0});
  QTest::mousePress(titles, Qt::RightButton, {}, {0, titles->height() - 1});
  EXPECT_THAT(told(), ElementsAre("MouseDown 0 160,0", "MouseDown 1 0,18"));
  EXPECT_EQ(grid.Row(), 1);
}

TEST_F(GridMouse, PressMakesTheRowCurrentBeforeItIsTold) {
  QTest::mousePress(view().viewport(), Qt::LeftButton, {}, QPoint(0, cell(0, 3).top()));
  QTest::mousePress(view().viewport(), Qt::MiddleButton, {}, QPoint(0, cell(0, 2).top()));
  QTest::mousePress(view().viewport(), Qt::LeftButton, {}, QPoint(0, cell(0, 2).top()));
  EXPECT_THAT(told(), ElementsAre("SelectionChange 3", "MouseDown 0 0,57", "SelectionChange 2", "MouseDown 2 0,38",
                                  "MouseDown 0 0,38"));
}

TEST_F(GridMouse, PressBelowTheRowsKeepsTheRow) {
  grid.setRow(2);
  QTest::mousePress(view().viewport(), Qt::LeftButton, {}, {0, bottomOf(3)});
  EXPECT_EQ(grid.Row(), 2);
  EXPECT_THAT(told(), ElementsAre("MouseDown 0 0,76"));
}

TEST_F(GridMouse, RightPressMakesTheRowCurrentBeforeTheMenuIsAskedFor) {
  const QPoint place = cell(1, 3).topLeft();
  QTest::mousePress(view().viewport(), Qt::RightButton, {}, place);
  askForMenu(QContextMenuEvent::Mouse, place);
  EXPECT_THAT(told(), ElementsAre("SelectionChange 3", "MouseDown 1 151,57", "ContextPopup 151,57"));
  EXPECT_EQ(editedRow(), 0);
  EXPECT_EQ(grid.view()->menuPlace(), view().viewport()->mapToGlobal(place));
}

TEST_F(GridMouse, MenuKeyTellsTheRowAndAsksAtItsValue) {
  grid.setRow(2);
  askForMenu(QContextMenuEvent::Keyboard, {});
  ASSERT_EQ(log.size(), 2U);
  EXPECT_EQ(log[0], "SelectionChange 2");
  int x = 0;
  int y = 0;
  ASSERT_EQ(std::sscanf(log[1].c_str(), "ContextPopup %d,%d", &x, &y), 2);
  EXPECT_GE(x, 151);
  EXPECT_EQ(y / 19, 2);
}

TEST_F(GridMouse, ShiftF10AsksLikeTheMenuKey) {
  view().setFocus();
  key(Qt::Key_F10, Qt::ShiftModifier);
  ASSERT_EQ(log.size(), 2U);
  EXPECT_EQ(log[1].substr(0, 12), "ContextPopup");
  told();
  click(1, 2);
  type("Tr");
  told();
  key(Qt::Key_F10, Qt::ShiftModifier);
  ASSERT_EQ(log.size(), 3U);
  EXPECT_EQ(log[0], "EndOfEdit 1 2 Source Tr");
  EXPECT_EQ(log[1], "SelectionChange 2");
  EXPECT_EQ(log[2].substr(0, 12), "ContextPopup");
}

TEST_F(GridMouse, MenuKeyBringsTheCurrentValueIntoView) {
  for (int row = 4; row <= 60; ++row) grid.InsertRow("Key" + std::to_string(row), "", true);
  grid.setRow(1);
  view().scrollToBottom();
  askForMenu(QContextMenuEvent::Keyboard, {});
  EXPECT_TRUE(view().viewport()->rect().contains(view().viewport()->mapFromGlobal(view().menuPlace())));
}

TEST_F(GridMouse, MenuKeyInAnEditorAsksForItsRow) {
  click(1, 3);
  grid.setRow(1);
  told();
  askForMenu(QContextMenuEvent::Keyboard, {});
  ASSERT_EQ(log.size(), 2U);
  EXPECT_EQ(log[0], "SelectionChange 3");
  EXPECT_EQ(editedRow(), 0);
}

TEST_F(GridMouse, PointerOverAnOpenEditorIsOverTheGrid) {
  click(1, 1);
  told();
  moveTo(*editor(1));
  EXPECT_THAT(told(), ElementsAre("MouseMove 151,19"));
  click(1, 2);
  told();
  moveTo(*editor(2));
  EXPECT_THAT(told(), ElementsAre("MouseMove 151,38"));
  QLineEdit& line = qt::lineOf(*editor(2));
  EXPECT_TRUE(line.hasMouseTracking());
  moveTo(line);
  ASSERT_EQ(log.size(), 1U);
  move(line.mapTo(view().viewport(), QPoint()));
  EXPECT_EQ(log[0], log[1]);
}

TEST_F(GridMouse, PressOnAnOpenEditorIsAPressOnTheGrid) {
  click(1, 3);
  told();
  grid.setRow(1);
  const QPoint place(20, 0);
  QTest::mousePress(editor(3), Qt::LeftButton, {}, place);
  QTest::mouseRelease(editor(3), Qt::LeftButton, {}, place);
  EXPECT_THAT(told(), ElementsAre("SelectionChange 3", "MouseDown 0 171,57"));
  EXPECT_EQ(editedRow(), 3);
  QTest::mouseDClick(editor(3), Qt::LeftButton, {}, place);
  QTest::mouseRelease(editor(3), Qt::LeftButton, {}, place);
  EXPECT_THAT(told(), ElementsAre("MouseDown 0 171,57"));
  EXPECT_EQ(editedRow(), 3);
}

TEST_F(GridMouse, OtherButtonsOnAnOpenEditorAreToldOnceToo) {
  for (const int row : {1, 2}) {
    click(1, row);
    told();
    QLineEdit& line = qt::lineOf(*editor(row));
    QTest::mouseClick(&line, Qt::RightButton, {}, {1, 1});
    QTest::mouseClick(&line, Qt::MiddleButton, {}, {1, 1});
    ASSERT_EQ(log.size(), 2U) << row;
    EXPECT_EQ(log[0].substr(0, 11), "MouseDown 1");
    EXPECT_EQ(log[1].substr(0, 11), "MouseDown 2");
  }
}

TEST_F(GridMouse, PressOnTheArrowOfAnOpenEditorIsToldOnce) {
  click(1, 2);
  told();
  QWidget& combo = *editor(2);
  QTest::mouseClick(&combo, Qt::LeftButton, {}, {combo.width() - 4, combo.height() / 2});
  ASSERT_EQ(log.size(), 1U);
  EXPECT_EQ(log[0].substr(0, 11), "MouseDown 0");
  EXPECT_EQ(editedRow(), 2);
}

TEST_F(GridMouse, AnswerToAPressOnTheEditorMayCloseIt) {
  click(1, 1);
  platform::ValueListEvents closing;
  closing.MouseDown = [this](platform::MouseButton, int, int) { grid.DeleteRow(1); };
  grid.setEvents(closing);
  QTest::mousePress(editor(1), Qt::LeftButton, {}, {1, 1});
  EXPECT_EQ(editedRow(), 0);
  EXPECT_EQ(grid.RowCount(), 3);
}

TEST_F(GridMouse, RightClickOnAnOpenEditorAsksForTheMenuOfTheGrid) {
  logMouse = false;
  click(1, 1);
  type("4");
  told();
  QContextMenuEvent event(QContextMenuEvent::Mouse, {3, 3}, editor(1)->mapToGlobal(QPoint(3, 3)));
  QCoreApplication::sendEvent(editor(1), &event);
  ASSERT_EQ(log.size(), 2U);
  EXPECT_EQ(log[0], "EndOfEdit 1 1 Volume 4");
  EXPECT_EQ(log[1].substr(0, 12), "ContextPopup");
  EXPECT_EQ(editedRow(), 0);
}

TEST_F(GridMouse, ScrolledRowsKeepTheirUnits) {
  for (int row = 4; row <= 60; ++row) grid.InsertRow("Key" + std::to_string(row), "", true);
  view().scrollToBottom();
  told();
  move(cell(0, 60).topLeft());
  EXPECT_THAT(told(), ElementsAre("MouseMove 0,1140"));
}

TEST_F(GridMouse, PressIsOnTheRowUnderThePointerAlsoWhenTheEditedOneIsOutOfView) {
  for (int row = 4; row <= 60; ++row) grid.InsertRow("Key" + std::to_string(row), "", true);
  logMouse = false;
  for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton}) {
    grid.focusValue(1);
    view().scrollToBottom();
    told();
    click(1, 60, button);
    EXPECT_THAT(told(), ElementsAre("SelectionChange 60"));
    EXPECT_EQ(editedRow(), button == Qt::LeftButton ? 60 : 0);
  }
}

TEST_F(GridMouse, ToolTipIsTheWholeGrids) {
  grid.setToolTipText("Range: 1 to 10");
  EXPECT_EQ(view().toolTip(), "Range: 1 to 10");
  EXPECT_EQ(grid.toolTipText(), "Range: 1 to 10");
  grid.setToolTipText("<b>raw</b>");
  EXPECT_EQ(grid.toolTipText(), "<b>raw</b>");
  EXPECT_NE(view().toolTip(), "<b>raw</b>");
}

}  // namespace
}  // namespace mavCycEd::test
