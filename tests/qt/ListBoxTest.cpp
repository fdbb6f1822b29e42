#include <gmock/gmock.h>

#include <QAbstractItemModelTester>
#include <QCoreApplication>
#include <QSignalSpy>
#include <QTest>

#include "ListBoxContract.h"
#include "kit/CommandGate.h"
#include "platform/RunTimeError.h"
#include "qt/QtListBox.h"
#include "qt/QtSelectionList.h"

namespace mavCycEd::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class QtEdition {
 public:
  platform::ItemListBox& items() { return items_; }
  platform::LineListBox& lines() { return lines_; }

 private:
  kit::CommandGate gate_;
  QWidget owner_;
  qt::QtItemListBox items_{gate_, "items", &owner_};
  qt::QtLineListBox lines_{gate_, "lines", &owner_};
};

INSTANTIATE_TYPED_TEST_SUITE_P(Qt, ListBoxContract, QtEdition);

class ListBox : public testing::Test {
 protected:
  ListBox() {
    list.setEvents({.Click = [this] { log.push_back("Click " + std::to_string(list.index())); },
                    .DblClick = [this] { log.push_back("DblClick " + std::to_string(list.index())); }});
    list.assign({"01 REPEAT", "02    ASPIRATE", "03 END"});
    view().resize(200, 200);
    view().show();
    view().setFocus();
  }

  qt::TextListView& view() { return *list.widget(); }
  QPoint placeOf(int index) { return view().visualRect(view().model()->index(index, 0)).center(); }
  void click(int index) { QTest::mouseClick(view().viewport(), Qt::LeftButton, {}, placeOf(index)); }
  std::vector<std::string> told() { return std::exchange(log, {}); }

  kit::CommandGate gate;
  QWidget owner;
  qt::QtItemListBox list{gate, "list", nullptr};
  std::unique_ptr<QWidget> viewOwner{list.widget()};
  std::vector<std::string> log;
};

TEST_F(ListBox, EveryClickIsToldAlsoOnTheSelectedItem) {
  click(1);
  click(1);
  click(0);
  EXPECT_THAT(told(), ElementsAre("Click 1", "Click 1", "Click 0"));
}

TEST_F(ListBox, ClickBelowTheItemsSelectsNone) {
  click(1);
  QTest::mouseClick(view().viewport(), Qt::LeftButton, {}, {10, view().viewport()->height() - 2});
  EXPECT_EQ(list.index(), -1);
  EXPECT_THAT(told(), ElementsAre("Click 1", "Click -1"));
}

TEST_F(ListBox, OtherButtonsSelectNothing) {
  QTest::mouseClick(view().viewport(), Qt::RightButton, {}, placeOf(1));
  EXPECT_EQ(list.index(), -1);
  EXPECT_THAT(told(), IsEmpty());
}

TEST_F(ListBox, DoubleClickIsOneClickAndOneDoubleClick) {
  click(2);
  QTest::mouseDClick(view().viewport(), Qt::LeftButton, {}, placeOf(2));
  EXPECT_THAT(told(), ElementsAre("Click 2", "DblClick 2"));
}

TEST_F(ListBox, DoubleClickBelowTheItemsIsNone) {
  const QPoint below(10, view().viewport()->height() - 2);
  QTest::mouseClick(view().viewport(), Qt::LeftButton, {}, below);
  QTest::mouseDClick(view().viewport(), Qt::LeftButton, {}, below);
  EXPECT_THAT(told(), ElementsAre("Click -1"));
}

TEST_F(ListBox, DoubleClickOnAnItemPartlyInViewIsOnThatItem) {
  list.assign(std::vector<std::string>(50, "WAIT"));
  const QRect second = view().visualRect(view().model()->index(1, 0));
  const int frame = 2 * view().frameWidth();
  view().resize(200, second.center().y() + frame);
  const QPoint place(5, view().viewport()->height() - 2);
  ASSERT_TRUE(second.contains(place));
  QTest::mouseClick(view().viewport(), Qt::LeftButton, {}, place);
  QTest::mouseDClick(view().viewport(), Qt::LeftButton, {}, place);
  EXPECT_THAT(told(), ElementsAre("Click 1", "DblClick 1"));
}

TEST_F(ListBox, DraggingChangesNothing) {
  QTest::mousePress(view().viewport(), Qt::LeftButton, {}, placeOf(0));
  QMouseEvent drag(QEvent::MouseMove, placeOf(2), view().viewport()->mapToGlobal(placeOf(2)), Qt::NoButton,
                   Qt::LeftButton, Qt::NoModifier);
  QCoreApplication::sendEvent(view().viewport(), &drag);
  QTest::mouseRelease(view().viewport(), Qt::LeftButton, {}, placeOf(2));
  EXPECT_EQ(list.index(), 0);
  EXPECT_THAT(told(), ElementsAre("Click 0"));
}

