#pragma once

#include <optional>
#include <string>

#include "mavCycEd/Cycle.h"
#include "platform/XmlDocument.h"

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

/// The first such place, the lines before the variables; nothing where there is none.
std::optional<UnwritablePlace> unwritablePlace(const Cycle& cycle, platform::XmlDocumentFactory& xmlDocuments);

/// Says where it is, and what to do.
std::string describe(const UnwritablePlace& place);

}  // namespace mavCycEd
