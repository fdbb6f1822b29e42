#pragma once

#include <optional>
#include <string>

#include "mavCycEd/Cycle.h"
#include "mavCycEd/CycleFacts.h"
#include "mavCycEd/UnwritablePlace.h"

namespace mavCycEd {

/// Why a cycle cannot be written.
struct WriteFault {
  std::optional<UnwritablePlace> place;  ///< nothing where the cycle as a whole is at fault: it has no lines
  std::string message;                   ///< for people: where it is, and why
};

/// What came of writing a cycle: a text, or why there is none.
struct WrittenCycle {
  std::string text;
  std::optional<WriteFault> fault;
};

/// Writes a cycle as a cycle document of version 03 (XML in UTF-8, lines ended by LF). `Created` and `Modified` are
/// those of `facts`: of the document that was read, or of whoever writes; what is missing there is the local time now.
/// The version in `facts` does not matter. Names, values and variables go into the document as they stand: one with
/// markup
/// ("<" or "&") cannot be written. A cycle without lines cannot, either.
WrittenCycle writeCycleDocument(const Cycle& cycle, const CycleFacts& facts = {});

/// Writes a cycle as a macro text (UTF-8, lines ended by CR LF), its header "[PMA]" included. A line of several
/// parameters cannot be written when one of them has no name. MacroLosses.h tells what does not come back.
WrittenCycle writeMacroText(const Cycle& cycle);

}  // namespace mavCycEd
