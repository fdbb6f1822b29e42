#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace mavCycEd::platform {

/// What an option button tells its owner.
struct OptionButtonEvents {
  /// The option was selected: by the user, or by code through OptionButton::select. A user who presses the option that
  /// is selected already selects nothing.
  std::function<void()> Click;
};

/// One of a group of options of which exactly one is selected. In captions "&" stands before the access key.
class OptionButton {
 public:
  virtual ~OptionButton() = default;

  virtual void setEvents(OptionButtonEvents events) = 0;

  virtual std::string caption() const = 0;
  virtual void setCaption(std::string_view caption) = 0;

  virtual bool value() const = 0;
  /// Selects this option, takes the selection from the others of its group, and raises Click every time, also when
  /// the option was selected before.
  virtual void select() = 0;
};

}  // namespace mavCycEd::platform
