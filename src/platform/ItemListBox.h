#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/ListBox.h"

namespace mavCycEd::platform {

/// A list box that keeps its items. Changing them raises nothing; an index beyond the list is run-time error 5.
class ItemListBox : public virtual ListBox {
 public:
  /// Replaces all items at once (one rebuild, whatever their number) and removes the selection.
  virtual void assign(std::vector<std::string> items) = 0;
  /// Adds an item at the end; the selection stays.
  virtual void addItem(std::string_view text) = 0;
  /// Puts an item in front of the one at `index`, or at the end when `index` is the number of items; a selection from
  /// there on moves along.
  virtual void insertItem(int index, std::string_view text) = 0;
  /// Removes the item at `index`; a selection behind it moves along, a selection on it is gone.
  virtual void removeItem(int index) = 0;
  /// Replaces the text of the item at `index`; the selection stays.
  virtual void setItemText(int index, std::string_view text) = 0;
};

}  // namespace mavCycEd::platform
