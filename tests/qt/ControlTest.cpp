#include <gmock/gmock.h>

#include <QApplication>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QGroupBox>
#include <QHelpEvent>
#include <QListView>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QSplitter>
#include <QTableView>
#include <QTest>
#include <QToolTip>

#include "TestWindow.h"
#include "control/EditorControl.h"
#include "mavCycEd/ctlCycEd.h"
#include "qt/EditorAccess.h"
#include "qt/ValueListModel.h"

namespace mavCycEd::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// Writes messages down instead of showing them.
class RecordingMessages : public platform::MessageBox {
 public:
  int messageBox(platform::WindowHandle, std::string_view message, std::string_view, int) override {
    messages.emplace_back(message);
    return platform::OkButton;
  }
  std::vector<std::string> messages;
};

const QString catalogue = QStringLiteral(R"(<LATESTKAM><ATOMS>
  <ATOM><AtomName>Aspirate</AtomName><Param>Volume;1;100;1;1;ul</Param><Param>Speed;1;100;50;1;None</Param></ATOM>
  <ATOM><AtomName>Home</AtomName></ATOM>
</ATOMS></LATESTKAM>)");

class Control : public testing::Test {
 protected:
  Control() {
    control.resize(900, 600);
    showActive(control);
    control.SetXMLStrings(catalogue, QString());
  }

  template <typename Widget = QWidget>
  Widget& widget(const char* name) {
    auto* const found = control.findChild<Widget*>(QLatin1String(name));
    if (found == nullptr) throw std::runtime_error(std::string("no ") + name);
    return *found;
  }
  void press(const char* button) { QTest::mouseClick(&widget<QPushButton>(button), Qt::LeftButton); }
  void choose(const QString& atom) {
    auto& picker = widget<QComboBox>("cboAtom");
    picker.setFocus();
    QTest::keyClicks(&picker, atom.left(1));
    ASSERT_EQ(picker.currentText(), atom);
  }
  QTableView& grid() { return widget<QTableView>("GrdAtom"); }
  QString value(int row) { return grid().model()->index(row - 1, 1).data().toString(); }
  QWidget* editor(int row) { return grid().indexWidget(grid().model()->index(row - 1, 1)); }
  int currentRow() { return grid().selectionModel()->selectedRows().value(0).row() + 1; }
  void edit(int row) {
    QTest::mouseClick(grid().viewport(), Qt::LeftButton, {},
                      grid().visualRect(grid().model()->index(row - 1, 1)).center());
  }
  void askForMenu(int row) {
    const QPoint place = grid().visualRect(grid().model()->index(row - 1, 1)).center();
    QTest::mouseClick(grid().viewport(), Qt::RightButton, {}, place);
    QContextMenuEvent request(QContextMenuEvent::Mouse, place, grid().viewport()->mapToGlobal(place));
    QCoreApplication::sendEvent(grid().viewport(), &request);
  }
  // The first entry of the open pop-up menu.
  std::string menu() {
    const auto& shown = widget<QMenu>("mnuParam");
    return shown.isVisible() ? shown.actions().first()->text().toStdString() : std::string();
  }
  std::vector<std::string> lines(const char* list = "lstAtomSequence") {
    std::vector<std::string> texts;
    const QAbstractItemModel& model = *widget<QListView>(list).model();
    for (int i = 0; i < model.rowCount(); ++i) texts.push_back(model.index(i, 0).data().toString().toStdString());
    return texts;
  }

  std::shared_ptr<RecordingMessages> boxes = std::make_shared<RecordingMessages>();
  ctlCycEd control{HostServices{.messageBox = boxes}};
};

TEST_F(Control, NamesItsControlsForProgramsAndForPeople) {
  for (const char* name : {"fraCyclePart", "fraDescription", "txtCycleDescription", "fraAtom", "lstAtomSequence",
                           "cmdInset", "cmdReplace", "cmdDelete", "fraVariables", "lstVariables", "cmdIns", "cmdDel",
                           "fraSelectedMacro", "cboAtom", "GrdAtom", "cmdDefault", "mnuParam"}) {
    const QString forPeople = widget(name).accessibleName();
    EXPECT_FALSE(forPeople.isEmpty()) << name;
    EXPECT_NE(forPeople, name);
  }
}

