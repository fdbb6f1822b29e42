#pragma once

#include <QObject>
#include <QTimer>
#include <utility>

#include "platform/Timer.h"

namespace mavCycEd::qt {

/// A timer.
class QtTimer : public QObject, public platform::Timer {
  Q_OBJECT

 public:
  explicit QtTimer(const char* name);

  void setEvents(platform::TimerEvents events) override { events_ = std::move(events); }
  int interval() const override { return interval_; }
  void setInterval(int milliseconds) override;
  bool isEnabled() const override { return enabled_; }
  void setEnabled(bool enabled) override;

 private:
  void restart();

  QTimer timer_;
  platform::TimerEvents events_;
  int interval_ = 0;
  bool enabled_ = false;
};

}  // namespace mavCycEd::qt
