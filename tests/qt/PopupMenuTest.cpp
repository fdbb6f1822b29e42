#include <gmock/gmock.h>

#include <QApplication>
#include <QListView>
#include <QPointer>
#include <QTest>

#include "panels/modControlArray.h"
#include "platform/RunTimeError.h"
#include "qt/QtPopupMenu.h"

namespace mavCycEd::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

int errorOf(const std::function<void()>& body) {
  try {
    body();
  } catch (const RunTimeError& error) {
    return error.number();
  }
  return 0;
}

class PopupMenu : public testing::Test {
 protected:
  PopupMenu() {
    menu.setEvents({.Click = [this](int index) { chosen.push_back(index); }});
    menu.setItemCaption(0, "Default:5");
  }

  // What the menu shows when it opens.
  std::vector<std::string> shown() {
    menu.popUp();
    std::vector<std::string> captions;
    for (const QAction* const action : menu.widget()->actions()) captions.push_back(action->text().toStdString());
    menu.widget()->close();
    return captions;
  }
  void choose(int place) {
    menu.widget()->setActiveAction(menu.widget()->actions().at(place));
    QTest::keyClick(menu.widget(), Qt::Key_Return);
  }

  kit::CommandGate gate;
  QWidget window;
  qt::QtPopupMenu menu{gate, "menu", &window};
  std::vector<int> chosen;
};

TEST_F(PopupMenu, ShowsItsVisibleItemsInIndexOrder) {
  menu.createItem(5);
  menu.setItemCaption(5, "five");
  menu.createItem(2);
  menu.setItemCaption(2, "two");
  menu.createItem(3);
  menu.setItemVisible(3, false);
  EXPECT_THAT(shown(), ElementsAre("Default:5", "two", "five"));
  EXPECT_EQ(menu.itemCount(), 4);
  EXPECT_EQ(menu.lastIndex(), 5);
  EXPECT_FALSE(menu.isItemVisible(3));
  EXPECT_FALSE(menu.hasItem(4));
}

TEST_F(PopupMenu, ChoiceTellsTheIndex) {
  menu.createItem(7);
  menu.setItemCaption(7, "seven");
  menu.popUp();
  EXPECT_TRUE(menu.widget()->isVisible());
  choose(1);
  EXPECT_FALSE(menu.widget()->isVisible());
  EXPECT_THAT(chosen, ElementsAre(7));
}

TEST_F(PopupMenu, OpensWhereItWasAskedFor) {
  menu.setPlace([] { return QPoint(123, 45); });
  menu.popUp();
  EXPECT_EQ(menu.widget()->pos(), QPoint(123, 45));
  QTest::keyClick(menu.widget(), Qt::Key_Escape);
  EXPECT_THAT(chosen, IsEmpty());
}

TEST_F(PopupMenu, HandlerMayRemoveTheChosenItem) {
  menu.createItem(1);
  menu.setEvents({.Click = [this](int index) { menu.removeItem(index); }});
  menu.popUp();
  choose(1);
  EXPECT_EQ(menu.itemCount(), 1);
}

TEST_F(PopupMenu, ItemsGrowAndShrinkAsAnArray) {
  using namespace modControlArray;
  for (const int index : {1, 2, 4}) menu.createItem(index);
  EXPECT_FALSE(isContinuous(menu));
  EXPECT_EQ(firstFreePlace(menu), 3);
  menu.createItem(3);
  EXPECT_TRUE(isContinuous(menu));
  EXPECT_EQ(firstFreePlace(menu), 5);
  menu.removeItem(2);
  deleteItems(menu);
  EXPECT_THAT(shown(), ElementsAre("Default:5"));
  EXPECT_EQ(firstFreePlace(menu), 1);
}

TEST_F(PopupMenu, ClosesWhenItsItemsChangeBehindIt) {
  menu.popUp();
  menu.setItemCaption(0, "Default:6");
  EXPECT_FALSE(menu.widget()->isVisible());
  EXPECT_THAT(shown(), ElementsAre("Default:6"));
}

// Columns that follow one another would soon lead beyond the screen, where no mouse comes.
TEST_F(PopupMenu, NeverHasASecondColumn) {
  for (int index = 1; index < 50; ++index) {
    menu.createItem(index);
    menu.setItemCaption(index, "Vial " + std::to_string(index));
    menu.popUp();
    const QList<QAction*> actions = menu.widget()->actions();
    for (QAction* const each : actions) {
      ASSERT_EQ(menu.widget()->actionGeometry(each).left(), menu.widget()->actionGeometry(actions.constFirst()).left())
          << index + 1 << " entries";
    }
    menu.widget()->close();
  }
}

class LongPopupMenu : public PopupMenu {
 protected:
  LongPopupMenu() {
    for (int index = 1; index <= 5000; ++index) {
      menu.createItem(index);
      menu.setItemCaption(index, "Vial " + std::to_string(index));
    }
    menu.setItemVisible(1, false);
    menu.popUp();
  }
  QListView* list() { return menu.widget()->findChild<QListView*>(); }
};