TEST_F(Control, TabFollowsTheWork) {
  widget("cboAtom").setFocus();
  std::vector<std::string> order;
  for (int i = 0; i < 11; ++i) {
    order.push_back(QApplication::focusWidget()->objectName().toStdString());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  }
  EXPECT_THAT(order, ElementsAre("cboAtom", "GrdAtom", "cmdInset", "cmdReplace", "lstAtomSequence", "cmdDelete",
                                 "cmdDefault", "txtCycleDescription", "lstVariables", "cmdIns", "cmdDel"));
}

TEST_F(Control, TypedValueIsInsertedWhicheverWayTheButtonIsPressed) {
  choose("Aspirate");
  edit(2);
  QTest::keyClicks(editor(2), "7");
  QTest::keyClick(&control, Qt::Key_S, Qt::AltModifier);
  ASSERT_TRUE(QTest::qWaitFor([this] { return !lines().empty(); }));
  edit(2);
  QTest::keyClicks(editor(2), "8");
  press("cmdInset");
  EXPECT_THAT(lines(), ElementsAre("01 Aspirate", "02 Aspirate"));
  const cAtoms& atoms = editorOf(control).atoms();
  EXPECT_EQ(textOf(atoms.Item(1).AtomParameters()), "Volume(ul);1\rSpeed;7");
  EXPECT_EQ(textOf(atoms.Item(2).AtomParameters()), "Volume(ul);1\rSpeed;8");
  EXPECT_THAT(boxes->messages, IsEmpty());
}

TEST_F(Control, RefusedValueIsReadyToBeCorrected) {
  choose("Aspirate");
  edit(2);
  QTest::keyClicks(editor(2), "700");
  press("cmdInset");
  EXPECT_THAT(lines(), IsEmpty());
  ASSERT_NE(editor(2), nullptr);
  EXPECT_TRUE(editor(2)->hasFocus());
  QTest::keyClicks(editor(2), "70");
  press("cmdInset");
  EXPECT_THAT(lines(), ElementsAre("01 Aspirate"));
}

TEST_F(Control, IllegalCharacterIsGoneAndTheEditGoesOn) {
  choose("Aspirate");
  edit(2);
  QTest::keyClicks(editor(2), "1;2");
  EXPECT_EQ(value(2), "12");
  ASSERT_NE(editor(2), nullptr);
  EXPECT_EQ(boxes->messages.size(), 1U);
}

TEST_F(Control, DeleteKeyDeletesOnlyWhereTheFocusIs) {
  choose("Home");
  press("cmdInset");
  press("cmdInset");
  ASSERT_EQ(lines().size(), 2U);
  for (const char* elsewhere : {"cboAtom", "GrdAtom", "cmdInset", "lstVariables", "txtCycleDescription"}) {
    widget(elsewhere).setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Delete);
  }
  EXPECT_EQ(lines().size(), 2U);
  widget("lstAtomSequence").setFocus();
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Delete);
  EXPECT_EQ(lines().size(), 1U);
}

TEST_F(Control, DeleteKeyInTheVariablesDeletesTheVariable) {
  control.SetXMLStrings(catalogue, QStringLiteral("<CYCLE><VARIABLES><VALUE>A ();1;1;1</VALUE><VALUE>B ();1;1;1</VALUE>"
                                                  "</VARIABLES><ATOMSEQUENCE><ATOMS/></ATOMSEQUENCE></CYCLE>"));
  widget("lstVariables").setFocus();
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Delete);
  EXPECT_THAT(lines("lstVariables"), ElementsAre("B ();1;1;1"));
}

TEST_F(Control, EnterLeadsFromTheSequenceToTheValues) {
  choose("Aspirate");
  press("cmdInset");
  widget("lstAtomSequence").setFocus();
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
  ASSERT_NE(editor(1), nullptr);
  EXPECT_TRUE(editor(1)->hasFocus());
}

