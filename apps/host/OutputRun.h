#pragma once

#include <QString>
#include <optional>

#include "CommandLine.h"
#include "Problem.h"

namespace mavCycEd::host {

class HostWindow;

/// Writes what the command line asks for. Nothing is written where a problem is returned.
std::optional<Problem> writeOutputs(HostWindow& window, const Options& options);

/// A file name from the command line.
QString fileArgument(const std::string& argument);

}  // namespace mavCycEd::host
