#pragma once

#include "kit/Notify.h"

namespace mavCycEd::memory {

template <typename Handler, typename... Values>
void notify(const Handler& handler, const Values&... values) {
  kit::tell(handler, values...);
}

}  // namespace mavCycEd::memory
