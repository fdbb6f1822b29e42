#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "mavCycEd/Cycle.h"

namespace mavCycEd {

/// A parameter whose value refers to a variable.
struct VariableUse {
  std::size_t line = 0;       ///< from 0
  std::size_t parameter = 0;  ///< from 0, among the segments of the line's parameters
  std::string
      parameterName;  ///< as lists of uses show it: without its unit; one without a unit lacks its last character
};

/// Whether a value refers to a variable: it is its name, or one of the terms of its sum is, whatever the case of the
/// letters. Nothing refers to a variable without a name.
bool refersTo(std::string_view value, std::string_view variableName);

/// Where a variable is in use, in the order of the lines.
std::vector<VariableUse> usesOf(std::string_view variableName, const Cycle& cycle);

}  // namespace mavCycEd
