#include "com/ControlWindow.h"

namespace mavCycEd::com {
namespace {

// NativeWindow has a number of its own.
constexpr UINT_PTR subclassId = 2;

// What of the whole window may be seen, in the window's own coordinates.
void clipTo(HWND window, const RECT& position, const RECT& clip) {
  RECT seen{};
  IntersectRect(&seen, &position, &clip);
  if (EqualRect(&seen, &position) != FALSE) {
    SetWindowRgn(window, nullptr, TRUE);
    return;
  }
  OffsetRect(&seen, -position.left, -position.top);
  SetWindowRgn(window, CreateRectRgnIndirect(&seen), TRUE);  // the region is the system's now
}

}  // namespace

ControlWindow::ControlWindow(win32::EditorScreen& screen) : screen_(screen) {
  SetWindowSubclass(handle(), procedure, subclassId, reinterpret_cast<DWORD_PTR>(this));
}

ControlWindow::~ControlWindow() {
  if (handle() != nullptr) RemoveWindowSubclass(handle(), procedure, subclassId);
}

void ControlWindow::show(HWND parent, const RECT& position, const RECT& clip) {
  if (handle() == nullptr) return;
  screen_.setParent(parent);
  move(position, clip);
  ShowWindow(handle(), SW_SHOWNA);
}

void ControlWindow::move(const RECT& position, const RECT& clip) {
  if (handle() == nullptr) return;
  clipTo(handle(), position, clip);
  screen_.setPlace(position);
}

void ControlWindow::hide() {
  if (handle() == nullptr) return;
  if (hasFocus()) {
    lastFocus_ = GetFocus();
    SetFocus(GetParent(handle()));
  }
  ShowWindow(handle(), SW_HIDE);
  screen_.setParent(nullptr);
}

bool ControlWindow::hasFocus() const {
  const HWND focus = GetFocus();
  return handle() != nullptr && focus != nullptr && (focus == handle() || IsChild(handle(), focus) != FALSE);
}

void ControlWindow::focus() {
  if (handle() == nullptr || hasFocus()) return;
  if (lastFocus_ != nullptr && IsChild(handle(), lastFocus_) != FALSE && IsWindowVisible(lastFocus_) != FALSE &&
      IsWindowEnabled(lastFocus_) != FALSE) {
    SetFocus(lastFocus_);
  } else {
    screen_.focusFirst();
  }
}

// No exception gets back into the system. In answer to what it tells, the control and its window may be gone.
LRESULT CALLBACK ControlWindow::procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                                          DWORD_PTR self) {
  if (message != WM_MOUSEACTIVATE) return DefSubclassProc(window, message, wParam, lParam);
  try {
    const auto activated = reinterpret_cast<ControlWindow*>(self)->mouseActivated_;
    if (activated) activated();
  } catch (...) {
    return MA_ACTIVATE;
  }
  return MA_ACTIVATE;
}

}  // namespace mavCycEd::com
