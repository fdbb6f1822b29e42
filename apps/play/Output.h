#pragma once

#include <nlohmann/json.hpp>
#include <ostream>
#include <string_view>

#include "ControlDriver.h"

namespace mavCycEd::play {

using Json = nlohmann::ordered_json;

/// Writes one object as a line: compact, UTF-8, characters as themselves.
void writeLine(std::ostream& output, const Json& object);

/// The lines that nobody asked for, in the order in which things happen.
Json asLine(const CycleEditorErrorEvent& event);
Json messageBoxLine(std::string_view text, std::string_view title, int flags);

/// The state of a control, or of what no window shows ("atoms", "state", "rows"). An unknown name is a StepRefused.
Json shown(const ControlDriver& driver, std::string_view name);

}  // namespace mavCycEd::play
