#pragma once

#include "kit/TypeAhead.h"
#include "win32/Windows.h"

namespace mavCycEd::win32 {

/// What is typed after such a pause begins anew.
inline constexpr kit::TypeAhead::Time typingPause{1000};

inline kit::TypeAhead::Time timeOfTyping() { return kit::TypeAhead::Time(GetTickCount64()); }

}  // namespace mavCycEd::win32
