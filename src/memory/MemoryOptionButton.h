#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "kit/Notify.h"
#include "memory/Control.h"
#include "platform/OptionButton.h"

namespace mavCycEd::memory {

/// An option button without a screen; the buttons of one group know each other.
class MemoryOptionButton : public platform::OptionButton, public Control {
 public:
  using Control::Control;

  /// Makes these the options of one group.
  static void group(const std::vector<MemoryOptionButton*>& options) {
    for (MemoryOptionButton* option : options) option->group_ = options;
  }

  void setEvents(platform::OptionButtonEvents events) override { events_ = std::move(events); }
  std::string caption() const override { return caption_; }
  void setCaption(std::string_view caption) override { caption_ = caption; }
  bool value() const override { return selected_; }
  void select() override {
    for (MemoryOptionButton* option : group_) option->selected_ = false;
    selected_ = true;
    kit::tell(events_.Click);
  }

  /// The user presses it.
  void press() {
    if (!selected_) select();
  }

 private:
  platform::OptionButtonEvents events_;
  std::string caption_;
  bool selected_ = false;
  std::vector<MemoryOptionButton*> group_;
};

}  // namespace mavCycEd::memory
