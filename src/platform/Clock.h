#pragma once

#include <string>

namespace mavCycEd::platform {

/// The local wall clock.
class Clock {
 public:
  virtual ~Clock() = default;

  /// Now as local time without a zone, "yyyy-mm-ddThh:mm:ss" (ISO 8601, 24-hour clock).
  virtual std::string localTimestamp() const = 0;
};

}  // namespace mavCycEd::platform
