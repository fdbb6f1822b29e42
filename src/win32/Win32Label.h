#pragma once

#include "platform/Label.h"
#include "win32/NativeWindow.h"
#include "win32/Text.h"

namespace mavCycEd::win32 {

/// A text in front of a control; its access key leads to the control behind it.
class Win32Label : public platform::Label, public NativeWindow {
 public:
  Win32Label(HWND parent, Win32Frame* frame) : NativeWindow(parent, frame, {L"STATIC", SS_LEFT | SS_CENTERIMAGE}) {}

  void setCaption(std::string_view caption) override { setText(toWide(caption)); }
};

}  // namespace mavCycEd::win32
