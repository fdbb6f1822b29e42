#pragma once

#include "win32/Windows.h"

namespace mavCycEd::win32 {

/// The dots per inch that a window is drawn with: 96 at a scaling of 100 %.
int dpiOf(HWND window);

/// A length that is meant for 96 dots per inch, at a window's own.
int scaled(HWND window, int length);

/// The system's font for texts in windows, at a number of dots per inch.
LOGFONTW systemFont(int dpi);

}  // namespace mavCycEd::win32
