#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <utility>

#include "platform/Clock.h"
#include "platform/CodePage.h"
#include "platform/MessageBox.h"
#include "platform/SystemMessage.h"

namespace mavCycEd::memory {

/// A message box that is answered with OK at once; whoever wants to know of it is told first.
class MemoryMessageBox : public platform::MessageBox {
 public:
  using Listener = std::function<void(std::string_view message, std::string_view caption, int flags)>;
  explicit MemoryMessageBox(Listener listener = {}) : listener_(std::move(listener)) {}

  int messageBox(platform::WindowHandle, std::string_view message, std::string_view caption, int flags) override {
    if (listener_) listener_(message, caption, flags);
    return platform::OkButton;
  }

 private:
  Listener listener_;
};

/// The error texts of the C library.
class StandardSystemMessage : public platform::SystemMessage {
 public:
  std::string formatMessage(std::int32_t code) const override;
  std::int32_t lastErrorCode() const override;
};

/// A code page that is UTF-8 itself.
class Utf8CodePage : public platform::CodePage {
 public:
  std::string fromUtf8(std::string_view text) const override { return std::string(text); }
};

/// The system's clock in local time.
class SystemClock : public platform::Clock {
 public:
  std::string localTimestamp() const override;
};

/// A clock that stands still.
class StandingClock : public platform::Clock {
 public:
  /// `timestamp` as localTimestamp() gives it.
  explicit StandingClock(std::string timestamp) : timestamp_(std::move(timestamp)) {}
  std::string localTimestamp() const override { return timestamp_; }

 private:
  std::string timestamp_;
};

}  // namespace mavCycEd::memory
