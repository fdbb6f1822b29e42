#include "win32/Win32ListBox.h"

#include <algorithm>

#include "kit/Notify.h"
#include "win32/Dpi.h"
#include "win32/Text.h"

namespace mavCycEd::win32 {
namespace {

/// What the list tells itself when the message at hand has been dealt with.
constexpr int WidthGrew = 1;

}  // namespace

Win32ListBox::Win32ListBox(const kit::CommandGate& gate, HWND parent, Win32Frame* frame)
    : NativeWindow(
          parent, frame,
          {L"LISTBOX",
           LBS_NODATA | LBS_OWNERDRAWFIXED | LBS_NOTIFY | LBS_NOINTEGRALHEIGHT | WS_VSCROLL | WS_HSCROLL | WS_TABSTOP,
           WS_EX_CLIENTEDGE}),
      gate_(gate) {}

std::vector<std::string> Win32ListBox::items() const {
  std::vector<std::string> items;
  for (int i = 0; i < itemCount(); ++i) items.push_back(itemText(i));
  return items;
}

void Win32ListBox::reset() {
  selection_.clear();
  showCount();
}

void Win32ListBox::splice(const kit::Splice& change) {
  selection_.splice(change);
  if (change.isInPlace()) {
    showAnew();
  } else {
    showCount();
  }
}

// The window forgets selection and place when it is told a number of lines.
void Win32ListBox::showCount() {
  const LRESULT top = send(LB_GETTOPINDEX);
  send(WM_SETREDRAW, FALSE);
  send(LB_SETCOUNT, static_cast<WPARAM>(itemCount()));
  send(LB_SETTOPINDEX, static_cast<WPARAM>(std::min<LRESULT>(top, std::max(itemCount() - 1, 0))));
  send(LB_SETCURSEL, static_cast<WPARAM>(index()));
  send(WM_SETREDRAW, TRUE);
  showAnew();
}

void Win32ListBox::showAnew() {
  if (handle() != nullptr) InvalidateRect(handle(), nullptr, TRUE);
  fitWidth();
}

void Win32ListBox::showSelection() { send(LB_SETCURSEL, static_cast<WPARAM>(index())); }

// How far the list scrolls sideways: an estimate from the longest text, so that no line has to be measured.
void Win32ListBox::fitWidth() {
  if (handle() == nullptr) return;
  const int average = TextMeasure(handle(), fontHandle()).averageWidth();
  constexpr std::size_t mostCharacters = 2000;
  const int longest = texts().longest();
  const std::size_t characters = longest < 0 ? 0 : itemText(longest).size();
  const int width = static_cast<int>(std::min(characters, mostCharacters)) * average + scaled(handle(), 8);
  send(LB_SETHORIZONTALEXTENT, static_cast<WPARAM>(width));
}

void Win32ListBox::setIndex(int index) {
  selection_.select(index == -1 ? index : texts().checked(index));
  showSelection();
  kit::tell(events_.Click);
}

platform::Font Win32ListBox::font() const { return itemFont_.value_or(asFont(systemFont(dpi_), dpi_)); }

void Win32ListBox::setItemFont(const platform::Font& font) {
  // The font that the list has already changes nothing, so that it goes on following the screen's.
  if (font == this->font()) return;
  itemFont_ = font;
  applyItemFont();
}

void Win32ListBox::setScreenFont(const FontHandle& font, int dpi) {
  dpi_ = dpi;
  NativeWindow::setScreenFont(font, dpi);
  applyItemFont();
}

void Win32ListBox::applyItemFont() {
  if (itemFont_) {
    itemFontHandle_ = makeFont(asDescription(*itemFont_, dpi_));
    send(WM_SETFONT, reinterpret_cast<WPARAM>(itemFontHandle_.get()), TRUE);
  }
  const HFONT font = itemFontHandle_ ? itemFontHandle_.get() : fontHandle();
  send(LB_SETITEMHEIGHT, 0, TextMeasure(handle(), font).lineHeight() + scaled(handle(), 2));
  fitWidth();
}

void Win32ListBox::setKeys(std::function<void()> onDelete, std::function<void()> onReturn) {
  onDelete_ = std::move(onDelete);
  onReturn_ = std::move(onReturn);
}

// The item at a place of the window, -1 where none is.
int Win32ListBox::itemAt(LPARAM place) const {
  const auto height = static_cast<int>(send(LB_GETITEMHEIGHT));
  const auto top = static_cast<int>(send(LB_GETTOPINDEX));
  const int y = GET_Y_LPARAM(place);
  if (y < 0 || height <= 0) return -1;
  const int index = top + y / height;
  return index < itemCount() ? index : -1;
}

void Win32ListBox::press(LPARAM place) {
  SetFocus(handle());
  choose(itemAt(place));
}

void Win32ListBox::choose(int index) {
  selection_.select(index);
  showSelection();
  raiseClick();
}

void Win32ListBox::raiseClick() {
  const kit::Lifeline::Watch alive = lifeline_.watch();
  gate_.pass();
  if (alive) kit::tell(events_.Click);
}

void Win32ListBox::doubleClick() {
  const kit::Lifeline::Watch alive = lifeline_.watch();
  gate_.pass();
  if (alive && index() >= 0) kit::tell(events_.DblClick);
}

std::optional<LRESULT> Win32ListBox::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_LBUTTONDOWN: press(lParam); return 0;
    case WM_LBUTTONDBLCLK:
      if (itemAt(lParam) >= 0 && itemAt(lParam) == index()) {
        doubleClick();
      } else {
        press(lParam);
      }
      return 0;
    case WM_LBUTTONUP: return 0;
    case WM_ENABLE: InvalidateRect(handle(), nullptr, TRUE); return std::nullopt;
    case WM_MOUSEMOVE:
      if ((wParam & MK_LBUTTON) != 0) return 0;
      return std::nullopt;
    case WM_GETDLGCODE: {
      const auto* const asked = reinterpret_cast<const MSG*>(lParam);
      const bool isEnter = asked != nullptr && asked->wParam == VK_RETURN && onReturn_ != nullptr;
      return callSystem(message, wParam, lParam) | (isEnter ? DLGC_WANTMESSAGE : 0);
    }
    case WM_CHAR: searchFor(static_cast<wchar_t>(wParam)); return 0;
    case WM_KEYDOWN: return onKey(message, wParam, lParam);
    default: return std::nullopt;
  }
}

