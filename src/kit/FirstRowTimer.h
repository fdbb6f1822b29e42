#pragma once

#include <memory>

#include "kit/ValueList.h"
#include "platform/Timer.h"

namespace mavCycEd::kit {

/// The timer that makes the first row of a value list current, for a user who has not come to the refilled grid yet. A
/// late tick would take the row away from one who has: as soon as the user works in a row the timer is off, and a tick
/// that falls while a value is being edited is dropped, not put off.
class FirstRowTimer : public platform::Timer {
 public:
  /// Gives the ticks of `clock`. `list` has to live longer than the timer.
  FirstRowTimer(std::unique_ptr<platform::Timer> clock, ValueList& list);
  ~FirstRowTimer() override;
  FirstRowTimer(const FirstRowTimer&) = delete;
  FirstRowTimer& operator=(const FirstRowTimer&) = delete;

  void setEvents(platform::TimerEvents events) override;
  int interval() const override { return clock_->interval(); }
  void setInterval(int milliseconds) override { clock_->setInterval(milliseconds); }
  bool isEnabled() const override { return clock_->isEnabled(); }
  void setEnabled(bool enabled) override { clock_->setEnabled(enabled); }

 private:
  std::unique_ptr<platform::Timer> clock_;
  ValueList& list_;
};

}  // namespace mavCycEd::kit
