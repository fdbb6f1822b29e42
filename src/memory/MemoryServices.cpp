#include "memory/MemoryServices.h"

#include <array>
#include <cerrno>
#include <chrono>
#include <ctime>
#include <limits>
#include <system_error>

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

std::string SystemClock::localTimestamp() const {
  const std::time_t now = std::chrono::system_clock::to_time_t(std::chrono::system_clock::now());
  std::tm local{};
#ifdef _WIN32
  localtime_s(&local, &now);
#else
  localtime_r(&now, &local);
#endif
  std::array<char, 32> text{};
  const std::size_t size = std::strftime(text.data(), text.size(), "%Y-%m-%dT%H:%M:%S", &local);
  return {text.data(), size};
}

}  // namespace mavCycEd::memory
