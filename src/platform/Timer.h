#pragma once

#include <functional>

namespace mavCycEd::platform {

/// What a timer tells its owner.
struct TimerEvents {
  /// The interval has passed while the timer was on. The timer stays on until it is switched off.
  std::function<void()> Tick;
};

/// A repeating timer on the user-interface thread; off when made.
class Timer {
 public:
  virtual ~Timer() = default;

  virtual void setEvents(TimerEvents events) = 0;

  /// Milliseconds between two ticks; 0 when never set.
  virtual int interval() const = 0;
  /// Setting the interval of a running timer starts the interval anew.
  virtual void setInterval(int milliseconds) = 0;

  virtual bool isEnabled() const = 0;
  /// Switching on a running timer starts the interval anew.
  virtual void setEnabled(bool enabled) = 0;
};

}  // namespace mavCycEd::platform
