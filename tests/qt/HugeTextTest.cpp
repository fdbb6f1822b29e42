#include <gtest/gtest.h>

#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QListView>
#include <QMenu>
#include <QPlainTextEdit>
#include <QTableView>
#include <QTest>

#include "TestWindow.h"
#include "mavCycEd/ctlCycEd.h"

namespace mavCycEd::test {
namespace {

// Each of these takes hours where a widget's work grows with the square of the text.
class HugeText : public testing::Test {
 protected:
  HugeText() {
    control.resize(900, 600);
    showActive(control);
  }

  void load(const QString& description, const QString& variables, const QString& atom, const QString& value) {
    control.SetXMLStrings(
        QStringLiteral("<LATESTKAM><ATOMS><ATOM><AtomName>%1</AtomName><Param>Volume;1;100;1;1;ul"
                       "</Param></ATOM></ATOMS></LATESTKAM>")
            .arg(atom),
        QStringLiteral("<CYCLE><DESCRIPTION>//%1</DESCRIPTION><VARIABLES>%2</VARIABLES><ATOMSEQUENCE>"
                       "<ATOMS><ATOM><ATOMNAME>%3</ATOMNAME><PARAMETERS><PARAMETER><PARAMNAME>Volume"
                       "</PARAMNAME><PARAMVALUE>%4</PARAMVALUE></PARAMETER></PARAMETERS></ATOM></ATOMS>"
                       "</ATOMSEQUENCE><VERSION>03</VERSION></CYCLE>")
            .arg(description, variables, atom, value));
    control.grab();
  }
  template <typename Widget>
  Widget& widget(const char* name) {
    return *control.findChild<Widget*>(QLatin1String(name));
  }
  QMenu& askForMenu() {
    QWidget* const grid = widget<QTableView>("GrdAtom").viewport();
    const QPoint place =
        widget<QTableView>("GrdAtom").visualRect(widget<QTableView>("GrdAtom").model()->index(0, 1)).center();
    QTest::mouseClick(grid, Qt::RightButton, {}, place);
    QContextMenuEvent request(QContextMenuEvent::Mouse, place, grid->mapToGlobal(place));
    QCoreApplication::sendEvent(grid, &request);
    return widget<QMenu>("mnuParam");
  }

  ctlCycEd control;
};

TEST_F(HugeText, AHundredThousandVariablesAreOffered) {
  QString variables;
  for (int i = 0; i < 100'000; ++i) variables += QStringLiteral("<VALUE>V%1 (ul);10;1;100</VALUE>").arg(i);
  load({}, variables, QStringLiteral("FILL"), QStringLiteral("5"));
  EXPECT_EQ(widget<QListView>("lstVariables").model()->rowCount(), 100'000);
  QMenu& menu = askForMenu();
  ASSERT_TRUE(menu.isVisible());
  auto* const list = menu.findChild<QListView*>();
  ASSERT_NE(list, nullptr);
  list->setCurrentIndex(list->model()->index(list->model()->rowCount() - 1, 0));
  QTest::keyClick(list, Qt::Key_Return);
  EXPECT_EQ(widget<QTableView>("GrdAtom").model()->index(0, 1).data().toString(), QStringLiteral("V99999"));
}

TEST_F(HugeText, ADescriptionOfOneWordIsShown) {
  const QString word(2'000'000, QLatin1Char('x'));
  load(word, {}, QStringLiteral("FILL"), QStringLiteral("5"));
  auto& box = widget<QPlainTextEdit>("txtCycleDescription");
  EXPECT_EQ(box.toPlainText(), word);
  EXPECT_EQ(box.lineWrapMode(), QPlainTextEdit::NoWrap);
  load(QStringLiteral("some words"), {}, QStringLiteral("FILL"), QStringLiteral("5"));
  EXPECT_EQ(box.lineWrapMode(), QPlainTextEdit::WidgetWidth);
}

TEST_F(HugeText, APastedDescriptionOfOneWordIsTaken) {
  load({}, {}, QStringLiteral("FILL"), QStringLiteral("5"));
  auto& box = widget<QPlainTextEdit>("txtCycleDescription");
  box.setFocus();
  QGuiApplication::clipboard()->setText(QString(1'000'000, QLatin1Char('x')));
  QTest::keyClick(&box, Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(box.toPlainText().size(), 1'000'000);
  EXPECT_EQ(box.lineWrapMode(), QPlainTextEdit::NoWrap);
}

TEST_F(HugeText, NamesAndValuesAreShownAsFarAsALineGoes) {
  const QString name(5'000'000, QLatin1Char('x'));
  load({}, QStringLiteral("<VALUE>%1 (ul);10;1;100</VALUE>").arg(name), name, name);
  const auto shown = widget<QListView>("lstAtomSequence").model()->index(0, 0).data().toString();
  EXPECT_EQ(shown.size(), 10'001);
  EXPECT_TRUE(shown.endsWith(QChar(0x2026)));
  QMenu& menu = askForMenu();
  ASSERT_TRUE(menu.isVisible());
  EXPECT_LT(menu.actions().constLast()->text().size(), 10'002);
  menu.close();
  EXPECT_TRUE(control.RetrieveCycle().contains(name)) << "all of it is kept";
}

}  // namespace
}  // namespace mavCycEd::test
