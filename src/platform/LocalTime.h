#pragma once

#include <string>

namespace mavCycEd::platform {

/// Now by the system's clock, as Clock::localTimestamp() promises it.
std::string localTimestamp();

}  // namespace mavCycEd::platform
