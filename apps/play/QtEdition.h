#pragma once

#include <functional>
#include <string>

#include "ControlDriver.h"

namespace mavCycEd::play {

/// Writes what Qt has to say to standard error, but for what a platform without a window manager says of itself.
void tellWhatQtSays();

/// Runs `body` with the Qt edition, off screen unless QT_QPA_PLATFORM names another platform. What the control tells
/// unasked (message boxes, errors) is written to standard output. `now` is the time at which the clock stands. The
/// result is the body's.
int withQtDriver(int argc, char** argv, const std::string& now, const std::function<int(ControlDriver&)>& body);

}  // namespace mavCycEd::play
