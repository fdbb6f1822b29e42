// The keys that take steps back, wherever the keyboard is in the editor.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>

#include "TestWindow.h"
#include "win32/CellEditor.h"
#include "win32/HistoryKeys.h"

namespace mavCycEd::win32::test {
namespace {

/// Holds keys down as long as it lives.
class Held {
 public:
  explicit Held(std::vector<int> keys) {
    GetKeyboardState(before_.data());
    std::array<BYTE, 256> state = before_;
    for (const int key : keys) state[static_cast<std::size_t>(key)] = 0x80;
    SetKeyboardState(state.data());
  }
  ~Held() { SetKeyboardState(before_.data()); }
  Held(const Held&) = delete;
  Held& operator=(const Held&) = delete;

 private:
  std::array<BYTE, 256> before_{};
};

class Win32UndoTest : public ::testing::Test {
 protected:
  Win32UndoTest() {
    editor_.load();
    windows().cboAtom.setText("MIX");
    settle();
  }
  EditorControls& windows() { return editor_.windows(); }
  std::size_t lineCount() { return editor_.editor().control().cycle().lines.size(); }
  void insert() {
    SendMessageW(windows().cmdInset.handle(), BM_CLICK, 0, 0);
    settle();
  }
  static void press(HWND window, WPARAM letter, bool shift = false) {
    const Held held(shift ? std::vector<int>{VK_CONTROL, VK_SHIFT} : std::vector<int>{VK_CONTROL});
    key(window, letter);
  }

  HostWindow host_;
  TestEditor editor_{host_.handle()};
};

TEST_F(Win32UndoTest, KeysWorkWhereverTheKeyboardIs) {
  for (const HWND window :
       {windows().cboAtom.handle(), windows().GrdAtom.view().handle(), windows().lstAtomSequence.handle(),
        windows().cmdInset.handle(), windows().txtCycleDescription.handle(), windows().lstVariables.handle()}) {
    insert();
    const std::size_t lines = lineCount();
    SetFocus(window);
    press(window, 'Z');
    EXPECT_EQ(lineCount(), lines - 1);
    press(window, 'Y');
    EXPECT_EQ(lineCount(), lines);
    press(window, 'Z');
    press(window, 'Z', true);
    EXPECT_EQ(lineCount(), lines);
  }
  EXPECT_TRUE(editor_.errors.empty());
}

TEST_F(Win32UndoTest, KeysAreTheCellsWhileAValueIsTyped) {
  insert();
  SetFocus(windows().GrdAtom.view().handle());
  type(windows().GrdAtom.view().handle(), L"4");
  const HWND line = windows().GrdAtom.view().cellEditor().window();
  ASSERT_NE(line, nullptr);
  press(line, 'Z');
  EXPECT_EQ(lineCount(), 1U);
  EXPECT_TRUE(windows().GrdAtom.isEditing());
}

TEST_F(Win32UndoTest, TheDescriptionHasNoHistoryBesideTheEditors) {
  insert();
  const HWND box = windows().txtCycleDescription.handle();
  SetFocus(box);
  type(box, L"ab");
  EXPECT_EQ(editor_.editor().control().cycle().description, "ab");
  press(box, 'Z');
  EXPECT_EQ(windows().txtCycleDescription.text(), "");
  EXPECT_EQ(lineCount(), 1U);
  press(box, 'Z');
  EXPECT_EQ(lineCount(), 0U);
}

TEST_F(Win32UndoTest, OtherKeysStayWhatTheyAre) {
  insert();
  const HWND list = windows().lstAtomSequence.handle();
  EXPECT_FALSE(handOnHistoryKey(list, WM_KEYDOWN, 'Z')) << "without Ctrl";
  const Held held({VK_CONTROL, VK_MENU});
  EXPECT_FALSE(handOnHistoryKey(list, WM_KEYDOWN, 'Z')) << "AltGr types characters";
  EXPECT_EQ(lineCount(), 1U);
}

}  // namespace
}  // namespace mavCycEd::win32::test
