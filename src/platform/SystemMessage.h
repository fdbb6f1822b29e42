#pragma once

#include <cstdint>
#include <string>

namespace mavCycEd::platform {

/// The operating system's own error codes and their texts.
class SystemMessage {
 public:
  virtual ~SystemMessage() = default;

  /// The system's text for one of its error codes, in the default language and with inserts left as they stand;
  /// empty when the system knows no text for it. The text may end with a line break.
  virtual std::string formatMessage(std::int32_t code) const = 0;
  /// The code of the last system call that failed on this thread; 0: none.
  virtual std::int32_t lastErrorCode() const = 0;
};

}  // namespace mavCycEd::platform
