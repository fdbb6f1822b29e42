#include "win32/Win32ListBox.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ListBoxContract.h"
#include "TestWindow.h"
#include "platform/RunTimeError.h"
#include "win32/Dpi.h"

namespace mavCycEd::win32::test {

class Win32Edition {
 public:
  platform::ItemListBox& items() { return items_; }
  platform::LineListBox& lines() { return lines_; }

 private:
  HostWindow host_;
  kit::CommandGate gate_;
  Win32ItemListBox items_{gate_, host_.handle(), nullptr};
  Win32LineListBox lines_{gate_, host_.handle(), nullptr};
};

namespace {

using ::testing::ElementsAre;

class Win32ListBoxTest : public ::testing::Test {
 protected:
  Win32ListBoxTest() {
    list_.setScreenFont(makeFont(systemFont(96)), 96);
    list_.place({0, 0, 200, 200});
    list_.setEvents({.Click = [this] { events_.push_back("click " + std::to_string(list_.index())); },
                     .DblClick = [this] { events_.push_back("double " + std::to_string(list_.index())); }});
  }
  void press(UINT message, int index) {
    RECT place{};
    SendMessageW(list_.handle(), LB_GETITEMRECT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&place));
    SendMessageW(list_.handle(), message, MK_LBUTTON, MAKELPARAM(3, place.top + 2));
    settle();
  }

  HostWindow host_;
  kit::CommandGate gate_;
  Win32ItemListBox list_{gate_, host_.handle(), nullptr};
  std::vector<std::string> events_;
};

TEST_F(Win32ListBoxTest, EveryPressIsTold) {
  list_.assign({"a", "b", "c"});
  press(WM_LBUTTONDOWN, 1);
  press(WM_LBUTTONDOWN, 1);
  press(WM_LBUTTONDBLCLK, 1);
  EXPECT_THAT(events_, ElementsAre("click 1", "click 1", "double 1"));
}

TEST_F(Win32ListBoxTest, APressBelowTheItemsSelectsNone) {
  list_.assign({"a", "b"});
  list_.setIndex(1);
  SendMessageW(list_.handle(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(3, 150));
  EXPECT_THAT(events_, ElementsAre("click 1", "click -1"));
  EXPECT_EQ(SendMessageW(list_.handle(), LB_GETCURSEL, 0, 0), LB_ERR);
}

TEST_F(Win32ListBoxTest, KeysMoveTheSelection) {
  list_.assign({"alpha", "beta", "gamma"});
  list_.setIndex(0);
  key(list_.handle(), VK_DOWN);
  key(list_.handle(), VK_END);
  SendMessageW(list_.handle(), WM_CHAR, 'B', 1);
  EXPECT_THAT(events_, ElementsAre("click 0", "click 1", "click 2", "click 1"));
}

TEST_F(Win32ListBoxTest, SpaceSelectsAgain) {
  list_.assign({"alpha", "beta"});
  list_.setIndex(1);
  key(list_.handle(), VK_SPACE);
  EXPECT_THAT(events_, ElementsAre("click 1", "click 1"));
  EXPECT_EQ(list_.index(), 1);
}

TEST_F(Win32ListBoxTest, WhatIsTypedWithoutAPauseIsOneText) {
  list_.assign({"01 MIX", "02 MIX", "10 MIX", "11 MIX", "12 MIX"});
  for (const wchar_t digit : {L'1', L'2'}) SendMessageW(list_.handle(), WM_CHAR, digit, 1);
  EXPECT_THAT(events_, ElementsAre("click 2", "click 4"));
  events_.clear();
  Sleep(1100);
  for (const wchar_t digit : {L'0', L'0'}) SendMessageW(list_.handle(), WM_CHAR, digit, 1);
  EXPECT_THAT(events_, ElementsAre("click 0", "click 1"));
}

TEST_F(Win32ListBoxTest, TheWindowKeepsNoTexts) {
  constexpr int lines = 100'000;
  list_.assign(std::vector<std::string>(lines, "01 MIX"));
  EXPECT_EQ(SendMessageW(list_.handle(), LB_GETCOUNT, 0, 0), lines);
  EXPECT_NE(GetWindowLongPtrW(list_.handle(), GWL_STYLE) & LBS_NODATA, 0);
  list_.setIndex(lines - 1);
  EXPECT_EQ(SendMessageW(list_.handle(), LB_GETCURSEL, 0, 0), lines - 1);
  EXPECT_GT(SendMessageW(list_.handle(), LB_GETTOPINDEX, 0, 0), lines - 100);
  list_.removeItem(0);
  EXPECT_EQ(list_.index(), lines - 2);
  EXPECT_EQ(SendMessageW(list_.handle(), LB_GETCURSEL, 0, 0), lines - 2);
}

TEST_F(Win32ListBoxTest, IndexesBeyondTheListAreErrors) {
  list_.assign({"a"});
  EXPECT_THROW(list_.itemText(1), RunTimeError);
  EXPECT_THROW(list_.setIndex(1), RunTimeError);
  EXPECT_THROW(list_.removeItem(-1), RunTimeError);
}

TEST_F(Win32ListBoxTest, WithoutItsWindowItKeepsItsItems) {
  list_.assign({"a", "b"});
  DestroyWindow(host_.handle());
  EXPECT_EQ(list_.handle(), nullptr);
  list_.addItem("c");
  list_.setIndex(2);
  list_.setItemFont({});
  EXPECT_EQ(list_.itemText(2), "c");
  EXPECT_EQ(list_.index(), 2);
}

TEST(Win32LineListBox, ASpliceStaysWhereTheListIsScrolledTo) {
  const HostWindow host;
  const kit::CommandGate gate;
  Win32LineListBox list(gate, host.handle(), nullptr);
  list.setScreenFont(makeFont(systemFont(96)), 96);
  list.place({0, 0, 200, 200});
  mavCycEd::test::TestLines owned(std::vector<std::string>(100'000, "01 MIX"));
  list.showLines(owned);
  owned.longestAsked = 0;
  const auto splice = [&](int at, int removed, const std::vector<std::string>& added) {
    owned.splice(at, removed, added);
    list.spliced(at, removed, static_cast<int>(added.size()));
  };
  const auto shown = [&](UINT what) { return SendMessageW(list.handle(), what, 0, 0); };
  list.setIndex(70'000);
  const LRESULT top = shown(LB_GETTOPINDEX);
  ASSERT_GT(top, 69'000);
  splice(70'001, 0, {"02 MIX"});
  EXPECT_EQ(shown(LB_GETCURSEL), 70'000);
  EXPECT_EQ(shown(LB_GETCOUNT), 100'001);
  EXPECT_EQ(shown(LB_GETTOPINDEX), top);
  splice(70'000, 1, {"02 WAIT"});
  EXPECT_EQ(shown(LB_GETCURSEL), 70'000) << "changed in place";
  EXPECT_EQ(owned.longestAsked, 0) << "the longest line is not looked for each time";
  splice(69'999, 2, {});
  EXPECT_EQ(shown(LB_GETCURSEL), LB_ERR);
  EXPECT_EQ(shown(LB_GETTOPINDEX), top);
}

}  // namespace
}  // namespace mavCycEd::win32::test

namespace mavCycEd::test {
namespace {

INSTANTIATE_TYPED_TEST_SUITE_P(Win32, ListBoxContract, win32::test::Win32Edition);

}  // namespace
}  // namespace mavCycEd::test
