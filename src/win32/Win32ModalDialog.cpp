#include "win32/Win32ModalDialog.h"

#include "kit/Notify.h"
#include "win32/Text.h"

namespace mavCycEd::win32 {

Win32ModalDialog::Win32ModalDialog(HWND owner) : window_(owner) {
  window_.setClosing([this] { kit::tell(events_.Close); });
}

void Win32ModalDialog::setCaption(std::string_view caption) {
  caption_ = caption;
  if (window_.handle() != nullptr) SetWindowTextW(window_.handle(), toWide(caption).c_str());
}

platform::WindowHandle Win32ModalDialog::hWnd() const {
  return isLoaded() ? reinterpret_cast<platform::WindowHandle>(window_.handle()) : 0;
}

}  // namespace mavCycEd::win32
