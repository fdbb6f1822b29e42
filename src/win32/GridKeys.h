#pragma once

#include "kit/GridKeys.h"
#include "win32/Windows.h"

namespace mavCycEd::win32 {

/// Whether a key or mouse button was down when the message at hand was sent.
inline bool isDown(int key) { return GetKeyState(key) < 0; }

/// What a key that goes down is to a grid of values. Characters come in messages of their own, and the request for the
/// pop-up menu, too.
kit::KeyPress keyPressOf(WPARAM key);

}  // namespace mavCycEd::win32
