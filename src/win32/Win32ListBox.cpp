#include "win32/Win32ListBox.h"

#include <algorithm>

#include "platform/RunTimeError.h"
#include "win32/Dpi.h"
#include "win32/Text.h"

namespace mavCycEd::win32 {

Win32ListBox::Win32ListBox(const platform::CommandGate& gate, HWND parent, Win32Frame* frame)
    : NativeWindow(
          parent, frame,
          {L"LISTBOX",
           LBS_NODATA | LBS_OWNERDRAWFIXED | LBS_NOTIFY | LBS_NOINTEGRALHEIGHT | WS_VSCROLL | WS_HSCROLL | WS_TABSTOP,
           WS_EX_CLIENTEDGE}),
      gate_(gate) {}

std::size_t Win32ListBox::checked(int index) const {
  if (index < 0 || index >= itemCount()) throw RunTimeError(ErrorNumber::InvalidProcedureCall);
  return static_cast<std::size_t>(index);
}

void Win32ListBox::assign(std::vector<std::string> items) {
  items_ = std::move(items);
  lines_ = nullptr;
  index_ = -1;
  longest_ = 0;
  for (const std::string& item : items_) longest_ = std::max(longest_, item.size());
  showCount();
}

void Win32ListBox::showLines(const platform::ListLines& lines) {
  items_.clear();
  lines_ = &lines;
  lineCount_ = lines.count();
  index_ = -1;
  showCount();
}

void Win32ListBox::lineAdded() {
  ++lineCount_;
  showCount();
}

void Win32ListBox::lineChanged(int index) {
  checked(index);
  showItem(index);
}

std::string Win32ListBox::itemText(int index) const {
  const std::size_t at = checked(index);
  return lines_ != nullptr ? lines_->text(index) : items_[at];
}

std::vector<std::string> Win32ListBox::items() const {
  std::vector<std::string> texts;
  for (int i = 0; i < itemCount(); ++i) texts.push_back(itemText(i));
  return texts;
}

void Win32ListBox::addItem(std::string_view text) {
  items_.emplace_back(text);
  longest_ = std::max(longest_, text.size());
  showCount();
}

void Win32ListBox::removeItem(int index) {
  items_.erase(items_.begin() + static_cast<std::ptrdiff_t>(checked(index)));
  if (index == index_) {
    index_ = -1;
  } else if (index < index_) {
    --index_;
  }
  showCount();
}

void Win32ListBox::setItemText(int index, std::string_view text) {
  items_[checked(index)] = text;
  longest_ = std::max(longest_, text.size());
  showItem(index);
}

void Win32ListBox::showItem(int index) {
  RECT place{};
  send(LB_GETITEMRECT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&place));
  if (handle() != nullptr) InvalidateRect(handle(), &place, TRUE);
  fitWidth();
}

// The window forgets selection and place when it is told a number of lines.
void Win32ListBox::showCount() {
  const LRESULT top = send(LB_GETTOPINDEX);
  send(WM_SETREDRAW, FALSE);
  send(LB_SETCOUNT, static_cast<WPARAM>(itemCount()));
  send(LB_SETTOPINDEX, static_cast<WPARAM>(std::min<LRESULT>(top, std::max(itemCount() - 1, 0))));
  send(LB_SETCURSEL, static_cast<WPARAM>(index_));
  send(WM_SETREDRAW, TRUE);
  if (handle() != nullptr) InvalidateRect(handle(), nullptr, TRUE);
  fitWidth();
}

void Win32ListBox::showSelection() { send(LB_SETCURSEL, static_cast<WPARAM>(index_)); }

// How far the list scrolls sideways: an estimate from the longest text, so that no line has to be measured.
void Win32ListBox::fitWidth() {
  if (handle() == nullptr) return;
  const int average = TextMeasure(handle(), fontHandle()).averageWidth();
  constexpr std::size_t mostCharacters = 2000;
  std::size_t characters = longest_;
  if (lines_ != nullptr) characters = lines_->longest() < 0 ? 0 : lines_->text(lines_->longest()).size();
  const int width = static_cast<int>(std::min(characters, mostCharacters)) * average + scaled(handle(), 8);
  send(LB_SETHORIZONTALEXTENT, static_cast<WPARAM>(width));
}

