#include <functional>
#include <utility>
#include <vector>

#include "Container.h"

namespace mavCycEd::test {
namespace {

TEST_F(ContainerTest, StandsWhereTheContainerSaysAndMoves) {
  const Placed site = placed();
  ASSERT_TRUE(site);
  const HWND window = site->controlWindow();
  EXPECT_EQ(GetParent(window), frame_);
  EXPECT_NE(IsWindowVisible(window), FALSE);
  RECT now{};
  GetWindowRect(window, &now);
  MapWindowPoints(nullptr, frame_, reinterpret_cast<POINT*>(&now), 2);
  EXPECT_NE(EqualRect(&now, &place_), FALSE);

  RECT next{0, 0, 500, 400};
  site->place(next);
  GetClientRect(window, &now);
  EXPECT_EQ(now.right, 500);
  EXPECT_EQ(now.bottom, 400);
}

TEST_F(ContainerTest, OnlyThatPartIsSeenThatTheContainerLetsSee) {
  const Placed site = placed();
  const ComPtr<_ctlCycEd> editor(&site->editor());
  const auto object = editor.as<IOleInPlaceObject>();
  const RECT clip{10, 20, 300, 300};
  EXPECT_EQ(object->SetObjectRects(&place_, &clip), S_OK);
  RECT seen{};
  EXPECT_NE(GetWindowRgnBox(site->controlWindow(), &seen), ERROR);
  EXPECT_EQ(seen.right, 290);
  EXPECT_EQ(seen.bottom, 280);
  EXPECT_EQ(object->SetObjectRects(&place_, nullptr), S_OK);
  EXPECT_EQ(GetWindowRgnBox(site->controlWindow(), &seen), ERROR);
  EXPECT_EQ(object->SetObjectRects(nullptr, nullptr), E_POINTER);
}

TEST_F(ContainerTest, WhatIsOnTheScreenOutlastsItsPlace) {
  const ComPtr<IUnknown> control = library_.control();
  const auto editor = control.as<_ctlCycEd>();
  EXPECT_EQ(editor->SetXMLStrings(Text(catalogue), Text(macroText)), S_OK) << "before there is a place";
  for (int i = 0; i < 2; ++i) {
    const HWND frame = newFrame();
    Placed site(ControlSite::create(frame, place_, control.get()));
    ASSERT_TRUE(site);
    EXPECT_NE(IsChild(frame, site->controlWindow()), FALSE);
    EXPECT_NE(cycleOf(*site).find(L"WAIT(7,)"), std::wstring::npos);
    site.reset();
    DestroyWindow(frame);
  }
  HWND window = nullptr;
  EXPECT_EQ(control.as<IOleWindow>()->GetWindow(&window), E_FAIL);
}

TEST_F(ContainerTest, ItsAccessKeysAreListedAndPressed) {
  const Placed site = placed();
  EXPECT_EQ(site->editor().SetXMLStrings(Text(catalogue), Text(L"")), S_OK);
  const ComPtr<_ctlCycEd> editor(&site->editor());
  const auto control = editor.as<IOleControl>();
  CONTROLINFO info{};
  EXPECT_EQ(control->GetControlInfo(&info), E_INVALIDARG) << "no size is given";
  info.cb = sizeof info;
  ASSERT_EQ(control->GetControlInfo(&info), S_OK);
  EXPECT_EQ(info.cAccel, 12) << "six keys, small and capital";
  constexpr LPARAM altIsHeld = 1 << 29;
  MSG key{frame_, WM_SYSCHAR, L'd', altIsHeld, 0, {}};
  EXPECT_NE(IsAccelerator(info.hAccel, info.cAccel, &key, nullptr), FALSE);
  EXPECT_TRUE(site->pressAccessKey(key));
  pump();
  EXPECT_EQ(GetFocus(), button(site->controlWindow(), L"&Default"));
  EXPECT_TRUE(site->isActive());
}

TEST_F(ContainerTest, TakesItsAttentionBackCleanly) {
  const Placed site = placed();
  site->activate(nullptr);
  EXPECT_TRUE(site->isActive());
  EXPECT_NE(IsChild(site->controlWindow(), GetFocus()), FALSE);
  const ComPtr<_ctlCycEd> editor(&site->editor());
  EXPECT_EQ(editor.as<IOleInPlaceObject>()->UIDeactivate(), S_OK);
  EXPECT_FALSE(site->isActive());
  EXPECT_NE(IsWindowVisible(site->controlWindow()), FALSE);
  EXPECT_EQ(editor.as<IOleInPlaceObject>()->InPlaceDeactivate(), S_OK);
  EXPECT_EQ(site->controlWindow(), nullptr);
}

TEST_F(ContainerTest, FollowsTheSurroundings) {
  const Placed site = placed();
  FONTDESC description{};
  description.cbSizeofstruct = sizeof description;
  description.lpstrName = const_cast<LPOLESTR>(L"Tahoma");
  description.cySize.int64 = 200000;  // 20 points
  ComPtr<IFontDisp> font;
  ASSERT_EQ(OleCreateFontIndirect(&description, IID_IFontDisp, font.putVoid()), S_OK);
  site->setAmbient(RGB(10, 200, 30), RGB(1, 2, 3), font.get());
  const HWND insert = button(site->controlWindow(), L"In&sert ");
  LOGFONTW shown{};
  GetObjectW(reinterpret_cast<HFONT>(SendMessageW(insert, WM_GETFONT, 0, 0)), sizeof shown, &shown);
  EXPECT_STREQ(shown.lfFaceName, L"Tahoma");
  EXPECT_EQ(shown.lfHeight, -27) << "20 points at 96 dots per inch";
}

TEST_F(ContainerTest, TakesNoInputWhileTheContainerIsDesigned) {
  const Placed site = placed();
  EXPECT_NE(IsWindowEnabled(site->controlWindow()), FALSE);
  site->setDesigned(true);
  EXPECT_EQ(IsWindowEnabled(site->controlWindow()), FALSE);
  site->setDesigned(false);
  EXPECT_NE(IsWindowEnabled(site->controlWindow()), FALSE);
}

TEST_F(ContainerTest, AContainerThatDestroysItsWindowFirstDoesNoHarm) {
  const Placed site = placed();
  EXPECT_EQ(site->editor().SetXMLStrings(Text(catalogue), Text(macroText)), S_OK);
  DestroyWindow(frame_);
  EXPECT_EQ(site->controlWindow(), nullptr);
  EXPECT_NE(cycleOf(*site).find(L"WAIT(7,)"), std::wstring::npos);
}

// A user picks an atom whose definition fails, and the host answers the event by closing the editor for good.
TEST_F(ContainerTest, TheControlMayGoInAnswerToItsEvent) {
  Placed site = placed();
  EXPECT_EQ(site->editor().SetXMLStrings(
                Text(L"<LATESTKAM><ATOMS><ATOM><AtomName>BAD</AtomName><Param></Param></ATOM></ATOMS></LATESTKAM>"),
                Text(L"")),
            S_OK);
  int errors = 0;
  site->onError([&](const EditorError&) {
    ++errors;
    site.reset();
  });
  const HWND atoms = FindWindowExW(site->controlWindow(), nullptr, L"ComboBox", nullptr);
  SetFocus(atoms);
  PostMessageW(atoms, WM_CHAR, L'b', 0);
  pump();
  EXPECT_EQ(errors, 1);
  EXPECT_FALSE(site);
}

// A value beyond its range is told in a message box, in the middle of the host's call. While it is open the container
// opens no dialog of its own; that the host closes the editor meanwhile does no harm.
class MessageTest : public ContainerTest {
 protected:
  MessageTest() {
    current_ = this;
    SetTimer(frame_, timer, 100, [](HWND, UINT, UINT_PTR, DWORD) { current_->lookForMessage(); });
  }
  ~MessageTest() override {
    KillTimer(frame_, timer);
    current_ = nullptr;
  }

