#include "win32/Win32TextBox.h"

#include <string>

#include "text/LineEnds.h"
#include "win32/Text.h"

namespace mavCycEd::win32 {
namespace {

constexpr WPARAM controlA = 1;  // as the character that Ctrl+A types

}  // namespace

Win32TextBox::Win32TextBox(Lines lines, HWND parent, Win32Frame* frame)
    : NativeWindow(
          parent, frame,
          {L"EDIT",
           WS_TABSTOP | (lines == Lines::One ? DWORD{ES_AUTOHSCROLL}
                                             : DWORD{ES_MULTILINE | ES_WANTRETURN | ES_AUTOVSCROLL | WS_VSCROLL}),
           WS_EX_CLIENTEDGE}),
      lines_(lines) {
  send(EM_SETLIMITTEXT, 0);  // as much as there is memory for
}

void Win32TextBox::setText(std::string_view text) {
  text_ = lines_ == Lines::One ? std::string(text) : text::toCrLf(text);
  settingText_ = true;
  NativeWindow::setText(toWide(text_));
  settingText_ = false;
}

void Win32TextBox::focusAndSelectAll() {
  if (handle() == nullptr) return;
  SetFocus(handle());
  send(EM_SETSEL, 0, -1);
}

std::optional<LRESULT> Win32TextBox::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_CHAR && wParam == controlA) {
    send(EM_SETSEL, 0, -1);
    return 0;
  }
  if (message == WM_GETDLGCODE && lines_ == Lines::Several) {
    // Tab goes on to the next control, Esc closes what a dialog around us closes with it; Enter is a line end.
    const auto* const asked = reinterpret_cast<const MSG*>(lParam);
    const bool isEnter = asked != nullptr && asked->wParam == VK_RETURN;
    const LRESULT all = callSystem(message, wParam, lParam);
    return (all & ~(DLGC_WANTALLKEYS | DLGC_WANTTAB)) | (isEnter ? DLGC_WANTMESSAGE : 0);
  }
  return std::nullopt;
}

void Win32TextBox::onCommand(int notification) {
  if (notification != EN_CHANGE || settingText_) return;
  const std::string shown = fromWide(textOf(handle()));
  text_ = lines_ == Lines::One ? text::onOneLine(shown) : text::toCrLf(shown);
  if (lines_ == Lines::One && text_ != shown) {
    settingText_ = true;
    NativeWindow::setText(toWide(text_));
    settingText_ = false;
    send(EM_SETSEL, text_.size(), static_cast<LPARAM>(text_.size()));
  }
  post(0);
}

void Win32TextBox::onPosted(int) { tell(events_.Change); }

}  // namespace mavCycEd::win32
