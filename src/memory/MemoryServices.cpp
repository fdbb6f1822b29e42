#include "memory/MemoryServices.h"

#include <cerrno>
#include <limits>
#include <system_error>

#include "platform/LocalTime.h"

namespace mavCycEd::memory {

std::string StandardSystemMessage::formatMessage(std::int32_t code) const {
  std::string text = std::system_category().message(code);
  // For an unknown code the C library makes a text up, in the process's language, that ends with the code or is the
  // same for all of them.
  const bool isUnknown = text.ends_with(std::string(1, ' ').append(std::to_string(code))) ||
                         text == std::system_category().message(std::numeric_limits<std::int32_t>::max());
  return isUnknown ? std::string() : text;
}

std::int32_t StandardSystemMessage::lastErrorCode() const { return errno; }

std::string SystemClock::localTimestamp() const { return platform::localTimestamp(); }

}  // namespace mavCycEd::memory
