#pragma once

#include <vector>

#include "com/Com.h"

namespace mavCycEd::com {

/// What becomes of a key message that reached a window of the control.
enum class KeyUse {
  Done,      ///< it has been answered here
  Wanted,    ///< the window that has the focus takes it itself
  HandOver,  ///< it is the container's: the tab key at either end, and what no window of ours takes
};

/// Answers a key message in the windows below `root`: the tab key and access keys, which belong to a screen and not to
/// one of its windows.
KeyUse answerKey(HWND root, MSG& message);

/// Gives the keyboard to the first window below `root` that takes it, or to the last one. False when there is none.
bool focusFirstStop(HWND root, bool last);

/// The access keys of the windows below `root`, in capitals.
std::vector<wchar_t> accessKeys(HWND root);

/// Presses the button with this access key. False when there is none that is visible and enabled.
bool pressAccessKey(HWND root, wchar_t key);

}  // namespace mavCycEd::com
