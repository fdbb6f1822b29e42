#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QPaintEvent>
#include <QVBoxLayout>
#include <algorithm>
#include <cmath>
#include <functional>

#include "TestGrid.h"
#include "qt/ComboWidget.h"
#include "qt/QtListBox.h"

namespace mavCycEd::test {
namespace {

constexpr int edge = 1;

QImage picture(QAbstractItemView& view, const QRect& place) { return view.viewport()->grab(place).toImage(); }

double luminance(const QColor& color) {
  const auto linear = [](double part) {
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

double contrast(const QColor& one, const QColor& other) {
  const auto [dark, light] = std::minmax({luminance(one), luminance(other)});
  return (light + 0.05) / (dark + 0.05);
}

QColor background(const QImage& row) { return row.pixelColor(row.width() - 4, 3); }

/// How well the text of a row stands out.
double contrastOfText(const QImage& row) {
  double best = 1;
  for (int y = 0; y < row.height(); ++y) {
    for (int x = 0; x < row.width(); ++x) best = std::max(best, contrast(row.pixelColor(x, y), background(row)));
  }
  return best;
}

/// Where the keyboard is, a selected row has the colours of a selection and a line around it; elsewhere it is muted.
/// Its text can be read in both.
void expectFocusToBeSeen(QAbstractItemView& view, const QModelIndex& index, QWidget& elsewhere) {
  const QRect row = view.visualRect(index);
  const QRect inside = row.adjusted(edge, edge, -edge, -edge);
  const QColor selection = view.palette().color(QPalette::Highlight);
  constexpr double enough = 4.5;
  constexpr double nearly = 0.9;  // the edges of letters are smoothed

  elsewhere.setFocus();
  EXPECT_GE(contrastOfText(picture(view, inside)), enough);
  EXPECT_NE(background(picture(view, inside)), selection);
  EXPECT_NE(background(picture(view, inside)), view.palette().color(QPalette::Base));

  view.setFocus();
  EXPECT_EQ(background(picture(view, inside)), selection);
  EXPECT_NE(picture(view, row).pixelColor(0, row.height() / 2), selection);
  EXPECT_GE(contrastOfText(picture(view, inside)),
            nearly * contrast(selection, view.palette().color(QPalette::HighlightedText)));
}

TEST(RowLook, FocusIsSeenOnASelectedLine) {
  QWidget window;
  auto* const layout = new QVBoxLayout(&window);
  const kit::CommandGate gate;
  qt::QtItemListBox list(gate, "list", &window);
  auto* const other = new QPushButton(&window);
  layout->addWidget(list.widget());
  layout->addWidget(other);
  list.assign({"01 SET_LIGHT", "02 END"});
  showActive(window);
  list.setIndex(0);
  expectFocusToBeSeen(*list.widget(), list.widget()->model()->index(0, 0), *other);
}

TEST(RowLook, FocusIsSeenOnTheRowOfAGrid) {
  TestGrid grid;
  for (const int row : {1, 2}) {
    grid.click(0, row);
    expectFocusToBeSeen(grid.view(), grid.view().currentIndex(), *grid.before.widget());
  }
}

TEST(RowLook, RowOfAnOpenEditorIsNotMuted) {
  TestGrid grid;
  const QColor selection = grid.view().palette().color(QPalette::Highlight);
  const auto key = [&grid] { return background(picture(grid.view(), grid.cell(0, 2).adjusted(1, 1, -1, -1))); };
  grid.click(1, 2);
  EXPECT_EQ(key(), selection);
  grid.key(Qt::Key_F4);
  EXPECT_EQ(key(), selection);
  grid.key(Qt::Key_Escape);
  grid.after.widget()->setFocus();
  EXPECT_NE(key(), selection);
}

/// Notes what of a widget is painted.
class PaintWatch : public QObject {
 public:
  explicit PaintWatch(QWidget& widget) { widget.installEventFilter(this); }
  QRegion painted;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Paint) painted += static_cast<const QPaintEvent*>(event)->region();
    return QObject::eventFilter(watched, event);
  }
};

// The key of the row, that is: its value may be covered by the editor.
void expectKeyIsPainted(TestGrid& grid, const std::function<void()>& change) {
  QCoreApplication::processEvents();
  const PaintWatch watch(*grid.view().viewport());
  change();
  QCoreApplication::processEvents();
  EXPECT_TRUE(watch.painted.contains(grid.cell(0, 2).center()));
}

TEST(RowLook, WholeRowIsPaintedAnewWhenTheFocusLeavesItsEditor) {
  TestGrid grid;
  grid.click(1, 2);
  expectKeyIsPainted(grid, [&grid] { grid.after.widget()->setFocus(); });
}

TEST(RowLook, WholeRowIsPaintedAnewWhenTheFocusComesToItsEditor) {
  TestGrid grid;
  grid.click(1, 2);
  grid.after.widget()->setFocus();
  expectKeyIsPainted(grid, [&grid] { grid.grid.focusValue(2); });
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
