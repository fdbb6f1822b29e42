#pragma once

#include <string>
#include <utility>

#include "kit/CommandGate.h"
#include "platform/Button.h"
#include "win32/NativeWindow.h"

namespace mavCycEd::win32 {

/// A push button.
class Win32Button : public platform::Button, public NativeWindow {
 public:
  Win32Button(const kit::CommandGate& gate, HWND parent, Win32Frame* frame);

  void setEvents(platform::ButtonEvents events) override { events_ = std::move(events); }
  std::string caption() const override { return caption_; }
  void setCaption(std::string_view caption) override;
  bool isEnabled() const override { return isSelfEnabled(); }
  void setEnabled(bool enabled) override { setSelfEnabled(enabled); }

  /// How wide the button has to be for its caption.
  int neededWidth() const;

 protected:
  void onCommand(int notification) override;
  void onPosted(int what) override;

 private:
  const kit::CommandGate& gate_;
  platform::ButtonEvents events_;
  std::string caption_;
};

}  // namespace mavCycEd::win32
