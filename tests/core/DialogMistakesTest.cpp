// What happens while a message box or the variable dialog is open.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "MistakenHost.h"

namespace mavCycEd {
namespace {

using test::MistakenHost;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;
using Dialog = memory::MemoryVariableDialogControls;

class WhileTheDialogIsOpen : public ::testing::Test {
 protected:
  WhileTheDialogIsOpen() {
    host_.load();
    host_.screen().cboAtom.setText("MIX");
  }
  template <typename User>
  void addVariable(const User& user) {
    host_.screen().variableDialogs.setUser(user);
    host_.screen().cmdIns.press();
  }
  static void complete(Dialog& dialog) {
    dialog.txtParamName.replace("New");
    for (int row = 1; row <= 3; ++row) dialog.grdParamStnd.type(row, "5");
  }
  MistakenHost host_;
};

TEST_F(WhileTheDialogIsOpen, EveryMemberMayBeCalled) {
  addVariable([&](Dialog& dialog) {
    host_.callEveryOtherMember();
    complete(dialog);
    dialog.OKButton.press();
  });
  EXPECT_THAT(host_.screen().lstVariables.items(), ElementsAre("Vol (ml);1;0;9", "New ();5;5;5"));
}

TEST_F(WhileTheDialogIsOpen, ALoadWaitsUntilItIsClosed) {
  addVariable([&](Dialog& dialog) {
    host_.control().SetXMLStrings(test::catalogueOf({"B"}), test::cycleOf({"B"}));
    EXPECT_THAT(host_.screen().lstAtomSequence.items(), SizeIs(2));
    EXPECT_TRUE(dialog.frmparams.isLoaded());
    complete(dialog);
    dialog.OKButton.press();
  });
  EXPECT_THAT(host_.screen().lstAtomSequence.items(), ElementsAre("01 B"));
  EXPECT_THAT(host_.screen().lstVariables.items(), IsEmpty());
  EXPECT_THAT(host_.errors, IsEmpty());
}

TEST_F(WhileTheDialogIsOpen, TheControlMayBeDestroyed) {
  const auto screen = host_.watchedScreen();
  addVariable([&](Dialog& dialog) {
    complete(dialog);
    host_.destroy();
    EXPECT_FALSE(dialog.frmparams.isLoaded()) << "the dialog closes";
    // A user who is not quick enough to notice.
    dialog.OKButton.press();
    dialog.optObjValue.select();
    dialog.mnuSyrConstant.choose(0);
  });
  EXPECT_TRUE(screen.expired());
  EXPECT_THAT(host_.errors, IsEmpty());
}

TEST_F(WhileTheDialogIsOpen, TheControlMayBeDestroyedInAnEdit) {
  host_.screen().variableDialogs.setUser([&](Dialog&) { host_.destroy(); });
  host_.messages.atMessage = {};
  host_.screen().lstVariables.doubleClick(0);
  EXPECT_THAT(host_.errors, IsEmpty());
}

TEST_F(WhileTheDialogIsOpen, TheControlMayBeDestroyedByAMessageOverIt) {
  host_.messages.atMessage = [&] { host_.destroy(); };
  addVariable([](Dialog& dialog) {
    dialog.txtParamName.replace("a;b");
    dialog.OKButton.press();
  });
  EXPECT_FALSE(host_.hasControl());
  EXPECT_THAT(host_.messages.messages, SizeIs(1)) << "nothing more is shown";
}

TEST_F(WhileTheDialogIsOpen, NoSecondOneOpens) {
  int opened = 0;
  addVariable([&](Dialog& dialog) {
    ++opened;
    complete(dialog);
    if (opened > 1) return;
    host_.screen().cmdIns.press();
    host_.screen().lstVariables.doubleClick(0);
    dialog.OKButton.press();
  });
  EXPECT_EQ(opened, 1);
  EXPECT_THAT(host_.screen().lstVariables.items(), ElementsAre("Vol (ml);1;0;9", "New ();5;5;5"));
}

TEST_F(WhileTheDialogIsOpen, ThatFailsAnotherOneMayBeOpenedLater) {
  addVariable([](Dialog&) { test::fail(); });
  EXPECT_THAT(host_.failedProcedures(), ElementsAre("cmdIns_Click "));
  addVariable([](Dialog& dialog) {
    complete(dialog);
    dialog.OKButton.press();
  });
  EXPECT_THAT(host_.screen().lstVariables.items(), SizeIs(2));
}

class WhileAMessageIsShown : public WhileTheDialogIsOpen {};

TEST_F(WhileAMessageIsShown, EveryMemberMayBeCalled) {
  host_.messages.atMessage = [&] { host_.callEveryOtherMember(); };
  host_.screen().spoiltGrid.type(1, "700");
  host_.screen().cmdInset.press();
  EXPECT_THAT(host_.screen().lstAtomSequence.items(), SizeIs(2));
  EXPECT_THAT(host_.errors, IsEmpty());
}

TEST_F(WhileAMessageIsShown, ALoadWaitsUntilItsProcedureHasEnded) {
  host_.messages.atMessage = [&] {
    host_.control().SetXMLStrings(test::catalogueOf({"B"}), test::cycleOf({"B"}));
    EXPECT_THAT(host_.screen().lstAtomSequence.items(), SizeIs(2));
  };
  host_.screen().spoiltGrid.type(1, "700");
  EXPECT_THAT(host_.screen().lstAtomSequence.items(), ElementsAre("01 B"));
}

TEST_F(WhileAMessageIsShown, TheControlMayBeDestroyed) {
  const std::function<void(MistakenHost&)> acts[] = {
      [](MistakenHost& host) { host.screen().spoiltGrid.type(1, "700"); },
      [](MistakenHost& host) { host.screen().spoiltGrid.type(1, "1;2"); },
      [](MistakenHost& host) {
        host.screen().spoiltGrid.setPickList(1, "700");
        host.screen().spoiltGrid.pick(1, "700");
      },
      [](MistakenHost& host) { host.screen().lstVariables.doubleClick(0); },
      [](MistakenHost& host) {
        host.screen().lstVariables.setIndex(0);
        host.screen().cmdDel.press();
      },
      [](MistakenHost& host) {
        host.control().SetXMLStrings(MistakenHost::catalogue(), "[PMA]\r\nMIX(700,Tray1)\r\nMIX(700,Tray1)");
      },
  };
  for (const auto& act : acts) {
    MistakenHost host;
    host.load();
    const auto screen = host.watchedScreen();
    host.messages.atMessage = [&] { host.destroy(); };
    act(host);
    EXPECT_FALSE(host.hasControl());
    EXPECT_TRUE(screen.expired());
    EXPECT_THAT(host.messages.messages, SizeIs(1)) << "nothing more is shown";
    EXPECT_THAT(host.errors, IsEmpty());
  }
}

// A message box of the host's own may let its user go on with the control.
TEST_F(WhileAMessageIsShown, TheUserMayGoOn) {
  host_.messages.atMessage = [&] {
    host_.messages.atMessage = {};
    host_.screen().lstVariables.setIndex(0);
    host_.screen().cmdDel.press();
    host_.screen().cboAtom.setText("WAIT");
    host_.screen().cmdInset.press();
    host_.screen().lstAtomSequence.setIndex(0);
    host_.screen().cmdDelete.press();
    host_.screen().cmdDelete.press();
    host_.screen().cmdDelete.press();
  };
  host_.screen().spoiltGrid.type(1, "7;00");
  host_.screen().cmdInset.press();
  host_.load();
  EXPECT_THAT(host_.screen().lstAtomSequence.items(), SizeIs(2));
}

TEST(TwoControls, OneMayBeDestroyedWhileTheOtherWorks) {
  MistakenHost first;
  auto second = std::make_unique<MistakenHost>();
  first.load();
  second->load();
  first.messages.atMessage = [&] { second.reset(); };
  first.screen().spoiltGrid.type(1, "700");
  EXPECT_EQ(second, nullptr);
  EXPECT_THAT(first.screen().lstAtomSequence.items(), SizeIs(2));
  first.screen().cmdDefault.press();
  first.screen().cmdInset.press();
  EXPECT_THAT(first.screen().lstAtomSequence.items(), SizeIs(3));
  EXPECT_THAT(first.errors, IsEmpty());
}

TEST(TwoControls, EachMayDestroyTheOtherInAnError) {
  MistakenHost first;
  MistakenHost second;
  first.load();
  second.load();
  first.provider->atUnit = second.provider->atUnit = test::fail;
  first.atError = [&] {
    if (second.hasControl()) second.screen().cmdDefault.press();
  };
  second.atError = [&] {
    if (first.hasControl()) first.destroy();
  };
  first.screen().cmdDefault.press();
  EXPECT_FALSE(first.hasControl());
  EXPECT_TRUE(second.hasControl());
  second.provider->atUnit = {};
  second.errors.clear();
  second.load();
  EXPECT_THAT(second.errors, IsEmpty());
}

TEST(TwoControls, ALoadOfTheOtherDoesNotWait) {
  MistakenHost first;
  MistakenHost second;
  first.load();
  first.messages.atMessage = [&] {
    second.load();
    EXPECT_THAT(second.screen().lstAtomSequence.items(), SizeIs(2));
  };
  first.screen().spoiltGrid.type(1, "700");
  EXPECT_THAT(first.messages.messages, SizeIs(1));
}

}  // namespace
}  // namespace mavCycEd
