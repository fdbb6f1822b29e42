#pragma once

#include <utility>

#include "kit/Notify.h"
#include "platform/Timer.h"

namespace mavCycEd::memory {

/// A timer in which time stands still: it ticks when it is told to.
class MemoryTimer : public platform::Timer {
 public:
  void setEvents(platform::TimerEvents events) override { events_ = std::move(events); }
  int interval() const override { return interval_; }
  void setInterval(int milliseconds) override { interval_ = milliseconds; }
  bool isEnabled() const override { return enabled_; }
  void setEnabled(bool enabled) override { enabled_ = enabled; }

  /// The interval has passed. Nothing happens while the timer is off.
  void fire() {
    if (enabled_) kit::tell(events_.Tick);
  }

 private:
  platform::TimerEvents events_;
  int interval_ = 0;
  bool enabled_ = false;
};

}  // namespace mavCycEd::memory
