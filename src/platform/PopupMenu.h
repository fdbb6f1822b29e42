#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace mavCycEd::platform {

/// What a pop-up menu tells its owner.
struct PopupMenuEvents {
  /// The user chose the item at this index.
  std::function<void(int index)> Click;
};

/// A pop-up menu whose items form an array that grows and shrinks at run time. Item 0 always exists; the indexes of
/// further items need not be continuous. Creating an item that exists, or reaching for one that does not, is run-time
/// error 9; removing item 0 is run-time error 5.
class PopupMenu {
 public:
  virtual ~PopupMenu() = default;

  virtual void setEvents(PopupMenuEvents events) = 0;

  virtual std::string caption() const = 0;
  virtual void setCaption(std::string_view caption) = 0;

  /// How many items exist.
  virtual int itemCount() const = 0;
  /// The highest index in use.
  virtual int lastIndex() const = 0;
  virtual bool hasItem(int index) const = 0;
  /// Creates an item with an empty caption, visible.
  virtual void createItem(int index) = 0;
  virtual void removeItem(int index) = 0;

  virtual std::string itemCaption(int index) const = 0;
  virtual void setItemCaption(int index, std::string_view caption) = 0;
  virtual bool isItemVisible(int index) const = 0;
  virtual void setItemVisible(int index, bool visible) = 0;

  /// Shows the visible items at the pointer, in index order.
  virtual void popUp() = 0;
};

}  // namespace mavCycEd::platform
