#include "win32/Win32PopupMenu.h"

#include "platform/RunTimeError.h"
#include "win32/Text.h"

namespace mavCycEd::win32 {
namespace {

constexpr UINT openNow = WM_APP;

}  // namespace

Win32PopupMenu::Win32PopupMenu(const CommandGate& gate, std::function<HWND()> owner)
    : gate_(gate), owner_(std::move(owner)) {}

const Win32PopupMenu::Item& Win32PopupMenu::item(int index) const {
  const auto found = items_.find(index);
  if (found == items_.end()) throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
  return found->second;
}

void Win32PopupMenu::createItem(int index) {
  if (index < 0 || !items_.emplace(index, Item{}).second) throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
}

void Win32PopupMenu::removeItem(int index) {
  if (index == 0) throw RunTimeError(ErrorNumber::InvalidProcedureCall);
  if (items_.erase(index) == 0) throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
}

void Win32PopupMenu::setItemCaption(int index, std::string_view caption) {
  item(index);
  items_[index].caption = caption;
}

void Win32PopupMenu::setItemVisible(int index, bool visible) {
  item(index);
  items_[index].visible = visible;
}

std::vector<std::string> Win32PopupMenu::visibleCaptions() const {
  std::vector<std::string> captions;
  for (const auto& [index, item] : items_) {
    if (item.visible) captions.push_back(item.caption);
  }
  return captions;
}

void Win32PopupMenu::popUp() {
  if (waiting_ || visibleCaptions().empty()) return;
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
  for (const auto& [index, item] : items_) {
    // A command of 0 stands for "nothing chosen".
    const auto command = static_cast<UINT_PTR>(index) + 1;
    if (item.visible) AppendMenuW(menu, MF_STRING, command, withoutAccessKey(item.caption).c_str());
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
  if (alive) tell(events_.Click, chosen - 1);
}

}  // namespace mavCycEd::win32
