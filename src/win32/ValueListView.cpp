#include "win32/ValueListView.h"

#include <algorithm>
#include <cmath>

#include "win32/Dpi.h"
#include "win32/GridPainter.h"
#include "win32/Text.h"
#include "win32/WindowClass.h"

namespace mavCycEd::win32 {
namespace {

using platform::MouseButton;

bool isDown(int key) { return GetKeyState(key) < 0; }
bool isPlain() { return !isDown(VK_CONTROL) && !isDown(VK_MENU) && !isDown(VK_SHIFT); }

POINT placeOf(LPARAM lParam) { return {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)}; }

}  // namespace

ValueListView::ValueListView(GridRows& rows, HWND parent, Win32Frame* frame)
    : NativeWindow(parent, frame,
                   {ownWindowClass(L"mavCycEd.ValueList", CS_DBLCLKS), WS_TABSTOP | WS_VSCROLL | WS_CLIPCHILDREN,
                    WS_EX_CLIENTEDGE}),
      rows_(rows),
      toolTip_(handle()),
      cellEdit_(std::make_unique<CellEdit>(rows, *this)) {
  fit();
}

// An editor that is still open goes first; nobody is to hear of it.
ValueListView::~ValueListView() { cellEdit_.reset(); }

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
  geometry_.rowHeight = std::max(needed, scaled(handle(), GridGeometry::rowUnits));
  geometry_.titleHeight = geometry_.rowHeight;
  onSize();
}

void ValueListView::onSize() {
  RECT client{};
  GetClientRect(handle(), &client);
  geometry_.width = client.right;
  geometry_.height = client.bottom;
  rowsChanged();
}

void ValueListView::rowsChanged() {
  geometry_.rowCount = rows_.rows.rowCount();
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
  cellEdit_->follow();
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
  const bool focused = GetFocus() == handle() || cellEdit_->isOpen();
  const GridPainter::Looks looks{font_.get(), isEnabledHere(), focused, scaled(handle(), 4)};
  GridPainter(handle(), rows_, geometry_, looks).paint(memory);
  BitBlt(screen, 0, 0, geometry_.width, geometry_.height, memory, 0, 0, SRCCOPY);
  SelectObject(memory, before);
  DeleteObject(picture);
  DeleteDC(memory);
  EndPaint(handle(), &paint);
  return 0;
}

void ValueListView::showCurrentRow() {
  const int row = rows_.rows.currentRow();
  if (row != 0 && !geometry_.isInView(row)) {
    scrollTo(row < geometry_.top ? row : row - geometry_.pageRows() + 1);
  }
  repaint();
}

void ValueListView::chooseRow(int row) {
  if (rows_.rows.isParameterRow(row) && row != rows_.rows.currentRow()) makeCurrent(row);
}

void ValueListView::makeCurrent(int row) {
  rows_.rows.setCurrentRow(row);
  showCurrentRow();
  if (handle() != nullptr) NotifyWinEvent(EVENT_OBJECT_FOCUS, handle(), OBJID_CLIENT, row);
  tell(events_.rowChosen);
}

void ValueListView::editCurrentRow() {
  if (handle() == nullptr) return;
  const int row = rows_.rows.currentRow();
  showCurrentRow();
  if (row == 0) {
    SetFocus(handle());
  } else {
    cellEdit_->open(row);
  }
}

bool ValueListView::isDivider(POINT place) const {
  return place.y < geometry_.titleHeight && std::abs(place.x - geometry_.keyWidth()) <= scaled(handle(), 3);
}

