#include "qt/QtTimer.h"

#include "qt/Notify.h"

namespace mavCycEd::qt {

QtTimer::QtTimer(const char* name) {
  setObjectName(QLatin1String(name));
  connect(&timer_, &QTimer::timeout, this, &QtTimer::onTimeout);
}

void QtTimer::setInterval(int milliseconds) {
  interval_ = milliseconds;
  restart();
}

void QtTimer::setEnabled(bool enabled) {
  enabled_ = enabled;
  restart();
}

// A timer whose interval was never set stands still.
void QtTimer::restart() {
  if (enabled_ && interval_ > 0) {
    timer_.start(interval_);
  } else {
    timer_.stop();
  }
}

void QtTimer::onTimeout() {
  if (drop_ && drop_()) {
    setEnabled(false);
  } else {
    tell(events_.Tick);
  }
}

}  // namespace mavCycEd::qt
