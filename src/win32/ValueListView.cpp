#include "win32/ValueListView.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "win32/Dpi.h"
#include "win32/GridKeys.h"
#include "win32/GridPainter.h"
#include "win32/Text.h"
#include "win32/WindowClass.h"

namespace mavCycEd::win32 {
namespace {

using platform::MouseButton;

POINT placeOf(LPARAM lParam) { return {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)}; }
kit::Place placeOf(POINT point) { return {point.x, point.y}; }
POINT pointAt(kit::Place place) { return {place.x, place.y}; }

}  // namespace

ValueListView::ValueListView(std::shared_ptr<kit::ValueList> list, HWND parent, Win32Frame* frame)
    : NativeWindow(parent, frame,
                   {ownWindowClass(L"mavCycEd.ValueList", CS_DBLCLKS), WS_TABSTOP | WS_VSCROLL | WS_CLIPCHILDREN,
                    WS_EX_CLIENTEDGE}),
      list_(std::move(list)),
      toolTip_(handle()) {
  list_->setScreen(this, &cellEditor_);
  list_->setObserver(this);
  fit();
}

// An editor that is still open goes with the view; nobody is to hear of it.
ValueListView::~ValueListView() {
  list_->setObserver(nullptr);
  list_->setScreen(nullptr, nullptr);
}

platform::Font ValueListView::font() const { return ownFont_.value_or(asFont(systemFont(dpi_), dpi_)); }

void ValueListView::setFont(const platform::Font& font) {
  // The font that the grid has already changes nothing, so that it goes on following the screen's.
  if (font == this->font()) return;
  ownFont_ = font;
  font_ = makeFont(asDescription(font, dpi_));
  fit();
}

void ValueListView::setScreenFont(const FontHandle& font, int dpi) {
  NativeWindow::setScreenFont(font, dpi);
  dpi_ = dpi;
  font_ = ownFont_ ? makeFont(asDescription(*ownFont_, dpi)) : font;
  fit();
}

// A row is as high as an editor in it needs.
void ValueListView::fit() {
  const int needed = TextMeasure(handle(), font_.get()).lineHeight() + scaled(handle(), 8);
  geometry_.rowHeight = std::max(needed, scaled(handle(), kit::units::rowHeight));
  geometry_.titleHeight = geometry_.rowHeight;
  onSize();
}

void ValueListView::onSize() {
  RECT client{};
  GetClientRect(handle(), &client);
  geometry_.width = client.right;
  geometry_.height = client.bottom;
  fitToRows();
}

void ValueListView::fitToRows() {
  geometry_.rowCount = rows().rowCount();
  SCROLLINFO scroll{};
  scroll.cbSize = sizeof scroll;
  scroll.fMask = SIF_RANGE | SIF_PAGE;
  scroll.nMin = 1;
  scroll.nMax = std::max(geometry_.rowCount - 1, 1);
  scroll.nPage = static_cast<UINT>(geometry_.pageRows());
  const int widthBefore = geometry_.width;
  SetScrollInfo(handle(), SB_VERT, &scroll, TRUE);
  RECT client{};
  GetClientRect(handle(), &client);  // the scroll bar may have come or gone
  if (client.right != widthBefore) geometry_.width = client.right;
  scrollTo(geometry_.top);
}

void ValueListView::repaint() {
  if (handle() != nullptr) InvalidateRect(handle(), nullptr, FALSE);
}

void ValueListView::scrollTo(int top) {
  geometry_.top = std::clamp(top, 1, std::max(geometry_.rowCount - geometry_.pageRows(), 1));
  SetScrollPos(handle(), SB_VERT, geometry_.top, TRUE);
  cellEditor_.follow();
  repaint();
}

void ValueListView::onScroll(int request) {
  SCROLLINFO scroll{};
  scroll.cbSize = sizeof scroll;
  scroll.fMask = SIF_TRACKPOS;
  switch (request) {
    case SB_LINEUP: scrollTo(geometry_.top - 1); break;
    case SB_LINEDOWN: scrollTo(geometry_.top + 1); break;
    case SB_PAGEUP: scrollTo(geometry_.top - geometry_.pageRows()); break;
    case SB_PAGEDOWN: scrollTo(geometry_.top + geometry_.pageRows()); break;
    case SB_THUMBTRACK:
    case SB_THUMBPOSITION:
      if (GetScrollInfo(handle(), SB_VERT, &scroll) != FALSE) scrollTo(scroll.nTrackPos);
      break;
    default: break;
  }
}

void ValueListView::onWheel(int delta) {
  constexpr int rowsPerTurn = 3;
  wheel_ += delta * rowsPerTurn;
  scrollTo(geometry_.top - wheel_ / WHEEL_DELTA);
  wheel_ %= WHEEL_DELTA;
}

