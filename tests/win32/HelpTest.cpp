// F1 in the editor and in the variable dialog.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <string>
#include <utility>
#include <vector>

#include "TestWindow.h"
#include "win32/Module.h"
#include "win32/Text.h"

namespace mavCycEd::win32::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

// A file that is there.
std::wstring thisProgram() {
  std::array<wchar_t, 1024> path{};
  return {path.data(), GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()))};
}

// What the system makes of F1 in a window.
void pressF1(HWND window) {
  HELPINFO info{};
  info.cbSize = sizeof info;
  info.iContextType = HELPINFO_WINDOW;
  info.hItemHandle = window;
  SendMessageW(window, WM_HELP, 0, reinterpret_cast<LPARAM>(&info));
}

TEST(Win32Help, F1ShowsTheHelpWhereverTheKeyboardIs) {
  HostWindow host;
  TestEditor editor(host.handle(), thisProgram());
  editor.load();
  editor.windows().cboAtom.setText("MIX");
  settle();
  const HWND grid = editor.windows().GrdAtom.view().handle();
  SetFocus(grid);
  type(grid, L"2");
  const HWND line = editor.windows().GrdAtom.view().cellEditor().window();
  ASSERT_NE(line, nullptr);
  const EditorControls& w = editor.windows();
  const std::vector<std::pair<HWND, std::wstring>> windows{{line, L"values.html"},
                                                           {grid, L"values.html"},
                                                           {w.lstAtomSequence.handle(), L"screen.html"},
                                                           {w.cmdDefault.handle(), L"screen.html"},
                                                           {w.txtCycleDescription.handle(), L"screen.html"},
                                                           {w.lstVariables.handle(), L"variables.html"},
                                                           {w.cmdIns.handle(), L"variables.html"}};
  for (const auto& [window, page] : windows) {
    SetFocus(window);
    pressF1(window);
    ASSERT_FALSE(editor.helpShown.empty());
    EXPECT_EQ(editor.helpShown.back().page, page);
  }
  ASSERT_EQ(editor.helpShown.size(), windows.size());
  EXPECT_EQ(editor.helpShown[0].file, thisProgram());
  EXPECT_EQ(editor.helpShown[0].over, editor.editor().screen().window());
  EXPECT_THAT(editor.messages, IsEmpty());
}

TestEditor* inDialog = nullptr;
HWND dialogWindow = nullptr;

TEST(Win32Help, F1ShowsTheHelpOverTheVariableDialog) {
  HostWindow host;
  TestEditor editor(host.handle(), thisProgram());
  editor.load();
  editor.windows().cboAtom.setText("MIX");
  settle();
  inDialog = &editor;
  SetTimer(nullptr, 0, USER_TIMER_MINIMUM, [](HWND, UINT, UINT_PTR timer, DWORD) {
    Win32VariableDialog* const dialog = inDialog->editor().screen().variableDialogs().open();
    if (dialog == nullptr) return;
    KillTimer(nullptr, timer);
    dialogWindow = dialog->dialog().window().handle();
    pressF1(dialog->windows().txtParamName.handle());
    SendMessageW(dialogWindow, WM_CLOSE, 0, 0);
  });
  SendMessageW(editor.windows().cmdIns.handle(), BM_CLICK, 0, 0);
  settle();
  ASSERT_EQ(editor.helpShown.size(), 1U);
  EXPECT_EQ(editor.helpShown[0].over, dialogWindow);
  EXPECT_EQ(editor.helpShown[0].page, L"variables.html");
}

TEST(Win32Help, SaysWhatIsMissing) {
  HostWindow host;
  TestEditor nowhere(host.handle(), L"C:\\nowhere\\mavCycEd.chm");
  pressF1(nowhere.windows().txtCycleDescription.handle());
  EXPECT_THAT(nowhere.messages, ElementsAre("The help file is missing: C:\\nowhere\\mavCycEd.chm"));
  EXPECT_EQ(nowhere.helpShown.size(), 0U);

  TestEditor unshown(host.handle(), thisProgram());
  unshown.hasHelpViewer = false;
  pressF1(unshown.windows().txtCycleDescription.handle());
  EXPECT_THAT(unshown.messages, ElementsAre("Nothing here can show the help file: " + fromWide(thisProgram())));
}

// The message may be the end of the editor.
TEST(Win32Help, MayDestroyTheEditor) {
  HostWindow host;
  TestEditor editor(host.handle(), L"C:\\nowhere\\mavCycEd.chm");
  editor.onMessage = [&editor] { editor.destroy(); };
  pressF1(editor.windows().txtCycleDescription.handle());
  EXPECT_TRUE(editor.isDestroyed());
}

TEST(Win32Help, LiesBesideTheEditorItself) {
  const std::wstring program = thisProgram();
  EXPECT_EQ(ownHelpFile(), program.substr(0, program.rfind(L'\\') + 1) + L"mavCycEd.chm");
}

}  // namespace
}  // namespace mavCycEd::win32::test
