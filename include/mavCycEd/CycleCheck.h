#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "mavCycEd/Catalogue.h"
#include "mavCycEd/Cycle.h"

namespace mavCycEd {

/// What is wrong with a line of a cycle.
struct CycleFault {
  enum class Kind {
    Value,           ///< a value that may not stand in its place
    UnknownAtom,     ///< the catalogue does not offer the atom: its values cannot be checked
    AtomDefinition,  ///< the catalogue's definition of the atom cannot be read as a whole
  };

  Kind kind = Kind::Value;
  std::size_t line = 0;       ///< from 0
  std::size_t parameter = 0;  ///< of a value: which one of the line's parameters, from 0
  std::string message;        ///< for people: what is wrong, and what would be right
};

/// Checks every value of a cycle, in the order of the lines. What is wrong with an atom is told at its first line.
std::vector<CycleFault> checkCycle(const Cycle& cycle, const Catalogue& catalogue);

}  // namespace mavCycEd
