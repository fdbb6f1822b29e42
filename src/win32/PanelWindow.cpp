#include "win32/PanelWindow.h"

#include "win32/WindowClass.h"

namespace mavCycEd::win32 {

PanelWindow::PanelWindow(HWND parent, DWORD style, DWORD extendedStyle)
    : NativeWindow(parent, nullptr,
                   {ownWindowClass(L"mavCycEd.Panel", 0), style, WS_EX_CONTROLPARENT | extendedStyle}) {}

void PanelWindow::layOut() {
  if (handle() != nullptr && layOut_) layOut_();
}

void PanelWindow::setColors(COLORREF background, COLORREF text) {
  hasColors_ = true;
  background_ = background;
  text_ = text;
  brush_ = {CreateSolidBrush(background), DeleteObject};
  if (handle() != nullptr) RedrawWindow(handle(), nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

HBRUSH PanelWindow::brush() const { return hasColors_ ? brush_.get() : GetSysColorBrush(COLOR_BTNFACE); }

LRESULT PanelWindow::colorOf(HDC context) const {
  SetBkColor(context, hasColors_ ? background_ : GetSysColor(COLOR_BTNFACE));
  SetTextColor(context, hasColors_ ? text_ : GetSysColor(COLOR_BTNTEXT));
  return reinterpret_cast<LRESULT>(brush());
}

std::optional<LRESULT> PanelWindow::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  LRESULT result = 0;
  if (reflect(message, wParam, lParam, result)) return result;
  switch (message) {
    case WM_SIZE: layOut(); return 0;
    case WM_ERASEBKGND: {
      RECT client{};
      GetClientRect(handle(), &client);
      FillRect(reinterpret_cast<HDC>(wParam), &client, brush());
      return 1;
    }
    case WM_CTLCOLORLISTBOX:
      if (IsWindowEnabled(reinterpret_cast<HWND>(lParam)) == FALSE) return colorOf(reinterpret_cast<HDC>(wParam));
      return std::nullopt;
    case WM_CTLCOLORSTATIC:
    case WM_CTLCOLORBTN: return colorOf(reinterpret_cast<HDC>(wParam));
    case WM_DPICHANGED_AFTERPARENT:
    case WM_SETTINGCHANGE:
      if (scalingChanged_) scalingChanged_();
      return 0;
    case historyMessage: {
      const auto history = history_;  // the window may go meanwhile
      if (history) history(static_cast<HistoryStep>(wParam));
      return 0;
    }
    case WM_HELP: {
      if (!help_) return std::nullopt;
      const auto help = help_;  // the window may go meanwhile
      help(handle());
      return TRUE;
    }
    default: return std::nullopt;
  }
}

}  // namespace mavCycEd::win32
