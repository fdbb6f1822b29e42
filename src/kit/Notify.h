#pragma once

#include <functional>

namespace mavCycEd::kit {

/// Tells an owner's handler, if there is one. The handler may take the handlers back and may destroy the control that
/// raised the event: what is called is a copy, and the caller touches nothing of its own afterwards, or asks a
/// Lifeline first.
template <typename... Expected, typename... Given>
void tell(std::function<void(Expected...)> handler, const Given&... arguments) {
  if (handler) handler(arguments...);
}

}  // namespace mavCycEd::kit
