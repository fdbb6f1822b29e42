#pragma once

#include <initializer_list>

#include "win32/Win32Button.h"
#include "win32/Win32Frame.h"

namespace mavCycEd::win32 {

/// Lengths of a layout, at a window's scaling and font.
class Spaces {
 public:
  Spaces(HWND window, HFONT font);

  int gap = 0;       ///< between neighbours
  int frameTop = 0;  ///< from a frame's upper edge to what stands in it
  int buttonHeight = 0;
  int lineHeight = 0;  ///< of a text box of one line

  /// What is left for the contents of a frame.
  RECT inside(const RECT& frame) const;
};

/// Cuts a part off a rectangle and keeps a gap; gives the part.
RECT cutTop(RECT& rest, int height, int gap);
RECT cutBottom(RECT& rest, int height, int gap);
RECT cutLeft(RECT& rest, int width, int gap);
RECT cutRight(RECT& rest, int width, int gap);

/// How wide the widest of these buttons has to be.
int widestOf(std::initializer_list<const Win32Button*> buttons);

/// A list with its buttons to the right of it, from the top down.
void placeListWithButtons(NativeWindow& list, std::initializer_list<Win32Button*> buttons, int buttonWidth, RECT place,
                          const Spaces& spaces);

}  // namespace mavCycEd::win32
