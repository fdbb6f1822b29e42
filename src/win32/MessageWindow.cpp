#include "win32/MessageWindow.h"

#include "win32/Module.h"

namespace mavCycEd::win32 {
namespace {

constexpr UINT_PTR subclassId = 1;

}  // namespace

MessageWindow::MessageWindow()
    : handle_(CreateWindowExW(0, L"STATIC", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, ownModule(), nullptr)) {
  if (handle_ != nullptr) SetWindowSubclass(handle_, procedure, subclassId, reinterpret_cast<DWORD_PTR>(this));
}

MessageWindow::~MessageWindow() {
  if (handle_ == nullptr) return;
  RemoveWindowSubclass(handle_, procedure, subclassId);
  DestroyWindow(handle_);
}

LRESULT MessageWindow::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  return DefSubclassProc(handle_, message, wParam, lParam);
}

// No exception gets back into the system; see NativeWindow.
LRESULT CALLBACK MessageWindow::procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                                          DWORD_PTR self) {
  auto& object = *reinterpret_cast<MessageWindow*>(self);
  if (message == WM_NCDESTROY) {
    object.handle_ = nullptr;
    RemoveWindowSubclass(window, procedure, subclassId);
    return DefSubclassProc(window, message, wParam, lParam);
  }
  try {
    return object.onMessage(message, wParam, lParam);
  } catch (...) {
    return 0;
  }
}

}  // namespace mavCycEd::win32
