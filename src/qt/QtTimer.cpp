#include "qt/QtTimer.h"

#include "kit/Notify.h"

namespace mavCycEd::qt {

QtTimer::QtTimer(const char* name) {
  setObjectName(QLatin1String(name));
  connect(&timer_, &QTimer::timeout, this, [this] { kit::tell(events_.Tick); });
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

}  // namespace mavCycEd::qt
