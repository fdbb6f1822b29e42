#pragma once

#include <functional>
#include <string>

#include "platform/Font.h"

namespace mavCycEd::platform {

/// What a list box tells its owner.
struct ListBoxEvents {
  /// The selected index was set: by the user (click or key), or by code through ListBox::setIndex.
  std::function<void()> Click;
  /// The user double-clicked an item. Click has been raised for that item before.
  std::function<void()> DblClick;
};

/// A single-selection list of texts: what a list of items (ItemListBox) and one of an owner's lines (LineListBox)
/// share. Items are numbered from 0; -1 stands for "no item".
class ListBox {
 public:
  virtual ~ListBox() = default;

  virtual void setEvents(ListBoxEvents events) = 0;

  /// Removes every item and the selection. Raises nothing.
  virtual void clear() = 0;

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
