#pragma once

#include "panels/CycleState.h"
#include "platform/ComboBox.h"
#include "platform/ErrorSink.h"
#include "platform/ValueListActiveX.h"

namespace mavCycEd {

/// Puts the working cycle document into the editor, and shows the atom line that is selected in the sequence.
class CycleLoader {
 public:
  CycleLoader(CycleState& cycle, const CycleScreen& screen, platform::ComboBox& cboAtom,
              platform::ValueListActiveX& GrdAtom, ErrorSink& errors)
      : cycle_(cycle), screen_(screen), cboAtom_(cboAtom), grdAtom_(GrdAtom), errors_(errors) {}

  /// Fills the description, the variables, the atom lines and the sequence list from the working cycle document, which
  /// is used up by this, and selects the first line. It adds to the atom lines: the caller hands them over empty. A
  /// document without VARIABLES loads nothing; an element that is missing further down ends the loading there, and what
  /// was filled stays.
  void FillCycle();
  /// Shows the selected atom line in the atom picker and in the parameter grid.
  void lstAtomSequence_Click();
  /// Removes the selection.
  void lstAtomSequence_DblClick();

 private:
  void pickAtom(std::string_view name);

  CycleState& cycle_;
  CycleScreen screen_;
  platform::ComboBox& cboAtom_;
  platform::ValueListActiveX& grdAtom_;
  ErrorSink& errors_;
};

}  // namespace mavCycEd
