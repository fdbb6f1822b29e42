#include "win32/Layout.h"

#include <algorithm>

#include "win32/Dpi.h"

namespace mavCycEd::win32 {

Spaces::Spaces(HWND window, HFONT font) {
  const int line = TextMeasure(window, font).lineHeight();
  gap = scaled(window, 6);
  frameTop = line + scaled(window, 4);
  buttonHeight = line + scaled(window, 10);
  // The system writes at the upper edge of a text box: no more room than its border and a little more.
  lineHeight = line + 2 * GetSystemMetrics(SM_CYEDGE) + 4;
}

RECT Spaces::inside(const RECT& frame) const {
  return {frame.left + gap + gap / 3, frame.top + frameTop, frame.right - gap - gap / 3, frame.bottom - gap - gap / 3};
}

RECT cutTop(RECT& rest, int height, int gap) {
  const RECT part{rest.left, rest.top, rest.right, std::min<LONG>(rest.top + height, rest.bottom)};
  rest.top = std::min<LONG>(part.bottom + gap, rest.bottom);
  return part;
}

RECT cutBottom(RECT& rest, int height, int gap) {
  const RECT part{rest.left, std::max<LONG>(rest.bottom - height, rest.top), rest.right, rest.bottom};
  rest.bottom = std::max<LONG>(part.top - gap, rest.top);
  return part;
}

RECT cutLeft(RECT& rest, int width, int gap) {
  const RECT part{rest.left, rest.top, std::min<LONG>(rest.left + width, rest.right), rest.bottom};
  rest.left = std::min<LONG>(part.right + gap, rest.right);
  return part;
}

RECT cutRight(RECT& rest, int width, int gap) {
  const RECT part{std::max<LONG>(rest.right - width, rest.left), rest.top, rest.right, rest.bottom};
  rest.right = std::max<LONG>(part.left - gap, rest.left);
  return part;
}

int widestOf(std::initializer_list<const Win32Button*> buttons) {
  int widest = 0;
  for (const Win32Button* const button : buttons) widest = std::max(widest, button->neededWidth());
  return widest;
}

void placeListWithButtons(NativeWindow& list, std::initializer_list<Win32Button*> buttons, int buttonWidth, RECT place,
                          const Spaces& spaces) {
  RECT column = cutRight(place, buttonWidth, spaces.gap);
  list.place(place);
  for (Win32Button* const button : buttons) button->place(cutTop(column, spaces.buttonHeight, spaces.gap));
}

}  // namespace mavCycEd::win32
