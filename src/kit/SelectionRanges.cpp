#include "kit/SelectionRanges.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace mavCycEd::kit {

void SelectionRanges::clear() {
  ranges_.clear();
  anchor_ = -1;
}

void SelectionRanges::select(int index) {
  clear();
  if (index < 0) return;
  add(index, index + 1);
  anchor_ = index;
}

void SelectionRanges::toggle(int index) {
  bool waits = !contains(index);
  for (const Range& range : std::exchange(ranges_, {})) {
    if (waits && index < range.first) {
      add(index, index + 1);
      waits = false;
    }
    add(range.first, std::min(range.end(), index));
    add(std::max(range.first, index + 1), range.end());
  }
  if (waits) add(index, index + 1);
  anchor_ = index;
}

void SelectionRanges::extendTo(int index) {
  if (anchor_ < 0) return select(index);
  ranges_.clear();
  add(std::min(anchor_, index), std::max(anchor_, index) + 1);
}

void SelectionRanges::splice(const Splice& change) {
  if (change.isInPlace()) return;
  for (const Range& range : std::exchange(ranges_, {})) {
    add(range.first, std::min(range.end(), change.at));
    add(std::max(range.first, change.behind()) + change.shift(), range.end() + change.shift());
  }
  if (anchor_ >= change.behind()) {
    anchor_ += change.shift();
  } else if (anchor_ >= change.at) {
    anchor_ = -1;
  }
}

// Behind all ranges so far, one that touches the last is a part of it. Nothing is added where `end` is not behind
// `first`.
void SelectionRanges::add(int first, int end) {
  if (end <= first) return;
  if (!ranges_.empty() && ranges_.back().end() == first) {
    ranges_.back().count += end - first;
  } else {
    ranges_.push_back({first, end - first});
  }
}

bool SelectionRanges::contains(int index) const {
  const auto behind = std::ranges::upper_bound(ranges_, index, {}, &Range::first);
  return behind != ranges_.begin() && index < std::prev(behind)->end();
}

int SelectionRanges::count() const {
  int count = 0;
  for (const Range& range : ranges_) count += range.count;
  return count;
}

}  // namespace mavCycEd::kit
