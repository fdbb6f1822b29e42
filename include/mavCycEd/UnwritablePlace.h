#pragma once

#include <cstddef>
#include <string>

namespace mavCycEd {

/// What of a cycle keeps it from being written: names and values go into a cycle document as they stand, so that markup
/// or characters that XML forbids spoil it as a whole.
struct UnwritablePlace {
  enum class What { AtomName, ParameterName, ParameterValue, Variable };
  What what = What::AtomName;
  std::size_t index = 0;      ///< of the line or the variable, from 0
  std::string parameterName;  ///< where it is a parameter's name or value
  std::string text;           ///< what cannot be written
};

}  // namespace mavCycEd
