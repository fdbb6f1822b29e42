#pragma once

#include <optional>

#include "catalogue/cAtoms.h"
#include "cycle/LoadedCycle.h"
#include "cycle/ReferenceCycle.h"
#include "cycle/SequenceDisplay.h"
#include "platform/ItemListBox.h"
#include "platform/LineListBox.h"
#include "platform/TextBox.h"

namespace mavCycEd {

/// The cycle of one control, as far as it is not on the screen.
struct CycleState {
  CycleState() = default;
  ~CycleState() = default;
  CycleState(const CycleState&) = delete;
  CycleState& operator=(const CycleState&) = delete;

  cAtoms atoms;                    ///< the atom lines, in sequence order
  SequenceDisplay display{atoms};  ///< how lstAtomSequence shows them
  LoadedCycle working;             ///< the working cycle document: what FillCycle fills the editor from
  ReferenceCycle reference;        ///< what the cycle is compared with

  bool changed = false;         ///< the changed flag
  std::optional<bool> differs;  ///< whether the cycle differs from the reference, where that is known

  /// The operator edits the cycle.
  void edited() {
    changed = true;
    differs.reset();
  }
  /// There is another cycle, or another reference.
  void replaced() {
    changed = false;
    differs.reset();
  }
};

/// The parts of the screen that hold the rest of the cycle.
struct CycleScreen {
  platform::TextBox& txtCycleDescription;
  platform::ItemListBox& lstVariables;     ///< one item per cycle variable: its definition text
  platform::LineListBox& lstAtomSequence;  ///< one display line per atom line
};

}  // namespace mavCycEd
