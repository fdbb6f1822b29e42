#pragma once

#include <string>

#include "cycle/CycleState.h"
#include "paramgrid/ExtraValues.h"
#include "paramgrid/GridState.h"
#include "paramgrid/ParamGrid.h"
#include "paramgrid/ValueValidation.h"
#include "platform/ComboBox.h"
#include "platform/ErrorSink.h"
#include "platform/LineListBox.h"
#include "platform/Timer.h"
#include "platform/ValueListActiveX.h"

namespace mavCycEd {

/// The commands on the atom sequence: choosing an atom, and inserting, replacing and deleting atom lines.
class AtomSequenceEditing {
 public:
  /// The controls of the screen that the commands work on.
  struct Screen {
    platform::LineListBox& lstAtomSequence;
    platform::ComboBox& cboAtom;
    platform::ValueListActiveX& GrdAtom;
    platform::Timer& tmrUpdateGrid;
  };

  /// The parameter grid's state, and the classes that fill and check it.
  struct Grid {
    GridState& state;
    ParamGrid& filling;
    ExtraValues& extraValues;
    ValueValidation& validation;
  };

  AtomSequenceEditing(CycleState& cycle, const Screen& screen, const Grid& grid, ErrorSink& errors)
      : cycle_(cycle), screen_(screen), grid_(grid), errors_(errors) {}

  /// Fills the grid with the parameters of the chosen atom. The sequence stays as it is.
  void cboAtom_Click();
  /// Gives the grid the chosen atom's defaults again.
  void cmdDefault_Click() { cboAtom_Click(); }
  /// Inserts the atom behind the selected line, or at the end when none is selected. A value that does not stand is
  /// refused: nothing changes, and the value gets the focus.
  void cmdInset_Click();
  /// Puts the atom in place of the selected line, unless a value does not stand. The line is shown without its block's
  /// indent until the list is next rebuilt.
  void cmdReplace_Click();
  /// Removes the selected line; the line that follows it, or the new last one, is selected.
  void cmdDelete_Click();

 private:
  bool valuesStand();
  void lstRefresh(int inserted);
  std::string ParamFiller();
  void insertBehind(int position, std::string name, std::string parameters);
  void append(std::string name, std::string parameters);

  CycleState& cycle_;
  Screen screen_;
  Grid grid_;
  ErrorSink& errors_;
};

}  // namespace mavCycEd