void ValueListView::onPress(MouseButton button, POINT place) {
  const Lifeline::Watch alive = lifeline_.watch();
  listWanted_ = false;
  cellEdit_->end();
  if (!alive) return;
  if (button == MouseButton::Primary && isDivider(place)) {
    dragging_ = true;
    SetCapture(handle());
    return;
  }
  SetFocus(handle());
  const int pressed = geometry_.rowAt(place.y);
  if (pressed > 0) chooseRow(pressed);
  if (!alive) return;
  const POINT units = geometry_.unitsAt(place);
  tell(events_.mousePressed, button, static_cast<int>(units.x), static_cast<int>(units.y));
  if (!alive || button != MouseButton::Primary || !isEnabledHere()) return;
  // What was told may have changed the rows.
  const int row = geometry_.rowAt(place.y);
  if (row <= 0 || row != rows_.rows.currentRow() || place.x < geometry_.keyWidth()) return;
  const RECT arrow = GridPainter::arrowOf(geometry_, row);
  editCurrentRow();
  listWanted_ = rows_.hasList(row) && PtInRect(&arrow, place) != FALSE;
}

void ValueListView::onMove(POINT place, bool isLeftDown) {
  if (dragging_ && isLeftDown) {
    geometry_.keyShare = geometry_.width > 0 ? static_cast<double>(place.x) / geometry_.width : geometry_.keyShare;
    cellEdit_->follow();
    repaint();
    return;
  }
  const POINT units = geometry_.unitsAt(place);
  tell(events_.mouseMoved, static_cast<int>(units.x), static_cast<int>(units.y));
}

void ValueListView::onRelease(POINT) {
  if (std::exchange(dragging_, false)) ReleaseCapture();
  if (std::exchange(listWanted_, false)) cellEdit_->showList();
}

void ValueListView::onContextMenu(POINT place) {
  if (place.x == -1 && place.y == -1) {
    askForMenuByKey();
    return;
  }
  const Lifeline::Watch alive = lifeline_.watch();
  cellEdit_->end();
  if (!alive) return;
  POINT inside = place;
  ScreenToClient(handle(), &inside);
  chooseRow(std::max(geometry_.rowAt(inside.y), 0));
  if (alive) askForMenu(geometry_.unitsAt(inside), place);
}

// No press comes before such a request that would tell of the row: it is told in any case.
void ValueListView::askForMenuByKey() {
  const Lifeline::Watch alive = lifeline_.watch();
  const int edited = cellEdit_->row();
  cellEdit_->end();
  if (!alive) return;
  const int row = edited != 0 ? edited : rows_.rows.currentRow();
  if (!rows_.rows.isParameterRow(row)) return;
  makeCurrent(row);
  if (!alive) return;
  const RECT cell = geometry_.cell(GridRows::valueColumn, row);
  POINT middle{(cell.left + cell.right) / 2, (cell.top + cell.bottom) / 2};
  const POINT units = geometry_.unitsAt(middle);
  ClientToScreen(handle(), &middle);
  askForMenu(units, middle);
}

void ValueListView::askForMenu(POINT units, POINT place) {
  menuPlace_ = place;
  tell(events_.menuAskedFor, static_cast<int>(units.x), static_cast<int>(units.y));
}

bool ValueListView::moveBy(WPARAM key) {
  const int current = rows_.rows.currentRow();
  const int last = rows_.rows.rowCount() - 1;
  switch (key) {
    case VK_UP: chooseRow(current - 1); return true;
    case VK_DOWN: chooseRow(current + 1); return true;
    case VK_PRIOR: chooseRow(std::max(current - geometry_.pageRows(), 1)); return true;
    case VK_NEXT: chooseRow(std::min(current + geometry_.pageRows(), last)); return true;
    case VK_HOME: chooseRow(1); return true;
    case VK_END: chooseRow(last); return true;
    default: return false;
  }
}

