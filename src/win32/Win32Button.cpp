#include "win32/Win32Button.h"

#include "kit/Notify.h"
#include "win32/Dpi.h"
#include "win32/Text.h"

namespace mavCycEd::win32 {

Win32Button::Win32Button(const kit::CommandGate& gate, HWND parent, Win32Frame* frame)
    : NativeWindow(parent, frame, {L"BUTTON", BS_PUSHBUTTON | WS_TABSTOP}), gate_(gate) {}

void Win32Button::setCaption(std::string_view caption) {
  caption_ = caption;
  setText(toWide(caption));
}

int Win32Button::neededWidth() const {
  return TextMeasure(handle(), fontHandle()).width(toWide(caption_)) + scaled(handle(), 20);
}

void Win32Button::onCommand(int notification) {
  if (notification == BN_CLICKED) post(0);
}

void Win32Button::onPosted(int) {
  const kit::Lifeline::Watch alive = lifeline_.watch();
  gate_.pass();
  if (alive && isEnabledHere()) kit::tell(events_.Click);
}

}  // namespace mavCycEd::win32
