#include "win32/Win32ComboBox.h"

#include <algorithm>

#include "kit/Notify.h"
#include "platform/RunTimeError.h"
#include "text/LineEnds.h"
#include "win32/ComboLine.h"
#include "win32/Dpi.h"
#include "win32/Text.h"

namespace mavCycEd::win32 {
namespace {

DWORD styleOf(Win32ComboBox::Mode mode) {
  const DWORD kind = mode == Win32ComboBox::Mode::PickOnly ? CBS_DROPDOWNLIST | CBS_OWNERDRAWFIXED | CBS_HASSTRINGS
                                                           : CBS_DROPDOWN | CBS_AUTOHSCROLL;
  return kind | WS_VSCROLL | WS_TABSTOP;
}

}  // namespace

Win32ComboBox::Win32ComboBox(const kit::CommandGate& gate, Mode mode, HWND parent, Win32Frame* frame)
    : NativeWindow(parent, frame, {L"COMBOBOX", styleOf(mode)}), gate_(gate), mode_(mode) {
  constexpr int mostVisibleItems = 20;
  send(CB_SETMINVISIBLE, mostVisibleItems);
  send(CB_LIMITTEXT, 0);  // as much as there is memory for
}

void Win32ComboBox::assign(std::vector<std::string> items) {
  items_ = std::move(items);
  places_.forget();
  send(WM_SETREDRAW, FALSE);
  send(CB_RESETCONTENT);
  for (const std::string& item : items_) send(CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(toWideLine(item).c_str()));
  send(WM_SETREDRAW, TRUE);
  fitList();
  show(-1, {});
}

void Win32ComboBox::addItem(std::string_view text) {
  items_.emplace_back(text);
  send(CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(toWideLine(text).c_str()));
  fitList();
}

std::string Win32ComboBox::itemText(int index) const {
  if (index < 0 || index >= itemCount()) throw RunTimeError(ErrorNumber::InvalidProcedureCall);
  return items_[static_cast<std::size_t>(index)];
}

void Win32ComboBox::setIndex(int index) {
  show(index, index == -1 ? std::string() : itemText(index));
  kit::tell(events_.Click);
}

void Win32ComboBox::setText(std::string_view text) {
  show(places_.of(text, items_), std::string(text));
  kit::tell(events_.Click);
}

void Win32ComboBox::show(int index, std::string text) {
  index_ = index;
  text_ = std::move(text);
  showNow();
}

void Win32ComboBox::showNow() {
  showing_ = true;
  send(CB_SETCURSEL, static_cast<WPARAM>(index_));
  if (mode_ == Mode::TypedToo) NativeWindow::setText(toWide(text_));
  if (handle() != nullptr) InvalidateRect(handle(), nullptr, TRUE);
  showing_ = false;
}

// The list is as wide as its longest text, up to a limit.
void Win32ComboBox::fitList() {
  if (handle() == nullptr || items_.empty()) return;
  const auto longest = std::ranges::max_element(items_, {}, &std::string::size);
  const int wanted = TextMeasure(handle(), fontHandle()).width(toWideLine(*longest)) + scaled(handle(), 32);
  RECT box{};
  GetWindowRect(handle(), &box);
  constexpr LONG widest = 3;  // in widths of the combo box
  send(CB_SETDROPPEDWIDTH, static_cast<WPARAM>(std::min<LONG>(wanted, widest * (box.right - box.left))));
}

int Win32ComboBox::neededHeight() const {
  return TextMeasure(handle(), fontHandle()).lineHeight() + scaled(handle(), 10);
}

void Win32ComboBox::setScreenFont(const FontHandle& font, int dpi) {
  NativeWindow::setScreenFont(font, dpi);
  const int line = TextMeasure(handle(), fontHandle()).lineHeight();
  send(CB_SETITEMHEIGHT, static_cast<WPARAM>(-1), line + scaled(handle(), 4));
  send(CB_SETITEMHEIGHT, 0, line + scaled(handle(), 2));
  fitList();
}

std::optional<LRESULT> Win32ComboBox::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  const bool isClosed = mode_ == Mode::PickOnly && send(CB_GETDROPPEDSTATE) == FALSE;
  switch (message) {
    case WM_CHAR:
      if (!isClosed || wParam <= L' ') break;
      searchFor(static_cast<wchar_t>(wParam));
      return 0;
    case WM_SYSKEYDOWN:
    case WM_KILLFOCUS: typeAhead_.restart(); break;
    default: break;
  }
  // Turning the mouse wheel over a closed box never changes it.
  if (message == WM_MOUSEWHEEL && send(CB_GETDROPPEDSTATE) == FALSE) {
    return SendMessageW(GetParent(handle()), message, wParam, lParam);
  }
  if (message == WM_SIZE) {
    const LRESULT done = callSystem(message, wParam, lParam);
    centerLineOfCombo(handle(), TextMeasure(handle(), fontHandle()).lineHeight());
    return done;
  }
  return std::nullopt;
}

