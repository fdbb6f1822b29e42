#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "kit/Notify.h"
#include "memory/Control.h"
#include "platform/TextBox.h"
#include "text/LineEnds.h"

namespace mavCycEd::memory {

/// A text box without a screen.
class MemoryTextBox : public platform::TextBox, public Control {
 public:
  enum class Lines { Several, One };

  explicit MemoryTextBox(const MemoryFrame* container, Lines lines = Lines::Several)
      : Control(container), lines_(lines) {}

  void setEvents(platform::TextBoxEvents events) override { events_ = std::move(events); }
  std::string text() const override { return text_; }
  void setText(std::string_view text) override { text_ = hasOneLine() ? std::string(text) : text::toCrLf(text); }
  bool isEnabled() const override { return isSelfEnabled(); }
  void setEnabled(bool enabled) override { setSelfEnabled(enabled); }
  void focusAndSelectAll() override {}

  /// The user replaces the whole text in one change, as a paste does. Nothing over nothing is no change.
  void replace(std::string_view text) {
    std::string replacement = hasOneLine() ? text::onOneLine(text) : text::typedToCrLf(text);
    if (replacement.empty() && text_.empty()) return;
    text_ = std::move(replacement);
    kit::tell(events_.Change);
  }

  /// The keyboard focus moves away.
  void leave() { kit::tell(events_.LostFocus); }
  bool hasOneLine() const { return lines_ == Lines::One; }

 private:
  Lines lines_;
  platform::TextBoxEvents events_;
  std::string text_;
};

}  // namespace mavCycEd::memory
