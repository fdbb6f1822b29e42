#pragma once

#include <functional>
#include <optional>
#include <string>

namespace mavCycEd::bench {

/// One row of the table: a piece of the editor's work beside a yardstick that is measured in the same run.
struct Comparison {
  std::string work;
  int lines = 0;
  std::optional<double> target;       ///< the highest ratio of ours to the yardstick; nothing: none is set
  std::function<double()> ours;       ///< does the work once; the seconds, or bytes, that it took
  std::function<double()> yardstick;  ///< as `ours`
  bool timed = true;                  ///< false: bytes, which are read off once
};

/// Adds a row. Its two functions are called in turn, several times each.
void compare(Comparison row);

/// The seconds that `work` takes.
double secondsOf(const std::function<void()>& work);

}  // namespace mavCycEd::bench