void ValueListView::copyCurrent() const {
  const std::wstring text = toWide(rows_.rows.cell(GridRows::valueColumn, rows_.rows.currentRow()));
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

bool ValueListView::onKey(WPARAM key) {
  const bool isListKey = (key == VK_F4 && isPlain()) || (isDown(VK_MENU) && (key == VK_UP || key == VK_DOWN));
  if (isListKey) {
    editCurrentRow();
    cellEdit_->showList();
    return true;
  }
  if (isDown(VK_CONTROL) && (key == 'C' || key == VK_INSERT)) {
    copyCurrent();
    return true;
  }
  const bool opens = isPlain() && (key == VK_F2 || (key == VK_RETURN && enterOpens_));
  const bool deletes = isPlain() && (key == VK_DELETE || key == VK_BACK);
  const bool pastes = (isDown(VK_CONTROL) && key == 'V') || (isDown(VK_SHIFT) && key == VK_INSERT);
  if (opens || deletes || pastes) {
    if (rows_.rows.currentRow() == 0) return true;
    editCurrentRow();
    if (deletes) SendMessageW(cellEdit_->line(), WM_CLEAR, 0, 0);
    if (pastes) SendMessageW(cellEdit_->line(), WM_PASTE, 0, 0);
    return true;
  }
  return isPlain() && moveBy(key);
}

// A typed character opens the editor and goes there.
bool ValueListView::onCharacter(WPARAM character) {
  if (character < L' ' || character == 0x7F || rows_.rows.currentRow() == 0) return true;
  editCurrentRow();
  if (const HWND line = cellEdit_->line()) SendMessageW(line, WM_CHAR, character, 1);
  return true;
}

void ValueListView::goOn(int row, CellEdit::Step step) {
  using Step = CellEdit::Step;
  const int last = rows_.rows.rowCount() - 1;
  int target = 0;
  switch (step) {
    case Step::NextCell:
    case Step::NextLine:
    case Step::Down: target = row + 1; break;
    case Step::PreviousCell:
    case Step::Up: target = row - 1; break;
    case Step::PageDown: target = std::min(row + geometry_.pageRows(), last); break;
    case Step::PageUp: target = std::max(row - geometry_.pageRows(), 1); break;
  }
  if (rows_.rows.isParameterRow(target)) {
    const Lifeline::Watch alive = lifeline_.watch();
    chooseRow(target);
    if (alive) editCurrentRow();
  } else if (step == Step::NextCell || step == Step::PreviousCell) {
    const HWND root = GetAncestor(handle(), GA_ROOT);
    const HWND next = GetNextDlgTabItem(root, handle(), step == Step::PreviousCell ? TRUE : FALSE);
    SetFocus(next != nullptr ? next : handle());
  } else if (step != Step::NextLine) {
    editCurrentRow();  // at the first or last row an arrow leads nowhere
  }
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
    case WM_LBUTTONUP: onRelease(placeOf(lParam)); return 0;
    case WM_MOUSEMOVE: onMove(placeOf(lParam), (wParam & MK_LBUTTON) != 0); return 0;
    case WM_CONTEXTMENU: onContextMenu(placeOf(lParam)); return 0;
    case WM_GETDLGCODE: {
      const auto* const asked = reinterpret_cast<const MSG*>(lParam);
      const bool isEnter =
          asked != nullptr && asked->wParam == VK_RETURN && enterOpens_ && rows_.rows.currentRow() != 0;
      return DLGC_WANTARROWS | DLGC_WANTCHARS | (isEnter ? DLGC_WANTMESSAGE : 0);
    }
    case WM_SYSKEYDOWN:
    case WM_KEYDOWN:
      if (onKey(wParam)) return 0;
      break;
    case WM_CHAR:
      if (onCharacter(wParam)) return 0;
      break;
    default: break;
  }
  return std::nullopt;
}

std::wstring ValueListView::Items::name(int item) const {
  return toWide(view_.rows_.rows.cell(GridRows::keyColumn, item));
}

std::wstring ValueListView::Items::value(int item) const {
  return toWide(view_.rows_.rows.cell(GridRows::valueColumn, item));
}

RECT ValueListView::Items::place(int item) const {
  if (!view_.geometry_.isInView(item)) return {};
  RECT place = view_.geometry_.cell(GridRows::valueColumn, item);
  place.left = 0;
  return place;
}

}  // namespace mavCycEd::win32
