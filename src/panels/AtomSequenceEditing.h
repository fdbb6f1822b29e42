#pragma once

#include <string>
#include <string_view>

#include "panels/CycleState.h"
#include "panels/CycleView.h"
#include "panels/ExtraValues.h"
#include "panels/GridState.h"
#include "panels/ParamGrid.h"
#include "panels/ValueValidation.h"
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
    CycleScreen cycle;
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

  AtomSequenceEditing(CycleState& cycle, const Screen& screen, CycleView& view, const Grid& grid, ErrorSink& errors)
      : cycle_(cycle), screen_(screen), view_(view), grid_(grid), errors_(errors) {}

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
  ParameterText ParamFiller();
  void perform(std::string_view stepName, CycleEdit edit, int lineAfter);
  void insertBehind(int position, AtomLine line);
  void append(AtomLine line);
  platform::LineListBox& list() { return screen_.cycle.lstAtomSequence; }

  CycleState& cycle_;
  Screen screen_;
  CycleView& view_;
  Grid grid_;
  ErrorSink& errors_;
};

}  // namespace mavCycEd
