#include "win32/MenuList.h"

#include <algorithm>
#include <utility>

#include "win32/Dpi.h"
#include "win32/Fonts.h"
#include "win32/Text.h"

namespace mavCycEd::win32 {

MenuList::MenuList(HWND owner, std::vector<std::string> captions)
    : PanelWindow(shownRootOf(owner), WS_POPUP | WS_CLIPCHILDREN, WS_EX_TOOLWINDOW) {
  const int dpi = dpiOf(owner);
  font_ = makeFont(systemFont(dpi));
  list_.setScreenFont(font_, dpi);
  list_.setAccessibleName(L"Offered values");
  list_.setKeys({}, [this] { take(); });
  if (!captions.empty()) longest_ = *std::ranges::max_element(captions, {}, &std::string::size);
  list_.assign(std::move(captions));
}

// As much of the list as is quickly read, where the screen has room for it.
void MenuList::fit(POINT place) {
  constexpr int rows = 20;
  constexpr int mostCharacters = 60;
  const TextMeasure measure(handle(), font_.get());
  const auto extent = static_cast<LONG>(SendMessageW(list(), LB_GETHORIZONTALEXTENT, 0, 0));
  const LONG longest = std::max<LONG>(measure.width(toWideLine(longest_)), extent);
  const LONG text = std::min<LONG>(longest, mostCharacters * measure.averageWidth());
  const LONG width = text + GetSystemMetrics(SM_CXVSCROLL) + 2 * GetSystemMetrics(SM_CXEDGE) + scaled(handle(), 8);
  const auto rowHeight = static_cast<LONG>(SendMessageW(list(), LB_GETITEMHEIGHT, 0, 0));
  const LONG below = longest > text ? GetSystemMetrics(SM_CYHSCROLL) : 0;
  const LONG height = std::min(rows, list_.itemCount()) * rowHeight + below + 2 * GetSystemMetrics(SM_CYEDGE);
  MONITORINFO monitor{};
  monitor.cbSize = sizeof monitor;
  GetMonitorInfoW(MonitorFromPoint(place, MONITOR_DEFAULTTONEAREST), &monitor);
  const RECT& room = monitor.rcWork;
  const LONG x = std::clamp(place.x, room.left, std::max(room.right - width, room.left));
  const LONG y = std::clamp(place.y, room.top, std::max(room.bottom - height, room.top));
  PanelWindow::place({x, y, x + width, y + height});
  list_.place({0, 0, width, height});
}

std::optional<int> MenuList::choose(POINT place) {
  if (handle() == nullptr) return std::nullopt;
  const HWND before = GetFocus();
  fit(place);
  list_.setIndex(0);
  open_ = true;
  ShowWindow(handle(), SW_SHOW);
  SetFocus(list());
  loop();
  const bool hasFocus = list() != nullptr && GetFocus() == list();
  if (handle() != nullptr) ShowWindow(handle(), SW_HIDE);
  if (hasFocus && before != nullptr && IsWindow(before) != FALSE) SetFocus(before);
  return chosen_;
}

// Keys go to the list alone: what the host would do with them is not asked.
void MenuList::loop() {
  MSG message{};
  while (open_ && handle() != nullptr) {
    const BOOL got = GetMessageW(&message, nullptr, 0, 0);
    if (got == 0) {
      PostQuitMessage(static_cast<int>(message.wParam));
      return;
    }
    if (got < 0) return;
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
}

void MenuList::close() {
  open_ = false;
  if (handle() != nullptr) PostMessageW(handle(), WM_NULL, 0, 0);  // the loop looks again
}

void MenuList::take() {
  if (!open_ || list_.index() < 0) return;
  chosen_ = list_.index();
  close();
}

std::optional<LRESULT> MenuList::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_ACTIVATE:
      if (LOWORD(wParam) == WA_INACTIVE) {
        close();
      } else if (const HWND owner = GetWindow(handle(), GW_OWNER)) {
        SendMessageW(owner, WM_NCACTIVATE, TRUE, 0);  // the host's window looks as it does under a menu
      }
      break;
    case WM_CLOSE:
    case WM_CANCELMODE: close(); return 0;
    default: break;
  }
  return PanelWindow::onMessage(message, wParam, lParam);
}

std::optional<LRESULT> MenuList::Entries::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  const bool closes = (message == WM_KEYDOWN && wParam == VK_ESCAPE) || (message == WM_SYSKEYDOWN && wParam == VK_MENU);
  if (closes) {
    menu_.close();
    return 0;
  }
  if (message == WM_LBUTTONDOWN) pressed_ = true;
  const std::optional<LRESULT> answer = Win32ItemListBox::onMessage(message, wParam, lParam);
  if (message == WM_LBUTTONUP && std::exchange(pressed_, false)) menu_.take();
  return answer;
}

}  // namespace mavCycEd::win32