// Past the moment at which the timer makes the first row current.
void waitForTheTimer() { QTest::qWait(600); }

TEST_F(Control, TimerChoosesTheFirstRowOnceTheGridIsRefilled) {
  choose("Aspirate");
  edit(2);
  press("cmdDefault");
  EXPECT_EQ(editorOf(control).currentGridRow(), 2);
  EXPECT_TRUE(QTest::qWaitFor([this] { return editorOf(control).currentGridRow() == 1; }, 1500));
}

TEST_F(Control, TimerLeavesTheRowThatWasEdited) {
  choose("Aspirate");
  edit(2);
  QTest::keyClicks(editor(2), "7");
  QTest::keyClick(editor(2), Qt::Key_Return);
  waitForTheTimer();
  EXPECT_EQ(currentRow(), 2);
  QTest::keyClicks(QApplication::focusWidget(), "9");
  EXPECT_EQ(value(2), "9");
  EXPECT_EQ(value(1), "1");
}

TEST_F(Control, TimerLeavesTheRowThatWasGoneTo) {
  choose("Aspirate");
  grid().setFocus();
  QTest::keyClick(&grid(), Qt::Key_Down);
  waitForTheTimer();
  EXPECT_EQ(currentRow(), 2);
  EXPECT_EQ(editorOf(control).currentGridRow(), 2);
}

TEST_F(Control, TimerLeavesAnOpenMenu) {
  choose("Aspirate");
  askForMenu(2);
  EXPECT_EQ(menu(), "Default:50");
  waitForTheTimer();
  EXPECT_EQ(menu(), "Default:50");
  QTest::keyClick(&widget("mnuParam"), Qt::Key_Down);
  QTest::keyClick(&widget("mnuParam"), Qt::Key_Return);
  EXPECT_EQ(value(2), "50");
  EXPECT_EQ(value(1), "1");
}

TEST_F(Control, TimerLeavesTheValueThatWasRefused) {
  control.SetXMLStrings(catalogue, QStringLiteral("<CYCLE><VARIABLES/><ATOMSEQUENCE><ATOMS><ATOM><ATOMNAME>Aspirate"
                                                  "</ATOMNAME><PARAMETERS><PARAMETER><PARAMNAME>Volume</PARAMNAME>"
                                                  "<PARAMVALUE>1</PARAMVALUE></PARAMETER><PARAMETER><PARAMNAME>Speed"
                                                  "</PARAMNAME><PARAMVALUE>700</PARAMVALUE></PARAMETER></PARAMETERS>"
                                                  "</ATOM></ATOMS></ATOMSEQUENCE></CYCLE>"));
  press("cmdReplace");
  ASSERT_NE(editor(2), nullptr);
  waitForTheTimer();
  QTest::keyClick(editor(2), Qt::Key_Escape);
  waitForTheTimer();
  EXPECT_EQ(currentRow(), 2);
}

TEST_F(Control, FirstWorkInARefilledGridTellsItsRow) {
  choose("Aspirate");
  edit(2);
  press("cmdDefault");
  grid().setFocus();
  QTest::keyClicks(&grid(), "5");
  EXPECT_EQ(value(1), "5");
  EXPECT_EQ(editorOf(control).currentGridRow(), 1);
}

TEST_F(Control, MenuKeyIsForTheRowThatIsShown) {
  choose("Aspirate");
  edit(2);
  press("cmdDefault");
  grid().setFocus();
  QContextMenuEvent request(QContextMenuEvent::Keyboard, {}, {});
  QCoreApplication::sendEvent(grid().viewport(), &request);
  EXPECT_EQ(currentRow(), 1);
  EXPECT_EQ(menu(), "Default:1");
  QTest::keyClick(&widget("mnuParam"), Qt::Key_Escape);
}

