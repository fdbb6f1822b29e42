#pragma once

#include <string>
#include <string_view>

namespace mavCycEd::platform {

/// A captioned frame around other controls. A disabled or hidden frame disables or hides what stands in it.
class Frame {
 public:
  virtual ~Frame() = default;

  virtual std::string caption() const = 0;
  virtual void setCaption(std::string_view caption) = 0;

  /// The frame's own setting, whatever the frames around it say.
  virtual bool isEnabled() const = 0;
  virtual void setEnabled(bool enabled) = 0;

  /// The frame's own setting, whatever the frames around it say.
  virtual bool isVisible() const = 0;
  virtual void setVisible(bool visible) = 0;
};

}  // namespace mavCycEd::platform
