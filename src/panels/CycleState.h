#pragma once

#include <optional>

#include "cycle/LoadedCycle.h"
#include "cycle/ReferenceCycle.h"
#include "mavCycEd/CycleDocument.h"
#include "panels/SequenceDisplay.h"
#include "platform/ItemListBox.h"
#include "platform/LineListBox.h"
#include "platform/TextBox.h"

namespace mavCycEd {

/// What one control keeps of its cycle.
struct CycleState {
  CycleState() = default;
  ~CycleState() = default;
  CycleState(const CycleState&) = delete;
  CycleState& operator=(const CycleState&) = delete;

  /// Whether the cycle of a revision differs from the reference.
  struct Comparison {
    CycleDocument::Revision revision = 0;
    bool differs = false;
  };

  CycleDocument document;                     ///< the cycle that is edited
  SequenceDisplay display{document.cycle()};  ///< how lstAtomSequence shows its lines
  LoadedCycle working;                        ///< the working cycle document: what FillCycle fills the editor from
  ReferenceCycle reference;                   ///< what the cycle is compared with

  bool changed = false;                ///< the changed flag
  std::optional<Comparison> compared;  ///< the last comparison with this reference

  const Cycle& cycle() const { return document.cycle(); }
  /// There is another cycle, or another reference.
  void replaced() {
    changed = false;
    compared.reset();
  }
};

/// The parts of the screen that show the cycle.
struct CycleScreen {
  platform::TextBox& txtCycleDescription;
  platform::ItemListBox& lstVariables;     ///< one item per cycle variable: its definition text
  platform::LineListBox& lstAtomSequence;  ///< one display line per atom line

  /// Where the operator stands.
  CycleSelection selection() const { return {lstAtomSequence.index(), lstVariables.index()}; }
};

}  // namespace mavCycEd
