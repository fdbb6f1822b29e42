#pragma once

#include <functional>
#include <string>

#include "ControlDriver.h"

namespace mavCycEd::play {

/// Runs `body` with the Win32 edition, whose events and message boxes are written to the standard output.
int withWin32Driver(const std::string& now, const std::function<int(ControlDriver&)>& body);

}  // namespace mavCycEd::play
