#pragma once

#include "win32/Windows.h"

namespace mavCycEd::win32 {

/// The line of a combo box that is typed into; nullptr where there is none.
HWND lineOfCombo(HWND combo);

/// Moves that line so that its text, of this height, is in the middle of the box: the system lets the line fill the
/// box, and writes at its upper edge.
void centerLineOfCombo(HWND combo, int textHeight);

}  // namespace mavCycEd::win32
