#include "win32/Win32TextBox.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <utility>

#include "kit/CaretPlace.h"
#include "kit/Notify.h"
#include "text/LineEnds.h"
#include "win32/Text.h"

namespace mavCycEd::win32 {
namespace {

constexpr WPARAM controlA = 1;  // as the character that Ctrl+A types

/// What the box tells itself when the message at hand has been dealt with.
enum Posted : int { Changed, MaybeLeft };

NativeWindow::Kind kindOf(Win32TextBox::Lines lines, bool wraps) {
  DWORD style = WS_TABSTOP | ES_AUTOHSCROLL;
  if (lines == Win32TextBox::Lines::Several) {
    style = WS_TABSTOP | ES_MULTILINE | ES_WANTRETURN | ES_AUTOVSCROLL | WS_VSCROLL;
    if (!wraps) style |= ES_AUTOHSCROLL | WS_HSCROLL;
  }
  return {L"EDIT", style, WS_EX_CLIENTEDGE};
}

// The system's own undo, however it is asked for: its key, its menu, its messages.
bool isUndo(UINT message, WPARAM wParam) {
  constexpr WPARAM controlZ = 26;  // as the character that Ctrl+Z types
  return message == WM_UNDO || message == EM_UNDO || message == EM_CANUNDO ||
         (message == WM_CHAR && wParam == controlZ);
}

// Wrapping such a line may take the system the square of its length.
bool hasEndlessLine(std::string_view text) {
  constexpr std::size_t longestWrapped = 10'000;
  std::size_t begin = 0;
  while (begin + longestWrapped < text.size()) {
    const std::size_t end = std::min(text.find('\n', begin), text.size());
    if (end - begin > longestWrapped) return true;
    begin = end + 1;
  }
  return false;
}

}  // namespace

Win32TextBox::Win32TextBox(Lines lines, HWND parent, Win32Frame* frame)
    : NativeWindow(parent, frame, kindOf(lines, lines == Lines::Several)),
      lines_(lines),
      wraps_(lines == Lines::Several) {
  takeLongTexts();
}

void Win32TextBox::takeLongTexts() const {
  send(EM_SETLIMITTEXT, 0);  // as much as there is memory for
}

void Win32TextBox::wrapFor(std::string_view text) {
  const bool wraps = lines_ == Lines::Several && !hasEndlessLine(text);
  if (wraps == wraps_) return;
  wraps_ = wraps;
  remake(kindOf(lines_, wraps));
  takeLongTexts();
}

void Win32TextBox::setText(std::string_view text) {
  std::string next = lines_ == Lines::One ? std::string(text) : text::toCrLf(text);
  if (lines_ == Lines::Several && next == text_) return;
  const std::size_t caret = lines_ == Lines::One ? 0 : kit::caretBehindChange(text_, next);
  text_ = std::move(next);
  settingText_ = true;
  wrapFor(text_);
  NativeWindow::setText(toWide(text_));
  settingText_ = false;
  if (lines_ == Lines::Several) putCaretBehind(std::string_view(text_).substr(0, caret));
}

void Win32TextBox::putCaretBehind(std::string_view text) const {
  const std::size_t place = toWide(text).size();
  send(EM_SETSEL, place, static_cast<LPARAM>(place));
  send(EM_SCROLLCARET);
}

void Win32TextBox::focusAndSelectAll() {
  if (handle() == nullptr) return;
  SetFocus(handle());
  send(EM_SETSEL, 0, -1);
}

std::optional<LRESULT> Win32TextBox::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  if (lines_ == Lines::Several && isUndo(message, wParam)) return 0;
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
  if (notification == EN_KILLFOCUS) post(MaybeLeft);
  if (notification != EN_CHANGE || settingText_) return;
  const std::string shown = fromWide(textOf(handle()));
  text_ = lines_ == Lines::One ? text::onOneLine(shown) : text::typedToCrLf(shown);
  if (lines_ == Lines::Several) send(EM_EMPTYUNDOBUFFER);
  if (lines_ == Lines::One && text_ != shown) {
    settingText_ = true;
    NativeWindow::setText(toWide(text_));
    settingText_ = false;
    send(EM_SETSEL, text_.size(), static_cast<LPARAM>(text_.size()));
  }
  post(Changed);
}

void Win32TextBox::onPosted(int what) {
  if (what == Changed) {
    kit::tell(events_.Change);
  } else if (hasLostFocusToControl(handle())) {
    kit::tell(events_.LostFocus);
  }
}

}  // namespace mavCycEd::win32
