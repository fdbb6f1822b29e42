#pragma once

#include <string_view>

#include "control/modErr.h"
#include "platform/MessageBox.h"
#include "platform/ModalDialog.h"
#include "platform/SystemMessage.h"

namespace mavCycEd {

/// The control's message boxes: the platform's service, and a critical message when the service itself fails.
class modMsgBox : public platform::MessageBox {
 public:
  modMsgBox(platform::MessageBox& service, const platform::SystemMessage& systemMessage, modErr& errors)
      : service_(service), systemMessage_(systemMessage), errors_(errors) {}

  /// Shows a message and returns the button that was pressed; NoButton after a failure, which the user is told of.
  int messageBox(platform::WindowHandle owner, std::string_view message, std::string_view caption, int flags) override;

  /// From now on no message is shown.
  void end() { ended_ = true; }

  /// The window handle of a dialog.
  static platform::WindowHandle formHwnd(const platform::ModalDialog& form) { return form.hWnd(); }

 private:
  platform::MessageBox& service_;
  const platform::SystemMessage& systemMessage_;
  modErr& errors_;
  bool ended_ = false;
};

}  // namespace mavCycEd
