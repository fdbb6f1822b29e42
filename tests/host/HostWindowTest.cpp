#include <QComboBox>
#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QTableWidget>
#include <QTextBrowser>
#include <QWindow>

#include "TestHostWindow.h"

namespace mavCycEd::host {
namespace {

TEST_F(HostWindowTest, WithoutInstrumentItSaysWhatToDo) {
  EXPECT_TRUE(the<QWidget>("welcomeBar").isVisible());
  EXPECT_FALSE(editor().isEnabled());
  EXPECT_FALSE(command("Save").isEnabled());
  EXPECT_EQ(the<QLabel>("instrument").text(), QStringLiteral("No instrument"));
  EXPECT_FALSE(the<QWidget>("errorDock").isVisible());
  EXPECT_TRUE(closes(QMessageBox::NoButton));
}

TEST_F(HostWindowTest, AnInstrumentEnablesTheEditor) {
  openInstrument();
  EXPECT_FALSE(the<QWidget>("welcomeBar").isVisible());
  EXPECT_TRUE(editor().isEnabled());
  EXPECT_TRUE(command("Save").isEnabled());
  EXPECT_EQ(the<QLabel>("instrument").text(), QStringLiteral("catalogue.xml + configuration.xml"));
  EXPECT_EQ(window_.windowTitle(), QStringLiteral("New cycle[*] - Cycle editor"));
  EXPECT_TRUE(closes(QMessageBox::NoButton));
}

TEST_F(HostWindowTest, TheLastInstrumentIsOffered) {
  openInstrument();
  HostWindow next(settings_);
  next.show();
  auto* const button = next.findChild<QPushButton*>(QStringLiteral("lastInstrument"));
  EXPECT_TRUE(button->isVisible());
  EXPECT_EQ(button->text().remove(u'&'), QStringLiteral("Use last: catalogue.xml"));
  button->click();
  EXPECT_EQ(next.findChild<QLabel*>(QStringLiteral("instrument"))->text(),
            QStringLiteral("catalogue.xml + configuration.xml"));
}

TEST_F(HostWindowTest, AChangeIsMarkedSavedAndUnmarked) {
  openInstrument();
  const QString path = copyOfStandard();
  EXPECT_FALSE(window_.openCycle(path));
  EXPECT_EQ(window_.windowTitle(), QStringLiteral("c.xml[*] - Cycle editor"));
  describe(QStringLiteral(" Neu."));
  EXPECT_FALSE(window_.isWindowModified());
  EXPECT_TRUE(QTest::qWaitFor([this] { return window_.isWindowModified(); }));
  command("Save").trigger();
  EXPECT_FALSE(window_.isWindowModified());
  EXPECT_TRUE(read(path).contains(" Neu.</DESCRIPTION>"));
  EXPECT_TRUE(closes(QMessageBox::NoButton));
}

TEST_F(HostWindowTest, ClosingAsksAboutUnsavedWork) {
  openInstrument();
  const QString path = copyOfStandard();
  const QByteArray before = read(path);
  EXPECT_FALSE(window_.openCycle(path));
  describe(QStringLiteral("x"));
  QString said;
  EXPECT_FALSE(closes(QMessageBox::Cancel, &said));
  EXPECT_EQ(said, QStringLiteral("\"c.xml\" has changes that are not saved. Save them before closing the window?"));
  EXPECT_TRUE(window_.isVisible());
  EXPECT_TRUE(closes(QMessageBox::Discard));
  EXPECT_EQ(read(path), before);
  window_.show();
  EXPECT_TRUE(closes(QMessageBox::Save));
  EXPECT_NE(read(path), before);
}

TEST_F(HostWindowTest, AChangeThatIsTakenBackIsNone) {
  openInstrument();
  EXPECT_FALSE(window_.openCycle(copyOfStandard()));
  describe(QStringLiteral("x"));
  QTest::keyClick(&the<QPlainTextEdit>("txtCycleDescription"), Qt::Key_Backspace);
  EXPECT_TRUE(closes(QMessageBox::NoButton));
}

TEST_F(HostWindowTest, AFailedSavingLosesNothing) {
  openInstrument();
  ASSERT_TRUE(QDir(folder_.path()).mkdir(QStringLiteral("gone")));
  const QString path = at("gone/c.xml");
  ASSERT_TRUE(QFile::copy(sample("cycle-standard.xml"), path));
  EXPECT_FALSE(window_.openCycle(path));
  describe(QStringLiteral("x"));
  ASSERT_TRUE(QDir(at("gone")).removeRecursively());
  Answer told(QMessageBox::Ok);
  command("Save").trigger();
  EXPECT_TRUE(told.said().contains(QStringLiteral("There is no folder"))) << told.said().toStdString();
  EXPECT_FALSE(closes(QMessageBox::Cancel)) << "what the editor handed back is still in no file";
  EXPECT_TRUE(description().endsWith(u'x'));
}

TEST_F(HostWindowTest, SaveAsMakesTheFileTheCycles) {
  openInstrument();
  EXPECT_FALSE(window_.openCycle(copyOfStandard()));
  QTimer::singleShot(200, &window_, [this] {
    auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
    ASSERT_NE(dialog, nullptr);
    dialog->findChild<QLineEdit*>()->setText(at("other"));
    QMetaObject::invokeMethod(dialog, "accept");
  });
  command("Save as...").trigger();
  EXPECT_EQ(window_.windowTitle(), QStringLiteral("other.xml[*] - Cycle editor"));
  EXPECT_EQ(read(at("other.xml")), read(at("c.xml")));
}

TEST_F(HostWindowTest, AnotherInstrumentKeepsTheEditedCycle) {
  openInstrument();
  EXPECT_FALSE(window_.openCycle(copyOfStandard()));
  describe(QStringLiteral(" kept"));
  EXPECT_FALSE(window_.openCatalogue(sample("catalogue.xml")));
  EXPECT_TRUE(description().endsWith(QStringLiteral(" kept")));
  EXPECT_TRUE(window_.isWindowModified());
  EXPECT_EQ(window_.windowTitle(), QStringLiteral("c.xml[*] - Cycle editor"));
  command("Show hidden atoms and objects").trigger();
  EXPECT_TRUE(description().endsWith(QStringLiteral(" kept")));
  EXPECT_FALSE(closes(QMessageBox::Cancel));
}

TEST_F(HostWindowTest, AnotherInstrumentLeavesAnUnchangedCycleUnchanged) {
  openInstrument();
  for (const char* name : {"cycle-standard.xml", "cycle-old.xml"}) {
    EXPECT_FALSE(window_.openCycle(sample(name)));
    EXPECT_FALSE(window_.openConfiguration(sample("configuration.xml")));
    EXPECT_TRUE(closes(QMessageBox::NoButton)) << name;
  }
}

TEST_F(HostWindowTest, ACycleInAnotherWritingIsNoChange) {
  openInstrument();
  const QString path = write("foreign.xml",
                             "<CYCLE><OTHER/><VARIABLES/><ATOMSEQUENCE><ATOMS><ATOM><ATOMNAME>WAIT</ATOMNAME>"
                             "<PARAMETERS/></ATOM></ATOMS></ATOMSEQUENCE><VERSION>03</VERSION></CYCLE>");
  EXPECT_FALSE(window_.openCycle(path));
  QTest::mouseClick(&the<QWidget>("lstAtomSequence"), Qt::LeftButton);
  EXPECT_TRUE(closes(QMessageBox::NoButton));
  window_.show();
  describe(QStringLiteral("x"));
  EXPECT_FALSE(closes(QMessageBox::Cancel));
}

TEST_F(HostWindowTest, AnUnusableFileLeavesEverythingAsItIs) {
  openInstrument();
  EXPECT_FALSE(window_.openCycle(copyOfStandard()));
  const QString broken = write("broken.xml", "<CYCLE><VARIABLES>");
  EXPECT_TRUE(window_.openCycle(broken));
  EXPECT_TRUE(window_.openCatalogue(broken));
  EXPECT_TRUE(window_.openConfiguration(broken));
  EXPECT_EQ(window_.windowTitle(), QStringLiteral("c.xml[*] - Cycle editor"));
  EXPECT_TRUE(description().startsWith(QStringLiteral("Standard-Messung")));
  EXPECT_EQ(the<QLabel>("instrument").text(), QStringLiteral("catalogue.xml + configuration.xml"));
}

TEST_F(HostWindowTest, WithoutAtomLinesNothingIsWrittenAndNothingLost) {
  openInstrument();
  describe(QStringLiteral("An idea"));
  const QString path = write("c.xml", "old");
  QTimer::singleShot(200, &window_, [path] {
    auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
    ASSERT_NE(dialog, nullptr);
    dialog->setOption(QFileDialog::DontConfirmOverwrite);
    dialog->selectFile(path);
    QMetaObject::invokeMethod(dialog, "accept");
  });
  Answer told(QMessageBox::Ok);
  command("Save as...").trigger();
  EXPECT_TRUE(told.said().contains(QStringLiteral("It has no atom lines"))) << told.said().toStdString();
  EXPECT_EQ(read(path), "old");
  EXPECT_EQ(description(), QStringLiteral("An idea"));
  EXPECT_FALSE(closes(QMessageBox::Cancel));
}

TEST_F(HostWindowTest, ADescriptionWithoutAtomLinesIsAskedAbout) {
  openInstrument();
  describe(QStringLiteral("An idea"));
  EXPECT_FALSE(closes(QMessageBox::Cancel));
  Answer reload(QMessageBox::Cancel);
  command("Show hidden atoms and objects").trigger();
  EXPECT_TRUE(reload.asked());
  EXPECT_FALSE(command("Show hidden atoms and objects").isChecked());
  EXPECT_EQ(description(), QStringLiteral("An idea"));
}

TEST_F(HostWindowTest, ALineThatWasInsertedCanBeSaved) {
  openInstrument();
  the<QComboBox>("cboAtom").setCurrentIndex(0);
  QTest::keyClick(&the<QComboBox>("cboAtom"), Qt::Key_Down);
  insertLine();
  EXPECT_TRUE(editor().CycleChanged());
  EXPECT_FALSE(closes(QMessageBox::Cancel));
}

TEST_F(HostWindowTest, TheEditMenuTakesStepsBack) {
  openInstrument();
  EXPECT_FALSE(window_.openCycle(copyOfStandard()));
  QMenu* edit = nullptr;
  for (QMenu* const menu : window_.findChildren<QMenu*>()) {
    if (menu->title() == QStringLiteral("&Edit")) edit = menu;
  }
  ASSERT_NE(edit, nullptr);
  ASSERT_GE(edit->actions().size(), 2);
  EXPECT_FALSE(edit->actions()[0]->isEnabled());
  describe(QStringLiteral(" Neu."));
  EXPECT_EQ(edit->actions()[0]->text(), QStringLiteral("&Undo Change Description"));
  edit->actions()[0]->trigger();
  EXPECT_FALSE(description().endsWith(QStringLiteral(" Neu.")));
  EXPECT_EQ(edit->actions()[1]->text(), QStringLiteral("&Redo Change Description"));
  EXPECT_TRUE(closes(QMessageBox::NoButton)) << "taken back to what was opened, it is no change";
}

TEST_F(HostWindowTest, ACycleThatCannotBeWrittenIsNotSavedAndTheReasonIsSaid) {
  openInstrument();
  const QByteArray cycle =
      "<CYCLE><VARIABLES/><ATOMSEQUENCE><ATOMS><ATOM><ATOMNAME>WAIT</ATOMNAME><PARAMETERS><PARAMETER>"
      "<PARAMNAME>Time</PARAMNAME><PARAMVALUE>a &lt; b</PARAMVALUE></PARAMETER></PARAMETERS></ATOM></ATOMS>"
      "</ATOMSEQUENCE><VERSION>03</VERSION></CYCLE>";
  const QString path = write("c.xml", cycle);
  EXPECT_FALSE(window_.openCycle(path));
  describe(QStringLiteral("An idea"));
  Answer told(QMessageBox::Ok);
  command("Save").trigger();
  EXPECT_TRUE(told.said().contains(QStringLiteral("the value \"a < b\" of the parameter \"Time\" in line 1")))
      << told.said().toStdString();
  EXPECT_FALSE(told.said().contains(QStringLiteral("no atom lines")));
  EXPECT_EQ(read(path), cycle);
  EXPECT_EQ(description(), QStringLiteral("An idea"));
  EXPECT_FALSE(closes(QMessageBox::Cancel));
}

TEST_F(HostWindowTest, AMacroTextIsNotOverwritten) {
  openInstrument();
  const QString path = write("m.txt", "[PMA]\r\n//Spülen\r\nWAIT(2.5)");
  EXPECT_FALSE(window_.openCycle(path));
  EXPECT_EQ(window_.windowTitle(), QStringLiteral("m.xml[*] - Cycle editor"));
  QTimer::singleShot(200, &window_, [] {
    if (auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget())) dialog->reject();
  });
  command("Save").trigger();
  EXPECT_FALSE(QFile::exists(at("m.xml")));
  EXPECT_TRUE(closes(QMessageBox::NoButton));
  EXPECT_TRUE(read(path).startsWith("[PMA]"));
}

TEST_F(HostWindowTest, ACycleThatLoadsInPartIsToldAndNotOverwritten) {
  openInstrument();
  const QString path =
      write("part.xml",
            "<CYCLE><VARIABLES/><ATOMSEQUENCE><ATOMS><ATOM><ATOMNAME>WAIT</ATOMNAME><PARAMETERS/></ATOM>"
            "<ATOM/></ATOMS></ATOMSEQUENCE><VERSION>03</VERSION></CYCLE>");
  const std::optional<Problem> problem = window_.openCycle(path);
  ASSERT_TRUE(problem);
  EXPECT_EQ(problem->what, QStringLiteral("\"part.xml\" could be opened in part only."));
  EXPECT_EQ(window_.windowTitle(), QStringLiteral("part (part).xml[*] - Cycle editor"));
  EXPECT_TRUE(the<QWidget>("errorDock").isVisible());
  EXPECT_GE(the<QTableWidget>("errorTable").rowCount(), 1);
  QTimer::singleShot(200, &window_, [] {
    if (auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget())) dialog->reject();
  });
  command("Save").trigger();
  EXPECT_TRUE(read(path).contains("<ATOM/>"));
  EXPECT_TRUE(closes(QMessageBox::NoButton));
}