TEST_F(ListBox, KeysSelect) {
  QTest::keyClick(&view(), Qt::Key_Down);
  QTest::keyClick(&view(), Qt::Key_End);
  QTest::keyClick(&view(), Qt::Key_Down);
  QTest::keyClick(&view(), Qt::Key_Up);
  EXPECT_THAT(told(), ElementsAre("Click 0", "Click 2", "Click 1"));
  QTest::keyClick(&view(), Qt::Key_Space);
  EXPECT_THAT(told(), ElementsAre("Click 1"));
  QTest::keyClick(&view(), Qt::Key_Space, Qt::ControlModifier);
  EXPECT_THAT(told(), ElementsAre("Click -1"));
}

TEST_F(ListBox, KeysOfTheKeypadAreKeysLikeAllOthers) {
  QObject::connect(&view(), &qt::TextListView::deletePressed, [this] { log.emplace_back("Delete"); });
  QObject::connect(&view(), &qt::TextListView::returnPressed, [this] { log.emplace_back("Return"); });
  for (const Qt::Key key : {Qt::Key_Delete, Qt::Key_Enter}) {
    QKeyEvent claimed(QEvent::ShortcutOverride, key, Qt::KeypadModifier);
    claimed.ignore();
    QCoreApplication::sendEvent(&view(), &claimed);
    EXPECT_TRUE(claimed.isAccepted()) << key;
    QTest::keyClick(&view(), key, Qt::KeypadModifier);
    QTest::keyClick(&view(), Qt::Key_Delete, Qt::ShiftModifier);
  }
  EXPECT_THAT(told(), ElementsAre("Delete", "Return"));
}

TEST_F(ListBox, FocusAloneSelectsNothing) {
  EXPECT_EQ(list.index(), -1);
  EXPECT_THAT(told(), IsEmpty());
}

TEST_F(ListBox, CodeTellsOneClickEachTime) {
  list.setIndex(1);
  list.setIndex(1);
  list.setIndex(-1);
  EXPECT_THAT(told(), ElementsAre("Click 1", "Click 1", "Click -1"));
  EXPECT_THROW(list.setIndex(3), RunTimeError);
  EXPECT_THROW(list.setIndex(-2), RunTimeError);
  EXPECT_THAT(told(), IsEmpty());
}

TEST_F(ListBox, RemovalWithoutASelectionSelectsNothing) {
  list.removeItem(0);
  EXPECT_EQ(list.index(), -1);
}

TEST_F(ListBox, AssigningIsOneResetAndTellsNothing) {
  list.setIndex(1);
  told();
  const QSignalSpy resets(view().model(), &QAbstractItemModel::modelReset);
  const QSignalSpy insertions(view().model(), &QAbstractItemModel::rowsInserted);
  list.assign({"a", "b"});
  EXPECT_EQ(resets.count(), 1);
  EXPECT_EQ(insertions.count(), 0);
  EXPECT_EQ(list.index(), -1);
  EXPECT_THAT(told(), IsEmpty());
}

