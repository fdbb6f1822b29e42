#pragma once

#include <utility>

#include "platform/Timer.h"
#include "win32/MessageWindow.h"

namespace mavCycEd::win32 {

/// A timer.
class Win32Timer : public platform::Timer, private MessageWindow {
 public:
  void setEvents(platform::TimerEvents events) override { events_ = std::move(events); }
  int interval() const override { return interval_; }
  void setInterval(int milliseconds) override;
  bool isEnabled() const override { return enabled_; }
  void setEnabled(bool enabled) override;

 private:
  LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
  void restart();

  platform::TimerEvents events_;
  int interval_ = 0;
  bool enabled_ = false;
};

}  // namespace mavCycEd::win32
