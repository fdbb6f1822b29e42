#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <utility>

#include "kit/Notify.h"
#include "platform/ModalDialog.h"

namespace mavCycEd::memory {

/// A modal dialog without a screen. Showing it runs a user, given beforehand, who works in it until it closes.
class MemoryModalDialog : public platform::ModalDialog {
 public:
  /// What the user does while the dialog is shown. A dialog that nobody closes is closed when the user is done.
  void setUser(std::function<void()> user) { user_ = std::move(user); }

  void setEvents(platform::ModalDialogEvents events) override { events_ = std::move(events); }
  std::string caption() const override { return caption_; }
  void setCaption(std::string_view caption) override { caption_ = caption; }
  void showModal() override {
    loaded_ = true;
    kit::tell(user_);
    if (loaded_) closeWindow();
  }
  void close() override { loaded_ = false; }
  bool isLoaded() const override { return loaded_; }
  platform::WindowHandle hWnd() const override { return loaded_ ? 1 : 0; }

  /// The user closes the window by its frame or with Esc.
  void closeWindow() {
    kit::tell(events_.Close);
    loaded_ = false;
  }

 private:
  platform::ModalDialogEvents events_;
  std::function<void()> user_;
  std::string caption_;
  bool loaded_ = false;
};

}  // namespace mavCycEd::memory
