#pragma once

#include <functional>
#include <string>
#include <utility>

#include "platform/ModalDialog.h"
#include "win32/DialogWindow.h"

namespace mavCycEd::win32 {

/// A modal dialog.
class Win32ModalDialog : public platform::ModalDialog {
 public:
  explicit Win32ModalDialog(HWND owner);

  DialogWindow& window() { return window_; }
  const DialogWindow& window() const { return window_; }
  /// The control that has the focus when the dialog opens.
  void setFirst(std::function<HWND()> first) { first_ = std::move(first); }

  void setEvents(platform::ModalDialogEvents events) override { events_ = std::move(events); }
  std::string caption() const override { return caption_; }
  void setCaption(std::string_view caption) override;
  void showModal() override { window_.run(first_ ? first_() : nullptr); }
  void close() override { window_.close(); }
  bool isLoaded() const override { return window_.isOpen() && window_.handle() != nullptr; }
  platform::WindowHandle hWnd() const override;

 private:
  DialogWindow window_;
  std::function<HWND()> first_;
  platform::ModalDialogEvents events_;
  std::string caption_;
};

}  // namespace mavCycEd::win32