TEST_F(ListBox, HundredThousandLinesHaveNoObjectEach) {
  std::vector<std::string> lines;
  for (int i = 1; i <= 100'000; ++i) lines.push_back(std::to_string(i) + " ASPIRATE");
  list.assign(std::move(lines));
  list.setIndex(99'999);
  QCoreApplication::processEvents();
  EXPECT_TRUE(view().viewport()->rect().contains(placeOf(99'999)));
  EXPECT_LT(view().findChildren<QObject*>().size(), 50);
}

TEST_F(ListBox, LongestLineCanBeScrolledTo) {
  list.assign({"01 A", std::string("02 ") + std::string(200, 'W'), "03 B"});
  view().scrollTo(view().model()->index(1, 0));
  const int wanted = view().fontMetrics().horizontalAdvance(QString(200, QLatin1Char('W')));
  EXPECT_GT(view().visualRect(view().model()->index(1, 0)).width(), wanted);
}

TEST_F(ListBox, BytesThatAreNoTextStayAsTheyAre) {
  list.addItem("a\xFF");
  EXPECT_EQ(list.itemText(3), "a\xFF");
}

TEST_F(ListBox, ModelKeepsItsPromises) {
  const QAbstractItemModelTester tester(view().model(), QAbstractItemModelTester::FailureReportingMode::Fatal);
  list.addItem("x");
  list.setItemText(0, "y");
  list.removeItem(1);
  list.assign({"z"});
  list.clear();
}

TEST_F(ListBox, HandlerMayReplaceTheItems) {
  list.setEvents({.Click = [this] { list.assign({"only"}); }, .DblClick = {}});
  click(2);
  EXPECT_EQ(list.itemCount(), 1);
  EXPECT_EQ(list.index(), -1);
}

TEST_F(ListBox, HandlerMayDestroyTheList) {
  const QPointer<QWidget> window(new QWidget);
  auto* const doomed = new qt::QtItemListBox(gate, "doomed", window);
  doomed->assign({"a"});
  doomed->setEvents({.Click =
                         [&] {
                           delete doomed;
                           delete window.data();
                         },
                     .DblClick = {}});
  window->show();
  QTest::mousePress(doomed->widget()->viewport(), Qt::LeftButton, {}, {5, 5});
  EXPECT_TRUE(window.isNull());
}

class LineList : public testing::Test {
 protected:
  static constexpr int count = 100'000;

  LineList() {
    for (int i = 0; i < count; ++i) owned.texts.push_back(std::to_string(i) + " ASPIRATE");
    list.showLines(owned);
    view().resize(200, 200);
    owner.show();
    QCoreApplication::processEvents();
    owned.longestAsked = 0;
  }

  qt::TextListView& view() { return *list.widget(); }
  void splice(int at, int removed, const std::vector<std::string>& added) {
    owned.splice(at, removed, added);
    list.spliced(at, removed, static_cast<int>(added.size()));
    QCoreApplication::processEvents();
  }
  int topRow() { return view().indexAt(QPoint(2, 2)).row(); }

  kit::CommandGate gate;
  QWidget owner;
  TestLines owned;
  qt::QtLineListBox list{gate, "list", &owner};
};

TEST_F(LineList, ASpliceIsNoReset) {
  const QSignalSpy resets(view().model(), &QAbstractItemModel::modelReset);
  const QSignalSpy insertions(view().model(), &QAbstractItemModel::rowsInserted);
  const QSignalSpy removals(view().model(), &QAbstractItemModel::rowsRemoved);
  const QSignalSpy changes(view().model(), &QAbstractItemModel::dataChanged);
  splice(50'000, 0, {"MIX"});
  splice(50'000, 1, {});
  splice(10, 1, {"WAIT"});
  EXPECT_EQ(resets.count(), 0);
  EXPECT_EQ(insertions.count(), 1);
  EXPECT_EQ(removals.count(), 1);
  EXPECT_EQ(changes.count(), 3) << "all others may have another number";
}

TEST_F(LineList, ASpliceStaysWhereTheListIsScrolledTo) {
  list.setIndex(70'000);
  QCoreApplication::processEvents();
  const int top = topRow();
  ASSERT_GT(top, 69'000);
  splice(80'000, 0, {"MIX"});
  splice(70'000, 1, {});
  EXPECT_EQ(list.index(), -1);
  splice(10, 5, {"MIX"});
  splice(0, 0, {"MIX", "MIX"});
  EXPECT_EQ(topRow(), top);
  EXPECT_EQ(list.index(), -1) << "the view selects nothing by itself";
}

TEST_F(LineList, TheLongestLineIsNotLookedForAtEverySplice) {
  for (int i = 0; i < 10; ++i) splice(50'000, 0, {"MIX"});
  EXPECT_EQ(owned.longestAsked, 0);
}

TEST_F(LineList, ALineThatHasBecomeLongerCanBeScrolledTo) {
  splice(50'000, 0, {"MIX"});
  const int before = view().visualRect(view().model()->index(0, 0)).width();
  owned.texts[1].insert(0, 200, ' ');
  splice(0, 0, {"REPEAT"});
  view().grab();
  QCoreApplication::processEvents();
  EXPECT_GT(view().visualRect(view().model()->index(0, 0)).width(), 2 * before);
}

TEST_F(LineList, LinesThatTheOwnerHasDroppedAreEmptyUntilItTells) {
  owned.texts.clear();
  EXPECT_EQ(list.itemCount(), count);
  EXPECT_EQ(list.itemText(count - 1), "");
  view().grab();
  list.spliced(0, count, 0);
  EXPECT_EQ(list.itemCount(), 0);
}

TEST(SelectionList, ClicksAndTheSpaceBarToggle) {
  QWidget window;
  qt::QtSelectionList list("list", &window);
  list.addItem("TRAY", true);
  list.addItem("WASTE", false);
  list.widget()->resize(200, 200);
  window.show();
  QListView& view = *list.widget();
  QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, view.visualRect(view.model()->index(1, 0)).center());
  EXPECT_TRUE(list.isSelected(0));
  EXPECT_TRUE(list.isSelected(1));
  QTest::keyClick(&view, Qt::Key_Space);
  EXPECT_FALSE(list.isSelected(1));
  QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, {10, view.viewport()->height() - 2});
  EXPECT_TRUE(list.isSelected(0));
  EXPECT_THROW(list.isSelected(2), RunTimeError);
  EXPECT_THROW(list.itemText(-1), RunTimeError);
  list.clear();
  EXPECT_EQ(list.itemCount(), 0);
  list.addItem("TRAY", false);
  EXPECT_FALSE(list.isSelected(0));
}

}  // namespace
}  // namespace mavCycEd::test
