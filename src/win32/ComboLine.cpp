#include "win32/ComboLine.h"

namespace mavCycEd::win32 {

HWND lineOfCombo(HWND combo) {
  COMBOBOXINFO parts{};
  parts.cbSize = sizeof parts;
  if (GetComboBoxInfo(combo, &parts) == FALSE || parts.hwndItem == combo) return nullptr;
  return parts.hwndItem;
}

void centerLineOfCombo(HWND combo, int textHeight) {
  COMBOBOXINFO parts{};
  parts.cbSize = sizeof parts;
  const HWND line = lineOfCombo(combo);
  if (line == nullptr || GetComboBoxInfo(combo, &parts) == FALSE) return;
  const RECT& room = parts.rcItem;
  const LONG above = (room.bottom - room.top - textHeight) / 2;
  if (above <= 0) return;
  SetWindowPos(line, nullptr, room.left, room.top + above, room.right - room.left, room.bottom - room.top - above,
               SWP_NOZORDER | SWP_NOACTIVATE);
}

}  // namespace mavCycEd::win32
