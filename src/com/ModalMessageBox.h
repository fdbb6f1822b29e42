#pragma once

#include <functional>
#include <utility>

#include "win32/Services.h"

namespace mavCycEd::com {

/// The system's message boxes, with word to the control before one opens and after it has closed.
class ModalMessageBox : public platform::MessageBox {
 public:
  ModalMessageBox(std::function<HWND()> ownWindow, std::function<void(bool open)> modal)
      : box_(std::move(ownWindow)), modal_(std::move(modal)) {}

  int messageBox(platform::WindowHandle owner, std::string_view message, std::string_view caption, int flags) override {
    modal_(true);
    const int button = box_.messageBox(owner, message, caption, flags);
    modal_(false);
    return button;
  }

 private:
  win32::Win32MessageBox box_;
  std::function<void(bool)> modal_;
};

}  // namespace mavCycEd::com
