#pragma once

#include "win32/Windows.h"

/// The keys that take the operator's steps back and bring them again: Ctrl+Z, Ctrl+Y, Ctrl+Shift+Z. They are the
/// panel's that a window stands on, except in a line that is being typed into, where they are the line's.
namespace mavCycEd::win32 {

enum class HistoryStep { Undo, Redo };

/// What a panel is sent when one of its windows has got such a key; wParam is the step.
inline constexpr UINT historyMessage = WM_APP + 0x51;

/// Whether a message of a window is such a key, and was handed on to its panel: the window has nothing more to do with
/// it.
bool handOnHistoryKey(HWND window, UINT message, WPARAM wParam);

}  // namespace mavCycEd::win32
