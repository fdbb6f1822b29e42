#pragma once

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "mavCycEd/ParameterText.h"
#include "mavCycEd/VariableDefinition.h"

namespace mavCycEd {

/// What an atom line is: an elementary operation and its parameters. It moves with the line.
struct AtomLine {
  std::string name;  ///< "REPEAT" opens a block, "END" closes one, exactly so
  ParameterText parameters;
  friend bool operator==(const AtomLine&, const AtomLine&) = default;
};

/// What belongs to a position of the sequence, whichever line stands there. Kept as the texts they were given as.
struct LinePlace {
  std::string duration;
  std::string groupIndex;
  bool empty() const { return duration.empty() && groupIndex.empty(); }
  friend bool operator==(const LinePlace&, const LinePlace&) = default;
};

/// A cycle: the step-by-step method of an instrument. A plain value: copies are independent of each other. Texts are
/// UTF-8. Positions count from 0.
struct Cycle {
  std::string description;  ///< lines end with carriage return and line feed
  std::vector<VariableDefinition> variables;
  std::vector<AtomLine> lines;
  /// By position. Positions behind the last place that holds something have none here.
  std::vector<LinePlace> places;

  friend bool operator==(const Cycle&, const Cycle&) = default;
};

inline bool opensBlock(const AtomLine& line) { return line.name == "REPEAT"; }
inline bool closesBlock(const AtomLine& line) { return line.name == "END"; }

}  // namespace mavCycEd
