#include "win32/Win32PopupMenu.h"

#include <cstddef>
#include <string>

#include "kit/Notify.h"
#include "win32/MenuList.h"
#include "win32/Text.h"

namespace mavCycEd::win32 {
namespace {

constexpr UINT openNow = WM_APP;

}  // namespace

Win32PopupMenu::Win32PopupMenu(const kit::CommandGate& gate, std::function<HWND()> owner)
    : gate_(gate), owner_(std::move(owner)) {}

Win32PopupMenu::~Win32PopupMenu() { closeOpen(); }

void Win32PopupMenu::popUp() {
  if (waiting_ || visibleIndexes().empty()) return;
  waiting_ = PostMessageW(handle(), openNow, 0, 0) != FALSE;
}

HWND Win32PopupMenu::list() const { return openList_ != nullptr ? openList_->list() : nullptr; }

LRESULT Win32PopupMenu::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  if (message != openNow) return MessageWindow::onMessage(message, wParam, lParam);
  waiting_ = false;
  open();
  return 0;
}

// An open menu does not stand for items that have changed behind it.
void Win32PopupMenu::itemsChanged() {
  changed_ = true;
  closeOpen();
}

void Win32PopupMenu::closeOpen() {
  if (tracking_) EndMenu();
  if (openList_ != nullptr) openList_->close();
}

void Win32PopupMenu::open() {
  const HWND owner = owner_();
  const std::vector<int> indexes = visibleIndexes();
  if (owner == nullptr || indexes.empty()) return;
  POINT place{};
  GetCursorPos(&place);
  if (place_) place = place_();
  changed_ = false;
  const kit::Lifeline::Watch alive = lifeline_.watch();
  const std::optional<int> chosen = hasMany() ? chooseFromList(owner, place) : chooseFromMenu(owner, place);
  if (!alive || !chosen || changed_) return;
  gate_.pass();
  if (alive && !changed_) kit::tell(events().Click, indexes[static_cast<std::size_t>(*chosen)]);
}

std::optional<int> Win32PopupMenu::chooseFromMenu(HWND owner, POINT place) {
  const HMENU menu = CreatePopupMenu();
  UINT_PTR command = 0;  // 0 stands for "nothing chosen"
  for (const std::string& caption : visibleCaptions()) {
    AppendMenuW(menu, MF_STRING, ++command, withoutAccessKey(caption).c_str());
  }
  const kit::Lifeline::Watch alive = lifeline_.watch();
  tracking_ = true;
  const int chosen =
      TrackPopupMenuEx(menu, TPM_RETURNCMD | TPM_NONOTIFY | TPM_RIGHTBUTTON, place.x, place.y, owner, nullptr);
  DestroyMenu(menu);
  if (alive) tracking_ = false;
  return chosen == 0 ? std::nullopt : std::optional<int>(chosen - 1);
}

std::optional<int> Win32PopupMenu::chooseFromList(HWND owner, POINT place) {
  MenuList list(owner, visibleCaptions());
  const kit::Lifeline::Watch alive = lifeline_.watch();
  openList_ = &list;
  const std::optional<int> chosen = list.choose(place);
  if (alive) openList_ = nullptr;
  return chosen;
}

}  // namespace mavCycEd::win32
