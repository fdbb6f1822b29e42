#pragma once

#include <optional>
#include <string>

#include "mavCycEd/Cycle.h"
#include "mavCycEd/UnwritablePlace.h"
#include "platform/XmlDocument.h"

namespace mavCycEd {

/// The first place that keeps a cycle from being a cycle document, the lines before the variables; nothing where there
/// is none.
std::optional<UnwritablePlace> unwritablePlace(const Cycle& cycle, platform::XmlDocumentFactory& xmlDocuments);

/// Says where a place is, and why it cannot be written.
std::string reasonOf(const UnwritablePlace& place);
/// Says what a host that took the cycle back should know: reasonOf(), and what to do.
std::string describe(const UnwritablePlace& place);

}  // namespace mavCycEd
