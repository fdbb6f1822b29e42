#include "win32/GridPainter.h"

#include "win32/Windows.h"
// needs windows.h
#include <uxtheme.h>
#include <vssym32.h>

#include <algorithm>
#include <memory>
#include <type_traits>

#include "win32/Text.h"

namespace mavCycEd::win32 {

using kit::ValueListRows;

namespace {

using Theme = std::unique_ptr<std::remove_pointer_t<HTHEME>, decltype(&CloseThemeData)>;

Theme openTheme(HWND window, const wchar_t* name) { return {OpenThemeData(window, name), CloseThemeData}; }

void line(HDC context, int x1, int y1, int x2, int y2) {
  const RECT place{x1, y1, std::max(x1 + 1, x2), std::max(y1 + 1, y2)};
  FillRect(context, &place, GetSysColorBrush(COLOR_3DLIGHT));
}

}  // namespace

RECT GridPainter::arrowOf(const GridGeometry& geometry, int row) {
  RECT place = geometry.cell(ValueListRows::valueColumn, row);
  place.left = std::max(place.left, place.right - geometry.rowHeight);
  return place;
}

void paintGridBorder(HWND window, bool enabled) {
  const Theme theme = openTheme(window, L"EDIT");
  if (theme == nullptr) return;
  RECT whole{};
  GetWindowRect(window, &whole);
  OffsetRect(&whole, -whole.left, -whole.top);
  RECT inside = whole;
  InflateRect(&inside, -GetSystemMetrics(SM_CXEDGE), -GetSystemMetrics(SM_CYEDGE));
  const HDC context = GetWindowDC(window);
  ExcludeClipRect(context, inside.left, inside.top, inside.right, inside.bottom);
  DrawThemeBackground(theme.get(), context, EP_EDITBORDER_NOSCROLL, enabled ? EPSN_NORMAL : EPSN_DISABLED, &whole,
                      nullptr);
  ReleaseDC(window, context);
}

void GridPainter::paint(HDC context) const {
  const RECT all{0, 0, geometry_.width, geometry_.height};
  FillRect(context, &all, GetSysColorBrush(looks_.enabled ? COLOR_WINDOW : COLOR_BTNFACE));
  const HGDIOBJ before = SelectObject(context, looks_.font);
  SetBkMode(context, TRANSPARENT);
  const int last = std::min(geometry_.top + geometry_.pageRows() + 1, geometry_.rowCount);
  for (int row = geometry_.top; row < last; ++row) paintRow(context, row);
  paintTitles(context);
  SelectObject(context, before);
}

void GridPainter::paintTitles(HDC context) const {
  const Theme theme = openTheme(window_, L"HEADER");
  for (const int column : {ValueListRows::keyColumn, ValueListRows::valueColumn}) {
    RECT place = geometry_.cell(column, 0);
    if (theme != nullptr) {
      DrawThemeBackground(theme.get(), context, HP_HEADERITEM, HIS_NORMAL, &place, nullptr);
    } else {
      FillRect(context, &place, GetSysColorBrush(COLOR_BTNFACE));
      DrawEdge(context, &place, BDR_RAISEDINNER, BF_RECT);
    }
    paintText(context, place, rows_.cell(column, 0), looks_.enabled ? COLOR_BTNTEXT : COLOR_GRAYTEXT);
  }
}

void GridPainter::paintRow(HDC context, int row) const {
  const bool isCurrent = row == rows_.currentRow();
  const int back = looks_.focused ? COLOR_HIGHLIGHT : COLOR_3DLIGHT;
  int front = isCurrent && looks_.focused ? COLOR_HIGHLIGHTTEXT : COLOR_WINDOWTEXT;
  if (!looks_.enabled) front = COLOR_GRAYTEXT;
  RECT whole = geometry_.cell(ValueListRows::keyColumn, row);
  whole.right = geometry_.width;
  if (isCurrent) FillRect(context, &whole, GetSysColorBrush(back));
  paintText(context, geometry_.cell(ValueListRows::keyColumn, row), rows_.cell(ValueListRows::keyColumn, row), front);
  RECT value = geometry_.cell(ValueListRows::valueColumn, row);
  if (rows_.hasPickList(row)) {
    RECT arrow = arrowOf(geometry_, row);
    value.right = arrow.left;
    const Theme theme = openTheme(window_, L"COMBOBOX");
    if (theme != nullptr) {
      const int state = looks_.enabled ? CBXSR_NORMAL : CBXSR_DISABLED;
      DrawThemeBackground(theme.get(), context, CP_DROPDOWNBUTTONRIGHT, state, &arrow, nullptr);
    } else {
      DrawFrameControl(context, &arrow, DFC_SCROLL, DFCS_SCROLLCOMBOBOX | (looks_.enabled ? 0U : DFCS_INACTIVE));
    }
  }
  paintText(context, value, rows_.cell(ValueListRows::valueColumn, row), front);
  line(context, 0, whole.bottom - 1, geometry_.width, whole.bottom);
  line(context, geometry_.keyWidth() - 1, whole.top, geometry_.keyWidth(), whole.bottom);
}

void GridPainter::paintText(HDC context, RECT place, const std::string& text, int color) const {
  place.left += looks_.margin;
  place.right -= looks_.margin;
  SetTextColor(context, GetSysColor(color));
  DrawTextW(context, toWideLine(text).c_str(), -1, &place,
            DT_LEFT | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX | DT_END_ELLIPSIS);
}

}  // namespace mavCycEd::win32