// What was typed with another key in between begins anew, so that nobody gets an item of two words.
void Win32ComboBox::searchFor(wchar_t character) {
  const int found =
      typeAhead_.type(fromWide({&character, 1}), timeOfTyping(),
                      {.count = itemCount(), .current = index_, .text = [this](int item) { return itemText(item); }});
  if (found < 0 || found == index_) return;
  picked_ = found;
  post(Picked);
}

// What a paste brings along stands on one line.
void Win32ComboBox::takeTyped(const std::string& typed) {
  text_ = text::onOneLine(typed);
  index_ = places_.of(text_, items_);
  if (text_ != typed) showNow();
}

void Win32ComboBox::onCommand(int notification) {
  switch (notification) {
    case CBN_SELENDOK:
      picked_ = static_cast<int>(send(CB_GETCURSEL));
      post(Picked);
      break;
    case CBN_SELENDCANCEL:
      // What was only looked at in the list is not chosen.
      if (mode_ == Mode::PickOnly && picked_ < 0) showNow();
      break;
    case CBN_EDITCHANGE:
      if (showing_) return;
      takeTyped(fromWide(textOf(handle())));
      break;
    case CBN_KILLFOCUS: post(MaybeLeft); break;
    default: break;
  }
}

void Win32ComboBox::onPosted(int what) {
  if (what == MaybeLeft) {
    if (hasLostFocusToControl(handle())) kit::tell(events_.LostFocus);
    return;
  }
  const int picked = std::exchange(picked_, -1);
  if (picked < 0 || picked >= itemCount()) return;
  show(picked, itemText(picked));
  const kit::Lifeline::Watch alive = lifeline_.watch();
  gate_.pass();
  if (alive) kit::tell(events_.Click);
}

void Win32ComboBox::onDraw(const DRAWITEMSTRUCT& item) {
  const bool isBox = (item.itemState & ODS_COMBOBOXEDIT) != 0;
  const bool isSelected = (item.itemState & ODS_SELECTED) != 0;
  const bool isDisabled = (item.itemState & (ODS_DISABLED | ODS_GRAYED)) != 0;
  const auto index = static_cast<std::size_t>(item.itemID);
  std::string text;
  if (isBox) {
    text = text_;
  } else if (index < items_.size()) {
    text = items_[index];
  }
  FillRect(item.hDC, &item.rcItem,
           GetSysColorBrush(isDisabled   ? COLOR_BTNFACE
                            : isSelected ? COLOR_HIGHLIGHT
                                         : COLOR_WINDOW));
  SetBkMode(item.hDC, TRANSPARENT);
  const int color = isDisabled ? COLOR_GRAYTEXT : isSelected ? COLOR_HIGHLIGHTTEXT : COLOR_WINDOWTEXT;
  SetTextColor(item.hDC, GetSysColor(color));
  RECT place = item.rcItem;
  place.left += scaled(handle(), 3);
  DrawTextW(item.hDC, toWideLine(text).c_str(), -1, &place,
            DT_LEFT | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX | DT_END_ELLIPSIS);
  if ((item.itemState & ODS_FOCUS) != 0 && (item.itemState & ODS_NOFOCUSRECT) == 0) {
    DrawFocusRect(item.hDC, &item.rcItem);
  }
}

}  // namespace mavCycEd::win32
