#pragma once

#include <string>

#include "cycle/CycleState.h"
#include "paramgrid/GridState.h"
#include "paramgrid/ParamGrid.h"
#include "platform/ComboBox.h"
#include "platform/ErrorSink.h"
#include "platform/Timer.h"
#include "platform/ValueListActiveX.h"

namespace mavCycEd {

/// The commands on the atom sequence: choosing an atom, and inserting, replacing and deleting atom lines.
class AtomSequenceEditing {
 public:
  /// The controls of the screen that the commands work on.
  struct Screen {
    platform::ListBox& lstAtomSequence;
    platform::ComboBox& cboAtom;
    platform::ValueListActiveX& GrdAtom;
    platform::Timer& tmrUpdateGrid;
  };

  AtomSequenceEditing(CycleState& cycle, GridState& grid, const Screen& screen, ParamGrid& paramGrid, ErrorSink& errors)
      : cycle_(cycle), grid_(grid), screen_(screen), paramGrid_(paramGrid), errors_(errors) {}

  /// Fills the grid with the parameters of the chosen atom. The sequence stays as it is.
  void cboAtom_Click();
  /// Gives the grid the chosen atom's defaults again.
  void cmdDefault_Click() { cboAtom_Click(); }
  /// Inserts the atom behind the selected line, or at the end when none is selected.
  void cmdInset_Click();
  /// Puts the atom in place of the selected line. The line is shown without its block's indent until the list is next
  /// rebuilt.
  void cmdReplace_Click();
  /// Removes the selected line; the line that follows it, or the new last one, is selected.
  void cmdDelete_Click();

 private:
  void lstRefresh();
  std::string ParamFiller();
  void insertBehind(int position, std::string name, std::string parameters);
  void append(std::string name, std::string parameters);

  CycleState& cycle_;
  GridState& grid_;
  Screen screen_;
  ParamGrid& paramGrid_;
  ErrorSink& errors_;
};

}  // namespace mavCycEd
