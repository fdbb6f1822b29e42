#pragma once

#include <vector>

#include "kit/Splice.h"

namespace mavCycEd::kit {

/// The selected lines of a list, as ranges in ascending order that neither overlap nor touch, and the anchor: the line
/// that a selection is extended from.
class SelectionRanges {
 public:
  struct Range {
    int first = 0;
    int count = 0;
    int end() const { return first + count; }
    friend bool operator==(const Range&, const Range&) = default;
  };

  /// Nothing is selected, and there is no anchor.
  void clear();
  /// This line alone is selected, and the anchor; -1: none is.
  void select(int index);
  /// The line is selected if it was not, and not if it was; the others stay. It is the anchor.
  void toggle(int index);
  /// The lines from the anchor to this one are selected, and no others. Without an anchor this line alone is.
  void extendTo(int index);
  /// Lines went and came. Where as many came as went they changed in place, and the selection stays; otherwise lines
  /// that went are selected no more, those behind the change stay selected under their new numbers, and those that came
  /// are not selected.
  void splice(const Splice& change);

  const std::vector<Range>& ranges() const { return ranges_; }
  bool contains(int index) const;
  /// How many lines are selected.
  int count() const;
  /// The first selected line, -1 when none is.
  int first() const { return ranges_.empty() ? -1 : ranges_.front().first; }
  /// -1: there is none.
  int anchor() const { return anchor_; }

 private:
  void add(int first, int end);

  std::vector<Range> ranges_;
  int anchor_ = -1;
};

}  // namespace mavCycEd::kit
