#pragma once

#include <string>

namespace mavCycEd {

/// Why a value may not stand in a row.
struct ValueFault {
  enum class Kind {
    OutOfRange,     ///< below the lower or above the upper limit
    OffStep,        ///< within the limits, and between two steps
    NotReckonable,  ///< a value beyond single precision, or a step that is none: nothing can be told of it
  };
  Kind kind = Kind::OutOfRange;
  std::string wanted;  ///< what would be right, for people: "10 to 500, in steps of 5"
};

}  // namespace mavCycEd