TEST_F(Control, ToolTipShowsOverTheValueThatWasClicked) {
  choose("Aspirate");
  edit(2);
  const QPoint place(3, 3);
  QMouseEvent move(QEvent::MouseMove, place, editor(2)->mapToGlobal(place), Qt::NoButton, Qt::NoButton, Qt::NoModifier);
  QCoreApplication::sendEvent(editor(2), &move);
  QHelpEvent rest(QEvent::ToolTip, place, editor(2)->mapToGlobal(place));
  QCoreApplication::sendEvent(editor(2), &rest);
  EXPECT_EQ(QToolTip::text(), "Range: 1 to 100 Default: 50 Step: 1");
  QToolTip::hideText();
}

TEST_F(Control, ReadingCycleChangedDoesNotDisturbTheEdit) {
  choose("Aspirate");
  edit(2);
  EXPECT_FALSE(control.property("CycleChanged").toBool());
  EXPECT_NE(editor(2), nullptr);
}

TEST_F(Control, MacroTextIsTakenWhenTheEditHasEnded) {
  choose("Aspirate");
  press("cmdInset");
  edit(2);
  QTest::keyClicks(editor(2), "700");
  EXPECT_EQ(control.MacroString(), "//\r\nAspirate(1,)\r\n");
  EXPECT_EQ(boxes->messages.size(), 1U) << "the end of the edit is told";
  EXPECT_EQ(value(2), "700");
}

TEST_F(Control, MacroTextThatCannotBeWrittenIsEmptyAndTold) {
  control.SetXMLStrings(catalogue, QStringLiteral("<CYCLE><VARIABLES/><ATOMSEQUENCE><ATOMS><ATOM><ATOMNAME>Home"
                                                  "</ATOMNAME><PARAMETERS><PARAMETER><PARAMNAME/><PARAMVALUE>1"
                                                  "</PARAMVALUE></PARAMETER><PARAMETER><PARAMNAME>P</PARAMNAME>"
                                                  "<PARAMVALUE>2</PARAMVALUE></PARAMETER></PARAMETERS></ATOM></ATOMS>"
                                                  "</ATOMSEQUENCE></CYCLE>"));
  const QSignalSpy errors(&control, &ctlCycEd::CycleEditorError);
  EXPECT_EQ(control.MacroString(), "");
  ASSERT_EQ(errors.count(), 1);
  EXPECT_EQ(errors[0][4].toString(), "RetrieveMacroString ");
}

TEST_F(Control, MacroTextIsNoNewBaseline) {
  choose("Home");
  press("cmdInset");
  EXPECT_NE(control.MacroString(), "");
  EXPECT_TRUE(control.CycleChanged());
}

TEST_F(Control, InvalidValueIsNamedAndValidOnesLeaveTheMessage) {
  choose("Aspirate");
  QString message(QStringLiteral("as before"));
  edit(2);
  QTest::keyClicks(editor(2), "7");
  EXPECT_TRUE(control.ParamValueControl(message));
  EXPECT_EQ(message, "as before");
  edit(1);
  QTest::keyClicks(editor(1), "wenig µl");
  EXPECT_FALSE(control.ParamValueControl(message));
  EXPECT_EQ(message, "Parameter Volume(ul) has invalid value of wenig µl.");
}

TEST_F(Control, VariablesComeToTheirRowsAndGoAgain) {
  control.SetXMLStrings(
      QStringLiteral("<LATESTKAM><ATOMS><ATOM><AtomName>Take</AtomName><Param>Source;TRAY;None</Param>"
                     "<Param>Count;1;9;1;1;None</Param></ATOM></ATOMS><OBJECTS><OBJECT><C>TRAY</C><N>Tray1</N>"
                     "</OBJECT></OBJECTS></LATESTKAM>"),
      QStringLiteral("<CYCLE><VARIABLES><VALUE>V ();1;1;1</VALUE></VARIABLES><ATOMSEQUENCE><ATOMS/></ATOMSEQUENCE>"
                     "</CYCLE>"));
  choose("Take");
  const auto offered = [this](int row) {
    return grid().model()->index(row - 1, 1).data(qt::ValueListModel::PickListRole).toStringList();
  };
  EXPECT_EQ(offered(1), QStringList({"Tray1", "V"}));
  EXPECT_EQ(offered(2), QStringList()) << "a number is typed; its menu offers the variable";
  EXPECT_EQ(editorOf(control).parameterRows().row(2).ExtraValues, "V");
  EXPECT_EQ(value(1), "Tray1");
  widget("lstVariables").setFocus();
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
  press("cmdDel");
  EXPECT_EQ(offered(1), QStringList({"Tray1"}));
  EXPECT_EQ(editorOf(control).parameterRows().row(2).ExtraValues, "");
}

