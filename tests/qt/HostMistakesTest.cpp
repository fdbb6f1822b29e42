// What a host does to the widget that it should not: the control, its window or another control is destroyed in the
// middle of an event, a message or the dialog; services fail; calls come from inside events.
#include <gmock/gmock.h>

#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QTableView>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>
#include <functional>

#include "TestWindow.h"
#include "mavCycEd/ctlCycEd.h"
#include "qt/QtTimer.h"

namespace mavCycEd::test {
namespace {

using Mischief = std::function<void()>;

void doIfAny(const Mischief& mischief) {
  if (const Mischief copy = mischief) copy();
}

class SpoiltProvider : public AtomListProvider {
 public:
  void setIgnoreHidden(bool) override {}
  std::vector<std::string> furtherAtomNames() override { return {}; }
  UnitOfMeasure lookUpUnit(std::string_view unitName) override {
    const std::string name(unitName);
    doIfAny(atUnit);
    return {name, 1};
  }
  bool isObjectHidden(const platform::XmlNode&) override { return false; }
  std::string furtherParameters(std::string_view) override { return {}; }
  Mischief atUnit;
};

class SpoiltMessages : public platform::MessageBox {
 public:
  int messageBox(platform::WindowHandle, std::string_view, std::string_view, int) override {
    ++shown;
    doIfAny(atMessage);
    return platform::OkButton;
  }
  int shown = 0;
  Mischief atMessage;
};

class SpoiltClock : public platform::Clock {
 public:
  std::string localTimestamp() const override { throw 7; }
};

class SpoiltTimer : public qt::QtTimer {
 public:
  SpoiltTimer() : QtTimer("spoilt") {}
  void setEnabled(bool enabled) override {
    doIfAny(atSetting);
    QtTimer::setEnabled(enabled);
  }
  Mischief atSetting;
};

[[noreturn]] void fail() { throw std::runtime_error("spoilt"); }

const QString catalogue = QStringLiteral(R"(<LATESTKAM><ATOMS>
  <ATOM><AtomName>Mix</AtomName><Param>Volume;1;100;1;1;ul</Param><Param>Speed;1;100;50;1;None</Param></ATOM>
  <ATOM><AtomName>Home</AtomName></ATOM>
</ATOMS></LATESTKAM>)");
const QString cycle = QStringLiteral(R"(<CYCLE><VARIABLES><VALUE>Vol ();1;0;9</VALUE></VARIABLES><ATOMSEQUENCE><ATOMS>
  <ATOM><ATOMNAME>Mix</ATOMNAME><PARAMETERS><PARAMETER><PARAMNAME>Volume</PARAMNAME><PARAMVALUE>5</PARAMVALUE></PARAMETER>
  <PARAMETER><PARAMNAME>Speed</PARAMNAME><PARAMVALUE>Vol</PARAMVALUE></PARAMETER></PARAMETERS></ATOM>
  <ATOM><ATOMNAME>Mix</ATOMNAME><PARAMETERS><PARAMETER><PARAMNAME>Volume</PARAMNAME><PARAMVALUE>6</PARAMVALUE></PARAMETER>
  <PARAMETER><PARAMNAME>Speed</PARAMNAME><PARAMVALUE>7</PARAMVALUE></PARAMETER></PARAMETERS></ATOM>
</ATOMS></ATOMSEQUENCE><VERSION>03</VERSION></CYCLE>)");

enum class Boxes { OurOwn, Spoilt };

class MistakenHost {
 public:
  explicit MistakenHost(Boxes boxes = Boxes::Spoilt) {
    HostServices services{.provider = provider, .gridTimer = timer};
    if (boxes == Boxes::Spoilt) services.messageBox = messages;
    auto* const layout = new QVBoxLayout(window);
    control = new ctlCycEd(services);
    layout->addWidget(control);
    window->resize(900, 600);
    QObject::connect(control, &ctlCycEd::CycleEditorError, control, [this] {
      ++errors;
      doIfAny(atError);
    });
    showActive(*window);
    load();
  }
  ~MistakenHost() {
    delete window;
    QCoreApplication::sendPostedEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
  MistakenHost(const MistakenHost&) = delete;
  MistakenHost& operator=(const MistakenHost&) = delete;

  void load() const { control->SetXMLStrings(catalogue, cycle); }
  void callEveryOtherMember() const {
    control->SetConfigXML(QStringLiteral("<Config/>"));
    control->setIgnore_Hidden(true);
    control->CycleChanged();
    control->RetrieveCycle();
    control->MacroString();
    QString message;
    control->ParamValueControl(message);
    control->setResetCycle(QStringLiteral("<CYCLE/>"));
  }

  template <typename Widget = QWidget>
  Widget& widget(const char* name) const {
    auto* const found = control->findChild<Widget*>(QLatin1String(name));
    if (found == nullptr) throw std::runtime_error(std::string("no ") + name);
    return *found;
  }
  void press(const char* button) const { QTest::mouseClick(&widget<QPushButton>(button), Qt::LeftButton); }
  QPoint placeOf(const char* list, int row, int column = 0) const {
    auto& view = widget<QAbstractItemView>(list);
    return view.visualRect(view.model()->index(row, column)).center();
  }
  void click(const char* list, int row, int column = 0) const {
    QTest::mouseClick(widget<QAbstractItemView>(list).viewport(), Qt::LeftButton, {}, placeOf(list, row, column));
  }
  void doubleClick(const char* list, int row) const {
    QTest::mouseDClick(widget<QAbstractItemView>(list).viewport(), Qt::LeftButton, {}, placeOf(list, row));
  }
  void type(int row, const char* text) const {
    click("GrdAtom", row, 1);
    // To where the focus is by then: the editor may have been closed.
    for (; *text != '\0' && QApplication::focusWidget() != nullptr; ++text) {
      QTest::keyClick(QApplication::focusWidget(), *text);
    }
  }
  int lines() const { return widget<QAbstractItemView>("lstAtomSequence").model()->rowCount(); }
  void key(Qt::Key key) const {
    if (QApplication::focusWidget() != nullptr) QTest::keyClick(QApplication::focusWidget(), key);
  }

  std::shared_ptr<SpoiltProvider> provider = std::make_shared<SpoiltProvider>();
  std::shared_ptr<SpoiltMessages> messages = std::make_shared<SpoiltMessages>();
  std::shared_ptr<SpoiltTimer> timer = std::make_shared<SpoiltTimer>();
  QPointer<QWidget> window = new QWidget;
  QPointer<ctlCycEd> control;
  int errors = 0;
  Mischief atError;
};

struct Trigger {
  const char* name;
  std::function<void(MistakenHost&)> spoil;
  std::function<void(MistakenHost&)> act;
};
std::ostream& operator<<(std::ostream& out, const Trigger& trigger) { return out << trigger.name; }

void spoilUnits(MistakenHost& host) { host.provider->atUnit = fail; }
void spoilMessages(MistakenHost& host) { host.messages->atMessage = fail; }
void spoilTimer(MistakenHost& host) { host.timer->atSetting = fail; }

void askForMenu(MistakenHost& host, int row) {
  const QPoint place = host.placeOf("GrdAtom", row, 1);
  QContextMenuEvent event(QContextMenuEvent::Mouse, place, place);
  QApplication::sendEvent(host.widget<QAbstractItemView>("GrdAtom").viewport(), &event);
}

const Trigger triggers[] = {
    {"Load", spoilUnits, [](MistakenHost& host) { host.load(); }},
    {"LoadInAnEdit", spoilMessages,
     [](MistakenHost& host) {
       host.type(0, "700");
       host.load();
     }},
    {"Retrieve", spoilMessages,
     [](MistakenHost& host) {
       host.type(0, "700");
       host.control->RetrieveCycle();
     }},
    {"Button", spoilUnits, [](MistakenHost& host) { host.press("cmdDefault"); }},
    {"ButtonInAnEdit", spoilMessages,
     [](MistakenHost& host) {
       host.type(0, "700");
       host.press("cmdInset");
     }},
    {"AccessKeyInAnEdit", spoilMessages,
     [](MistakenHost& host) {
       host.type(0, "700");
       QTest::keyClick(host.window, Qt::Key_S, Qt::AltModifier);
       QTest::qWait(150);
     }},
    {"Insert", spoilUnits, [](MistakenHost& host) { host.press("cmdInset"); }},
    {"Delete", spoilUnits, [](MistakenHost& host) { host.press("cmdDelete"); }},
    {"DeleteKey", spoilUnits,
     [](MistakenHost& host) {
       host.widget("lstAtomSequence").setFocus();
       host.key(Qt::Key_Delete);
     }},
    {"ComboBoxKey", spoilUnits,
     [](MistakenHost& host) {
       host.widget("cboAtom").setFocus();
       host.key(Qt::Key_Down);
       host.key(Qt::Key_Up);
     }},
    {"ComboBoxKeyInAnEdit", spoilMessages,
     [](MistakenHost& host) {
       host.type(0, "700");
       QTest::keyClick(&host.widget("cboAtom"), Qt::Key_Up);
       QTest::keyClick(&host.widget("cboAtom"), Qt::Key_Down);
     }},
    {"ComboBoxPick", spoilUnits,
     [](MistakenHost& host) {
       auto& picker = host.widget<QComboBox>("cboAtom");
       picker.showPopup();
       QAbstractItemView& list = *picker.view();
       QTest::qWait(50);
       QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualRect(list.model()->index(0, 0)).center());
     }},
    {"ListPress", spoilUnits, [](MistakenHost& host) { host.click("lstAtomSequence", 1); }},
    {"ListPressInAnEdit", spoilMessages,
     [](MistakenHost& host) {
       host.type(0, "700");
       host.click("lstAtomSequence", 1);
     }},
    {"ListKey", spoilUnits,
     [](MistakenHost& host) {
       host.widget("lstAtomSequence").setFocus();
       host.key(Qt::Key_Down);
     }},
    {"ListDoubleClick", spoilUnits, [](MistakenHost& host) { host.doubleClick("lstAtomSequence", 1); }},
    {"VariableDoubleClick", spoilMessages, [](MistakenHost& host) { host.doubleClick("lstVariables", 0); }},
    {"VariableReturn", spoilMessages,
     [](MistakenHost& host) {
       host.click("lstVariables", 0);
       host.key(Qt::Key_Return);
     }},
    {"VariableDelete", spoilMessages,
     [](MistakenHost& host) {
       host.click("lstVariables", 0);
       host.press("cmdDel");
     }},
    {"Typing", spoilMessages, [](MistakenHost& host) { host.type(0, "1;2"); }},
    {"EditEndByReturn", spoilMessages,
     [](MistakenHost& host) {
       host.type(0, "700");
       host.key(Qt::Key_Return);
     }},
    {"EditEndByTab", spoilMessages,
     [](MistakenHost& host) {
       host.type(0, "700");
       host.key(Qt::Key_Tab);
     }},
    {"EditEndByDown", spoilMessages,
     [](MistakenHost& host) {
       host.type(0, "700");
       host.key(Qt::Key_Down);
     }},
    {"EditEndByFocus", spoilMessages,
     [](MistakenHost& host) {
       host.type(0, "700");
       host.widget("txtCycleDescription").setFocus();
     }},
    {"EditEndByPress", spoilMessages,
     [](MistakenHost& host) {
       host.type(0, "700");
       host.click("GrdAtom", 1, 1);
     }},
    {"EditEndByMenu", spoilMessages,
     [](MistakenHost& host) {
       host.type(0, "700");
       askForMenu(host, 1);
     }},
    {"MenuInAnEdit", spoilMessages,
     [](MistakenHost& host) {
       askForMenu(host, 0);
       host.type(0, "700");
       host.widget<QMenu>("mnuParam").actions().constFirst()->trigger();
     }},
    {"TimerTick", spoilTimer, [](MistakenHost&) { QTest::qWait(700); }},
    {"Dialog", spoilUnits,
     [](MistakenHost& host) {
       QTimer::singleShot(0, [] {
         if (QWidget* const dialog = QApplication::activeModalWidget()) dialog->close();
       });
       host.press("cmdIns");
     }},
    {"MessageOverTheDialog", spoilMessages,
     [](MistakenHost& host) {
       QTimer::singleShot(0, [] {
         const QPointer<QWidget> dialog(QApplication::activeModalWidget());
         ASSERT_FALSE(dialog.isNull());
         QTest::mouseClick(dialog->findChild<QPushButton*>(QStringLiteral("OKButton")), Qt::LeftButton);
         if (dialog) dialog->close();
       });
       host.press("cmdIns");
     }},
};

class QtInsideAnError : public testing::TestWithParam<Trigger> {
 protected:
  void prepare() {
    // A button that an earlier test pressed may have gone before it was up again; the edit would wait for that.
    if (QGuiApplication::mouseButtons() != Qt::NoButton) GTEST_SKIP();
    ASSERT_EQ(host_.errors, 0);
    GetParam().spoil(host_);
  }
  void act() {
    GetParam().act(host_);
    QTest::qWait(60);
  }
  void mend() { host_.provider->atUnit = host_.messages->atMessage = host_.timer->atSetting = {}; }
  MistakenHost host_;
};

TEST_P(QtInsideAnError, TheControlMayBeDestroyed) {
  prepare();
  if (IsSkipped()) return;
  host_.atError = [&] { delete host_.control; };
  act();
  EXPECT_EQ(host_.errors, 1);
  EXPECT_TRUE(host_.control.isNull());
  EXPECT_TRUE(QApplication::topLevelWidgets() == QWidgetList{host_.window}) << "nothing is left behind";
}

TEST_P(QtInsideAnError, TheWindowMayBeDestroyed) {
  prepare();
  if (IsSkipped()) return;
  host_.atError = [&] { delete host_.window; };
  act();
  EXPECT_EQ(host_.errors, 1);
  EXPECT_TRUE(host_.control.isNull());
}

TEST_P(QtInsideAnError, EveryMemberMayBeCalledAndTheNextCycleWaits) {
  prepare();
  if (IsSkipped()) return;
  host_.atError = [&] {
    if (host_.errors > 1) return;
    mend();
    host_.callEveryOtherMember();
    host_.control->SetXMLStrings(catalogue, QStringLiteral("[PMA]\r\nHome"));
    host_.load();
  };
  act();
  EXPECT_EQ(host_.errors, 1);
  EXPECT_GE(host_.lines(), 2) << "a command may follow an edit's end";
  EXPECT_LE(host_.lines(), 3);
}

INSTANTIATE_TEST_SUITE_P(HostMistakes, QtInsideAnError, testing::ValuesIn(triggers),
                         [](const testing::TestParamInfo<Trigger>& trigger) { return trigger.param.name; });

/// What is open when the mischief is done.
struct Opening {
  const char* name;
  std::function<void(MistakenHost&)> open;
};
std::ostream& operator<<(std::ostream& out, const Opening& opening) { return out << opening.name; }

const Opening openings[] = {
    {"MessageAtAnEditsEnd",
     [](MistakenHost& host) {
       host.type(0, "700");
       host.key(Qt::Key_Return);
     }},
    {"MessageAtALoad",
     [](MistakenHost& host) {
       host.type(0, "700");
       host.load();
     }},
    {"MessageWhileTyping", [](MistakenHost& host) { host.type(0, "1;2"); }},
    {"MessageAtAButton",
     [](MistakenHost& host) {
       host.type(0, "700");
       host.press("cmdReplace");
     }},
    {"MessageOfAVariable", [](MistakenHost& host) { host.doubleClick("lstVariables", 0); }},
    {"Dialog", [](MistakenHost& host) { host.press("cmdIns"); }},
    {"MessageOverTheDialog",
     [](MistakenHost& host) {
       QTimer::singleShot(0, [] {
         const QPointer<QWidget> dialog(QApplication::activeModalWidget());
         ASSERT_FALSE(dialog.isNull());
         QTest::mouseClick(dialog->findChild<QPushButton*>(QStringLiteral("OKButton")), Qt::LeftButton);
       });
       host.press("cmdIns");
     }},
    {"MessageOverTheDialogsName",
     [](MistakenHost& host) {
       QTimer::singleShot(0, [] {
         const QPointer<QWidget> dialog(QApplication::activeModalWidget());
         ASSERT_FALSE(dialog.isNull());
         QTest::keyClicks(dialog->findChild<QLineEdit*>(QStringLiteral("txtParamName")), QStringLiteral("a;"));
       });
       host.press("cmdIns");
     }},
};

class WhileSomethingIsOpen : public testing::TestWithParam<Opening> {
 protected:
  // Opens it, does the mischief when it stands there, and answers what is still open.
  void open(const Mischief& mischief) {
    QTimer patience;
    bool done = false;
    QObject::connect(&patience, &QTimer::timeout, &patience, [&] {
      QWidget* const front = QApplication::activeModalWidget();
      if (!done) {
        done = true;
        mischief();
      } else if (front != nullptr) {
        ++stillOpen_;
        front->close();
      }
    });
    patience.start(100);
    GetParam().open(host_);
    QTest::qWait(60);
    EXPECT_TRUE(done);
  }
  MistakenHost host_{Boxes::OurOwn};
  int stillOpen_ = 0;
};

TEST_P(WhileSomethingIsOpen, TheControlMayBeDestroyed) {
  open([this] { delete host_.control; });
  EXPECT_EQ(stillOpen_, 0) << "it goes with the control";
  EXPECT_EQ(host_.errors, 0);
  EXPECT_TRUE(QApplication::topLevelWidgets() == QWidgetList{host_.window}) << "nothing is left behind";
}

TEST_P(WhileSomethingIsOpen, TheWindowMayBeDestroyed) {
  open([this] { delete host_.window; });
  EXPECT_EQ(stillOpen_, 0);
  EXPECT_EQ(host_.errors, 0);
}

TEST_P(WhileSomethingIsOpen, TheControlMayBeDestroyedLater) {
  open([this] { host_.control->deleteLater(); });
  EXPECT_EQ(host_.errors, 0);
}

TEST_P(WhileSomethingIsOpen, EveryMemberMayBeCalledAndTheNextCycleWaits) {
  open([this] {
    host_.callEveryOtherMember();
    host_.control->SetXMLStrings(catalogue, QString());
  });
  EXPECT_GE(stillOpen_, 1);
  EXPECT_EQ(host_.errors, 0);
  const bool loading = std::string_view(GetParam().name) == "MessageAtALoad";
  EXPECT_EQ(host_.lines(), loading ? 2 : 0) << "the one whose message it was is done, too";
}

TEST_P(WhileSomethingIsOpen, AnotherControlWorksAndMayBeDestroyed) {
  auto* const other = new ctlCycEd;
  other->SetXMLStrings(catalogue, cycle);
  open([&] {
    EXPECT_NE(other->RetrieveCycle(), "");
    other->SetXMLStrings(catalogue, QString());
    EXPECT_EQ(other->RetrieveCycle(), "");
    delete other;
  });
  EXPECT_EQ(host_.errors, 0);
}

INSTANTIATE_TEST_SUITE_P(HostMistakes, WhileSomethingIsOpen, testing::ValuesIn(openings),
                         [](const testing::TestParamInfo<Opening>& opening) { return opening.param.name; });

TEST(QtHostMistakes, ADestroyedControlsLinesAreNotShownAgain) {
  MistakenHost host;
  host.provider->atUnit = fail;
  // It goes at the first line; the rest of the lines is put on a screen that nobody sees, and whose layout is to come.
  host.atError = [&] { delete host.control; };
  host.load();
  QTest::qWait(50);
  EXPECT_EQ(host.errors, 1);
}

TEST(QtHostMistakes, AnOpenEditIsNotToldAtTheEnd) {
  MistakenHost host;
  host.atError = [&] { ADD_FAILURE(); };
  host.type(0, "700");
  delete host.control;
  EXPECT_EQ(host.messages->shown, 0);
}

TEST(QtHostMistakes, AnOpenEditIsNotToldAtTheEndOfARunningProcedureEither) {
  MistakenHost host;
  host.provider->atUnit = [&] {
    host.provider->atUnit = {};
    host.type(0, "700");
    delete host.control;
  };
  host.press("cmdDefault");
  EXPECT_EQ(host.messages->shown, 0);
  EXPECT_EQ(host.errors, 0);
}

TEST(QtHostMistakes, AProviderMayDestroyTheControl) {
  MistakenHost host;
  host.provider->atUnit = [&] { delete host.control; };
  host.load();
  EXPECT_EQ(host.errors, 0);
}

TEST(QtHostMistakes, AClockThatThrowsIsTold) {
  ctlCycEd control(HostServices{.clock = std::make_shared<SpoiltClock>()});
  int errors = 0;
  QObject::connect(&control, &ctlCycEd::CycleEditorError, &control, [&] { ++errors; });
  control.SetXMLStrings(catalogue, cycle);
  EXPECT_EQ(control.RetrieveCycle(), "");
  EXPECT_GE(errors, 1);
}

TEST(QtHostMistakes, NothingNeedsToBeLoaded) {
  ctlCycEd control;
  EXPECT_EQ(control.RetrieveCycle(), "");
  EXPECT_FALSE(control.CycleChanged());
  EXPECT_EQ(control.MacroString(), "//\r\n");
  QString message;
  EXPECT_TRUE(control.ParamValueControl(message));
  for (QPushButton* const button : control.findChildren<QPushButton*>()) button->click();
}

TEST(QtHostMistakes, NoSecondDialogOpens) {
  MistakenHost host;
  int most = 0;
  QTimer patience;
  int ticks = 0;
  QObject::connect(&patience, &QTimer::timeout, &patience, [&] {
    most = std::max(most, static_cast<int>(host.control->findChildren<QDialog*>().size()));
    if (++ticks == 1) {
      host.widget<QPushButton>("cmdIns").click();
    } else if (QWidget* const front = QApplication::activeModalWidget()) {
      front->close();
    }
  });
  patience.start(50);
  host.press("cmdIns");
  EXPECT_EQ(most, 1);
}

}  // namespace
}  // namespace mavCycEd::test
