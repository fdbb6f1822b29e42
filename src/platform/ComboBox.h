#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace mavCycEd::platform {

/// What a combo box tells its owner.
struct ComboBoxEvents {
  /// An item was picked: by the user, or by code through ComboBox::setIndex or ComboBox::setText.
  std::function<void()> Click;
  /// The keyboard focus left the combo box.
  std::function<void()> LostFocus;
};

/// A text with a list of items to pick it from. Items are numbered from 0; -1 stands for "no item". Where a user may
/// type the text, line ends in it become blanks (text::onOneLine).
class ComboBox {
 public:
  virtual ~ComboBox() = default;

  virtual void setEvents(ComboBoxEvents events) = 0;

  /// Removes every item, the selection and the text. Raises nothing.
  virtual void clear() = 0;
  /// Replaces all items at once and removes the selection and the text. Raises nothing.
  virtual void assign(std::vector<std::string> items) = 0;
  /// Adds an item at the end; selection and text stay.
  virtual void addItem(std::string_view text) = 0;

  virtual int itemCount() const = 0;
  /// The text of the item at `index`. An index beyond the list is run-time error 5.
  virtual std::string itemText(int index) const = 0;

  /// The selected index, -1 when none is (the text may still be set).
  virtual int index() const = 0;
  /// Selects an item (-1: none, with an empty text) and raises Click every time, also when the index is the one it
  /// had. An index beyond the list is run-time error 5.
  virtual void setIndex(int index) = 0;

  /// The text shown.
  virtual std::string text() const = 0;
  /// Shows `text`: selects the first item of exactly this text, or none when no item has it (the text is shown all
  /// the same). Raises Click every time.
  virtual void setText(std::string_view text) = 0;
};

}  // namespace mavCycEd::platform
