#pragma once

#include <string_view>

#include "mavCycEd/Catalogue.h"
#include "mavCycEd/Cycle.h"
#include "mavCycEd/CycleFacts.h"
#include "mavCycEd/TextFault.h"

namespace mavCycEd {

/// A cycle that was read from a text.
struct ReadCycle {
  Cycle cycle;
  CycleFacts facts;  ///< what the cycle document says of itself; a macro text says nothing
};

/// Reads a cycle document (XML in UTF-8, root `CYCLE`) of any version.
///
/// A document without VARIABLES is of no use. One without ATOMSEQUENCE/ATOMS gives a cycle without lines; an ATOM
/// without ATOMNAME, or a PARAMETER without PARAMNAME or PARAMVALUE, gives the lines before it. Values are not checked.
Reading<ReadCycle> readCycleDocument(std::string_view text);

/// Reads a macro text (UTF-8, lines ended by CR LF, "[PMA]" the first one). Each line becomes what an operator gets who
/// inserts its atom with its values: a value that is not given is the one that a new line starts with, and a line with
/// a value that may not stand in its place is left out.
Reading<ReadCycle> readMacroText(std::string_view text, const Catalogue& catalogue);

/// Reads either: a text whose first line is "[PMA]", with CR LF behind it, is a macro text.
Reading<ReadCycle> readCycle(std::string_view text, const Catalogue& catalogue);

}  // namespace mavCycEd
