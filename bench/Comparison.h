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
  bool paired = false;                ///< the two are called one right behind the other, and more often
};

/// Adds a row. Its two functions are called in turn, several times each, and the shortest time of each counts. Where
/// the target is close to what is expected, the row should be paired, and its times the processor's.
void compare(Comparison row);

/// The seconds that `work` takes.
double secondsOf(const std::function<void()>& work);

/// The seconds that the processor spends on `work`: what else the machine does meanwhile does not count. For work of
/// this thread that waits for nothing.
double processorSecondsOf(const std::function<void()>& work);

}  // namespace mavCycEd::bench
