#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "kit/Notify.h"
#include "memory/Control.h"
#include "platform/Button.h"

namespace mavCycEd::memory {

/// A push button without a screen.
class MemoryButton : public platform::Button, public Control {
 public:
  using Control::Control;

  void setEvents(platform::ButtonEvents events) override { events_ = std::move(events); }
  std::string caption() const override { return caption_; }
  void setCaption(std::string_view caption) override { caption_ = caption; }
  bool isEnabled() const override { return isSelfEnabled(); }
  void setEnabled(bool enabled) override { setSelfEnabled(enabled); }

  /// The user presses the button.
  void press() { kit::tell(events_.Click); }

 private:
  platform::ButtonEvents events_;
  std::string caption_;
};

}  // namespace mavCycEd::memory
