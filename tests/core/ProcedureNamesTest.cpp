// Each procedure reports its own failure, under its own name.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "MistakenHost.h"

namespace mavCycEd {
namespace {

using test::MistakenHost;
using ::testing::ElementsAre;
using Dialog = memory::MemoryVariableDialogControls;

class FailedProcedure : public ::testing::Test {
 protected:
  FailedProcedure() { host_.load(); }
  test::SpoiltGrid& grid() { return host_.screen().spoiltGrid; }
  auto failed() { return host_.failedProcedures(); }
  void spoilMessages() { host_.messages.atMessage = test::fail; }
  // The configuration is read anew, and cannot be.
  void spoilConfiguration() {
    host_.control().SetConfigXML("<Config/>");
    host_.documents.atDocument = test::fail;
  }
  void askForMenu() { grid().requestContextMenu(200, 28); }
  template <typename Work>
  void workInDialog(const Work& work) {
    host_.screen().variableDialogs.setUser(work);
    host_.screen().cmdIns.press();
  }

  MistakenHost host_;
};

TEST_F(FailedProcedure, OfAPressOnTheGrid) {
  grid().atRow = test::fail;
  grid().pressMouse(platform::MouseButton::Primary, 200, 28);
  EXPECT_THAT(failed(), ElementsAre("GrdAtom_OnMouseDown "));
}

TEST_F(FailedProcedure, OfTheMenu) {
  spoilConfiguration();
  askForMenu();
  EXPECT_THAT(failed(), ElementsAre("Update_Popup_Menu "));
}

TEST_F(FailedProcedure, OfTheExtraEntriesOfTheMenu) {
  grid().atRow = test::fail;
  askForMenu();
  EXPECT_THAT(failed(), ElementsAre("Add_Extra_Keywords "));
}

TEST_F(FailedProcedure, OfAChoiceFromTheMenu) {
  askForMenu();
  grid().atValue = test::fail;
  EXPECT_TRUE(host_.screen().mnuSubParam.choose(0));
  EXPECT_THAT(failed(), ElementsAre("mnuSubParam_Click "));
}

TEST_F(FailedProcedure, OfTyping) {
  spoilMessages();
  grid().type(1, "5;");
  EXPECT_THAT(failed(), ElementsAre("GrdAtom_OnSetEditText "));
}

TEST_F(FailedProcedure, OfTheCheckOfAValue) {
  spoilMessages();
  grid().type(1, "700");
  EXPECT_THAT(failed(), ElementsAre("Check_Range "));
}

TEST_F(FailedProcedure, OfAVariableThatIsInUse) {
  spoilMessages();
  host_.screen().lstVariables.setIndex(0);
  host_.screen().cmdDel.press();
  host_.screen().lstVariables.doubleClick(0);
  EXPECT_THAT(failed(), ElementsAre("cmdDel_Click ", "lstVariables_DblClick "));
}

TEST_F(FailedProcedure, OfTheWithdrawalOfAVariable) {
  test::CycleOf cycle;
  cycle.variables = {"Vol (ml);1;0;9"};
  cycle.lines = {{"MIX", {{"Volume", "5"}, {"Place", "Tray1"}}}};
  host_.control().SetXMLStrings(MistakenHost::catalogue(), test::xmlOf(cycle));
  grid().type(1, "Vol");
  grid().atValue = test::fail;
  host_.screen().lstVariables.setIndex(0);
  host_.screen().cmdDel.press();
  EXPECT_THAT(failed(), ElementsAre("Delete_Extra_Udons "));
}

TEST_F(FailedProcedure, OfTheUnitsOfTheDialog) {
  host_.provider->atUnit = test::fail;
  workInDialog([](Dialog&) {});
  EXPECT_THAT(failed(), ElementsAre("FillStandardUnits "));
}

TEST_F(FailedProcedure, OfTheConstantsOfTheDialog) {
  spoilConfiguration();
  workInDialog([](Dialog& dialog) { dialog.cboUnit.leave(); });
  EXPECT_THAT(failed(), ElementsAre("cboUnit_LostFocus "));
}

TEST_F(FailedProcedure, OfTheChecksOfTheDialog) {
  spoilMessages();
  workInDialog([](Dialog& dialog) {
    dialog.OKButton.press();
    dialog.txtParamName.replace("a-b");
    dialog.txtParamName.replace("ab");
    dialog.grdParamStnd.type(1, "5;");
    dialog.OKButton.press();
    EXPECT_TRUE(dialog.frmparams.isLoaded());
  });
  EXPECT_THAT(failed(), ElementsAre("OKButton_Click ", "txtParamName_Change ", "ValidatedParamsValues "));
}

}  // namespace
}  // namespace mavCycEd