  void lookForMessage() {
    const HWND box = FindWindowW(L"#32770", L"cycle editor component - ctlCycEd Control");
    if (box == nullptr) return;
    ++messages_;
    if (whileOpen_) std::exchange(whileOpen_, nullptr)();
    PostMessageW(box, WM_COMMAND, IDOK, 0);
  }

  static constexpr UINT_PTR timer = 1;
  static inline MessageTest* current_ = nullptr;
  int messages_ = 0;
  std::function<void()> whileOpen_;
};

TEST_F(MessageTest, TheContainerWaitsWhileAMessageIsOpen) {
  const Placed site = placed();
  std::vector<bool> enabled;
  site->onEnableModeless([&](bool enable) { enabled.push_back(enable); });
  EXPECT_EQ(site->editor().SetXMLStrings(Text(catalogue), Text(L"[PMA]\r\n//\r\nWAIT(999)\r\n")), S_OK);
  EXPECT_GE(messages_, 1);
  EXPECT_EQ(enabled, std::vector<bool>({false, true}));
}

TEST_F(MessageTest, TheHostMayCloseTheEditorWhileAMessageIsOpen) {
  Placed site = placed();
  whileOpen_ = [&] { site.reset(); };
  const ComPtr<_ctlCycEd> editor(&site->editor());
  EXPECT_EQ(editor->SetXMLStrings(Text(catalogue), Text(L"[PMA]\r\n//\r\nWAIT(999)\r\n")), S_OK);
  EXPECT_GE(messages_, 1);
  EXPECT_FALSE(site);
}

// Texts that are only stored, and questions, leave alone what an operator is typing.
TEST_F(MessageTest, SettingsLeaveAnOpenEditAlone) {
  const Placed site = placed();
  EXPECT_EQ(site->editor().SetXMLStrings(Text(catalogue), Text(L"[PMA]\r\n//\r\nWAIT(7)\r\n")), S_OK);
  const HWND grid = FindWindowExW(site->controlWindow(), nullptr, L"mavCycEd.ValueList", nullptr);
  SetFocus(grid);
  for (const wchar_t digit : {L'9', L'9', L'9'}) {
    PostMessageW(GetFocus(), WM_CHAR, digit, 0);
    pump();
  }
  const HWND line = FindWindowExW(grid, nullptr, L"Edit", nullptr);
  ASSERT_NE(line, nullptr);
  EXPECT_EQ(site->editor().SetConfigXML(Text(L"")), S_OK);
  EXPECT_EQ(site->editor().put_Ignore_Hidden(VARIANT_TRUE), S_OK);
  EXPECT_EQ(site->editor().put_ResetCycle(Text(L"")), S_OK);
  VARIANT_BOOL changed = VARIANT_FALSE;
  EXPECT_EQ(site->editor().get_CycleChanged(&changed), S_OK);
  EXPECT_EQ(FindWindowExW(grid, nullptr, L"Edit", nullptr), line) << "it is still open";
  EXPECT_EQ(messages_, 0);
  cycleOf(*site);
  EXPECT_EQ(FindWindowExW(grid, nullptr, L"Edit", nullptr), nullptr);
  EXPECT_EQ(messages_, 1) << "beyond its range";
}

// Rounds of a user's work, with a look at what the system keeps for the process.
TEST_F(ContainerTest, AHundredRoundsLeaveNothing) {
  const auto round = [&] {
    const Placed site = placed();
    site->editor().SetXMLStrings(Text(catalogue), Text(macroText));
    site->activate(nullptr);
    const HWND window = site->controlWindow();
    SendMessageW(button(window, L"In&sert "), BM_CLICK, 0, 0);
    const HWND description = FindWindowExW(window, nullptr, L"Edit", nullptr);
    SetFocus(description);
    PostMessageW(description, WM_CHAR, L'x', 0);
    pump();
    EXPECT_FALSE(cycleOf(*site).empty());
  };
  const auto handles = [](DWORD kind) { return GetGuiResources(GetCurrentProcess(), kind); };
  for (int i = 0; i < 10; ++i) round();
  pump();
  const DWORD gdi = handles(GR_GDIOBJECTS);
  const DWORD user = handles(GR_USEROBJECTS);
  for (int i = 0; i < 100; ++i) round();
  pump();
  EXPECT_LE(handles(GR_GDIOBJECTS), gdi);
  EXPECT_LE(handles(GR_USEROBJECTS), user);
}

}  // namespace
}  // namespace mavCycEd::test
