#pragma once

namespace mavCycEd::kit {

/// A change of numbered lines: `removed` lines at `at` went, and `added` came in their place.
struct Splice {
  int at = 0;
  int removed = 0;
  int added = 0;

  /// Whether the lines kept their numbers: as many came as went.
  bool isInPlace() const { return removed == added; }
  /// How far the lines behind the change moved.
  int shift() const { return added - removed; }
  /// The first line behind those that went, by its old number.
  int behind() const { return at + removed; }
};

}  // namespace mavCycEd::kit
