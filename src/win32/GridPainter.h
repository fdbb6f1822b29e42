#pragma once

#include "kit/ValueListRows.h"
#include "win32/GridGeometry.h"

namespace mavCycEd::win32 {

/// Draws the theme's border over the one of the system's own that a window has at its sunken edge.
void paintGridBorder(HWND window, bool enabled);

/// Draws a grid of keys and values, with an arrow where there is a list to pick from.
class GridPainter {
 public:
  struct Looks {
    HFONT font = nullptr;
    bool enabled = true;
    bool focused = false;
    int margin = 4;
  };

  GridPainter(HWND window, const kit::ValueListRows& rows, const GridGeometry& geometry, const Looks& looks)
      : window_(window), rows_(rows), geometry_(geometry), looks_(looks) {}

  void paint(HDC context) const;

  /// Where the arrow of a row's value is.
  static RECT arrowOf(const GridGeometry& geometry, int row);

 private:
  void paintTitles(HDC context) const;
  void paintRow(HDC context, int row) const;
  void paintText(HDC context, RECT place, const std::string& text, int color) const;

  HWND window_;
  const kit::ValueListRows& rows_;
  const GridGeometry& geometry_;
  const Looks& looks_;
};

}  // namespace mavCycEd::win32
