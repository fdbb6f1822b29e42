#include "win32/ToolTip.h"

#include "win32/Dpi.h"
#include "win32/Module.h"
#include "win32/Text.h"

namespace mavCycEd::win32 {

// The tip belongs to the window and goes with it.
ToolTip::ToolTip(HWND window)
    : window_(window),
      tip_(CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_NOPREFIX | TTS_ALWAYSTIP, 0, 0, 0, 0,
                           window, nullptr, ownModule(), nullptr)) {
  TTTOOLINFOW tool = description();
  SendMessageW(tip_, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
  constexpr int widest = 400;
  SendMessageW(tip_, TTM_SETMAXTIPWIDTH, 0, scaled(window, widest));
}

ToolTip::~ToolTip() {
  if (IsWindow(tip_) != FALSE) DestroyWindow(tip_);
}

TTTOOLINFOW ToolTip::description() const {
  TTTOOLINFOW tool{};
  tool.cbSize = sizeof tool;
  tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
  tool.hwnd = window_;
  tool.uId = reinterpret_cast<UINT_PTR>(window_);
  tool.lpszText = const_cast<wchar_t*>(text_.c_str());
  return tool;
}

void ToolTip::setText(const std::string& text) {
  std::wstring shown = toWideLine(text);
  if (shown == text_ || IsWindow(tip_) == FALSE) return;
  text_ = std::move(shown);
  TTTOOLINFOW tool = description();
  SendMessageW(tip_, TTM_UPDATETIPTEXTW, 0, reinterpret_cast<LPARAM>(&tool));
}

}  // namespace mavCycEd::win32
