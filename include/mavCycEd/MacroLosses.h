#pragma once

#include <cstddef>
#include <vector>

#include "mavCycEd/Cycle.h"

namespace mavCycEd {

/// What a macro text does not carry of a cycle; indexes are from 0.
struct MacroLosses {
  bool description = false;                 ///< the lines behind its first one become variables or atom lines
  std::vector<std::size_t> droppedValues;   ///< lines whose one parameter loses its value
  std::vector<std::size_t> noCalls;         ///< lines whose atom's name is not made of "A" to "Z" and "_"
  std::vector<std::size_t> tornValues;      ///< lines with a value that holds a comma or a line end
  std::vector<std::size_t> otherVariables;  ///< variables that read like another kind of line

  bool empty() const;
};

/// What is lost when a cycle is written as a macro text and read again.
MacroLosses lostInMacroText(const Cycle& cycle);

}  // namespace mavCycEd
