#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QVBoxLayout>

#include "TestGrid.h"
#include "qt/ComboWidget.h"
#include "qt/QtListBox.h"

namespace mavCycEd::test {
namespace {

constexpr int edge = 1;

QImage picture(QAbstractItemView& view, const QRect& place) { return view.viewport()->grab(place).toImage(); }

/// The focus is seen at the edge of a row, and the text within is as it was.
void expectMarkAtTheEdge(QAbstractItemView& view, const QModelIndex& index, QWidget& elsewhere) {
  const QRect row = view.visualRect(index);
  const QRect inside = row.adjusted(edge, edge, -edge, -edge);
  elsewhere.setFocus();
  const QImage before = picture(view, row);
  const QImage textBefore = picture(view, inside);
  view.setFocus();
  EXPECT_NE(picture(view, row), before);
  EXPECT_EQ(picture(view, inside), textBefore);
}

TEST(RowLook, FocusLeavesTheTextOfASelectedLineReadable) {
  QWidget window;
  auto* const layout = new QVBoxLayout(&window);
  const qt::CommandGate gate;
  qt::QtListBox list(gate, "list", &window);
  auto* const other = new QPushButton(&window);
  layout->addWidget(list.widget());
  layout->addWidget(other);
  list.assign({"01 SET_LIGHT", "02 END"});
  showActive(window);
  list.setIndex(0);
  expectMarkAtTheEdge(*list.widget(), list.widget()->model()->index(0, 0), *other);
}

TEST(RowLook, FocusLeavesTheValueOfACellReadable) {
  TestGrid grid;
  for (const int row : {1, 2}) {
    grid.click(0, row);
    expectMarkAtTheEdge(grid.view(), grid.view().currentIndex(), *grid.before.widget());
  }
}

TEST(RowLook, PickListsHaveAirBetweenTheirItems) {
  QWidget window;
  qt::ComboWidget combo(&window);
  combo.addItems({QStringLiteral("next_tray"), QStringLiteral("Buffer")});
  showActive(window);
  combo.showPopup();
  const QRect row = combo.view()->visualRect(combo.model()->index(0, 0));
  EXPECT_GE(row.height(), combo.view()->fontMetrics().height() + 2 * edge);
  combo.hidePopup();
}

}  // namespace
}  // namespace mavCycEd::test
