#pragma once

#include "kit/MenuItems.h"

namespace mavCycEd::memory {

/// A pop-up menu without a screen.
class MemoryPopupMenu : public kit::MenuItems {
 public:
  void popUp() override { open_ = true; }

  bool isOpen() const { return open_; }
  /// The user chooses the item at this place among the visible ones. False when the menu is closed or shows no such
  /// item.
  bool choose(int place);
  /// The user closes the menu without a choice.
  void dismiss() { open_ = false; }

 private:
  bool open_ = false;
};

}  // namespace mavCycEd::memory
