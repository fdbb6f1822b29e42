#pragma once

#include <string_view>

#include "platform/ModalDialog.h"

namespace mavCycEd::platform {

/// Style bits of a message box, as the flags of messageBox() take them.
enum MessageBoxFlag : int {
  OkOnly = 0,
  Critical = 16,
  Exclamation = 48,
  Information = 64,
};

/// The button that a message box's user pressed; NoButton: the box could not be shown.
enum MessageBoxButton : int { NoButton = 0, OkButton = 1 };

/// The platform's message box service.
class MessageBox {
 public:
  virtual ~MessageBox() = default;

  /// Shows `message` (line ends carriage return plus line feed) over `owner` (0: the control's own window) and returns
  /// the pressed button, or NoButton when the service failed.
  virtual int messageBox(WindowHandle owner, std::string_view message, std::string_view caption, int flags) = 0;
};

}  // namespace mavCycEd::platform
