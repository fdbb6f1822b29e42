#include <gmock/gmock.h>

#include <QAccessible>
#include <QApplication>
#include <QTest>
#include <QTimer>
#include <utility>

#include "TestWindow.h"
#include "qt/QtVariableDialog.h"

namespace mavCycEd::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class VariableDialog : public testing::Test {
 protected:
  VariableDialog() {
    owner.show();
    dialog.OKButton.setCaption("OK");
    dialog.cmdCancel.setCaption("&Cancel");
    dialog.OKButton.setEvents({[this] {
      log.push_back("OK");
      dialog.frmparams.close();
    }});
    dialog.cmdCancel.setEvents({[this] {
      log.push_back("Cancel");
      dialog.frmparams.close();
    }});
    dialog.frmparams.setEvents({[this] { log.push_back("Close"); }});
    platform::ValueListEvents events;
    events.EndOfEdit = [this](int, int, const std::string&, const std::string& value) { log.push_back(value); };
    dialog.grdParamStnd.setEvents(events);
    dialog.grdParamStnd.InsertRow("Default Value", "", true);
    dialog.grdParamStnd.InsertRow("Lower limit", "", true);
  }

  template <typename Widget = QWidget>
  Widget& widget(const char* name) {
    return *owner.findChild<Widget*>(QLatin1String(name));
  }
  // Where the focus is.
  void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
  }
  void type(const char* text) { QTest::keyClicks(QApplication::focusWidget(), QLatin1String(text)); }
  // Shows the dialog and works in it as soon as it is there.
  template <typename Work>
  void show(const Work& work) {
    QTimer::singleShot(0, [&] {
      auto& window = widget<QDialog>("frmparams");
      showActive(window);
      work();
      if (dialog.frmparams.isLoaded()) window.close();
    });
    dialog.frmparams.showModal();
  }

  QWidget owner;
  qt::HelpDesk help{owner};
  qt::QtVariableDialog dialogWindow{&owner, help};
  VariableDialogScreen dialog = dialogWindow.controls();
  std::vector<std::string> log;
};

TEST_F(VariableDialog, EnterPressesOkFromTheNameBox) {
  show([this] {
    EXPECT_NE(dialog.frmparams.hWnd(), 0U);
    EXPECT_TRUE(widget("txtParamName").hasFocus());
    QTest::keyClick(&widget("txtParamName"), Qt::Key_Return);
  });
  EXPECT_FALSE(dialog.frmparams.isLoaded());
  EXPECT_EQ(dialog.frmparams.hWnd(), 0U);
  EXPECT_THAT(log, ElementsAre("OK"));
}

TEST_F(VariableDialog, EnterGoesThroughTheSettingsToOk) {
  show([this] {
    auto& grid = widget<QTableView>("grdParamStnd");
    grid.setFocus();
    type("5");
    press(Qt::Key_Return);
    EXPECT_TRUE(dialog.frmparams.isLoaded());
    EXPECT_EQ(dialog.grdParamStnd.Row(), 2);
    EXPECT_FALSE(grid.hasFocus()) << "the next value is being edited";
    type("0");
    press(Qt::Key_Enter, Qt::KeypadModifier);
    EXPECT_TRUE(dialog.frmparams.isLoaded());
    EXPECT_TRUE(grid.hasFocus());
    press(Qt::Key_Enter, Qt::KeypadModifier);
    EXPECT_FALSE(dialog.frmparams.isLoaded());
  });
  EXPECT_THAT(log, ElementsAre("5", "0", "OK"));
}

TEST_F(VariableDialog, TabAndF2LeadToTheSettings) {
  show([this] {
    auto& grid = widget<QTableView>("grdParamStnd");
    grid.setFocus();
    press(Qt::Key_F2);
    EXPECT_FALSE(grid.hasFocus());
    type("5");
    press(Qt::Key_Tab);
    type("0");
    press(Qt::Key_Tab);
    EXPECT_EQ(dialog.grdParamStnd.cellText(1, 2), "0");
    EXPECT_TRUE(widget("cboUnit").hasFocus());
  });
  EXPECT_THAT(log, ElementsAre("5", "0", "Close"));
}

TEST_F(VariableDialog, RefusedOkMayOpenAnEditor) {
  dialog.OKButton.setEvents({[this] {
    log.push_back("OK");
    dialog.grdParamStnd.focusValue(1);
  }});
  show([this] {
    widget<QTableView>("grdParamStnd").setFocus();
    press(Qt::Key_Down);
    type("5");
    press(Qt::Key_Return);
    press(Qt::Key_Return);
    EXPECT_TRUE(dialog.frmparams.isLoaded());
    type("7");
    EXPECT_EQ(dialog.grdParamStnd.cellText(1, 1), "7");
  });
  EXPECT_THAT(log, ElementsAre("5", "OK", "Close"));
}

TEST_F(VariableDialog, EscapeGivesUpAnEditFirstAndThenTheDialog) {
  show([this] {
    auto& grid = widget<QTableView>("grdParamStnd");
    grid.setFocus();
    QTest::keyClicks(&grid, "5");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    EXPECT_TRUE(dialog.frmparams.isLoaded());
    EXPECT_EQ(dialog.grdParamStnd.cellText(1, 1), "");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    EXPECT_FALSE(dialog.frmparams.isLoaded());
  });
  EXPECT_THAT(log, ElementsAre("Close"));
}

