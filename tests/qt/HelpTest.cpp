#include <gmock/gmock.h>

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QListView>
#include <QTableView>
#include <QTest>
#include <QTextBrowser>
#include <QTimer>
#include <QVBoxLayout>
#include <stdexcept>
#include <utility>
#include <vector>

#include "TestWindow.h"
#include "mavCycEd/ctlCycEd.h"
#include "qt/HelpWindow.h"

namespace mavCycEd::test {
namespace {

const QString catalogue = QStringLiteral(R"(<LATESTKAM><ATOMS>
  <ATOM><AtomName>Aspirate</AtomName><Param>Volume;1;100;1;1;ul</Param><Param>Mode#;0;1;0;1;1</Param></ATOM>
</ATOMS><LISTS><LIST><NUMBER>1</NUMBER><ENTRIES>Quick;Slow</ENTRIES></LIST></LISTS></LATESTKAM>)");

const QString cycle = QStringLiteral(
    "<CYCLE><VARIABLES><VALUE>Fill (ul);5;1;10</VALUE></VARIABLES><ATOMSEQUENCE><ATOMS><ATOM><ATOMNAME>Aspirate"
    "</ATOMNAME><PARAMETERS></PARAMETERS></ATOM></ATOMS></ATOMSEQUENCE><VERSION>03</VERSION></CYCLE>");

class Help : public testing::Test {
 protected:
  Help() {
    auto* const layout = new QVBoxLayout(&host);
    layout->addWidget(outside);
    layout->addWidget(control);
    host.addAction(&hostsHelp);
    hostsHelp.setShortcut(Qt::Key_F1);
    QObject::connect(&hostsHelp, &QAction::triggered, &host, [this] { ++hostsHelps; });
    host.resize(900, 700);
    showActive(host);
    control->SetXMLStrings(catalogue, cycle);
  }

  template <typename Widget = QWidget>
  Widget& widget(const char* name) {
    auto* const found = host.findChild<Widget*>(QLatin1String(name));
    if (found == nullptr) throw std::runtime_error(std::string("no ") + name);
    return *found;
  }
  std::vector<qt::HelpWindow*> windows() {
    std::vector<qt::HelpWindow*> found;
    for (QWidget* const window : QApplication::topLevelWidgets()) {
      if (auto* const help = qobject_cast<qt::HelpWindow*>(window)) found.push_back(help);
    }
    return found;
  }
  qt::HelpWindow& window() {
    if (windows().size() != 1) throw std::runtime_error(std::to_string(windows().size()) + " help windows");
    return *windows().front();
  }
  QTextBrowser& pages() { return *window().findChild<QTextBrowser*>(); }
  std::string page() { return pages().source().fileName().toStdString(); }
  bool isShown() { return windows().size() == 1 && window().isVisible(); }

  // Presses F1 in the window that has the keyboard, as the system does.
  static void pressHelp() { QTest::keyClick(QApplication::focusWindow(), Qt::Key_F1); }
  void waitForHelp() { showActive(window()); }
  std::string pageFrom(const char* name) {
    showActive(host);
    widget(name).setFocus();
    pressHelp();
    waitForHelp();
    return page();
  }
  void openValue(int row) {
    auto& grid = widget<QTableView>("GrdAtom");
    QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, grid.visualRect(grid.model()->index(row - 1, 1)).center());
  }
  // Opens the dialog of the variable and works in it.
  template <typename Work>
  void inDialog(const Work& work) {
    auto& list = widget<QListView>("lstVariables");
    list.setFocus();
    QTest::keyClick(&list, Qt::Key_Down);
    QTimer::singleShot(0, &host, [&] {
      auto& dialog = widget<QDialog>("frmparams");
      showActive(dialog);
      work(dialog);
      if (control != nullptr) dialog.reject();
    });
    QTest::keyClick(&list, Qt::Key_Return);
  }

