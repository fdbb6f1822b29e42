#pragma once

#include <string>
#include <string_view>

#include "cycle/CycleState.h"

/// The numbered and indented form of the atom lines in lstAtomSequence. A line between "REPEAT" and its "END" stands
/// three spaces further in; blocks are neither paired nor checked, and the indent never goes below 1.
namespace mavCycEd {

/// The display line of an atom line: its number in at least two digits, `indent` spaces, its name.
std::string displayLine(int number, int indent, std::string_view atomName);

/// The display line of the next atom line at the current indent: "END" lowers the indent before it, "REPEAT" raises it
/// behind it.
std::string nextDisplayLine(CycleState& cycle, int number, std::string_view atomName);

/// Fills the list anew from the atom lines, starting with an indent of 1. Nothing is selected afterwards.
void rebuildSequenceList(CycleState& cycle, platform::ListBox& lstAtomSequence);

}  // namespace mavCycEd
