#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "cycle/ReferenceCycle.h"
#include "mavCycEd/Cycle.h"

namespace mavCycEd {

/// What a cycle document is written from. The facts are written as they are: the version always, a timestamp that is
/// there as an attribute of CYCLE.
struct CycleContent {
  const Cycle& cycle;
  std::string_view description;  ///< the text of DESCRIPTION
  const CycleFacts& facts;
};

/// The text between CYCLE's tags, without description and timestamps, names and values as they stand: what a document
/// is to be loaded from. `\r\n` ends each line.
std::string rawCycleText(const CycleContent& content);

/// The cycle document as it reads when rawCycleText() is loaded, gets its description and its timestamps, and is
/// written out: written at once, without a document. Nothing where this cannot be foreseen, because a name or a value
/// means more than itself in XML.
std::optional<std::string> plainCycleXml(const CycleContent& content);

}  // namespace mavCycEd
