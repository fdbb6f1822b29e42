#pragma once

#include <QObject>
#include <QTimer>
#include <functional>
#include <utility>

#include "platform/Timer.h"

namespace mavCycEd::qt {

/// A timer. A tick that has lost its purpose can be dropped.
class QtTimer : public QObject, public platform::Timer {
  Q_OBJECT

 public:
  explicit QtTimer(const char* name);

  /// A tick that falls while `drop` is true is not told, and the timer is off from then on.
  void setDrop(std::function<bool()> drop) { drop_ = std::move(drop); }

  void setEvents(platform::TimerEvents events) override { events_ = std::move(events); }
  int interval() const override { return interval_; }
  void setInterval(int milliseconds) override;
  bool isEnabled() const override { return enabled_; }
  void setEnabled(bool enabled) override;

 private:
  void restart();
  void onTimeout();

  QTimer timer_;
  std::function<bool()> drop_;
  platform::TimerEvents events_;
  int interval_ = 0;
  bool enabled_ = false;
};

}  // namespace mavCycEd::qt
