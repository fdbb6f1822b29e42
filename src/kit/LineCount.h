#pragma once

#include <cstddef>
#include <string>

#include "kit/ListTexts.h"
#include "kit/Splice.h"
#include "platform/ListLines.h"

namespace mavCycEd::kit {

/// The lines of an owner as a list shows them: as many as the owner has told, whatever it keeps by now.
///
/// Which line is the longest is looked up among all of them at first only. From then on it is enough to know what went
/// and what came, and what is drawn: a line that has become longer because others moved is noticed when it is seen.
class LineCount : public ListTexts {
 public:
  void show(const platform::ListLines& lines);
  /// No line is shown.
  void clear();
  /// Run-time error 5 where a change is not one of the lines that are shown.
  void check(const Splice& change) const;
  /// Lines went and came; the owner has them changed already. A change that does not pass check() is its error.
  void splice(const Splice& change);
  /// A line is being drawn. True when it is longer than any that was known: the list then needs more room.
  bool notice(int index);

  int count() const override { return count_; }
  /// A line that the owner has given up and not told yet is empty.
  std::string text(int index) const override;
  int longest() const override;

 private:
  std::size_t lengthOf(int index) const { return text(index).size(); }
  void know(int longest) const;
  void followLongest(const Splice& change);

  static constexpr int unknown = -2;

  const platform::ListLines* lines_ = nullptr;  // null: none are shown
  int count_ = 0;
  mutable int longest_ = unknown;
  mutable std::size_t most_ = 0;  // the length of the longest line when it was looked at
};

}  // namespace mavCycEd::kit
