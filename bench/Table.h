#pragma once

#include <iosfwd>
#include <optional>
#include <string>
#include <vector>

namespace mavCycEd::bench {

/// A row as it was measured: seconds, or bytes where it is not timed.
struct Result {
  std::string work;
  int lines = 0;
  double ours = 0;
  double yardstick = 0;
  std::optional<double> target;
  bool timed = true;

  double ratio() const { return ours / yardstick; }
  bool isMet() const { return !target || ratio() <= *target; }
};

/// Measures all rows that were added.
std::vector<Result> runComparisons();

/// Writes the rows as a table for people, in Markdown, and names the targets that were missed.
void writeTable(std::ostream& output, const std::vector<Result>& results);
/// Writes the rows as a JSON list.
void writeJson(std::ostream& output, const std::vector<Result>& results);

}  // namespace mavCycEd::bench