TEST_F(LongPopupMenu, IsAListThatFitsTheScreen) {
  ASSERT_NE(list(), nullptr);
  EXPECT_EQ(list()->model()->rowCount(), 5000);
  EXPECT_EQ(list()->model()->index(1, 0).data().toString(), QStringLiteral("Vial 2"));
  EXPECT_LT(menu.widget()->height(), 600);
  EXPECT_GE(list()->viewport()->width(), list()->sizeHintForColumn(0));
}

TEST_F(LongPopupMenu, EnterChoosesWhatWasTyped) {
  QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("Vial 44"));
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
  EXPECT_FALSE(menu.widget()->isVisible());
  EXPECT_THAT(chosen, ElementsAre(44));
}

// As in a menu: nothing is active until the operator makes it so.
TEST_F(LongPopupMenu, EnterAtOnceLeadsToTheFirstEntry) {
  EXPECT_FALSE(list()->currentIndex().isValid());
  QTest::keyClick(list(), Qt::Key_Return);
  EXPECT_TRUE(menu.widget()->isVisible());
  EXPECT_THAT(chosen, IsEmpty());
  QTest::keyClick(list(), Qt::Key_Return);
  EXPECT_FALSE(menu.widget()->isVisible());
  EXPECT_THAT(chosen, ElementsAre(0));
}

TEST_F(LongPopupMenu, FirstArrowKeyLeadsToTheFirstEntry) {
  QTest::keyClick(list(), Qt::Key_Down);
  QTest::keyClick(list(), Qt::Key_Return);
  EXPECT_THAT(chosen, ElementsAre(0));
}

TEST_F(LongPopupMenu, HasABorder) { EXPECT_GT(list()->frameWidth(), 0); }

TEST_F(LongPopupMenu, ClickChooses) {
  const QPoint place = list()->visualRect(list()->model()->index(2, 0)).center();
  QTest::mouseClick(list()->viewport(), Qt::LeftButton, {}, place);
  EXPECT_FALSE(menu.widget()->isVisible());
  EXPECT_THAT(chosen, ElementsAre(3));
}

TEST_F(LongPopupMenu, MayBeDestroyedByWhatIsChosen) {
  menu.setEvents({.Click = [this](int index) {
    chosen.push_back(index);
    delete menu.widget();
  }});
  const QPoint place = list()->visualRect(list()->model()->index(2, 0)).center();
  QTest::mouseClick(list()->viewport(), Qt::LeftButton, {}, place);
  EXPECT_THAT(chosen, ElementsAre(3));
}

TEST_F(LongPopupMenu, MayBeDestroyedWhileOpen) {
  delete menu.widget();
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
}

TEST_F(LongPopupMenu, ClosesWhenItsItemsChangeBehindIt) {
  menu.setEvents({.Click = [this](int index) {
    chosen.push_back(index);
    menu.removeItem(index);
    menu.popUp();  // with the list of the former entries still in its event
  }});
  menu.removeItem(7);
  EXPECT_FALSE(menu.widget()->isVisible());
  menu.popUp();
  const QPointer<QListView> former(list());
  QTest::mouseClick(former->viewport(), Qt::LeftButton, {}, former->visualRect(former->model()->index(2, 0)).center());
  EXPECT_THAT(chosen, ElementsAre(3));
  EXPECT_TRUE(menu.widget()->isVisible());
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_TRUE(former.isNull());
  EXPECT_EQ(list()->model()->index(2, 0).data().toString(), QStringLiteral("Vial 4"));
}

TEST_F(LongPopupMenu, EscClosesWithoutAChoice) {
  QTest::keyClick(list(), Qt::Key_Escape);
  EXPECT_FALSE(menu.widget()->isVisible());
  EXPECT_THAT(chosen, IsEmpty());
}

TEST_F(PopupMenu, AmpersandsAreThemselves) {
  menu.setItemCaption(0, "R&D");
  EXPECT_EQ(menu.itemCaption(0), "R&D");
  EXPECT_THAT(shown(), ElementsAre("R&&D"));
}

TEST_F(PopupMenu, NothingVisibleShowsNothing) {
  menu.setItemVisible(0, false);
  menu.popUp();
  EXPECT_FALSE(menu.widget()->isVisible());
}

TEST_F(PopupMenu, WrongIndexesAreErrors) {
  constexpr int subscript = static_cast<int>(ErrorNumber::SubscriptOutOfRange);
  constexpr int invalidCall = static_cast<int>(ErrorNumber::InvalidProcedureCall);
  EXPECT_EQ(errorOf([this] { menu.createItem(0); }), subscript);
  EXPECT_EQ(errorOf([this] { menu.createItem(-1); }), subscript);
  EXPECT_EQ(errorOf([this] { menu.removeItem(3); }), subscript);
  EXPECT_EQ(errorOf([this] { menu.itemCaption(3); }), subscript);
  EXPECT_EQ(errorOf([this] { menu.setItemCaption(3, ""); }), subscript);
  EXPECT_EQ(errorOf([this] { menu.setItemVisible(3, true); }), subscript);
  EXPECT_EQ(errorOf([this] { menu.removeItem(0); }), invalidCall);
}

}  // namespace
}  // namespace mavCycEd::test
