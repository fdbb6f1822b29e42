#include "kit/FirstRowTimer.h"

#include <utility>

#include "kit/Notify.h"

namespace mavCycEd::kit {

FirstRowTimer::FirstRowTimer(std::unique_ptr<platform::Timer> clock, ValueList& list)
    : clock_(std::move(clock)), list_(list) {
  list_.setFirstRowTimer(this);
}

FirstRowTimer::~FirstRowTimer() { list_.setFirstRowTimer(nullptr); }

void FirstRowTimer::setEvents(platform::TimerEvents events) {
  clock_->setEvents({.Tick = [this, tick = std::move(events.Tick)] {
    if (list_.edit().isOpen()) {
      setEnabled(false);
    } else {
      tell(tick);
    }
  }});
}

}  // namespace mavCycEd::kit
