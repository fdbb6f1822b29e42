#pragma once

#include "win32/Windows.h"

namespace mavCycEd::play {

/// Gives this program a desktop that no other program has, before it makes its first window: the keyboard goes to the
/// window in front, and on a shared desktop another program's windows come in front at any moment. False when the
/// system does not let it; it stays on the shared one then.
inline bool moveToOwnDesktop() {
  // Both stay open as long as the program runs.
  const HWINSTA station = CreateWindowStationW(nullptr, 0, WINSTA_ALL_ACCESS, nullptr);
  if (station == nullptr || SetProcessWindowStation(station) == FALSE) return false;
  wchar_t name[32]{};
  wsprintfW(name, L"mavCycEd-%lu", GetCurrentProcessId());
  const HDESK desktop = CreateDesktopW(name, nullptr, nullptr, 0, GENERIC_ALL, nullptr);
  return desktop != nullptr && SetThreadDesktop(desktop) != FALSE;
}

}  // namespace mavCycEd::play
