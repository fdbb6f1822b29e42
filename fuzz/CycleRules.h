#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "cycle/CycleXml.h"
#include "cycle/LoadedCycle.h"
#include "mavCycEd/Cycle.h"
#include "platform/XmlDocument.h"

/// What holds for every cycle, however it came about.
namespace mavCycEd::fuzz {

/// readCycle reads what a document of the same text holds.
void requireReadsAsADocument(std::string_view text, platform::XmlDocumentFactory& xmlDocuments);

/// A cycle that is written at once reads as if it came from a document. Whether it can be written at once.
bool requirePlainAsFromADocument(const Cycle& cycle, platform::XmlDocumentFactory& xmlDocuments);

/// Whether a cycle that can be written at once has nothing that changes when it is loaded again: a name or a
/// description that loses something, a parameter without a name or with several values.
bool isLastingCycle(const Cycle& cycle);

/// The parameter text as it is loaded again: one line for every value.
std::string reloadedParameters(const ParameterText& parameters);

}  // namespace mavCycEd::fuzz
