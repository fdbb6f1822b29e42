#include "win32/Win32Timer.h"

#include "kit/Notify.h"

namespace mavCycEd::win32 {
namespace {

constexpr UINT_PTR timerId = 1;

}  // namespace

void Win32Timer::setInterval(int milliseconds) {
  interval_ = milliseconds;
  restart();
}

void Win32Timer::setEnabled(bool enabled) {
  enabled_ = enabled;
  restart();
}

// A timer whose interval was never set stands still.
void Win32Timer::restart() {
  if (enabled_ && interval_ > 0) {
    SetTimer(handle(), timerId, static_cast<UINT>(interval_), nullptr);
  } else {
    KillTimer(handle(), timerId);
  }
}

LRESULT Win32Timer::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  if (message != WM_TIMER) return MessageWindow::onMessage(message, wParam, lParam);
  // A tick that was already on its way when the timer was switched off is none.
  if (enabled_) kit::tell(events_.Tick);
  return 0;
}

}  // namespace mavCycEd::win32