std::optional<LRESULT> Win32ListBox::onKey(UINT message, WPARAM wParam, LPARAM lParam) {
  const bool control = GetKeyState(VK_CONTROL) < 0;
  switch (wParam) {
    case VK_DELETE: kit::tell(onDelete_); return 0;
    case VK_RETURN: kit::tell(onReturn_); return 0;
    case VK_SPACE:
      if (control) {
        if (index() >= 0) choose(-1);
      } else if (itemCount() > 0) {
        choose(index() >= 0 ? index() : static_cast<int>(send(LB_GETCARETINDEX)));
      }
      return 0;
    default: break;
  }
  const int before = index();
  callSystem(message, wParam, lParam);
  const auto now = static_cast<int>(send(LB_GETCURSEL));
  if (now != before) choose(now);
  return 0;
}

void Win32ListBox::searchFor(wchar_t character) {
  if (character <= L' ') return;
  const int found =
      typeAhead_.type(fromWide({&character, 1}), timeOfTyping(),
                      {.count = itemCount(), .current = index(), .text = [this](int item) { return itemText(item); }});
  if (found >= 0 && found != index()) choose(found);
}

void Win32ListBox::onDraw(const DRAWITEMSTRUCT& item) {
  const bool isSelected = (item.itemState & ODS_SELECTED) != 0;
  const bool isEnabled = isEnabledHere();
  const bool isActive = GetFocus() == handle();
  const int back = !isSelected ? COLOR_WINDOW : isActive ? COLOR_HIGHLIGHT : COLOR_3DLIGHT;
  const int front = !isEnabled ? COLOR_GRAYTEXT : isSelected && isActive ? COLOR_HIGHLIGHTTEXT : COLOR_WINDOWTEXT;
  FillRect(item.hDC, &item.rcItem, GetSysColorBrush(back));
  if (static_cast<int>(item.itemID) < itemCount() && item.itemID != static_cast<UINT>(-1)) {
    SetBkMode(item.hDC, TRANSPARENT);
    SetTextColor(item.hDC, GetSysColor(front));
    const auto drawn = static_cast<int>(item.itemID);
    if (notice(drawn)) post(WidthGrew);
    RECT place = item.rcItem;
    place.left += scaled(handle(), 4);
    DrawTextW(item.hDC, toWideLine(itemText(drawn)).c_str(), -1, &place,
              DT_LEFT | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX | DT_EXPANDTABS);
  }
  if ((item.itemState & ODS_FOCUS) != 0 && (item.itemState & ODS_NOFOCUSRECT) == 0) {
    DrawFocusRect(item.hDC, &item.rcItem);
  }
}

void Win32ListBox::onPosted(int what) {
  if (what == WidthGrew) fitWidth();
}

std::wstring Win32ListBox::Items::name(int item) const { return toWide(list_.itemText(item - 1)); }

RECT Win32ListBox::Items::place(int item) const {
  RECT place{};
  RECT client{};
  list_.send(LB_GETITEMRECT, static_cast<WPARAM>(item - 1), reinterpret_cast<LPARAM>(&place));
  GetClientRect(list_.handle(), &client);
  RECT visible{};
  IntersectRect(&visible, &place, &client);
  return visible;
}

void Win32ItemListBox::assign(std::vector<std::string> items) {
  items_.assign(std::move(items));
  reset();
}

void Win32ItemListBox::insertItem(int index, std::string_view text) {
  items_.insert(index, text);
  splice({.at = index, .removed = 0, .added = 1});
}

void Win32ItemListBox::removeItem(int index) {
  items_.remove(index);
  splice({.at = index, .removed = 1, .added = 0});
}

void Win32ItemListBox::setItemText(int index, std::string_view text) {
  items_.setText(index, text);
  splice({.at = index, .removed = 1, .added = 1});
}

void Win32LineListBox::clear() {
  lines_.clear();
  reset();
}

void Win32LineListBox::showLines(const platform::ListLines& lines) {
  lines_.show(lines);
  reset();
}

void Win32LineListBox::spliced(int at, int removed, int added) {
  const kit::Splice change{.at = at, .removed = removed, .added = added};
  lines_.splice(change);
  splice(change);
}

}  // namespace mavCycEd::win32
