#pragma once

#include <string>
#include <string_view>

#include "memory/Control.h"
#include "platform/Frame.h"

namespace mavCycEd::memory {

/// A frame without a screen.
class MemoryFrame : public platform::Frame, public Control {
 public:
  using Control::Control;

  std::string caption() const override { return caption_; }
  void setCaption(std::string_view caption) override { caption_ = caption; }
  bool isEnabled() const override { return isSelfEnabled(); }
  void setEnabled(bool enabled) override { setSelfEnabled(enabled); }
  bool isVisible() const override { return isSelfVisible(); }
  void setVisible(bool visible) override { setSelfVisible(visible); }

 private:
  std::string caption_;
};

}  // namespace mavCycEd::memory
