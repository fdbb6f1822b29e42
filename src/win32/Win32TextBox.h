#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "platform/TextBox.h"
#include "win32/NativeWindow.h"

namespace mavCycEd::win32 {

/// A text box of one or of several lines. What was set is read back unchanged until the user edits the text.
class Win32TextBox : public platform::TextBox, public NativeWindow {
 public:
  enum class Lines { One, Several };
  Win32TextBox(Lines lines, HWND parent, Win32Frame* frame);

  void setEvents(platform::TextBoxEvents events) override { events_ = std::move(events); }
  std::string text() const override { return text_; }
  void setText(std::string_view text) override;
  bool isEnabled() const override { return isSelfEnabled(); }
  void setEnabled(bool enabled) override { setSelfEnabled(enabled); }
  void focusAndSelectAll() override;

 protected:
  std::optional<LRESULT> onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
  void onCommand(int notification) override;
  void onPosted(int what) override;

 private:
  void takeLongTexts() const;
  void wrapFor(std::string_view text);
  void putCaretBehind(std::string_view text) const;

  Lines lines_;
  bool wraps_;
  platform::TextBoxEvents events_;
  std::string text_;  // as set or as last typed
  bool settingText_ = false;
};

}  // namespace mavCycEd::win32