  QWidget host;
  QAction hostsHelp;
  int hostsHelps = 0;
  QLineEdit* outside = new QLineEdit(&host);
  ctlCycEd* control = new ctlCycEd(&host);
};

TEST_F(Help, OpensAtThePageThatFits) {
  EXPECT_TRUE(windows().empty());
  EXPECT_EQ(pageFrom("cboAtom"), "screen.html");
  EXPECT_EQ(pageFrom("GrdAtom"), "values.html");
  EXPECT_EQ(pageFrom("lstAtomSequence"), "screen.html");
  EXPECT_EQ(pageFrom("lstVariables"), "variables.html");
  EXPECT_EQ(pageFrom("cmdIns"), "variables.html");
  EXPECT_EQ(pageFrom("txtCycleDescription"), "screen.html");
  EXPECT_EQ(pageFrom("cmdInset"), "screen.html");
  EXPECT_EQ(hostsHelps, 0);
}

TEST_F(Help, IsThereWhileAValueIsEditedAndTheEditGoesOn) {
  openValue(1);
  QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("7"));
  pressHelp();
  EXPECT_EQ(page(), "values.html");
  waitForHelp();
  QTest::keyClick(&window(), Qt::Key_Escape);
  showActive(host);
  QTest::keyClicks(host.focusWidget(), QStringLiteral("5"));
  EXPECT_EQ(widget<QTableView>("GrdAtom").model()->index(0, 1).data().toString(), "75");
}

TEST_F(Help, IsThereWhileAListIsOpen) {
  openValue(2);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_F4);
  ASSERT_NE(QApplication::activePopupWidget(), nullptr);
  QTest::keyClick(QApplication::activePopupWidget()->focusWidget(), Qt::Key_F1);
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
  EXPECT_EQ(page(), "values.html");
}

TEST_F(Help, OutsideOfTheControlTheKeyIsTheHosts) {
  outside->setFocus();
  pressHelp();
  EXPECT_EQ(hostsHelps, 1);
  EXPECT_TRUE(windows().empty());
  widget("cboAtom").setFocus();
  QTest::keyClick(QApplication::focusWindow(), Qt::Key_F1, Qt::ShiftModifier);
  EXPECT_TRUE(windows().empty());
}

TEST_F(Help, PagesPicturesAndStyleAreInTheLibrary) {
  control->ShowHelp();
  EXPECT_EQ(page(), "index.html");
  EXPECT_TRUE(pages().toPlainText().contains(QStringLiteral("A cycle is the list of steps")));
  EXPECT_EQ(window().windowTitle(), "Cycle Editor Help");
  const auto picture = pages().loadResource(QTextDocument::ImageResource, QUrl(QStringLiteral("images/editor.png")));
  EXPECT_EQ(picture.value<QImage>().width(), 620);
  EXPECT_FALSE(pages().loadResource(QTextDocument::StyleSheetResource, QUrl(QStringLiteral("help.css"))).isNull());
}

TEST_F(Help, EveryPageCanBeRead) {
  control->ShowHelp();
  for (const char* file : {"index", "screen", "values", "variables", "macro-text", "messages", "keys", "host"}) {
    pages().setSource(QUrl(QStringLiteral("qrc:/mavCycEd/help/%1.html").arg(QLatin1String(file))));
    EXPECT_FALSE(pages().toPlainText().isEmpty()) << file;
  }
}

TEST_F(Help, KeysLeadBackForwardToTheContentsAndOut) {
  EXPECT_EQ(pageFrom("GrdAtom"), "values.html");
  EXPECT_TRUE(pages().hasFocus());
  EXPECT_EQ(pageFrom("lstVariables"), "variables.html");
  QTest::keyClick(&window(), Qt::Key_Left, Qt::AltModifier);
  EXPECT_EQ(page(), "values.html");
  QTest::keyClick(&window(), Qt::Key_Right, Qt::AltModifier);
  EXPECT_EQ(page(), "variables.html");
  QTest::keyClick(&window(), Qt::Key_Home, Qt::AltModifier);
  EXPECT_EQ(page(), "index.html");
  QTest::keyClick(&pages(), Qt::Key_Escape);
  EXPECT_FALSE(isShown());
  EXPECT_EQ(pageFrom("GrdAtom"), "values.html");
  EXPECT_TRUE(isShown());
}

