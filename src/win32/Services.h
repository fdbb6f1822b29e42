#pragma once

#include <functional>
#include <utility>

#include "platform/Clock.h"
#include "platform/CodePage.h"
#include "platform/MessageBox.h"
#include "platform/SystemMessage.h"
#include "win32/Windows.h"

namespace mavCycEd::win32 {

/// Message boxes of the system, in the 8-bit code page of the process. A character that the code page lacks is shown by
/// its number ("<U+0141>").
class Win32MessageBox : public platform::MessageBox {
 public:
  /// `ownWindow`: the control's own window; nullptr while there is none.
  explicit Win32MessageBox(std::function<HWND()> ownWindow) : ownWindow_(std::move(ownWindow)) {}

  int messageBox(platform::WindowHandle owner, std::string_view message, std::string_view caption, int flags) override;

 private:
  std::function<HWND()> ownWindow_;
};

/// The system's own error codes and their texts.
class Win32SystemMessage : public platform::SystemMessage {
 public:
  std::string formatMessage(std::int32_t code) const override;
  std::int32_t lastErrorCode() const override;
};

/// The 8-bit code page of the process.
class AnsiCodePage : public platform::CodePage {
 public:
  std::string fromUtf8(std::string_view text) const override;
};

/// The system's clock in local time.
class Win32Clock : public platform::Clock {
 public:
  std::string localTimestamp() const override;
};

}  // namespace mavCycEd::win32
