#include "win32/Win32PopupMenu.h"

#include "win32/Text.h"

namespace mavCycEd::win32 {
namespace {

constexpr UINT openNow = WM_APP;

}  // namespace

Win32PopupMenu::Win32PopupMenu(const CommandGate& gate, std::function<HWND()> owner)
    : gate_(gate), owner_(std::move(owner)) {}

void Win32PopupMenu::popUp() {
  if (waiting_ || visibleIndexes().empty()) return;
  waiting_ = PostMessageW(handle(), openNow, 0, 0) != FALSE;
}

LRESULT Win32PopupMenu::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  if (message != openNow) return MessageWindow::onMessage(message, wParam, lParam);
  waiting_ = false;
  open();
  return 0;
}

void Win32PopupMenu::open() {
  const HWND owner = owner_();
  if (owner == nullptr) return;
  const HMENU menu = CreatePopupMenu();
  for (const int index : visibleIndexes()) {
    // A command of 0 stands for "nothing chosen".
    AppendMenuW(menu, MF_STRING, static_cast<UINT_PTR>(index) + 1, withoutAccessKey(itemCaption(index)).c_str());
  }
  POINT place{};
  GetCursorPos(&place);
  if (place_) place = place_();
  const Lifeline::Watch alive = lifeline_.watch();
  const int chosen =
      TrackPopupMenuEx(menu, TPM_RETURNCMD | TPM_NONOTIFY | TPM_RIGHTBUTTON, place.x, place.y, owner, nullptr);
  DestroyMenu(menu);
  if (!alive || chosen == 0) return;
  gate_.pass();
  if (alive) tell(events().Click, chosen - 1);
}

}  // namespace mavCycEd::win32
