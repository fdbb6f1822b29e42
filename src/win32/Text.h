#pragma once

#include <string>
#include <string_view>

#include "win32/Windows.h"

namespace mavCycEd::win32 {

/// A text of the editor (UTF-8) for a window.
std::wstring toWide(std::string_view text);

/// As much of a text as a line on the screen is good for: drawing or measuring more takes time and shows nobody
/// anything.
std::wstring toWideLine(std::string_view text);

/// A window's text for the editor (UTF-8).
std::string fromWide(std::wstring_view text);

/// A text for a window that takes "&" for the mark of an access key, where the text means the character itself.
std::wstring withoutAccessKey(std::string_view text);

/// The text that a window shows.
std::wstring textOf(HWND window);

/// A UTF-8 text in the 8-bit code page of the process. A character that the code page lacks is written as "<U+0141>",
/// so that nobody takes a substitute for what was meant, and different texts stay different.
std::string toAnsi(std::string_view text);

/// A text in the code page of the process as UTF-8.
std::string fromAnsi(std::string_view text);

}  // namespace mavCycEd::win32
