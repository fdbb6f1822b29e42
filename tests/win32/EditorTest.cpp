// The whole editor in a host's window: keys, names, and windows that go.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "TestLines.h"
#include "TestWindow.h"
#include "Win32OwnDesktop.h"
#include "win32/CellEditor.h"
#include "win32/Dpi.h"
#include "win32/Fonts.h"
#include "win32/Text.h"
// needs windows.h
#include <objbase.h>
#include <oleacc.h>

namespace mavCycEd::win32::test {
namespace {

// For all tests of this program.
const bool isAlone = play::moveToOwnDesktop();

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class Win32EditorTest : public ::testing::Test {
 protected:
  Win32EditorTest() {
    editor_.load();
    editor_.windows().cboAtom.setText("MIX");
    settle();
  }
  Win32ValueList& grid() { return editor_.windows().GrdAtom; }
  HWND view() { return grid().view().handle(); }
  HWND line() { return grid().view().cellEditor().window(); }
  std::string value(int row) { return grid().cellText(1, row); }

  HostWindow host_;
  TestEditor editor_{host_.handle()};
};

TEST_F(Win32EditorTest, TypingOpensTheEditorAndReplacesTheValue) {
  grid().setValue(1, 1, "7");
  SetFocus(view());
  type(view(), L"4");
  ASSERT_NE(line(), nullptr);
  type(line(), L"2");
  EXPECT_EQ(value(1), "42");
  key(line(), VK_RETURN);
  EXPECT_EQ(grid().Row(), 2);
  EXPECT_EQ(grid().list().edit().row(), 2);
  EXPECT_THAT(editor_.messages, IsEmpty());
}

TEST_F(Win32EditorTest, EscapeGivesTheValueBack) {
  grid().setValue(1, 1, "7");
  SetFocus(view());
  type(view(), L"4");
  key(line(), VK_ESCAPE);
  EXPECT_EQ(value(1), "7");
  EXPECT_FALSE(grid().isEditing());
  EXPECT_EQ(GetFocus(), view());
}

// The first row of a grid that has just been refilled is current before anybody was told of it.
TEST_F(Win32EditorTest, TheMenuKeyIsForTheRowThatIsShown) {
  grid().focusValue(2);
  SetFocus(view());
  settle();
  SendMessageW(editor_.windows().cmdDefault.handle(), BM_CLICK, 0, 0);
  settle();
  ASSERT_EQ(grid().Row(), 1);
  SendMessageW(view(), WM_CONTEXTMENU, reinterpret_cast<WPARAM>(view()), -1);
  EXPECT_EQ(grid().Row(), 1);
  ASSERT_TRUE(editor_.windows().mnuSubParam.isWaiting());
  EXPECT_EQ(editor_.windows().mnuSubParam.itemCaption(0), "Default:5");
  MSG opening{};
  PeekMessageW(&opening, editor_.windows().mnuSubParam.opener(), 0, 0, PM_REMOVE);
}

// Rows are higher than a box of the system's where the screen is scaled.
TEST_F(Win32EditorTest, AListFillsItsCellWithItsTextInTheMiddle) {
  const FontHandle font = makeFont(systemFont(USER_DEFAULT_SCREEN_DPI));
  CellEditor list(view(), {"slow", "fast"}, font, USER_DEFAULT_SCREEN_DPI, {});
  for (const LONG height : {60L, 24L}) {
    list.place({10, 10, 200, 10 + height});
    RECT box{};
    RECT text{};
    GetWindowRect(GetParent(list.line()), &box);
    GetWindowRect(list.line(), &text);
    EXPECT_EQ(box.bottom - box.top, height);
    const int textHeight = TextMeasure(list.line(), font.get()).lineHeight();
    EXPECT_NEAR(2 * (text.top - box.top) + textHeight, height, 1) << "as much room above as below";
  }
}

TEST_F(Win32EditorTest, TabGoesFromValueToValueAndThenOn) {
  grid().focusValue(1);
  key(line(), VK_TAB);
  EXPECT_EQ(grid().list().edit().row(), 2);
  key(line(), VK_TAB);
  EXPECT_EQ(grid().list().edit().row(), 3);
  key(line(), VK_TAB);
  EXPECT_FALSE(grid().isEditing());
  EXPECT_NE(GetFocus(), view());
}

TEST_F(Win32EditorTest, AValueOutOfRangeIsToldWhenTheEditEnds) {
  SetFocus(view());
  type(view(), L"5");
  type(line(), L"00");
  EXPECT_THAT(editor_.messages, IsEmpty());
  SetFocus(editor_.windows().txtCycleDescription.handle());
  settle();
  EXPECT_THAT(editor_.messages, ElementsAre("Volume out of range or invalid step increment."));
}

TEST_F(Win32EditorTest, ACharacterOfTwoHalvesIsTypedOnce) {
  SetFocus(view());
  SendMessageW(view(), WM_CHAR, 0xD83D, 1);
  settle();
  SendMessageW(line(), WM_CHAR, 0xDE00, 1);
  settle();
  EXPECT_EQ(value(1), "😀");
}

// As many milliseconds as the editor's own timer takes, and some more.
void waitForTheGridTimer() {
  constexpr DWORD milliseconds = 700;
  for (const DWORD begin = GetTickCount(); GetTickCount() - begin < milliseconds; Sleep(10)) settle();
}

TEST_F(Win32EditorTest, TheGridTimerMakesTheFirstRowCurrent) {
  grid().setRow(3);
  waitForTheGridTimer();
  EXPECT_EQ(grid().Row(), 1);
}

TEST_F(Win32EditorTest, AnOperatorWhoHasComeToARowKeepsIt) {
  SetFocus(view());
  key(view(), VK_DOWN);
  EXPECT_FALSE(editor_.windows().tmrUpdateGrid->isEnabled());
  waitForTheGridTimer();
  EXPECT_EQ(grid().Row(), 2);
}

TEST_F(Win32EditorTest, ATickThatFallsIntoAnEditIsDropped) {
  grid().focusValue(3);
  waitForTheGridTimer();
  key(line(), VK_ESCAPE);
  waitForTheGridTimer();
  EXPECT_EQ(grid().Row(), 3);
  EXPECT_FALSE(editor_.windows().tmrUpdateGrid->isEnabled());
}

TEST_F(Win32EditorTest, APickedValueIsStillBeingEdited) {
  grid().focusValue(3);
  const HWND combo = GetParent(line());
  SendMessageW(combo, CB_SHOWDROPDOWN, TRUE, 0);
  SendMessageW(combo, CB_SETCURSEL, 1, 0);
  key(combo, VK_RETURN);
  EXPECT_EQ(value(3), "fast");
  EXPECT_EQ(grid().list().edit().row(), 3);
  EXPECT_EQ(GetFocus(), line());
  key(line(), VK_UP);
  EXPECT_EQ(grid().list().edit().row(), 2);
}

TEST_F(Win32EditorTest, APressOnTheDividerIsToldAndDragsIt) {
  grid().focusValue(2);
  const GridGeometry before = grid().view().geometry();
  int presses = 0;
  platform::ValueListEvents events;
  events.MouseDown = [&](platform::MouseButton, int x, int y) {
    ++presses;
    EXPECT_EQ(x, 151);
    EXPECT_LT(y, 19);
  };
  grid().setEvents(std::move(events));
  SendMessageW(view(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(before.keyWidth(), 2));
  SendMessageW(view(), WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(before.keyWidth() + 20, 2));
  SendMessageW(view(), WM_LBUTTONUP, 0, MAKELPARAM(before.keyWidth() + 20, 2));
  settle();
  EXPECT_EQ(presses, 1);
  EXPECT_NEAR(grid().view().geometry().keyWidth(), before.keyWidth() + 20, 1);
  EXPECT_EQ(grid().list().edit().row(), 2) << "the value stays open";
}

TEST_F(Win32EditorTest, WhatIsPastedIsPutOnOneLine) {
  grid().focusValue(1);
  SendMessageW(line(), EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(L"1\r\n2\t3"));
  settle();
  EXPECT_EQ(value(1), "1 2 3");
}

TEST_F(Win32EditorTest, TypingGoesOnWhereACharacterHadToGo) {
  grid().focusValue(1);
  type(line(), L"1234");
  SendMessageW(line(), EM_SETSEL, 2, 2);
  type(line(), L";5");
  EXPECT_EQ(value(1), "12534");
}

TEST_F(Win32EditorTest, APressIsOnTheRowUnderThePointerAlsoWhenTheEditedOneIsOutOfView) {
  for (int row = 4; row <= 80; ++row) grid().InsertRow("Key" + std::to_string(row), "", true);
  grid().focusValue(1);
  SendMessageW(view(), WM_VSCROLL, SB_PAGEDOWN, 0);
  SendMessageW(view(), WM_VSCROLL, SB_PAGEDOWN, 0);
  const GridGeometry& geometry = grid().view().geometry();
  const int row = geometry.top + 1;
  const RECT cell = geometry.cell(1, row);
  SendMessageW(view(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(cell.left + 5, cell.top + 3));
  SendMessageW(view(), WM_LBUTTONUP, 0, MAKELPARAM(cell.left + 5, cell.top + 3));
  settle();
  EXPECT_EQ(grid().list().edit().row(), row);
}

TEST_F(Win32EditorTest, AHostCallFinishesTheOpenEdit) {
  SetFocus(view());
  type(view(), L"8");
  EXPECT_TRUE(editor_.editor().settle());
  EXPECT_FALSE(grid().isEditing());
  EXPECT_EQ(value(1), "8");
}

// The name that assistive technology gets for a window, or for one of its items.
std::wstring accessibleText(HWND window, long item, bool value) {
  void* object = nullptr;
  const HRESULT found =
      AccessibleObjectFromWindow(window, static_cast<DWORD>(OBJID_CLIENT), __uuidof(IAccessible), &object);
  if (FAILED(found)) return L"(none)";
  auto* const description = static_cast<IAccessible*>(object);
  VARIANT child{};
  child.vt = VT_I4;
  child.lVal = item;
  BSTR text = nullptr;
  if (value) {
    description->get_accValue(child, &text);
  } else {
    description->get_accName(child, &text);
  }
  const std::wstring result = text == nullptr ? L"" : text;
  SysFreeString(text);
  description->Release();
  return result;
}

TEST_F(Win32EditorTest, HasNamesForAssistiveTechnology) {
  ASSERT_TRUE(SUCCEEDED(CoInitialize(nullptr)));  // as hosts of controls do
  grid().setValue(1, 1, "7");
  EXPECT_EQ(accessibleText(view(), CHILDID_SELF, false), L"Atom parameters");
  EXPECT_EQ(accessibleText(view(), 1, false), L"Volume(ul)");
  EXPECT_EQ(accessibleText(view(), 1, true), L"7");
  const mavCycEd::test::TestLines lines({"01 MIX", "02 WAIT"});
  editor_.windows().lstAtomSequence.showLines(lines);
  EXPECT_EQ(accessibleText(editor_.windows().lstAtomSequence.handle(), 2, false), L"02 WAIT");
  EXPECT_EQ(accessibleText(editor_.windows().cmdInset.handle(), CHILDID_SELF, false), L"Insert atom");
  editor_.windows().lstAtomSequence.clear();
  CoUninitialize();
}

TEST_F(Win32EditorTest, OutlivesItsWindow) {
  grid().focusValue(1);
  DestroyWindow(host_.handle());
  EXPECT_EQ(editor_.editor().screen().window(), nullptr);
  editor_.load("<CYCLE><VERSION>03</VERSION></CYCLE>");
  editor_.windows().cboAtom.setText("MIX");
  grid().focusValue(2);
  editor_.windows().txtCycleDescription.setText("still there");
  EXPECT_EQ(editor_.windows().txtCycleDescription.text(), "still there");
  EXPECT_EQ(grid().RowCount(), 4);
  EXPECT_EQ(grid().Row(), 2);
  EXPECT_THAT(editor_.errors, IsEmpty());
}

// The system may take back what its list shows before a pick has been told.
TEST_F(Win32EditorTest, APickStaysWhenTheListIsLeftRightAfterIt) {
  const HWND combo = editor_.windows().cboAtom.handle();
  SendMessageW(combo, CB_SHOWDROPDOWN, TRUE, 0);
  SendMessageW(combo, CB_SETCURSEL, 1, 0);
  SendMessageW(combo, WM_KEYDOWN, VK_RETURN, 1);
  SendMessageW(GetParent(combo), WM_COMMAND, MAKEWPARAM(0, CBN_SELENDCANCEL), reinterpret_cast<LPARAM>(combo));
  settle();
  EXPECT_EQ(editor_.windows().cboAtom.text(), "WAIT");
}

TEST_F(Win32EditorTest, MayBeDestroyedWhileItTellsTheUser) {
  SetFocus(view());
  type(view(), L"5");
  type(line(), L"00");
  editor_.onMessage = [this] { editor_.destroy(); };
  SetFocus(editor_.windows().txtCycleDescription.handle());
  settle();
  EXPECT_TRUE(editor_.isDestroyed());
  EXPECT_EQ(editor_.messages.size(), 1U);
  EXPECT_EQ(GetWindow(host_.handle(), GW_CHILD), nullptr);
}

TEST_F(Win32EditorTest, MayBeDestroyedByAButtonOfItsOwn) {
  grid().setValue(1, 1, "500");
  editor_.onMessage = [this] { editor_.destroy(); };
  SendMessageW(editor_.windows().cmdInset.handle(), BM_CLICK, 0, 0);
  settle();
  EXPECT_TRUE(editor_.isDestroyed());
  EXPECT_EQ(GetWindow(host_.handle(), GW_CHILD), nullptr);
}

TEST_F(Win32EditorTest, MovesBetweenWindows) {
  editor_.editor().screen().setParent(nullptr);
  EXPECT_EQ(IsWindowVisible(editor_.editor().screen().window()), FALSE);
  HostWindow other;
  editor_.editor().screen().setParent(other.handle());
  EXPECT_NE(IsWindowVisible(editor_.editor().screen().window()), FALSE);
  SetFocus(view());
  type(view(), L"3");
  EXPECT_EQ(value(1), "3");
}

// All rounds of work with editors give back what they took from the system.
TEST(Win32Handles, ComeBackToWhereTheyWere) {
  const auto round = [] {
    HostWindow host;
    TestEditor editor(host.handle());
    editor.load();
    editor.windows().cboAtom.setText("MIX");
    editor.windows().GrdAtom.focusValue(1);
    editor.windows().GrdAtom.focusValue(3);
    UpdateWindow(host.handle());
    settle();
  };
  round();  // what the system keeps from the first time on
  const auto count = [](DWORD kind) { return GetGuiResources(GetCurrentProcess(), kind); };
  const DWORD gdi = count(GR_GDIOBJECTS);
  const DWORD user = count(GR_USEROBJECTS);
  constexpr int rounds = 30;
  for (int i = 0; i < rounds; ++i) round();
  EXPECT_LE(count(GR_GDIOBJECTS), gdi + 2);
  EXPECT_LE(count(GR_USEROBJECTS), user + 2);
}

}  // namespace
}  // namespace mavCycEd::win32::test
