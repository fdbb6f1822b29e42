#include "platform/LocalTime.h"

#include <array>
#include <chrono>
#include <cstddef>
#include <ctime>

namespace mavCycEd::platform {

std::string localTimestamp() {
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

}  // namespace mavCycEd::platform
