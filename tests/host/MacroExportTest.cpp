#include "MacroExport.h"

#include <QDir>
#include <QLineEdit>

#include "TestHostWindow.h"

namespace mavCycEd::host {
namespace {

/// A cycle document as the editor hands it back, from the description, the variables and the lines of the sequence.
QString cycleWith(const QString& description, const QStringList& variables, const QStringList& lines) {
  QString text = QStringLiteral("<CYCLE><DESCRIPTION>//%1</DESCRIPTION><VARIABLES>").arg(description);
  for (const QString& variable : variables) text += QStringLiteral("<VALUE>%1</VALUE>").arg(variable);
  text += QStringLiteral("</VARIABLES><CYCLEATOMS><ATOMLINE>MIX(1,)</ATOMLINE></CYCLEATOMS><ATOMSEQUENCE><ATOMS>");
  for (const QString& line : lines) {
    QStringList parts = line.split(u'|');
    text += QStringLiteral("<ATOM><ATOMNAME>%1</ATOMNAME><PARAMETERS>").arg(parts.takeFirst());
    for (const QString& value : std::as_const(parts)) {
      text += QStringLiteral("<PARAMETER><PARAMNAME>P</PARAMNAME><PARAMVALUE>%1</PARAMVALUE></PARAMETER>").arg(value);
    }
    text += QStringLiteral("</PARAMETERS></ATOM>");
  }
  return text + QStringLiteral("</ATOMS></ATOMSEQUENCE><VERSION>03</VERSION></CYCLE>");
}

TEST(MacroExportTest, NothingIsLostOfWhatAMacroTextCanHold) {
  EXPECT_EQ(lostInMacroText(cycleWith(QStringLiteral("Dilution &amp; 50 µl\n"),
                                      {QStringLiteral("Fill (µl);1;0;9"), QStringLiteral("Rack;TRAY")},
                                      {QStringLiteral("MIX|1|two"), QStringLiteral("HOME"), QStringLiteral("WAIT|")})),
            QStringList());
}

TEST(MacroExportTest, WhatIsLostIsNamed) {
  EXPECT_EQ(lostInMacroText(cycleWith(QStringLiteral("One\r\nTwo"), {}, {QStringLiteral("MIX|1|2")})),
            QStringList{QStringLiteral("Only the first line of the description stays a description.")});
  EXPECT_EQ(lostInMacroText(cycleWith({}, {},
                                      {QStringLiteral("REPEAT|2"), QStringLiteral("REPEAT|3"), QStringLiteral("END"),
                                       QStringLiteral("WAIT|4"), QStringLiteral("WAIT|5"), QStringLiteral("WAIT|6")})),
            QStringList{QStringLiteral("An atom line with one parameter loses its value: "
                                       "1 REPEAT, 2 REPEAT, 4 WAIT and 2 more.")});
  EXPECT_EQ(lostInMacroText(cycleWith({}, {}, {QStringLiteral("Home"), QStringLiteral("A"), QStringLiteral("MIX_2")})),
            QStringList{QStringLiteral("An atom line whose name is not made of A to Z and _ becomes a variable: "
                                       "1 Home, 2 A, 3 MIX_2.")});
  EXPECT_EQ(lostInMacroText(cycleWith({}, {}, {QStringLiteral("MIX|1,5|2"), QStringLiteral("MIX|1|2")})),
            QStringList{QStringLiteral("A value with a comma or a line end is torn apart: 1 MIX.")});
  EXPECT_EQ(lostInMacroText(cycleWith({}, {QStringLiteral("FILL(µl);1;0;9"), QStringLiteral("//x;TRAY")}, {})),
            QStringList{QStringLiteral("A variable that reads like another kind of line becomes one: FILL(µl);1;0;9, "
                                       "//x;TRAY.")});
}

/// Chooses a file in the next file dialog, and keeps what the dialog suggested.
class Chooser : public QObject {
 public:
  explicit Chooser(const QString& path) {
    connect(&timer_, &QTimer::timeout, this, [this, path] {
      auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
      if (dialog == nullptr) return;
      timer_.stop();
      auto* const name = dialog->findChild<QLineEdit*>();
      suggested_ = QFileInfo(name->text()).fileName();
      dialog->setOption(QFileDialog::DontConfirmOverwrite);
      name->setText(path);
      QMetaObject::invokeMethod(dialog, "accept");
    });
    timer_.start(10);
  }
  QString suggested() const { return suggested_; }

 private:
  QTimer timer_;
  QString suggested_;
};

class MacroExportWindowTest : public HostWindowTest {
 protected:
  MacroExportWindowTest() { openInstrument(); }

