// What a host does to the widget that it should not: the control, its window or another control is destroyed in the
// middle of an event; services fail; calls come from inside events.
#include <gtest/gtest.h>

#include <QComboBox>
#include <QContextMenuEvent>
#include <QDialog>
#include <QListView>
#include <QMenu>
#include <QPlainTextEdit>
#include <QTableView>
#include <QTimer>

#include "MistakenHost.h"

namespace mavCycEd::test {
namespace {

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

class SpoiltClock : public platform::Clock {
 public:
  std::string localTimestamp() const override { throw 7; }
};

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