LRESULT ValueListView::onPaint() {
  PAINTSTRUCT paint{};
  const HDC screen = BeginPaint(handle(), &paint);
  const HDC memory = CreateCompatibleDC(screen);
  const HBITMAP picture = CreateCompatibleBitmap(screen, std::max(geometry_.width, 1), std::max(geometry_.height, 1));
  const HGDIOBJ before = SelectObject(memory, picture);
  const bool focused = GetFocus() == handle() || list_->edit().isOpen();
  const GridPainter::Looks looks{font_.get(), isEnabledHere(), focused, scaled(handle(), 4)};
  GridPainter(handle(), rows(), geometry_, looks).paint(memory);
  BitBlt(screen, 0, 0, geometry_.width, geometry_.height, memory, 0, 0, SRCCOPY);
  SelectObject(memory, before);
  DeleteObject(picture);
  DeleteDC(memory);
  EndPaint(handle(), &paint);
  return 0;
}

void ValueListView::showCurrentRow() {
  const int row = rows().currentRow();
  if (row != 0 && !geometry_.isInView(row)) {
    scrollTo(row < geometry_.top ? row : row - geometry_.pageRows() + 1);
  }
  cellEditor_.follow();
  repaint();
}

void ValueListView::announceCurrentRow() {
  if (handle() != nullptr) NotifyWinEvent(EVENT_OBJECT_FOCUS, handle(), OBJID_CLIENT, rows().currentRow());
}

kit::GridHit ValueListView::hitAt(kit::Place place) const {
  const POINT point = pointAt(place);
  const int row = geometry_.rowAt(point.y);
  const bool onValue = row > 0 && point.x >= geometry_.keyWidth();
  const RECT arrow = GridPainter::arrowOf(geometry_, row);
  const POINT units = geometry_.unitsAt(point);
  return {.row = row,
          .onValue = onValue,
          .onArrow = onValue && rows().hasPickList(row) && PtInRect(&arrow, point) != FALSE,
          .x = units.x,
          .y = units.y};
}

kit::Place ValueListView::middleOf(int row) const {
  const RECT cell = geometry_.cell(kit::ValueListRows::valueColumn, row);
  return {(cell.left + cell.right) / 2, (cell.top + cell.bottom) / 2};
}

void ValueListView::takeFocus() {
  if (handle() != nullptr) SetFocus(handle());
}

void ValueListView::passFocus(bool forward) {
  const HWND next = GetNextDlgTabItem(GetAncestor(handle(), GA_ROOT), handle(), forward ? FALSE : TRUE);
  SetFocus(next != nullptr ? next : handle());
}

bool ValueListView::isDivider(POINT place) const {
  return place.y < geometry_.titleHeight && std::abs(place.x - geometry_.keyWidth()) <= scaled(handle(), 3);
}

// The titles take no focus, and what is edited stays open while the divider between them is dragged.
void ValueListView::onPress(MouseButton button, POINT place) {
  const kit::Lifeline::Watch alive = lifeline_.watch();
  const auto list = list_;
  if (geometry_.rowAt(place.y) != 0) {
    list->endEdit();
    if (!alive) return;
    SetFocus(handle());
  } else if (button == MouseButton::Primary && isDivider(place)) {
    dragging_ = true;
    SetCapture(handle());
  }
  list->pressMouse(button, placeOf(place));
}

void ValueListView::onMove(POINT place, bool isLeftDown) {
  if (dragging_ && isLeftDown) {
    geometry_.keyShare = geometry_.width > 0 ? static_cast<double>(place.x) / geometry_.width : geometry_.keyShare;
    cellEditor_.follow();
    repaint();
    return;
  }
  std::shared_ptr(list_)->moveMouse(placeOf(place));
}

void ValueListView::onRelease() {
  if (std::exchange(dragging_, false)) ReleaseCapture();
  list_->releaseMouse();
}

void ValueListView::onContextMenu(POINT place) {
  const auto list = list_;
  if (place.x == -1 && place.y == -1) {
    list->askForMenuByKey();
    return;
  }
  ScreenToClient(handle(), &place);
  list->askForMenu(placeOf(place));
}

POINT ValueListView::menuPlace() const {
  POINT place = pointAt(list_->menuPlace());
  ClientToScreen(handle(), &place);
  return place;
}

void ValueListView::copy(std::string_view value) {
  const std::wstring text = toWide(value);
  if (OpenClipboard(handle()) == FALSE) return;
  EmptyClipboard();
  const std::size_t size = (text.size() + 1) * sizeof(wchar_t);
  if (const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, size)) {
    std::copy_n(text.c_str(), text.size() + 1, static_cast<wchar_t*>(GlobalLock(memory)));
    GlobalUnlock(memory);
    if (SetClipboardData(CF_UNICODETEXT, memory) == nullptr) GlobalFree(memory);
  }
  CloseClipboard();
}

