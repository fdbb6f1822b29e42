#include "win32/Win32SelectionList.h"

#include "platform/RunTimeError.h"
#include "win32/Text.h"

namespace mavCycEd::win32 {

Win32SelectionList::Win32SelectionList(HWND parent, Win32Frame* frame)
    : NativeWindow(parent, frame,
                   {WC_LISTVIEWW, LVS_REPORT | LVS_NOCOLUMNHEADER | LVS_SINGLESEL | LVS_SHOWSELALWAYS | WS_TABSTOP,
                    WS_EX_CLIENTEDGE}) {
  send(LVM_SETEXTENDEDLISTVIEWSTYLE, 0, LVS_EX_CHECKBOXES | LVS_EX_FULLROWSELECT);
  LVCOLUMNW column{};
  send(LVM_INSERTCOLUMNW, 0, reinterpret_cast<LPARAM>(&column));
}

std::size_t Win32SelectionList::checked(int index) const {
  if (index < 0 || index >= itemCount()) throw RunTimeError(ErrorNumber::InvalidProcedureCall);
  return static_cast<std::size_t>(index);
}

void Win32SelectionList::clear() {
  items_.clear();
  send(LVM_DELETEALLITEMS);
}

void Win32SelectionList::addItem(std::string_view text, bool selected) {
  items_.push_back({std::string(text), selected});
  if (handle() == nullptr) return;
  filling_ = true;
  std::wstring shown = toWideLine(text);
  LVITEMW item{};
  item.mask = LVIF_TEXT;
  item.iItem = itemCount() - 1;
  item.pszText = shown.data();
  send(LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item));
  ListView_SetCheckState(handle(), static_cast<UINT>(item.iItem), selected);
  filling_ = false;
  fitColumn();
}

void Win32SelectionList::fitColumn() const { send(LVM_SETCOLUMNWIDTH, 0, MAKELPARAM(LVSCW_AUTOSIZE, 0)); }

void Win32SelectionList::toggle(LPARAM place) {
  SetFocus(handle());
  LVHITTESTINFO hit{};
  hit.pt = {GET_X_LPARAM(place), GET_Y_LPARAM(place)};
  const auto index = static_cast<int>(send(LVM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit)));
  if (index < 0 || index >= itemCount()) return;
  ListView_SetItemState(handle(), index, LVIS_FOCUSED | LVIS_SELECTED, LVIS_FOCUSED | LVIS_SELECTED);
  ListView_SetCheckState(handle(), static_cast<UINT>(index), !isSelected(index));
}

// The press toggles; the second press of a double click is one press more.
std::optional<LRESULT> Win32SelectionList::onMessage(UINT message, WPARAM, LPARAM lParam) {
  switch (message) {
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK: toggle(lParam); return 0;
    case WM_LBUTTONUP: return 0;
    default: return std::nullopt;
  }
}

LRESULT Win32SelectionList::onNotify(const NMHDR& notification) {
  if (notification.code != LVN_ITEMCHANGED || filling_) return 0;
  const auto& change = reinterpret_cast<const NMLISTVIEW&>(notification);
  if ((change.uChanged & LVIF_STATE) == 0 || change.iItem < 0 || change.iItem >= itemCount()) return 0;
  items_[checked(change.iItem)].selected = ListView_GetCheckState(handle(), static_cast<UINT>(change.iItem)) != 0;
  return 0;
}

}  // namespace mavCycEd::win32
