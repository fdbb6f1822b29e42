#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace mavCycEd::platform {

/// What a push button tells its owner.
struct ButtonEvents {
  /// The user pressed the button.
  std::function<void()> Click;
};

/// A push button. In captions "&" stands before the access key.
class Button {
 public:
  virtual ~Button() = default;

  virtual void setEvents(ButtonEvents events) = 0;

  virtual std::string caption() const = 0;
  virtual void setCaption(std::string_view caption) = 0;

  virtual bool isEnabled() const = 0;
  virtual void setEnabled(bool enabled) = 0;
};

}  // namespace mavCycEd::platform