TEST_F(Help, NamesItsPartsForPeople) {
  control->ShowHelp();
  EXPECT_FALSE(pages().accessibleName().isEmpty());
  for (const QAbstractButton* const button : window().findChildren<QAbstractButton*>()) {
    EXPECT_FALSE(button->accessibleName().isEmpty());
    EXPECT_NE(button->focusPolicy(), Qt::NoFocus);
  }
}

TEST_F(Help, CanBeUsedWhileTheDialogIsOpen) {
  pageFrom("GrdAtom");
  showActive(host);
  inDialog([this](QDialog& dialog) {
    pressHelp();
    EXPECT_EQ(page(), "variables.html");
    EXPECT_EQ(window().parentWidget(), &dialog);
    waitForHelp();
    QTest::keyClick(window().windowHandle(), Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(page(), "values.html");
    EXPECT_TRUE(dialog.isVisible());
  });
  EXPECT_TRUE(isShown()) << "it outlives the dialog";
  EXPECT_EQ(window().parentWidget(), &host);
  EXPECT_EQ(page(), "values.html");
}

TEST_F(Help, ThatWasClosedOverTheDialogStaysClosed) {
  inDialog([this](QDialog&) {
    pressHelp();
    waitForHelp();
    QTest::keyClick(&window(), Qt::Key_Escape);
    EXPECT_FALSE(isShown());
  });
  EXPECT_FALSE(isShown());
  EXPECT_EQ(pageFrom("cboAtom"), "screen.html");
  EXPECT_TRUE(isShown());
}

TEST_F(Help, GoesWithTheControl) {
  control->ShowHelp();
  delete control;
  EXPECT_TRUE(windows().empty());
}

TEST_F(Help, GoesWithTheControlWhileTheDialogIsOpen) {
  inDialog([this](QDialog&) {
    pressHelp();
    EXPECT_TRUE(isShown());
    delete std::exchange(control, nullptr);
    EXPECT_TRUE(windows().empty());
  });
}

TEST_F(Help, IsHiddenWithTheWindowOfTheControlOnly) {
  control->ShowHelp();
  control->hide();
  EXPECT_TRUE(isShown());
  control->show();
  host.hide();
  EXPECT_FALSE(isShown());
}

TEST_F(Help, CanBeReadWhileTheControlIsDisabled) {
  control->ShowHelp();
  host.setEnabled(false);
  control->setEnabled(false);
  EXPECT_TRUE(pages().isEnabled());
  control->ShowHelp();
  EXPECT_TRUE(pages().isEnabled());
}

TEST_F(Help, EveryControlHasItsOwn) {
  ctlCycEd second(&host);
  control->ShowHelp();
  second.ShowHelp();
  second.ShowHelp();
  EXPECT_EQ(windows().size(), 2U);
}

TEST_F(Help, LinksAreLegibleOnDarkPaper) {
  control->ShowHelp();
  const auto colourOfTheLink = [this] {
    QTextCursor cursor = pages().document()->find(QStringLiteral("Macro text"));
    return cursor.charFormat().foreground().color();
  };
  EXPECT_LT(colourOfTheLink().lightness(), 128);
  QPalette dark = window().palette();
  dark.setColor(QPalette::Base, QColor(0x23, 0x25, 0x28));
  dark.setColor(QPalette::Text, Qt::white);
  window().setPalette(dark);
  EXPECT_GT(colourOfTheLink().lightness(), 128);
}

}  // namespace
}  // namespace mavCycEd::test
