#pragma once

#include <optional>
#include <string>

namespace mavCycEd {

/// What a cycle document says of itself, beside the cycle. A time is a local one without a zone,
/// "yyyy-mm-ddThh:mm:ss".
struct CycleFacts {
  std::optional<std::string> version;   ///< CYCLE/VERSION: "02" or "03"
  std::optional<std::string> created;   ///< the attribute Created of CYCLE
  std::optional<std::string> modified;  ///< the attribute Modified of CYCLE
};

}  // namespace mavCycEd