TEST_F(HostWindowTest, RecentCyclesAreOffered) {
  openInstrument();
  const QString path = copyOfStandard();
  EXPECT_FALSE(window_.openCycle(path));
  command("New cycle").trigger();
  QAction& menu = command("Recent cycles");
  emit menu.menu()->aboutToShow();
  command("c.xml").trigger();
  EXPECT_EQ(window_.windowTitle(), QStringLiteral("c.xml[*] - Cycle editor"));
  EXPECT_TRUE(QFile::remove(path));
  emit menu.menu()->aboutToShow();
  Answer told(QMessageBox::Ok);
  command("c.xml").trigger();
  EXPECT_TRUE(told.said().contains(QStringLiteral("There is no such file."))) << told.said().toStdString();
  emit menu.menu()->aboutToShow();
  EXPECT_THROW(command("c.xml"), std::runtime_error);
}

TEST_F(HostWindowTest, HelpIsInTheMenuAndOnItsKeyEverywhere) {
  auto* const help = &command("Cycle editor help");
  EXPECT_EQ(help->shortcut(), QKeySequence(Qt::Key_F1));
  const auto page = [this] {
    auto* const browser = window_.findChild<QTextBrowser*>();
    return browser != nullptr && browser->isVisible() ? browser->source().fileName() : QString();
  };
  help->trigger();
  EXPECT_EQ(page(), QStringLiteral("index.html")) << "also without an instrument";
  EXPECT_TRUE(window_.findChild<QTextBrowser*>()->isEnabled());

  openInstrument();
  window_.activateWindow();
  ASSERT_TRUE(QTest::qWaitFor([this] { return window_.isActiveWindow(); }));
  the<QComboBox>("cboAtom").setFocus();
  QTest::keyClick(window_.windowHandle(), Qt::Key_F1);
  EXPECT_EQ(page(), QStringLiteral("screen.html")) << "inside, the key is the editor's";
  EXPECT_TRUE(closes(QMessageBox::NoButton));
  EXPECT_EQ(page(), QString()) << "it is closed with the window";
}

}  // namespace
}  // namespace mavCycEd::host
