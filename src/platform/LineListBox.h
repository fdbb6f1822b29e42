#pragma once

#include "platform/ListBox.h"
#include "platform/ListLines.h"

namespace mavCycEd::platform {

/// A list box that shows lines which their owner keeps, and draws those in view only.
class LineListBox : public virtual ListBox {
 public:
  /// Shows lines until clear(), and removes the selection. The owner calls it again when the lines have become others
  /// as a whole. Raises nothing.
  virtual void showLines(const ListLines& lines) = 0;
  /// The owner's lines have changed: `removed` lines at `at` have gone, and `added` have come in their place. The texts
  /// of all other lines may have changed as well, so what is in view is drawn anew; the place that is scrolled to
  /// stays.
  ///
  /// A selection behind the change moves along. Where as many lines came as went, they changed in place and the
  /// selection stays; otherwise a selection on a line that went is gone. Raises nothing. Lines that were not shown are
  /// run-time error 5.
  virtual void spliced(int at, int removed, int added) = 0;
};

}  // namespace mavCycEd::platform
