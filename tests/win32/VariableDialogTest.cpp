// The variable dialog under a user's keys.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "TestWindow.h"

namespace mavCycEd::win32::test {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

TestEditor* editorUnderTest = nullptr;
int ticks = 0;

// Enter opens a value on the editor's screen; here it presses OK, wherever the keyboard is.
TEST(Win32VariableDialogTest, EnterInTheSettingsIsOk) {
  HostWindow host;
  TestEditor editor(host.handle());
  editor.load();
  editor.windows().cboAtom.setText("MIX");
  settle();
  editorUnderTest = &editor;
  ticks = 0;
  SetTimer(nullptr, 0, USER_TIMER_MINIMUM, [](HWND, UINT, UINT_PTR timer, DWORD) {
    constexpr int enough = 20;
    Win32VariableDialog* const dialog = editorUnderTest->editor().screen().variableDialogs().open();
    if (dialog == nullptr) return;
    ++ticks;
    if (ticks == 1) {
      const HWND settings = dialog->windows().grdParamStnd.view().handle();
      SetFocus(settings);
      PostMessageW(settings, WM_KEYDOWN, VK_RETURN, 1);
    } else if (!editorUnderTest->messages.empty() || ticks > enough) {
      KillTimer(nullptr, timer);
      SendMessageW(dialog->dialog().window().handle(), WM_CLOSE, 0, 0);
    }
  });
  SendMessageW(editor.windows().cmdIns.handle(), BM_CLICK, 0, 0);
  settle();
  EXPECT_THAT(editor.messages, ElementsAre(HasSubstr("name"))) << "which OK asks for";
}

}  // namespace
}  // namespace mavCycEd::win32::test