TEST_F(Control, SettingsOfTheHostDoNotDisturbTheEdit) {
  choose("Aspirate");
  edit(2);
  QTest::keyClicks(editor(2), "700");
  control.SetConfigXML(QStringLiteral("<Config/>"));
  control.setProperty("Ignore_Hidden", true);
  control.setProperty("ResetCycle", QStringLiteral("<CYCLE/>"));
  EXPECT_NE(editor(2), nullptr);
  EXPECT_THAT(boxes->messages, IsEmpty());
}

TEST_F(Control, NewCycleEndsTheEditFirst) {
  choose("Aspirate");
  edit(2);
  QTest::keyClicks(editor(2), "700");
  control.SetXMLStrings(catalogue, QString());
  EXPECT_EQ(boxes->messages.size(), 1U);
  EXPECT_EQ(grid().model()->rowCount(), 0);
}

TEST_F(Control, UnusableCatalogueDisablesTheScreen) {
  control.SetXMLStrings(QString(), QString());
  EXPECT_FALSE(widget("cboAtom").isEnabled());
  EXPECT_FALSE(widget("lstVariables").isEnabled());
  control.SetXMLStrings(catalogue, QString());
  EXPECT_TRUE(widget("cboAtom").isEnabled());
}

TEST_F(Control, SeveralControlsShareNothing) {
  ctlCycEd other;
  other.SetXMLStrings(QStringLiteral("<LATESTKAM><ATOMS><ATOM><AtomName>Wash</AtomName></ATOM></ATOMS></LATESTKAM>"),
                      QString());
  choose("Home");
  press("cmdInset");
  EXPECT_EQ(other.findChild<QComboBox*>(QStringLiteral("cboAtom"))->findText(QStringLiteral("Home")), -1);
  EXPECT_EQ(widget<QComboBox>("cboAtom").findText(QStringLiteral("Wash")), -1);
  EXPECT_EQ(other.RetrieveCycle(), "");
  EXPECT_NE(control.RetrieveCycle(), "");
}

TEST_F(Control, MayBeDestroyedInTheMiddleOfAnEdit) {
  auto* const doomed = new ctlCycEd;
  showActive(*doomed);
  doomed->SetXMLStrings(catalogue, QString());
  doomed->findChild<QComboBox*>(QStringLiteral("cboAtom"))->setFocus();
  QTest::keyClicks(QApplication::focusWidget(), "A");
  auto* const view = doomed->findChild<QTableView*>(QStringLiteral("GrdAtom"));
  view->setFocus();
  QTest::keyClicks(view, "5");
  ASSERT_NE(view->indexWidget(view->model()->index(0, 1)), nullptr);
  delete doomed;
}

TEST_F(Control, FitsASmallWindowWithoutCollapsing) {
  EXPECT_LE(control.minimumSizeHint().width(), 640);
  EXPECT_LE(control.minimumSizeHint().height(), 480);
  control.resize(640, 480);
  for (QSplitter* const splitter : control.findChildren<QSplitter*>()) {
    EXPECT_FALSE(splitter->childrenCollapsible());
    splitter->setSizes({0, 10000, 0});
    for (const int size : splitter->sizes()) EXPECT_GT(size, 20);
  }
}

TEST_F(Control, ListsKeepTheIndentOfTheirLines) {
  control.SetXMLStrings(catalogue, QStringLiteral("[PMA]"));
  choose("Home");
  press("cmdInset");
  auto& list = widget<QListView>("lstAtomSequence");
  EXPECT_EQ(list.model()->index(0, 0).data(), "01 Home");
}

}  // namespace
}  // namespace mavCycEd::test
