#include <gmock/gmock.h>

#include "TestDocuments.h"
#include "TestEditor.h"

namespace mavCycEd::test {
namespace {

using platform::MouseButton;
using ::testing::ElementsAre;
using Dialog = memory::MemoryVariableDialogControls;

class ConstantsOfTheSettings : public ::testing::Test {
 protected:
  ConstantsOfTheSettings() {
    editor_.load(catalogueOf({"A"}));
    editor_.choose("A");
  }

  // The values of the settings after `work` was done in the dialog of a new variable.
  template <typename Work>
  std::vector<std::string> settingsAfter(const Work& work) {
    std::vector<std::string> values;
    editor_.screen().variableDialogs.setUser([&](Dialog& dialog) {
      dialog.cboUnit.type("ml");
      dialog.cboUnit.leave();
      work(dialog);
      for (int row = 1; row <= 3; ++row) values.push_back(dialog.grdParamStnd.cellText(1, row));
    });
    editor_.screen().cmdIns.press();
    return values;
  }
  static void chooseConstant(Dialog& dialog) {
    dialog.grdParamStnd.requestContextMenu(200, 66);
    EXPECT_TRUE(dialog.mnuSyrConstant.choose(0));
  }

 private:
  TestEditor editor_;
};

TEST_F(ConstantsOfTheSettings, GoToTheRowThatTheKeysLedTo) {
  EXPECT_THAT(settingsAfter([](Dialog& dialog) {
                dialog.grdParamStnd.pressMouse(MouseButton::Primary, 200, 25);
                dialog.grdParamStnd.makeCurrent(3);
                chooseConstant(dialog);
              }),
              ElementsAre("", "", "user_index"));
}

TEST_F(ConstantsOfTheSettings, GoToTheRowThatThePrimaryButtonPressedLast) {
  EXPECT_THAT(settingsAfter([](Dialog& dialog) {
                dialog.grdParamStnd.pressMouse(MouseButton::Primary, 200, 47);
                dialog.grdParamStnd.makeCurrent(1);
                dialog.grdParamStnd.pressMouse(MouseButton::Secondary, 200, 66);
                chooseConstant(dialog);
              }),
              ElementsAre("", "user_index", ""));
}

}  // namespace
}  // namespace mavCycEd::test
