#include "win32/Win32OptionButton.h"

#include "kit/Notify.h"
#include "win32/Dpi.h"
#include "win32/Text.h"

namespace mavCycEd::win32 {

Win32OptionButton::Win32OptionButton(const kit::CommandGate& gate, Place place, HWND parent, Win32Frame* frame)
    : NativeWindow(parent, frame,
                   {L"BUTTON", BS_RADIOBUTTON | (place == Place::FirstOfGroup ? WS_GROUP | WS_TABSTOP : 0U)}),
      gate_(gate) {
  send(BM_SETDONTCLICK, TRUE);  // the focus alone chooses nothing
}

void Win32OptionButton::group(std::initializer_list<Win32OptionButton*> options) {
  for (Win32OptionButton* const option : options) option->group_ = options;
}

void Win32OptionButton::setCaption(std::string_view caption) {
  caption_ = caption;
  setText(toWide(caption));
}

int Win32OptionButton::neededWidth() const {
  return TextMeasure(handle(), fontHandle()).width(toWide(caption_)) + scaled(handle(), 28);
}

void Win32OptionButton::show() {
  for (Win32OptionButton* const option : group_) {
    option->selected_ = option == this;
    option->send(BM_SETCHECK, option->selected_ ? BST_CHECKED : BST_UNCHECKED);
  }
}

void Win32OptionButton::select() {
  show();
  kit::tell(events_.Click);
}

void Win32OptionButton::onCommand(int notification) {
  if (notification == BN_CLICKED) post(0);
}

void Win32OptionButton::onPosted(int) {
  if (selected_) return;
  show();
  const kit::Lifeline::Watch alive = lifeline_.watch();
  gate_.pass();
  if (alive) kit::tell(events_.Click);
}

}  // namespace mavCycEd::win32
