#include "win32/Win32ValueList.h"

#include "win32/Text.h"

namespace mavCycEd::win32 {

Win32ValueList::Win32ValueList(HWND parent, Win32Frame* frame)
    : label_(parent, frame), view_(sharedList(), parent, frame) {
  label_.setSelfVisible(false);
}

void Win32ValueList::setCaption(std::string_view caption) {
  ValueListPort::setCaption(caption);
  label_.setCaption(fromWide(withoutAccessKey(caption)));
  label_.setSelfVisible(!caption.empty());
}

void Win32ValueList::setToolTipText(std::string_view text) {
  ValueListPort::setToolTipText(text);
  view_.setToolTip(toolTipText());
}

}  // namespace mavCycEd::win32
