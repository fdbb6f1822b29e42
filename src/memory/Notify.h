#pragma once

#include <functional>

namespace mavCycEd::memory {

/// Calls an event handler if there is one. A copy is called: the handler may take the handlers back, or destroy the
/// control that they belong to.
template <typename... Arguments, typename... Values>
void notify(const std::function<void(Arguments...)>& handler, const Values&... values) {
  if (const auto copy = handler) copy(values...);
}

}  // namespace mavCycEd::memory
