#pragma once

#include <string>

#include "win32/Windows.h"

namespace mavCycEd::win32 {

class NativeWindow;

/// The items of a window for assistive technology, numbered from 1, where the system knows nothing of them.
class AccessibleItems {
 public:
  virtual ~AccessibleItems() = default;

  virtual int count() const = 0;
  virtual std::wstring name(int item) const = 0;
  virtual std::wstring value(int item) const = 0;
  /// In the window's own coordinates; empty for an item that is out of view.
  virtual RECT place(int item) const = 0;
  /// The selected item, 0 for none.
  virtual int current() const = 0;
  /// The user selects an item.
  virtual void choose(int item) = 0;
};

/// Answers WM_GETOBJECT for a window's client area: the system's own description, with the window's accessible name
/// and its items.
LRESULT accessibleDescription(NativeWindow& window, WPARAM wParam);

}  // namespace mavCycEd::win32
