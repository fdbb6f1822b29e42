#include "win32/Win32Frame.h"

#include "win32/Text.h"

namespace mavCycEd::win32 {

Win32Frame::Win32Frame(HWND parent, Win32Frame* frame)
    : NativeWindow(parent, frame, {L"BUTTON", BS_GROUPBOX | WS_GROUP}) {}

void Win32Frame::setCaption(std::string_view caption) {
  caption_ = caption;
  setText(withoutAccessKey(caption));
}

void Win32Frame::applyState() {
  NativeWindow::applyState();
  for (NativeWindow* const window : windows_) window->applyState();
}

}  // namespace mavCycEd::win32
