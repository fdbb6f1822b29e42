#pragma once

#include <vector>

#include "platform/Frame.h"
#include "win32/NativeWindow.h"

namespace mavCycEd::win32 {

/// A frame as a group box. The box is a sibling of what stands in it, drawn behind it; who stands in it is known here.
class Win32Frame : public platform::Frame, public NativeWindow {
 public:
  Win32Frame(HWND parent, Win32Frame* frame);

  std::string caption() const override { return caption_; }
  void setCaption(std::string_view caption) override;
  bool isEnabled() const override { return isSelfEnabled(); }
  void setEnabled(bool enabled) override { setSelfEnabled(enabled); }
  bool isVisible() const override { return isSelfVisible(); }
  void setVisible(bool visible) override { setSelfVisible(visible); }

  void applyState() override;
  void add(NativeWindow& window) { windows_.push_back(&window); }
  void remove(NativeWindow& window) { std::erase(windows_, &window); }

 private:
  std::string caption_;
  std::vector<NativeWindow*> windows_;
};

}  // namespace mavCycEd::win32