// An editor that the keys no longer go to has been left, also when its own message of that is still on its way.
bool ValueListView::onKey(WPARAM key) {
  const kit::Lifeline::Watch alive = lifeline_.watch();
  cellEditor_.checkFocus();
  if (!alive) return true;
  const auto answer = std::shared_ptr(list_)->pressKey(keyPressOf(key));
  if (!alive || answer != kit::ValueList::KeyAnswer::IntoEditor) return answer != kit::ValueList::KeyAnswer::NotTaken;
  // The value is selected.
  const bool deletes = key == VK_DELETE || key == VK_BACK;
  const UINT cutOrClear = key == VK_DELETE && isDown(VK_SHIFT) ? WM_CUT : WM_CLEAR;
  SendMessageW(cellEditor_.window(), deletes ? cutOrClear : WM_PASTE, 0, 0);
  return true;
}

// A typed character opens the editor and goes there.
void ValueListView::onCharacter(WPARAM character) {
  if (character < L' ' || character == 0x7F) return;
  const kit::Lifeline::Watch alive = lifeline_.watch();
  cellEditor_.checkFocus();
  if (!alive) return;
  const auto answer = std::shared_ptr(list_)->pressKey({.key = kit::Key::Character});
  if (!alive || answer != kit::ValueList::KeyAnswer::IntoEditor) return;
  SendMessageW(cellEditor_.window(), WM_CHAR, character, 1);
}

std::optional<LRESULT> ValueListView::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  LRESULT result = 0;
  if (reflect(message, wParam, lParam, result)) return result;
  switch (message) {
    case WM_PAINT: return onPaint();
    case WM_NCPAINT:
      result = callSystem(message, wParam, lParam);
      paintGridBorder(handle(), isEnabledHere());
      return result;
    case WM_ERASEBKGND: return 1;
    case WM_SIZE: onSize(); return 0;
    case WM_VSCROLL: onScroll(LOWORD(wParam)); return 0;
    case WM_MOUSEWHEEL: onWheel(GET_WHEEL_DELTA_WPARAM(wParam)); return 0;
    case WM_ENABLE: RedrawWindow(handle(), nullptr, nullptr, RDW_INVALIDATE | RDW_FRAME); return 0;
    case WM_SETFOCUS:
    case WM_KILLFOCUS: repaint(); return 0;
    case WM_SETCURSOR: {
      POINT place{};
      GetCursorPos(&place);
      ScreenToClient(handle(), &place);
      if (LOWORD(lParam) != HTCLIENT || reinterpret_cast<HWND>(wParam) != handle() || !isDivider(place)) break;
      SetCursor(LoadCursorW(nullptr, IDC_SIZEWE));
      return TRUE;
    }
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK: onPress(MouseButton::Primary, placeOf(lParam)); return 0;
    case WM_RBUTTONDOWN:
    case WM_RBUTTONDBLCLK: onPress(MouseButton::Secondary, placeOf(lParam)); return 0;
    case WM_MBUTTONDOWN: onPress(MouseButton::Middle, placeOf(lParam)); return 0;
    case WM_LBUTTONUP: onRelease(); return 0;
    case WM_MOUSEMOVE: onMove(placeOf(lParam), (wParam & MK_LBUTTON) != 0); return 0;
    case WM_CONTEXTMENU: onContextMenu(placeOf(lParam)); return 0;
    case WM_GETDLGCODE: {
      const auto* const asked = reinterpret_cast<const MSG*>(lParam);
      const bool isEnter = asked != nullptr && asked->wParam == VK_RETURN && rows().currentRow() != 0 &&
                           list_->wantsKey({.key = kit::Key::Enter});
      return DLGC_WANTARROWS | DLGC_WANTCHARS | (isEnter ? DLGC_WANTMESSAGE : 0);
    }
    case WM_SYSKEYDOWN:
    case WM_KEYDOWN:
      if (onKey(wParam)) return 0;
      break;
    case WM_CHAR: onCharacter(wParam); return 0;
    default: break;
  }
  return std::nullopt;
}

std::wstring ValueListView::Items::name(int item) const {
  return toWide(view_.rows().cell(kit::ValueListRows::keyColumn, item));
}

std::wstring ValueListView::Items::value(int item) const {
  return toWide(view_.rows().cell(kit::ValueListRows::valueColumn, item));
}

RECT ValueListView::Items::place(int item) const {
  if (!view_.geometry_.isInView(item)) return {};
  RECT place = view_.geometry_.cell(kit::ValueListRows::valueColumn, item);
  place.left = 0;
  return place;
}

}  // namespace mavCycEd::win32
