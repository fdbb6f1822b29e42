#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace mavCycEd::platform {

/// What a text box tells its owner.
struct TextBoxEvents {
  /// The user changed the text (typed, pasted, deleted). Code that sets the text raises nothing.
  std::function<void()> Change;
  /// The keyboard focus left the text box for another control. A menu or another window in front does not count.
  std::function<void()> LostFocus;
};

/// A text that the user can edit.
///
/// In a box of several lines, line ends are carriage return plus line feed, whatever line ends were set (text::toCrLf)
/// or typed (text::typedToCrLf, for which more characters are line ends). It has no undo of its own. A box of one line
/// keeps what is set as it is; in what the user types or pastes, line ends become blanks (text::onOneLine).
class TextBox {
 public:
  virtual ~TextBox() = default;

  virtual void setEvents(TextBoxEvents events) = 0;

  virtual std::string text() const = 0;
  /// A box of several lines keeps the place where the text differs from the one before in view, with the caret behind
  /// what has changed there (kit::caretBehindChange).
  virtual void setText(std::string_view text) = 0;

  virtual bool isEnabled() const = 0;
  virtual void setEnabled(bool enabled) = 0;

  /// Gives the box the keyboard focus and selects its whole text.
  virtual void focusAndSelectAll() = 0;
};

}  // namespace mavCycEd::platform