void Win32ListBox::setIndex(int index) {
  if (index != -1) checked(index);
  index_ = index;
  showSelection();
  tell(events_.Click);
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
  index_ = index;
  showSelection();
  raiseClick();
}

void Win32ListBox::raiseClick() {
  const Lifeline::Watch alive = lifeline_.watch();
  gate_.pass();
  if (alive) tell(events_.Click);
}

void Win32ListBox::doubleClick() {
  const Lifeline::Watch alive = lifeline_.watch();
  gate_.pass();
  if (alive && index_ >= 0) tell(events_.DblClick);
}

std::optional<LRESULT> Win32ListBox::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_LBUTTONDOWN: press(lParam); return 0;
    case WM_LBUTTONDBLCLK:
      if (itemAt(lParam) >= 0 && itemAt(lParam) == index_) {
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
    case WM_CHAR: return searchFor(static_cast<wchar_t>(wParam)) ? std::optional<LRESULT>(0) : std::nullopt;
    case WM_KEYDOWN: return onKey(message, wParam, lParam);
    default: return std::nullopt;
  }
}

std::optional<LRESULT> Win32ListBox::onKey(UINT message, WPARAM wParam, LPARAM lParam) {
  const bool control = GetKeyState(VK_CONTROL) < 0;
  switch (wParam) {
    case VK_DELETE: tell(onDelete_); return 0;
    case VK_RETURN: tell(onReturn_); return 0;
    case VK_SPACE:
      if (control) {
        if (index_ >= 0) choose(-1);
      } else if (itemCount() > 0) {
        choose(index_ >= 0 ? index_ : static_cast<int>(send(LB_GETCARETINDEX)));
      }
      return 0;
    default: break;
  }
  const int before = index_;
  callSystem(message, wParam, lParam);
  const auto now = static_cast<int>(send(LB_GETCURSEL));
  if (now != before) choose(now);
  return 0;
}

// The next item that begins with what is typed without a pause. The same character again and again goes from one item
// to the next.
bool Win32ListBox::searchFor(wchar_t character) {
  if (character <= L' ' || itemCount() == 0) return true;
  constexpr ULONGLONG pause = 1000;
  const ULONGLONG now = GetTickCount64();
  if (now - searchedAt_ > pause) searched_.clear();
  searchedAt_ = now;
  CharUpperBuffW(&character, 1);
  searched_ += character;
  const bool isOne = searched_.find_first_not_of(character) == std::wstring::npos;
  const std::wstring wanted = isOne ? std::wstring(1, character) : searched_;
  const int count = itemCount();
  const int first = std::max(index_, 0) + (isOne && index_ >= 0 ? 1 : 0);
  for (int step = 0; step < count; ++step) {
    const int index = (first + step) % count;
    constexpr std::size_t bytesPerCharacter = 4;
    std::wstring text = toWide(itemText(index).substr(0, bytesPerCharacter * wanted.size())).substr(0, wanted.size());
    CharUpperBuffW(text.data(), static_cast<DWORD>(text.size()));
    if (text != wanted) continue;
    if (index != index_ || isOne) choose(index);
    return true;
  }
  return true;
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
    RECT place = item.rcItem;
    place.left += scaled(handle(), 4);
    DrawTextW(item.hDC, toWideLine(itemText(static_cast<int>(item.itemID))).c_str(), -1, &place,
              DT_LEFT | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX | DT_EXPANDTABS);
  }
  if ((item.itemState & ODS_FOCUS) != 0 && (item.itemState & ODS_NOFOCUSRECT) == 0) {
    DrawFocusRect(item.hDC, &item.rcItem);
  }
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

}  // namespace mavCycEd::win32
