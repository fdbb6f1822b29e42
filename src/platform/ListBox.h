#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Font.h"
#include "platform/ListLines.h"

namespace mavCycEd::platform {

/// What a list box tells its owner.
struct ListBoxEvents {
  /// The selected index was set: by the user (click or key), or by code through ListBox::setIndex.
  std::function<void()> Click;
  /// The user double-clicked an item. Click has been raised for that item before.
  std::function<void()> DblClick;
};

/// A single-selection list of texts. Items are numbered from 0; -1 stands for "no item".
class ListBox {
 public:
  virtual ~ListBox() = default;

  virtual void setEvents(ListBoxEvents events) = 0;

  /// Removes every item and the selection. Raises nothing.
  virtual void clear() = 0;
  /// Replaces all items at once (one rebuild, whatever their number) and removes the selection. Raises nothing.
  virtual void assign(std::vector<std::string> items) = 0;
  /// Shows lines that their owner keeps, in place of items of its own, until clear() or assign(), and removes the
  /// selection. The owner calls it again when the lines changed as a whole. Raises nothing.
  virtual void showLines(const ListLines& lines) = 0;
  /// The lines that are shown have one more at the end; the selection stays.
  virtual void lineAdded() = 0;
  /// A line that is shown has another text; the selection stays.
  virtual void lineChanged(int index) = 0;
  /// Adds an item at the end; the selection stays.
  virtual void addItem(std::string_view text) = 0;
  /// Removes the item at `index`; a selection behind it moves along, a selection on it is gone. Raises nothing.
  /// An index beyond the list is run-time error 5.
  virtual void removeItem(int index) = 0;
  /// Replaces the text of the item at `index`; the selection stays. An index beyond the list is run-time error 5.
  virtual void setItemText(int index, std::string_view text) = 0;

  virtual int itemCount() const = 0;
  /// The text of the item at `index`. An index beyond the list is run-time error 5.
  virtual std::string itemText(int index) const = 0;

  /// The selected index, -1 for none.
  virtual int index() const = 0;
  /// Selects an item (-1: none), brings it into view, and raises Click every time, also when the index is the one it
  /// had. An index beyond the list is run-time error 5.
  virtual void setIndex(int index) = 0;

  virtual Font font() const = 0;
  /// The font the items are drawn in.
  virtual void setItemFont(const Font& font) = 0;
};

}  // namespace mavCycEd::platform
