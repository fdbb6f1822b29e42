#include <gmock/gmock.h>

#include <QHeaderView>
#include <QScrollBar>

#include "TestGrid.h"

namespace mavCycEd::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class GridRows : public testing::Test, public TestGrid {
 protected:
  // The row that the screen shows as the current one.
  int shownRow() {
    const QModelIndexList rows = view().selectionModel()->selectedRows();
    return rows.isEmpty() ? 0 : rows.first().row() + 1;
  }
};

TEST_F(GridRows, FirstRowIsCurrentAndShown) {
  EXPECT_EQ(grid.RowCount(), 4);
  EXPECT_EQ(grid.Row(), 1);
  EXPECT_EQ(shownRow(), 1);
}

TEST_F(GridRows, CodeMovesTheRowInSilence) {
  grid.setRow(3);
  EXPECT_EQ(grid.Row(), 3);
  EXPECT_EQ(shownRow(), 3);
  grid.setRow(0);
  grid.setRow(4);
  grid.setRow(-1);
  EXPECT_EQ(grid.Row(), 3);
  EXPECT_EQ(editedRow(), 0);
  EXPECT_THAT(told(), IsEmpty());
}

TEST_F(GridRows, DeletedRowsLeaveTheCurrentOneInPlace) {
  grid.setRow(2);
  grid.DeleteRow(1);
  EXPECT_EQ(grid.Row(), 1);
  EXPECT_EQ(shownRow(), 1);
  EXPECT_EQ(grid.cellText(0, 1), "Source");
  grid.setRow(2);
  grid.DeleteRow(2);
  EXPECT_EQ(grid.Row(), 1);
  EXPECT_EQ(shownRow(), 1);
  grid.DeleteRow(7);
  grid.DeleteRow(0);
  grid.DeleteRow(1);
  EXPECT_EQ(grid.RowCount(), 1);
  EXPECT_EQ(grid.Row(), 0);
  EXPECT_EQ(shownRow(), 0);
  EXPECT_THAT(told(), IsEmpty());
}

TEST_F(GridRows, InsertedFirstRowLeavesTheCurrentEntryCurrent) {
  grid.setRow(2);
  grid.InsertRow("New", "1", false);
  EXPECT_EQ(grid.cellText(0, 1), "New");
  EXPECT_EQ(grid.Row(), 3);
  EXPECT_EQ(shownRow(), 3);
}

TEST_F(GridRows, BothColumnsAreInViewHoweverNarrowTheGrid) {
  for (const int width : {300, view().minimumSizeHint().width(), 100}) {
    view().setFixedWidth(width);
    QCoreApplication::processEvents();
    EXPECT_EQ(view().horizontalHeader()->length(), view().viewport()->width()) << width;
    EXPECT_GE(view().columnWidth(0), view().viewport()->width() / 3) << width;
    EXPECT_GE(view().columnWidth(1), view().viewport()->width() / 3) << width;
  }
}

TEST_F(GridRows, ThreeRowsAreInViewHoweverLowTheGrid) {
  for (const int points : {6, 9, 30}) {
    QFont font = view().font();
    font.setPointSize(points);
    view().setFont(font);
    view().setFixedHeight(view().minimumSizeHint().height());
    QCoreApplication::processEvents();
    EXPECT_FALSE(view().verticalScrollBar()->isVisible()) << points;
  }
}

TEST_F(GridRows, CellsAndTitles) {
  grid.setColumnTitle(0, "Parameter");
  grid.setColumnTitle(1, "Value");
  EXPECT_EQ(grid.cellText(0, 0), "Parameter");
  EXPECT_EQ(grid.cellText(1, 0), "Value");
  EXPECT_EQ(grid.cellText(2, 0), "");
  EXPECT_EQ(grid.cellText(1, 4), "");
  EXPECT_EQ(grid.cellText(1, -1), "");
  EXPECT_EQ(view().model()->headerData(1, Qt::Horizontal), "Value");
}

TEST_F(GridRows, ArrowKeysTellTheNewRow) {
  view().setFocus();
  key(Qt::Key_Down);
  key(Qt::Key_End);
  key(Qt::Key_Down);
  key(Qt::Key_Home);
  key(Qt::Key_Up);
  EXPECT_THAT(told(), ElementsAre("SelectionChange 2", "SelectionChange 3", "SelectionChange 1"));
}

TEST_F(GridRows, AssistiveTechnologyMovesTheRowToo) {
  view().setCurrentIndex(view().model()->index(2, 1));
  EXPECT_EQ(grid.Row(), 3);
  EXPECT_THAT(told(), ElementsAre("SelectionChange 3"));
}

TEST_F(GridRows, BytesThatAreNoTextStayAsTheyAre) {
  grid.setValue(1, 1, "a\xFF");
  EXPECT_EQ(grid.cellText(1, 1), "a\xFF");
}

TEST_F(GridRows, EmptyGridTakesKeysWithoutHarm) {
  for (int row = 3; row >= 1; --row) grid.DeleteRow(row);
  view().setFocus();
  for (const Qt::Key each : {Qt::Key_Down, Qt::Key_Up, Qt::Key_F2, Qt::Key_Return, Qt::Key_Delete, Qt::Key_A})
    key(each);
  EXPECT_EQ(editedRow(), 0);
  EXPECT_THAT(told(), IsEmpty());
}

TEST_F(GridRows, FontOfTheCellsMakesTheRowsHigher) {
  const int height = view().rowHeight(0);
  platform::Font font = grid.font();
  EXPECT_FALSE(font.faceName.empty());
  font.pointSize = 40;
  grid.setCellFont(font);
  EXPECT_EQ(grid.font().pointSize, 40);
  EXPECT_GT(view().rowHeight(0), height);
}

TEST_F(GridRows, OwnFontGoesOnFollowingTheApplication) {
  grid.setCellFont(grid.font());
  EXPECT_FALSE(view().testAttribute(Qt::WA_SetFont));
}

TEST_F(GridRows, CaptionStandsAboveTheGrid) {
  EXPECT_FALSE(grid.widget()->findChild<QLabel*>()->isVisible());
  grid.setCaption("Q&A");
  EXPECT_EQ(grid.caption(), "Q&A");
  EXPECT_TRUE(grid.widget()->findChild<QLabel*>()->isVisible());
}

}  // namespace
}  // namespace mavCycEd::test
