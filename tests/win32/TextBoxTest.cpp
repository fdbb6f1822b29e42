#include "win32/Win32TextBox.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "TestWindow.h"
#include "win32/Text.h"
#include "win32/Win32ComboBox.h"

namespace mavCycEd::win32::test {
namespace {

class Win32TextBoxTest : public ::testing::Test {
 protected:
  Win32TextBoxTest() {
    box_.place({0, 0, 200, 100});
    other_.place({0, 110, 200, 140});
    box_.setEvents({.Change = [this] { ++changes_; }, .LostFocus = [this] { ++left_; }});
  }
  DWORD caret() const {
    DWORD end = 0;
    SendMessageW(box_.handle(), EM_GETSEL, 0, reinterpret_cast<LPARAM>(&end));
    return end;
  }

  HostWindow host_;
  Win32TextBox box_{Win32TextBox::Lines::Several, host_.handle(), nullptr};
  Win32TextBox other_{Win32TextBox::Lines::One, host_.handle(), nullptr};
  int changes_ = 0;
  int left_ = 0;
};

TEST_F(Win32TextBoxTest, TellsWhenTheFocusGoesToAnotherControl) {
  SetFocus(box_.handle());
  SetFocus(other_.handle());
  settle();
  EXPECT_EQ(left_, 1);
  SetFocus(box_.handle());
  SetFocus(nullptr);  // a menu, or another window
  settle();
  EXPECT_EQ(left_, 1);
}

TEST_F(Win32TextBoxTest, OfLinesHasNoUndoOfItsOwn) {
  box_.setText("a");
  type(box_.handle(), L"b");
  EXPECT_EQ(changes_, 1);
  EXPECT_EQ(SendMessageW(box_.handle(), EM_CANUNDO, 0, 0), FALSE);
  type(box_.handle(), L"\x1A");
  SendMessageW(box_.handle(), WM_UNDO, 0, 0);
  SendMessageW(box_.handle(), EM_UNDO, 0, 0);
  settle();
  EXPECT_EQ(box_.text(), "ba");
  EXPECT_EQ(changes_, 1);
}

TEST_F(Win32TextBoxTest, OfOneLineKeepsItsUndo) {
  type(other_.handle(), L"ab");
  EXPECT_NE(SendMessageW(other_.handle(), EM_CANUNDO, 0, 0), FALSE);
}

TEST_F(Win32TextBoxTest, AnotherTextKeepsTheChangeInView) {
  std::string lines;
  for (int i = 0; i < 200; ++i) lines += "line " + std::to_string(i) + "\r\n";
  box_.setText(lines);
  EXPECT_EQ(caret(), 0U) << "another text is shown from its start";
  const std::size_t place = lines.find("line 150") + 5;
  lines.insert(place, "\u00E4");
  box_.setText(lines);
  EXPECT_EQ(caret(), place + 1);
  EXPECT_GT(SendMessageW(box_.handle(), EM_GETFIRSTVISIBLELINE, 0, 0), 100);
}

TEST_F(Win32TextBoxTest, LoadedCharactersThatTypedOnesWouldEndALineStay) {
  const std::string loaded = "a\u2028b\u2029c\uFDD0d\uFDD1e\uFEFF";
  box_.setText(loaded);
  EXPECT_EQ(box_.text(), loaded);
  type(box_.handle(), L"f");
  EXPECT_EQ(box_.text(), "fa\r\nb\r\nc\r\nd\r\ne\uFEFF") << "what a person edits has lines";
}

TEST(Win32ComboBoxTyping, BeginsAnewBehindAnAccessKey) {
  const HostWindow host;
  const kit::CommandGate gate;
  Win32ComboBox combo(gate, Win32ComboBox::Mode::PickOnly, host.handle(), nullptr);
  combo.assign({"ASPIRATE", "WAIT", "WASH"});
  std::vector<std::string> picks;
  combo.setEvents({.Click = [&] { picks.push_back(combo.text()); }, .LostFocus = {}});
  type(combo.handle(), L"was");
  EXPECT_THAT(picks, ::testing::ElementsAre("WAIT", "WASH"));
  SendMessageW(combo.handle(), WM_SYSKEYDOWN, VK_MENU, 1);
  settle();
  type(combo.handle(), L"a");
  EXPECT_EQ(combo.text(), "ASPIRATE");
}

}  // namespace
}  // namespace mavCycEd::win32::test
