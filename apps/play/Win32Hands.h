#pragma once

#include <string>

#include "ControlDriver.h"
#include "win32/Text.h"
#include "win32/Win32ValueList.h"

/// What a user's hands do with windows: messages of keys and of the mouse.
namespace mavCycEd::play {

inline void key(HWND window, WPARAM key) {
  SendMessageW(window, WM_KEYDOWN, key, 1);
  SendMessageW(window, WM_KEYUP, key, static_cast<LPARAM>(0xC0000001));
}

inline LPARAM at(POINT place) { return MAKELPARAM(place.x, place.y); }

inline void click(HWND window, POINT place) {
  SendMessageW(window, WM_LBUTTONDOWN, MK_LBUTTON, at(place));
  SendMessageW(window, WM_LBUTTONUP, 0, at(place));
}

inline void doubleClick(HWND window, POINT place) {
  click(window, place);
  SendMessageW(window, WM_LBUTTONDBLCLK, MK_LBUTTON, at(place));
  SendMessageW(window, WM_LBUTTONUP, 0, at(place));
}

/// The middle of a window's own area.
inline POINT middleOf(HWND window) {
  RECT client{};
  GetClientRect(window, &client);
  return {client.right / 2, client.bottom / 2};
}

/// Replaces the whole text of an edit field in one change, as a paste does.
inline void pasteOverAll(HWND edit, const std::string& text) {
  SetFocus(edit);
  SendMessageW(edit, EM_SETSEL, 0, -1);
  SendMessageW(edit, EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(win32::toWide(text).c_str()));
}

/// Picks an item in a combo box's open list.
inline void pickInList(HWND combo, int index) {
  SendMessageW(combo, CB_SHOWDROPDOWN, TRUE, 0);
  SendMessageW(combo, CB_SETCURSEL, static_cast<WPARAM>(index), 0);
  key(combo, VK_RETURN);
}

/// A grid under a user's hands.
class Win32GridHands {
 public:
  explicit Win32GridHands(win32::Win32ValueList& grid) : grid_(grid), view_(grid.view()) {}

  void checkRow(std::string_view name, int row) const {
    if (row >= 1 && row < grid_.RowCount()) return;
    throw StepRefused(std::string(name) + " has no parameter row " + std::to_string(row) + ".");
  }

  /// Gives the grid the focus and goes to a row, key by key.
  void goTo(int wanted) const {
    SetFocus(view_.handle());
    for (int row = grid_.Row(); row != wanted; row = grid_.Row()) {
      key(view_.handle(), row < wanted ? VK_DOWN : VK_UP);
      if (grid_.Row() == row) {
        throw StepRefused("The grid does not let its user go to row " + std::to_string(wanted) + ".");
      }
    }
  }

  /// The pixels of a position in the grid's own units, whose row is brought into view.
  POINT pixelsOf(int x, int y) const {
    const int row = kit::units::rowAt(y);
    if (row >= 1 && row < grid_.RowCount()) {
      while (row < view_.geometry().top && scroll(SB_LINEUP)) {
      }
      while (row > view_.geometry().top && !view_.geometry().isInView(row) && scroll(SB_LINEDOWN)) {
      }
    }
    return view_.geometry().pixelsAt({x, y});
  }

 private:
  // False when the grid does not scroll any further.
  bool scroll(WPARAM request) const {
    const int before = view_.geometry().top;
    SendMessageW(view_.handle(), WM_VSCROLL, request, 0);
    return view_.geometry().top != before;
  }

  win32::Win32ValueList& grid_;
  win32::ValueListView& view_;
};

}  // namespace mavCycEd::play