  /// Opens a cycle that a macro text can hold.
  QString openPlainCycle() {
    const QString path = write("c.xml", cycleWith(QStringLiteral("Spülen"), {QStringLiteral("V (ul);5;0;10")},
                                                  {QStringLiteral("LOWER_NEEDLE|2|V"), QStringLiteral("RESET_ARM")})
                                            .toUtf8());
    EXPECT_FALSE(window_.openCycle(path));
    return path;
  }
  QString exported(const char* name) {
    Chooser chooser(at(name));
    command("Export macro text...").trigger();
    return chooser.suggested();
  }
};

TEST_F(MacroExportWindowTest, TheFileOpensAgainAsTheSameCycle) {
  openPlainCycle();
  EXPECT_EQ(exported("m.txt"), QStringLiteral("c.txt"));
  EXPECT_EQ(read(at("m.txt")), "[PMA]\r\n//Spülen\r\nV (ul);5;0;10\r\nLOWER_NEEDLE(2,V)\r\nRESET_ARM()\r\n");
  EXPECT_FALSE(window_.openCycle(at("m.txt")));
  EXPECT_EQ(editor().MacroString(), QStringLiteral("//Spülen\r\n\r\nV (ul);5;0;10\r\n\r\nLOWER_NEEDLE(2,V)\r\n"
                                                   "RESET_ARM()\r\n"));
}

TEST_F(MacroExportWindowTest, AnExportIsNoSaving) {
  const QString path = openPlainCycle();
  const QByteArray before = read(path);
  exported("m.txt");
  EXPECT_EQ(window_.windowTitle(), QStringLiteral("c.xml[*] - Cycle editor"));
  EXPECT_FALSE(window_.isWindowModified());
  EXPECT_TRUE(closes(QMessageBox::NoButton));
  window_.show();

  describe(QStringLiteral("!"));
  exported("m.txt");
  EXPECT_TRUE(read(at("m.txt")).contains("//Spülen!\r\n"));
  EXPECT_TRUE(window_.isWindowModified());
  EXPECT_EQ(read(path), before);
  EXPECT_FALSE(closes(QMessageBox::Cancel));
  command("Save").trigger();
  EXPECT_TRUE(read(path).contains("//Spülen!</DESCRIPTION>"));
  EXPECT_TRUE(closes(QMessageBox::NoButton));
}

TEST_F(MacroExportWindowTest, WhatWouldBeLostIsAskedAbout) {
  const QString path = copyOfStandard();
  EXPECT_FALSE(window_.openCycle(path));
  {
    Answer no(QMessageBox::Cancel);
    command("Export macro text...").trigger();
    EXPECT_TRUE(no.said().startsWith(QStringLiteral("A macro text cannot carry all of \"c.xml\". Only the first line")))
        << no.said().toStdString();
  }
  EXPECT_FALSE(QFile::exists(at("m.txt")));
  Answer yes(QMessageBox::Save);
  exported("m.txt");
  EXPECT_TRUE(read(at("m.txt")).startsWith("[PMA]\r\n//Standard-Messung"));
}

TEST_F(MacroExportWindowTest, ALineThatCannotBeWrittenIsTold) {
  const QString path = write("c.xml",
                             "<CYCLE><VARIABLES/><ATOMSEQUENCE><ATOMS><ATOM><ATOMNAME>WAIT</ATOMNAME><PARAMETERS>"
                             "<PARAMETER><PARAMNAME/><PARAMVALUE>7</PARAMVALUE></PARAMETER><PARAMETER><PARAMNAME>P"
                             "</PARAMNAME><PARAMVALUE>8</PARAMVALUE></PARAMETER></PARAMETERS></ATOM></ATOMS>"
                             "</ATOMSEQUENCE><VERSION>03</VERSION></CYCLE>");
  EXPECT_FALSE(window_.openCycle(path));
  Answer told(QMessageBox::Ok);
  command("Export macro text...").trigger();
  EXPECT_TRUE(told.said().contains(QStringLiteral("cannot be exported as a macro text"))) << told.said().toStdString();
  EXPECT_TRUE(told.said().contains(QStringLiteral("Subscript out of range")));
  EXPECT_EQ(QDir(folder_.path()).entryList({QStringLiteral("*.txt")}), QStringList());
}

TEST_F(MacroExportWindowTest, WithoutAtomLinesThereIsNothingToExport) {
  describe(QStringLiteral("An idea"));
  Answer told(QMessageBox::Ok);
  command("Export macro text...").trigger();
  EXPECT_TRUE(told.said().contains(QStringLiteral("It has no atom lines"))) << told.said().toStdString();
  EXPECT_FALSE(closes(QMessageBox::Cancel)) << "the description is still in no file";
}

TEST_F(MacroExportWindowTest, AFailedExportSaysWhy) {
  openPlainCycle();
  Answer told(QMessageBox::Ok);
  exported("gone/m.txt");
  EXPECT_TRUE(told.said().contains(QStringLiteral("There is no folder"))) << told.said().toStdString();
  EXPECT_FALSE(window_.isWindowModified());
}

TEST_F(MacroExportWindowTest, TheFileOfTheCycleIsNotReplaced) {
  const QString path = openPlainCycle();
  const QByteArray before = read(path);
  Answer told(QMessageBox::Ok);
  exported("c.xml");
  EXPECT_TRUE(told.said().contains(QStringLiteral("This is the file of the cycle itself")))
      << told.said().toStdString();
  EXPECT_EQ(read(path), before);
}

}  // namespace
}  // namespace mavCycEd::host
