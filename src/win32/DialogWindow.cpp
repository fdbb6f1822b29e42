#include "win32/DialogWindow.h"

#include <algorithm>

#include "kit/Lifeline.h"
#include "kit/Notify.h"
#include "win32/Module.h"

namespace mavCycEd::win32 {
namespace {

constexpr int defaultButtonId = IDOK;

}  // namespace

DialogWindow::DialogWindow(HWND owner)
    : PanelWindow(shownRootOf(owner), WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_THICKFRAME | WS_CLIPSIBLINGS,
                  WS_EX_DLGMODALFRAME),
      owner_(shownRootOf(owner)) {}

DialogWindow::~DialogWindow() { open_ = false; }

void DialogWindow::setDefaultButton(HWND button) {
  SetWindowLongPtrW(button, GWLP_ID, defaultButtonId);
  SendMessageW(button, BM_SETSTYLE, BS_DEFPUSHBUTTON, TRUE);
}

// In the middle of the owner, as far as the screen goes.
void DialogWindow::center() const {
  RECT own{};
  GetWindowRect(handle(), &own);
  MONITORINFO monitor{};
  monitor.cbSize = sizeof monitor;
  GetMonitorInfoW(MonitorFromWindow(owner_ != nullptr ? owner_ : handle(), MONITOR_DEFAULTTONEAREST), &monitor);
  RECT around = monitor.rcWork;
  if (owner_ != nullptr && IsIconic(owner_) == FALSE) GetWindowRect(owner_, &around);
  const LONG width = own.right - own.left;
  const LONG height = own.bottom - own.top;
  const LONG rightmost = std::max(monitor.rcWork.right - width, monitor.rcWork.left);
  const LONG lowest = std::max(monitor.rcWork.bottom - height, monitor.rcWork.top);
  const LONG x = std::clamp((around.left + around.right - width) / 2, monitor.rcWork.left, rightmost);
  const LONG y = std::clamp((around.top + around.bottom - height) / 2, monitor.rcWork.top, lowest);
  SetWindowPos(handle(), nullptr, x, y, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void DialogWindow::run(HWND first) {
  if (handle() == nullptr) return;
  const ThemedScope themed;
  const HWND before = GetFocus();
  const auto modality = modality_;
  kit::tell(modality, true);
  const bool disables = owner_ != nullptr && IsWindowEnabled(owner_) != FALSE;
  if (disables) EnableWindow(owner_, FALSE);
  open_ = true;
  layOut();
  center();
  ShowWindow(handle(), SW_SHOW);
  SetFocus(first != nullptr ? first : handle());

  const HWND owner = owner_;
  const kit::Lifeline::Watch alive = lifeline_.watch();
  loop();
  if (disables && IsWindow(owner) != FALSE) EnableWindow(owner, TRUE);
  if (alive) {
    open_ = false;
    if (handle() != nullptr) ShowWindow(handle(), SW_HIDE);
  }
  if (owner != nullptr && IsWindow(owner) != FALSE) SetActiveWindow(owner);
  if (before != nullptr && IsWindow(before) != FALSE) SetFocus(before);
  kit::tell(modality, false);
}

// Until the window closes or goes, or the whole program ends.
void DialogWindow::loop() {
  const kit::Lifeline::Watch alive = lifeline_.watch();
  MSG message{};
  while (alive && open_ && handle() != nullptr) {
    const BOOL got = GetMessageW(&message, nullptr, 0, 0);
    if (got == 0) {
      PostQuitMessage(static_cast<int>(message.wParam));
      return;
    }
    if (got < 0) return;
    if (IsDialogMessageW(handle(), &message) != FALSE) continue;
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
}

void DialogWindow::close() {
  open_ = false;
  if (handle() != nullptr) PostMessageW(handle(), WM_NULL, 0, 0);  // the loop looks again
}

void DialogWindow::closeByUser() {
  const kit::Lifeline::Watch alive = lifeline_.watch();
  kit::tell(closing_);
  if (alive) close();
}

std::optional<LRESULT> DialogWindow::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_CLOSE: closeByUser(); return 0;
    case WM_COMMAND:
      if (LOWORD(wParam) == IDCANCEL && lParam == 0) {
        closeByUser();
        return 0;
      }
      break;
    case DM_GETDEFID: return MAKELRESULT(defaultButtonId, DC_HASDEFID);
    case WM_DPICHANGED: {
      const auto& wanted = *reinterpret_cast<const RECT*>(lParam);
      place(wanted);
      return PanelWindow::onMessage(WM_DPICHANGED_AFTERPARENT, 0, 0);
    }
    default: break;
  }
  return PanelWindow::onMessage(message, wParam, lParam);
}

}  // namespace mavCycEd::win32
