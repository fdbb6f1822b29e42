#pragma once

#include <QObject>
#include <QTimer>
#include <functional>
#include <utility>

#include "platform/Timer.h"

namespace mavCycEd::qt {

/// A timer. A tick can be held back: the interval then starts anew.
class QtTimer : public QObject, public platform::Timer {
  Q_OBJECT

 public:
  explicit QtTimer(const char* name);

  /// While `hold` is true no tick is told.
  void setHold(std::function<bool()> hold) { hold_ = std::move(hold); }

  void setEvents(platform::TimerEvents events) override { events_ = std::move(events); }
  int interval() const override { return interval_; }
  void setInterval(int milliseconds) override;
  bool isEnabled() const override { return enabled_; }
  void setEnabled(bool enabled) override;

 private:
  void restart();
  void onTimeout();

  QTimer timer_;
  std::function<bool()> hold_;
  platform::TimerEvents events_;
  int interval_ = 0;
  bool enabled_ = false;
};

}  // namespace mavCycEd::qt
