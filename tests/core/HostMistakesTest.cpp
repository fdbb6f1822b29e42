// What a host does that it should not: calls at the wrong time, from inside events, and a control that is destroyed in
// the middle of its work. Nothing crashes and nothing leaks; the sanitizers see it.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "MistakenHost.h"

namespace mavCycEd {
namespace {

using test::fail;
using test::MistakenHost;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::SizeIs;

struct Act {
  const char* name;
  std::function<void(MistakenHost&)> run;
};
std::ostream& operator<<(std::ostream& out, const Act& act) { return out << act.name; }

void openDialog(MistakenHost& host, const std::function<void(memory::MemoryVariableDialogControls&)>& user) {
  host.screen().variableDialogs.setUser(user);
  host.screen().cboAtom.setText("MIX");
  host.screen().cmdIns.press();
}

const std::vector<Act>& everything() {
  static const std::vector<Act> acts{
      {"SetXMLStrings", [](MistakenHost& host) { host.load(); }},
      {"SetXMLStrings of nothing", [](MistakenHost& host) { host.control().SetXMLStrings("", ""); }},
      {"SetXMLStrings of a broken cycle",
       [](MistakenHost& host) {
         host.control().SetXMLStrings(MistakenHost::catalogue(),
                                      "<CYCLE><VARIABLES/><ATOMSEQUENCE><ATOMS><ATOM/></ATOMS></ATOMSEQUENCE></CYCLE>");
       }},
      {"SetXMLStrings of a macro",
       [](MistakenHost& host) { host.control().SetXMLStrings(MistakenHost::catalogue(), "[PMA]\r\nMIX(1,Tray1)"); }},
      {"the others", [](MistakenHost& host) { host.callEveryOtherMember(); }},
      {"RetrieveCycle", [](MistakenHost& host) { host.control().RetrieveCycle(); }},
      {"ResetCycle", [](MistakenHost& host) { host.control().ResetCycle("no XML"); }},
      {"SetConfigXML", [](MistakenHost& host) { host.control().SetConfigXML("<Config"); }},
      {"buttons",
       [](MistakenHost& host) {
         for (auto* button : {&host.screen().cmdInset, &host.screen().cmdReplace, &host.screen().cmdDelete,
                              &host.screen().cmdIns, &host.screen().cmdDel, &host.screen().cmdDefault}) {
           button->press();
         }
       }},
      {"lists",
       [](MistakenHost& host) {
         auto& screen = host.screen();
         screen.cboAtom.setIndex(screen.cboAtom.itemCount() - 1);
         screen.lstAtomSequence.doubleClick(screen.lstAtomSequence.itemCount() - 1);
         screen.lstAtomSequence.setIndex(screen.lstAtomSequence.itemCount() - 1);
         screen.lstVariables.doubleClick(screen.lstVariables.itemCount() - 1);
       }},
      {"grid",
       [](MistakenHost& host) {
         auto& grid = host.screen().spoiltGrid;
         grid.type(1, "700;");
         grid.pick(2, "Tray1");
         grid.pressMouse(platform::MouseButton::Primary, 200, 25);
         grid.moveMouse(200, 25);
         grid.requestContextMenu(200, 25);
         host.screen().mnuSubParam.choose(0);
         host.screen().spoiltTimer.fire();
       }},
      {"description", [](MistakenHost& host) { host.screen().txtCycleDescription.replace("text"); }},
      {"dialog",
       [](MistakenHost& host) {
         openDialog(host, [](auto& dialog) {
           dialog.OKButton.press();
           dialog.txtParamName.replace("N");
           dialog.optObjValue.select();
           dialog.OKButton.press();
         });
       }},
  };
  return acts;
}

TEST(HostMistakes, AnyThreeActsInAnyOrderAreBorne) {
  for (const Act& first : everything()) {
    for (const Act& second : everything()) {
      MistakenHost host;
      first.run(host);
      second.run(host);
      for (const Act& third : everything()) third.run(host);
      host.errors.clear();
      host.load();
      EXPECT_THAT(host.errors, IsEmpty()) << first << ", " << second;
      EXPECT_THAT(host.screen().lstAtomSequence.items(), ElementsAre("01 MIX", "02 MIX")) << first << ", " << second;
      host.control().RetrieveCycle();
      EXPECT_FALSE(host.control().CycleChanged());
    }
  }
}

TEST(HostMistakes, NothingIsFoundBeforeAnythingIsLoaded) {
  MistakenHost host;
  EXPECT_EQ(host.control().RetrieveCycle(), "");
  EXPECT_FALSE(host.control().CycleChanged());
  std::string message = "as it was";
  EXPECT_TRUE(host.control().ParamValueControl(message));
  EXPECT_EQ(message, "as it was");
  EXPECT_THAT(host.errors, IsEmpty());
}

/// What a user or a host does, and how it is made to end in an error event.
struct Trigger {
  const char* name;
  std::function<void(MistakenHost&)> spoil;
  std::function<void(MistakenHost&)> act;
};
std::ostream& operator<<(std::ostream& out, const Trigger& trigger) { return out << trigger.name; }

void spoilUnits(MistakenHost& host) { host.provider->atUnit = fail; }
void spoilGrid(MistakenHost& host) { host.screen().spoiltGrid.atValue = fail; }
void spoilRow(MistakenHost& host) { host.screen().spoiltGrid.atRow = fail; }
void spoilTimer(MistakenHost& host) { host.screen().spoiltTimer.atSetting = fail; }
void spoilMessages(MistakenHost& host) { host.messages.atMessage = fail; }

const Trigger triggers[] = {
    {"SetXMLStrings", spoilUnits, [](MistakenHost& host) { host.load(); }},
    {"a macro text", spoilUnits,
     [](MistakenHost& host) {
       host.control().SetXMLStrings(MistakenHost::catalogue(), "[PMA]\r\nMIX(1,Tray1)\r\nMIX(2,Tray1)\r\nX");
     }},
    {"an unusable catalogue", [](MistakenHost&) {},
     [](MistakenHost& host) { host.control().SetXMLStrings("", MistakenHost::cycle()); }},
    {"RetrieveCycle", [](MistakenHost& host) { host.clock.atTime = fail; },
     [](MistakenHost& host) { host.control().RetrieveCycle(); }},
    {"CycleChanged", [](MistakenHost& host) { host.codePage.atText = fail; },
     [](MistakenHost& host) {
       host.screen().txtCycleDescription.replace("x");
       host.control().CycleChanged();
     }},
    {"ResetCycle", [](MistakenHost& host) { host.documents.atDocument = fail; },
     [](MistakenHost& host) { host.control().ResetCycle("<CYCLE/>"); }},
    {"Ignore_Hidden", [](MistakenHost& host) { host.provider->atIgnoreHidden = fail; },
     [](MistakenHost& host) { host.control().Ignore_Hidden(true); }},
    {"a button's click", spoilUnits, [](MistakenHost& host) { host.screen().cmdDefault.press(); }},
    {"Insert", spoilUnits, [](MistakenHost& host) { host.screen().cmdInset.press(); }},
    {"Delete", spoilUnits, [](MistakenHost& host) { host.screen().cmdDelete.press(); }},
    {"a choice in the combo box", spoilUnits, [](MistakenHost& host) { host.screen().cboAtom.setIndex(0); }},
    {"a selection in the list", spoilUnits, [](MistakenHost& host) { host.screen().lstAtomSequence.setIndex(1); }},
    {"a double click in the list", spoilUnits,
     [](MistakenHost& host) { host.screen().lstAtomSequence.doubleClick(1); }},
    {"a double click on a variable", spoilMessages,
     [](MistakenHost& host) { host.screen().lstVariables.doubleClick(0); }},
    {"Delete of a variable in use", spoilMessages,
     [](MistakenHost& host) {
       host.screen().lstVariables.setIndex(0);
       host.screen().cmdDel.press();
     }},
    {"typing", spoilMessages, [](MistakenHost& host) { host.screen().spoiltGrid.type(1, "1;2;3"); }},
    {"an edit's end", spoilMessages, [](MistakenHost& host) { host.screen().spoiltGrid.type(1, "700"); }},
    {"a pick", spoilMessages,
     [](MistakenHost& host) {
       host.screen().spoiltGrid.setPickList(1, "700");
       host.screen().spoiltGrid.pick(1, "700");
     }},
    {"another row", spoilRow, [](MistakenHost& host) { host.screen().spoiltGrid.type(2, "x"); }},
    {"a pick in another row", spoilRow, [](MistakenHost& host) { host.screen().spoiltGrid.pick(2, "x"); }},
    {"a press", spoilRow,
     [](MistakenHost& host) { host.screen().spoiltGrid.pressMouse(platform::MouseButton::Primary, 200, 45); }},
    {"a choice in the menu", spoilGrid,
     [](MistakenHost& host) {
       host.screen().spoiltGrid.requestContextMenu(200, 25);
       host.screen().mnuSubParam.choose(0);
     }},
    {"the timer's tick", spoilTimer, [](MistakenHost& host) { host.screen().spoiltTimer.fire(); }},
    {"the dialog's opening", spoilUnits, [](MistakenHost& host) { host.screen().cmdIns.press(); }},
    {"a message over the dialog", spoilMessages,
     [](MistakenHost& host) { openDialog(host, [](auto& dialog) { dialog.OKButton.press(); }); }},
};

class InsideAnError : public ::testing::TestWithParam<Trigger> {
 protected:
  // Brings the host to the brink of the error.
  void prepare() {
    host_.load();
    ASSERT_THAT(host_.errors, IsEmpty());
    GetParam().spoil(host_);
  }
  void act() { GetParam().act(host_); }
  void mend() {
    host_.provider->atUnit = host_.provider->atIgnoreHidden = host_.messages.atMessage = host_.clock.atTime = {};
    host_.codePage.atText = host_.documents.atDocument = {};
    host_.screen().spoiltGrid.atValue = host_.screen().spoiltGrid.atRow = host_.screen().spoiltTimer.atSetting = {};
  }
  MistakenHost host_;
};

TEST_P(InsideAnError, EveryMemberMayBeCalled) {
  prepare();
  int calls = 0;
  host_.atError = [&] {
    if (++calls > 3) return;
    host_.callEveryOtherMember();
    host_.load();
  };
  act();
  EXPECT_GE(calls, 1);
  mend();
  host_.errors.clear();
  host_.load();
  EXPECT_THAT(host_.errors, IsEmpty());
  EXPECT_THAT(host_.screen().lstAtomSequence.items(), SizeIs(2));
}

TEST_P(InsideAnError, AnotherCycleIsLoadedWhenTheProcedureHasEnded) {
  prepare();
  int calls = 0;
  bool early = false;
  host_.atError = [&] {
    ++calls;
    mend();
    host_.control().SetXMLStrings(test::catalogueOf({"A"}), test::cycleOf({"A"}));
    host_.control().SetXMLStrings(test::catalogueOf({"B"}), test::cycleOf({"B", "B", "B", "B"}));
    early = early || host_.screen().lstAtomSequence.itemCount() == 4;
  };
  act();
  EXPECT_EQ(calls, 1);
  EXPECT_FALSE(early);
  EXPECT_THAT(host_.screen().lstAtomSequence.items(), ElementsAre("01 B", "02 B", "03 B", "04 B"))
      << "the last one counts";
  EXPECT_THAT(host_.screen().cboAtom.items(), ElementsAre("B", "FURTHER"));
}

TEST_P(InsideAnError, TheControlMayBeDestroyed) {
  prepare();
  const auto screen = host_.watchedScreen();
  host_.atError = [&] { host_.destroy(); };
  act();
  EXPECT_FALSE(host_.hasControl());
  EXPECT_THAT(host_.errors, SizeIs(1)) << "nothing more is told";
  EXPECT_TRUE(screen.expired()) << "when the procedure has ended, its screen is released";
}

TEST_P(InsideAnError, TheControlMayBeDestroyedWithALoadWaiting) {
  prepare();
  host_.atError = [&] {
    host_.load();
    host_.destroy();
  };
  act();
  EXPECT_THAT(host_.errors, SizeIs(1));
}

// Without end, and also without taking the patience of the operator.
TEST_P(InsideAnError, AHandlerThatFailsAgainAndAgainComesToAnEnd) {
  prepare();
  host_.atError = [&] {
    GetParam().act(host_);
    host_.callEveryOtherMember();
    host_.control().SetXMLStrings("", "");
    host_.load();
  };
  act();
  EXPECT_THAT(host_.errors, Not(IsEmpty()));
  EXPECT_LE(host_.errors.size(), 10'000U);
  mend();
  host_.atError = {};
  host_.errors.clear();
  host_.load();
  EXPECT_THAT(host_.errors, IsEmpty());
  EXPECT_THAT(host_.screen().lstAtomSequence.items(), SizeIs(2));
}

INSTANTIATE_TEST_SUITE_P(HostMistakes, InsideAnError, ::testing::ValuesIn(triggers),
                         [](const ::testing::TestParamInfo<Trigger>& trigger) {
                           std::string name;
                           for (const char* c = trigger.param.name; *c != '\0'; ++c) {
                             if (std::isalnum(static_cast<unsigned char>(*c)) != 0) name += *c;
                           }
                           return name;
                         });

TEST(HostMistakes, AHandlerMayThrowWhateverItLikes) {
  MistakenHost host;
  for (const test::Mischief& mischief :
       {test::Mischief(fail), test::Mischief([] { throw 7; }), test::Mischief([] { throw std::string("text"); })}) {
    host.atError = mischief;
    EXPECT_NO_THROW(host.control().SetXMLStrings("", ""));
  }
  EXPECT_THAT(host.errors, SizeIs(3));
}

TEST(HostMistakes, ALoadFromInsideALoadIsDoneOnce) {
  MistakenHost host;
  host.provider->atAtomNames = [&] {
    host.provider->atAtomNames = {};
    host.control().SetXMLStrings(test::catalogueOf({"B"}), test::cycleOf({"B"}));
    EXPECT_THAT(host.screen().lstAtomSequence.items(), IsEmpty());
  };
  host.load();
  EXPECT_THAT(host.screen().lstAtomSequence.items(), ElementsAre("01 B"));
  EXPECT_THAT(host.errors, IsEmpty());
}

TEST(HostMistakes, AProviderThatAlwaysLoadsAnewComesToAnEnd) {
  MistakenHost host;
  int asked = 0;
  host.provider->atUnit = [&] {
    ++asked;
    host.load();
  };
  host.load();
  EXPECT_LE(asked, 1000);
  host.provider->atUnit = {};
  host.load();
  EXPECT_THAT(host.screen().lstAtomSequence.items(), SizeIs(2));
}

using Place = test::Mischief test::SpoiltProvider::*;
const Place providerFunctions[] = {&test::SpoiltProvider::atIgnoreHidden, &test::SpoiltProvider::atAtomNames,
                                   &test::SpoiltProvider::atUnit, &test::SpoiltProvider::atObject,
                                   &test::SpoiltProvider::atParameters};

void useTheProvider(MistakenHost& host) {
  host.control().Ignore_Hidden(true);
  if (host.hasControl()) host.load();
}

TEST(ProviderMistakes, WhateverIsThrownIsTold) {
  for (const Place place : providerFunctions) {
    for (const test::Mischief& mischief :
         {test::Mischief(fail), test::Mischief([] { throw 7; }), test::Mischief([] { throw std::string("text"); })}) {
      MistakenHost host;
      (*host.provider).*place = mischief;
      EXPECT_NO_THROW(useTheProvider(host));
      EXPECT_THAT(host.errors, Not(IsEmpty()));
      EXPECT_EQ(host.errors.front().lngError, 51);
      (*host.provider).*place = {};
      host.errors.clear();
      useTheProvider(host);
      EXPECT_THAT(host.errors, IsEmpty());
    }
  }
}

TEST(ProviderMistakes, EveryMemberMayBeCalled) {
  for (const Place place : providerFunctions) {
    MistakenHost host;
    int asked = 0;
    (*host.provider).*place = [&] {
      if (++asked <= 3) host.callEveryOtherMember();
    };
    useTheProvider(host);
    EXPECT_GE(asked, 1);
    (*host.provider).*place = {};
    host.load();
    EXPECT_THAT(host.screen().lstAtomSequence.items(), SizeIs(2));
  }
}

TEST(ProviderMistakes, TheControlMayBeDestroyed) {
  for (const Place place : providerFunctions) {
    MistakenHost host;
    const auto screen = host.watchedScreen();
    (*host.provider).*place = [&] {
      host.destroy();
      host.provider.reset();
    };
    useTheProvider(host);
    EXPECT_FALSE(host.hasControl());
    EXPECT_TRUE(screen.expired());
    EXPECT_THAT(host.errors, IsEmpty());
  }
}

TEST(ServiceMistakes, AServiceThatThrowsIsTold) {
  MistakenHost host;
  host.load();
  host.screen().txtCycleDescription.replace("x");
  for (test::Mischief* mischief : {&host.clock.atTime, &host.codePage.atText, &host.documents.atDocument}) {
    host.errors.clear();
    *mischief = [] { throw 7; };
    EXPECT_NO_THROW(host.control().CycleChanged());
    EXPECT_NO_THROW(host.control().RetrieveCycle());
    EXPECT_NO_THROW(host.load());
    EXPECT_THAT(host.errors, Not(IsEmpty()));
    *mischief = {};
    host.load();
    host.screen().txtCycleDescription.replace("x");
  }
}

TEST(ServiceMistakes, AMessageBoxThatThrowsIsTold) {
  MistakenHost host;
  host.load();
  host.messages.atMessage = [] { throw 7; };
  host.screen().spoiltGrid.type(1, "700");
  EXPECT_THAT(host.failedProcedures(), ElementsAre("Check_Range "));
  EXPECT_EQ(host.screen().spoiltGrid.cellText(1, 1), "700");
}

TEST(ServiceMistakes, AnErrorIsToldThoughTheSystemsTextsFail) {
  MistakenHost host;
  host.system.atQuestion = fail;
  host.provider->atAtomNames = [] { throw RunTimeError(4711, "down", "suite"); };
  host.load();
  ASSERT_THAT(host.errors, SizeIs(1));
  EXPECT_EQ(host.errors.front().lngError, 4711);
  EXPECT_EQ(host.errors.front().strError, "down");
}

}  // namespace
}  // namespace mavCycEd