TEST_F(VariableDialog, FrameOfTheWindowCloses) {
  show([this] { widget("frmparams").close(); });
  EXPECT_THAT(log, ElementsAre("Close"));
}

TEST_F(VariableDialog, TypedValueIsEndedBeforeOk) {
  show([this] {
    auto& grid = widget<QTableView>("grdParamStnd");
    grid.setFocus();
    QTest::keyClicks(&grid, "5");
    QTest::mouseClick(&widget("OKButton"), Qt::LeftButton);
  });
  EXPECT_THAT(log, ElementsAre("5", "OK"));
}

TEST_F(VariableDialog, OptionsTellEachChangeOnceHoweverItIsMade) {
  std::vector<std::string> clicks;
  dialog.optNrValue.setCaption("&Numeric Value");
  dialog.optObjValue.setCaption("&Object");
  dialog.optNrValue.setEvents({[&] { clicks.emplace_back("number"); }});
  dialog.optObjValue.setEvents({[&] { clicks.emplace_back("object"); }});
  const auto now = [&clicks] { return std::exchange(clicks, {}); };
  dialog.optNrValue.select();
  EXPECT_THAT(now(), ElementsAre("number"));
  show([&] {
    auto& number = widget("optNrValue");
    auto& object = widget("optObjValue");
    QTest::mouseClick(&number, Qt::LeftButton);
    QTest::keyClick(&number, Qt::Key_Space);
    QTest::keyClick(&number, Qt::Key_N, Qt::AltModifier);
    QTest::qWait(300);  // an access key presses for a while
    EXPECT_THAT(now(), IsEmpty()) << "it is chosen already";
    QTest::keyClick(&number, Qt::Key_Right);
    EXPECT_THAT(now(), ElementsAre("object"));
    QTest::keyClick(&object, Qt::Key_Left);
    EXPECT_THAT(now(), ElementsAre("number"));
    object.setFocus();
    QTest::keyClick(&object, Qt::Key_Space);
    QTest::keyClick(&object, Qt::Key_Space);
    EXPECT_THAT(now(), ElementsAre("object"));
    QTest::keyClick(&object, Qt::Key_N, Qt::AltModifier);
    QTest::qWait(300);
    EXPECT_THAT(now(), ElementsAre("number"));
    dialog.optObjValue.select();
    QTest::mouseClick(&object, Qt::LeftButton);
    EXPECT_THAT(now(), ElementsAre("object"));
  });
}

TEST_F(VariableDialog, AnOptionChosenByAssistiveTechnologyIsTold) {
  int clicks = 0;
  dialog.optNrValue.select();
  dialog.optObjValue.setEvents({[&clicks] { ++clicks; }});
  show([this] {
    QAccessibleInterface* const option = QAccessible::queryAccessibleInterface(&widget("optObjValue"));
    ASSERT_NE(option, nullptr);
    option->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
  });
  EXPECT_EQ(clicks, 1);
}

TEST_F(VariableDialog, OptionsAreOneGroup) {
  std::vector<std::string> clicks;
  dialog.optNrValue.setEvents({[&] { clicks.emplace_back("number"); }});
  dialog.optObjValue.setEvents({[&] { clicks.emplace_back("object"); }});
  dialog.optNrValue.select();
  dialog.optNrValue.select();
  EXPECT_TRUE(dialog.optNrValue.value());
  show([this] { QTest::mouseClick(&widget("optObjValue"), Qt::LeftButton); });
  EXPECT_FALSE(dialog.optNrValue.value());
  EXPECT_TRUE(dialog.optObjValue.value());
  EXPECT_THAT(clicks, ElementsAre("number", "number", "object"));
}

TEST_F(VariableDialog, FramesHaveTheirOwnSettings) {
  dialog.fraValues.setVisible(false);
  dialog.fraValues.setEnabled(false);
  EXPECT_FALSE(dialog.fraValues.isVisible());
  EXPECT_FALSE(dialog.fraValues.isEnabled());
  EXPECT_TRUE(dialog.fraObjects.isVisible());
  EXPECT_TRUE(dialog.fraObjects.isEnabled());
  show([this] {
    EXPECT_FALSE(widget("grdParamStnd").isVisible());
    EXPECT_TRUE(widget("lstObject").isVisible());
  });
}

TEST_F(VariableDialog, TakesItsWidgetsAlong) {
  {
    qt::QtVariableDialog second(&owner, help);
    EXPECT_EQ(owner.findChildren<QDialog*>().size(), 2);
  }
  EXPECT_EQ(owner.findChildren<QDialog*>().size(), 1);
}

TEST_F(VariableDialog, NamesItsControlsForPeople) {
  for (const char* name :
       {"txtParamName", "optNrValue", "optObjValue", "grdParamStnd", "cboUnit", "lstObject", "OKButton", "cmdCancel"}) {
    EXPECT_FALSE(widget(name).accessibleName().isEmpty()) << name;
  }
}

}  // namespace
}  // namespace mavCycEd::test
